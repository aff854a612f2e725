// The Hall of Fame file as a fuzz target: the input is the bytes of HOF.mdb, laid in a fresh
// folder before the program starts there, as main starts it. The program shows both pages from
// the menu, asks whether the best score of each kind is a high score, stores it under a name
// that holds the text's separators, and shows the pages again. None of it ends the program;
// every box is the records' own, told once, naming the file; a stored record shows on its page
// unless the records said they could not be read or written; and a file that the records could
// not open is never written to.
#include <algorithm>
#include <array>
#include <set>

#include "FuzzTarget.h"
#include "ProgramRig.h"
#include "records/FrmHOF.h"
#include "records/FrmHOFWinner.h"
#include "records/Gardenia.h"

namespace petal::fuzz {

namespace {

using Page = std::array<std::array<std::string, 11>, FrmHOF::kColumns>;  // [column][row], row 0 the heading

const std::string kName = "Fuzz, a:b%2C";

bool shows(const Page& page, const std::string& name) {
    return std::find(page[0].begin() + 1, page[0].end(), name) != page[0].end();
}

class HallOfFameTarget : public FuzzTarget {
public:
    std::string run(const std::uint8_t* data, std::size_t size) override {
        const std::string bytes(reinterpret_cast<const char*>(data), size);
        ProgramRig rig;
        rig.write(HallOfFame::kFileName, bytes);
        rig.write(Gardenia::kFileName, "1\r\n5\r\n-1\r\n0\r\n");
        if (!rig.start()) return "at start: " + rig.failure();
        std::array<Page, 2> pages;
        if (!show(rig, pages)) return "showing the pages: " + rig.failure();
        std::array<bool, 2> stored{};
        for (int t = 0; t < 2; ++t) {
            HallOfFame& hof = rig.program().hof;
            if (!rig.act([&] { stored[t] = hof.IsHighScore(t, 32767); })) return "IsHighScore: " + rig.failure();
            if (stored[t] && !rig.act([&] { store(rig, t); })) return "storing: " + rig.failure();
        }
        if (!show(rig, pages)) return "showing the pages again: " + rig.failure();
        rig.program().hof.CloseHallOfFame();
        return verdict(rig, pages, stored, bytes);
    }

private:
    static bool show(ProgramRig& rig, std::array<Page, 2>& pages) {
        rig.onForm = [&](Form& form) {
            auto& hall = dynamic_cast<FrmHOF&>(form);
            pages[0] = hall.cells;
            hall.cmdNext_Click();
            pages[1] = hall.cells;
        };
        return rig.act([&] { rig.f().mnuVHallofFame_Click(); });
    }

    static void store(ProgramRig& rig, int t) {
        FrmHOFWinner winner(rig.program().g, rig.program().hof);
        winner.mScore = 32767;
        winner.mRoundsWon = t;
        winner.mRounds = t;
        rig.onForm = [](Form& form) {
            auto& shown = dynamic_cast<FrmHOFWinner&>(form);
            shown.setTxtHOFName(kName);
            shown.cmdOK_Click();
        };
        rig.host().showModal(winner);
    }

    static std::string verdict(ProgramRig& rig, const std::array<Page, 2>& pages, const std::array<bool, 2>& stored,
                               const std::string& bytes) {
        if (rig.host().ending()) return "the program ended";
        const std::string file = "\"" + rig.file(HallOfFame::kFileName).string() + "\" cannot be ";
        std::set<std::string> seen;
        bool refused = false, unopened = false;
        for (const MsgBox& box : rig.host().shownBoxes()) {
            if (!seen.insert(box.text).second) return "a box told twice: " + box.text.substr(0, 200);
            if (box.title == "Hall of Fame" && box.text.find(" that no game could have written (") != std::string::npos)
                continue;  // rows left out of the table, told as such
            if (box.title != "Hall of Fame" || box.text.find(file) == std::string::npos)
                return "a box that is not the records' own: " + box.text.substr(0, 200);
            unopened = unopened || box.text.find(file + "opened: ") != std::string::npos;
            refused = refused || unopened || box.text.find(" cannot be read: ") != std::string::npos ||
                      box.text.find(" cannot be written: ") != std::string::npos;
        }
        for (int t = 0; t < 2; ++t)
            if (stored[t] && !refused && !shows(pages[t], kName)) return "a stored record missing from page " + std::to_string(t);
        if (unopened && rig.read(HallOfFame::kFileName) != bytes) return "a file that cannot be opened was written to";
        return "";
    }
};

}  // namespace

std::unique_ptr<FuzzTarget> makeHallOfFameTarget() { return std::make_unique<HallOfFameTarget>(); }

}  // namespace petal::fuzz
