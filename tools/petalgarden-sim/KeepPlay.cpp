#include "KeepPlay.h"

#include <chrono>
#include <ostream>
#include <thread>
#include <vector>

#include "SimPlay.h"
#include "TableSnapshot.h"
#include "cards/Val.h"
#include "platform/FatalError.h"
#include "platform/sim/SimHost.h"
#include "records/FrmHOFWinner.h"
#include "scoring/FrmScoreCard.h"
#include "shell/Program.h"

namespace petal::sim {

namespace {

// A deal's seed depends on how many deals the game has had, so that a game resumed in a new
// process deals what the same game would have dealt unbroken.
class KeepHost : public SimHost {
public:
    KeepHost(const std::filesystem::path& folder, const std::string& start)
        : SimHost(folder), start_(Val(start) * 3600 + Val(start.substr(3)) * 60 + Val(start.substr(6))) {}
    const FrmMain* game = nullptr;

    std::string timeText() override {
        long deals = 0;
        if (game)
            for (const SavedGame::Entry& e : game->journal.game().entries) deals += e.kind == 'D' ? 1 : 0;
        const long t = (start_ + 7 * deals) % 86400;
        char text[16];
        std::snprintf(text, sizeof text, "%02ld:%02ld:%02ld", t / 3600, t / 60 % 60, t % 60);
        return text;
    }

private:
    long start_;
};

// The player's choice depends on the move's number and the seed alone: a resumed game chooses
// as the unbroken one did.
int pick(const std::vector<int>& candidates, std::uint64_t seed, std::size_t move, int salt) {
    std::uint64_t z = seed + 0x9E3779B97F4A7C15ULL * (move * 2 + static_cast<std::uint64_t>(salt) + 1);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return candidates[(z ^ (z >> 31)) % candidates.size()];
}

std::vector<int> slots(const std::vector<Shape>& frames) {
    std::vector<int> framed;
    for (std::size_t i = 0; i < frames.size(); ++i)
        if (frames[i].Visible) framed.push_back(static_cast<int>(i));
    return framed;
}

bool move(FrmMain& f, std::uint64_t seed) {
    if (!canMove(f)) return false;
    const std::size_t n = f.journal.recorded();
    if (f.ctl.shpFlipCard.Visible) {
        const std::vector<int> framed = slots(f.ctl.shpTHilite);
        if (framed.empty()) return false;
        f.play.imgTCard_Click(pick(framed, seed, n, 0));
        return true;
    }
    if (f.m.mPlayerFlipped != 0) return false;
    std::vector<int> held;
    for (int i = 0; i < 8; ++i)
        if (f.ctl.imgPCard[i].hasPicture()) held.push_back(i);
    if (held.empty()) return false;
    f.play.imgPCard_Click(pick(held, seed, n, 1));
    const std::vector<int> framed = slots(f.ctl.shpTHilite);
    if (framed.empty())
        f.play.imgTable_Click();
    else
        f.play.imgTCard_Click(pick(framed, seed, n, 2));
    return true;
}

}  // namespace

int keep(const KeepOptions& o, std::ostream& out, std::ostream& err) {
    KeepHost host(o.folder, o.start);
    Program program(host);
    FrmMain& f = program.frmMain;
    host.game = &f;
    program.keepGames();
    const auto line = [&out](const std::string& text) { out << text << '\n' << std::flush; };
    const auto dwell = [&o] { std::this_thread::sleep_for(std::chrono::milliseconds(o.dwellMs)); };
    f.journal.onRecorded = [&](bool caughtUp) {
        line((caughtUp ? "resumed " : "move ") + std::to_string(f.journal.recorded()) + " " + tableSnapshot(f));
    };
    bool failed = false;
    host.onMsgBox = [&](const MsgBox& box) {
        if (box.text.rfind("Resume your", 0) == 0) {
            line("ask " + box.text);
            dwell();
            return MsgResult::Yes;
        }
        if (box.text == "Do you want to play again?") {
            const auto& scores = f.g.gRoundScores;
            const bool single = f.g.gGameType == 0;
            line("end " + std::to_string(single ? f.matchEnd.scoreOf(0) : scores[0][0]) + " " +
                 std::to_string(single ? f.matchEnd.scoreOf(1) : scores[1][0]) + " " + tableSnapshot(f));
            dwell();
            return MsgResult::No;
        }
        line("told " + box.text);
        // A game that cannot be saved, or a store out of reach, is no failure of the run.
        failed = failed || box.icon != MsgIcon::Exclamation;
        return MsgResult::OK;
    };
    host.onForm = [&](Form& form) {
        if (dynamic_cast<FrmSplash*>(&form)) return form.Unload(true);
        line(std::string("form ") + form.formName());
        dwell();
        if (auto* card = dynamic_cast<FrmScoreCard*>(&form)) {
            card->cmdOK_Click();
        } else if (auto* winner = dynamic_cast<FrmHOFWinner*>(&form)) {
            winner->setTxtHOFName("Keeper");
            winner->cmdOK_Click();
        } else {
            form.Unload();
        }
    };
    runHandler(host, [&] {
        program.Main();
        const bool tournament = o.tournamentRounds > 0;
        f.settings.WriteSettings(tournament ? 1 : 0, tournament ? o.tournamentRounds : 10, o.yaku ? -1 : 0, 0);
    });
    line("start");
    bool dealt = false;
    while (!host.ending() && !failed) {
        // What is due now (the offer of a saved game, above all) runs before the player acts.
        if (!host.idle()) {
            host.step();
            continue;
        }
        bool acted = false;
        runHandler(host, [&] {
            if (!dealt && f.g.gGameInProgress == 0) {
                line("fresh");
                f.dealer.imgDeck_Click();
                acted = true;
            } else {
                acted = move(f, o.policySeed);
            }
            dealt = true;
        });
        if (!acted && !host.step()) {
            err << "petalgarden-sim: the game stopped with nothing left to run\n";
            failed = true;
        }
    }
    return failed || host.exitStatus() != 0 ? 1 : 0;
}

}  // namespace petal::sim
