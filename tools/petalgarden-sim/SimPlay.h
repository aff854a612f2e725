#pragma once
// Plays deals headless against the computer: the local player is a policy that clicks
// through the same handlers as a user, and every move can be traced as JSON lines.
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "Policy.h"
#include "shell/FrmMain.h"

namespace petal::sim {

struct PlayOptions {
    int deals = 1;
    int tournamentRounds = 0;  // 0: single games
    bool yaku = true;
    bool randomPolicy = false;
    std::uint64_t policySeed = 0;
    Chooser chooser = Chooser::None;  // the local player plays as the standard or the strong computer
    bool strongComputer = false;
    bool timing = false;  // the strong policy's processor time per choice, on the error stream
    std::string start = "12:00:00";
    bool trace = false;
};

// Whether the local player is on turn with a move to make, as a user would see it. Asked of
// both programs at every step of a net run, so it is made where it is asked.
inline bool canMove(const FrmMain& f) {
    return f.m.mTurn == 0 && !f.tmrComputer.Enabled() && f.g.gGameInProgress == 1 &&
           f.MousePointer() != FrmMain::kPointerHourglass && (f.ctl.shpFlipCard.Visible || f.m.mPlayerFlipped == 0);
}
// One move of the local player if it is on turn (a hand card and where it goes, or the place
// of a flipped card that waits); false when the game is elsewhere.
// choiceTimes: where the strong policy's time per choice goes (milliseconds), or nullptr.
bool localMove(FrmMain& f, Policy& policy, std::vector<double>* choiceTimes = nullptr);

// Returns the process exit code; the trace and the summary go to out, problems to err.
int play(const PlayOptions& options, std::ostream& out, std::ostream& err);

}  // namespace petal::sim
