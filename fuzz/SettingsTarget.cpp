// The settings file as a fuzz target: the input is the bytes of GARDENIA.ini, laid in a fresh
// folder before the program starts there, as main starts it. The start leaves the file as it
// was, and either ends in order (one box that names the file, a status that tells the failure)
// or plays with values the game can play with; a file that cannot be read and is answered with
// Restore Defaults is kept aside whole and the game goes on. Setup shows the game's values; OK stores them,
// and the next start reads them back without a word; a deal on them is played to its end.
#include "FuzzTarget.h"
#include "Policy.h"
#include "ProgramRig.h"
#include "SimPlay.h"
#include "TableInvariants.h"
#include "records/Gardenia.h"
#include "shell/FrmSetup.h"

namespace petal::fuzz {

namespace {

constexpr int kMaxSteps = 5'000;  // far beyond a deal's events

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
        if (std::string broken = outOfRange(rig.f()); !broken.empty()) return broken;

        bool shown = true;
        rig.onForm = [&](Form& form) {
            auto& setup = dynamic_cast<FrmSetup&>(form);
            const Globals& g = rig.f().g;
            shown = setup.optGameType[g.gGameType] && setup.txtRounds.Text == std::to_string(g.gRounds) &&
                    setup.chkUseYaku == (g.gUseYaku ? 1 : 0);
            setup.cmdOK_Click();
            if (setup.loaded()) setup.cmdCancel_Click();  // its box refused the rounds
        };
        if (!rig.act([&] { rig.f().mnuSetup_Click(); })) return "in Setup: " + rig.failure();
        rig.onForm = nullptr;
        if (!shown) return "Setup shows other values than the game's";
        if (rig.read(Gardenia::kFileName) != bytes) {
            const Globals stored = rig.f().g;
            if (!rig.start()) return "at the next start: " + rig.failure();
            const Globals& g = rig.f().g;
            if (!rig.host().shownBoxes().empty() || g.gGameType != stored.gGameType || g.gRounds != stored.gRounds ||
                g.gUseYaku != stored.gUseYaku)
                return "the values that Setup stored do not read back as they were";
        }
        return playOut(rig, size ? data[0] : 0);
    }

private:
    // A deal played to its end by the local player; the question of another game ends the
    // program, a score card is closed by the rig.
    static std::string playOut(ProgramRig& rig, std::uint8_t seed) {
        FrmMain& f = rig.f();
        struct Ends : GameEvents {
            int count = 0;
            void dealEnded() override { ++count; }
        } ends;
        f.events = &ends;
        sim::Policy policy(true, seed);
        rig.act([&f] { f.dealer.imgDeck_Click(); });
        for (int steps = 0; ends.count == 0 && !rig.host().ending() && rig.failure().empty(); ++steps) {
            bool moved = false;
            rig.act([&] { moved = sim::localMove(f, policy); });
            if (!moved && !rig.guard([&] { moved = rig.host().step(); })) break;
            if (steps > kMaxSteps || !moved) return "the deal does not end";
        }
        f.events = nullptr;
        if (!rig.failure().empty()) return "in the deal: " + rig.failure();
        if (std::string broken = sim::TableInvariants::check(f); !broken.empty()) return broken;
        return rig.host().exitStatus() == 0 ? "" : "the program ended after a failure";
    }
};

}  // namespace

std::unique_ptr<FuzzTarget> makeSettingsTarget() { return std::make_unique<SettingsTarget>(); }

}  // namespace petal::fuzz
