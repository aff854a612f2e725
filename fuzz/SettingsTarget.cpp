// The settings file as a fuzz target: the input is the bytes of GARDENIA.ini, laid in a fresh
// folder before the program starts there, as main starts it. The start leaves the file as it
// was, and either ends in order (one box that names the file, a status that tells the failure)
// or plays with values the game can play with; a file that cannot be read and is answered with
// Restore Defaults is kept aside whole and the game goes on.
#include "FuzzTarget.h"
#include "ProgramRig.h"
#include "records/Gardenia.h"

namespace petal::fuzz {

namespace {

// Game type 0 or 1, rounds from 0 (from 1 in a tournament) to 16 bits, single play.
std::string outOfRange(const FrmMain& f) {
    const Globals& g = f.g;
    if ((g.gGameType != 0 && g.gGameType != 1) || g.gRounds < g.gGameType || g.gRounds > 32767)
        return "the game plays type " + std::to_string(g.gGameType) + " of " + std::to_string(g.gRounds) + " rounds";
    if (g.gPlayMode != 0 || f.Caption != "Petalgarden") return "the program does not start alone";
    return "";
}

class SettingsTarget : public FuzzTarget {
public:
    std::string run(const std::uint8_t* data, std::size_t size) override {
        const std::string bytes(reinterpret_cast<const char*>(data), size);
        ProgramRig rig;
        rig.write(Gardenia::kFileName, bytes);
        rig.restoreDefaults = size && (data[0] & 1);
        if (!rig.start()) return "at start: " + rig.failure();
        const std::vector<MsgBox>& boxes = rig.host().shownBoxes();
        const bool restored = !boxes.empty() && boxes[0].buttons == MsgButtons::RestoreDefaultsClose && rig.restoreDefaults;
        if (restored) {
            if (rig.host().ending()) return "the program ended after Restore Defaults";
            if (rig.read(std::string(Gardenia::kFileName) + ".bad") != bytes) return "the file put aside is not the one read";
        } else if (rig.read(Gardenia::kFileName) != bytes) {
            return "the start changed the file";
        }
        if (rig.host().ending()) {
            const std::string file = "\"" + rig.file(Gardenia::kFileName).string() + "\" cannot be ";
            if (rig.host().exitStatus() == 0 || boxes.size() != 1 || boxes[0].text.find(file) == std::string::npos)
                return "an end at start that is not one box naming the file and a failure's status";
            return "";
        }
        return outOfRange(rig.f());
    }
};

}  // namespace

std::unique_ptr<FuzzTarget> makeSettingsTarget() { return std::make_unique<SettingsTarget>(); }

}  // namespace petal::fuzz
