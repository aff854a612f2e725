#pragma once
#include "platform/Host.h"

namespace petal {

class FrmMain;

// The end of a deal: the wild card's claim, the result and its banners, the Hall of Fame
// offers, the tournament's score, and what comes next.
class MatchEnd {
public:
    // How long a client that has closed its card waits for the next deal before it says so.
    static constexpr int kNextRoundGraceMs = 1000;

    explicit MatchEnd(FrmMain& f) : f_(f) {}

    void EndMatch();
    void CheckWinLose();
    void EndComment();
    // A side's score in the round just played, as its total label shows it.
    int scoreOf(int side) const;

private:
    void sweepClaim();
    void endSingleGame();
    void endTournamentRound();
    MsgResult askPlayAgain();
    bool askingRematch(int dealt);
    bool answerRematch();
    void declineRematch();
    void pumpAfterQuestion();
    void decideNextStarter();
    void showScoreCard();
    void awaitNextRound();
    void offerSingleHighScore(int p);
    void offerTournamentHighScore();
    void playRoundSound(int p, int c);

    FrmMain& f_;
};

}  // namespace petal
