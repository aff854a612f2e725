#pragma once
#include "platform/Host.h"

namespace petal {

class FrmMain;

// The end of a deal: the wild card's claim, the result and its banners, the Hall of Fame
// offers, the tournament's score, and what comes next.
class MatchEnd {
public:
    explicit MatchEnd(FrmMain& f) : f_(f) {}

    void EndMatch();
    void CheckWinLose();
    void EndComment();

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
    void offerSingleHighScore(int p);
    void offerTournamentHighScore();
    int scoreOf(int side) const;

    FrmMain& f_;
};

}  // namespace petal
