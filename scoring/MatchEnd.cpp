#include "scoring/MatchEnd.h"

#include <cstdint>
#include <cstdlib>

#include "cards/FrmCards.h"
#include "cards/Val.h"
#include "records/FrmHOFWinner.h"
#include "records/HallOfFame.h"
#include "scoring/FrmScoreCard.h"
#include "shell/FrmMain.h"
#include "platform/Host.h"
#include "platform/Socket.h"
#include "platform/Timer.h"
#include "platform/Words.h"

namespace petal {

int MatchEnd::scoreOf(int side) const {
    return static_cast<std::int16_t>(Val(f_.ctl.panel[side].lblPointsTotal[3].Caption));
}

void MatchEnd::EndMatch() {
    sweepClaim();
    if (f_.events) f_.events->dealEnded();
    f_.journal.roundOver();
    if (f_.g.gGameType == 0)
        endSingleGame();
    else
        endTournamentRound();
    if (f_.m.mRoundNo > f_.g.gRounds) f_.m.mRoundNo = 0;
}

// The side whose wild card took a table card sweeps up what is left of that card's month,
// and every willow card still on the table.
void MatchEnd::sweepClaim() {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    int claimant = -1;
    if (c.panel[0].imgGagi.Visible) claimant = 0;
    else if (c.panel[1].imgGagi.Visible) claimant = 1;
    if (claimant < 0) return;
    bool took = false;
    const CardRecord& marked = m.mCards.at(c.panel[claimant].imgGagi.Tag.value());
    for (std::size_t i = 0; i < c.imgTCard.size(); ++i) {
        if (!c.imgTCard[i].hasPicture()) continue;
        const int saved = m.mTurn;
        m.mTurn = claimant;
        const int position = c.imgTCard[i].Tag.value();
        const CardRecord& card = m.mCards.at(position);
        const bool sameMonth = card.Flower == marked.Flower;
        if (sameMonth || card.Flower == "F11") {
            f_.piles.SendToPoints(claimant, position, false, 0);
            if (f_.events) f_.events->claimed(claimant, position, static_cast<int>(i));
            if (sameMonth && f_.g.gUseYaku) f_.yaku.ShowYaku(position);
            c.imgTCard[i].clearCard();
            f_.host.refresh();
            f_.piles.CalcPlayerPoints();
            took = true;
        }
        m.mTurn = saved;
    }
    if (took) f_.playSoundFile("capture.wav");
    f_.yaku.CountYakus();
}

// Cancel: the question belonged to a network session that has ended while it stood.
MsgResult MatchEnd::askPlayAgain() {
    return f_.host.msgBox({PETAL_TR("core", "Do you want to play again?"), PETAL_TR("core", "Play Again?"), MsgIcon::Question, MsgButtons::YesNo, false,
                           f_.g.gPlayMode != 0});
}

// A bounded number of passes that lets a peer's answer arrive.
void MatchEnd::pumpAfterQuestion() {
    std::uint32_t passes = 0;
    while (!f_.host.ending()) {
        ++passes;
        f_.host.doEvents();
        // Once nothing waits to run, further passes would change nothing; and a pass that ends
        // the count while data is being received leaves at the next one, never after billions.
        if (!f_.m.mReceiving && (passes >= 10000 || f_.host.idle())) return;
    }
}

// The 10-point rows' captions compared as text: a blank sorts first, "20" after "100".
void MatchEnd::decideNextStarter() {
    const std::string& mine = f_.ctl.panel[0].lblPointsTotal[1].Caption;
    const std::string& theirs = f_.ctl.panel[1].lblPointsTotal[1].Caption;
    f_.m.mTurn = mine > theirs ? 0 : 1;
}

void MatchEnd::endSingleGame() {
    Globals& g = f_.g;
    g.gGameInProgress = 0;
    // A single game's end rings as a tournament's round does, with the banners.
    playRoundSound(scoreOf(0), scoreOf(1));
    CheckWinLose();
    f_.journal.offersDone();
    const int dealt = f_.m.dealSerial;
    if (g.gPlayMode != 0 && !askingRematch(dealt)) return;
    const MsgResult answer = askPlayAgain();
    if (answer == MsgResult::Cancel) return;
    const bool again = answer == MsgResult::Yes;
    if (g.gPlayMode != 0) pumpAfterQuestion();
    // A deal that came while the question stood or the events ran (from the wire, or the deck)
    // has its own leader already.
    if (f_.m.dealSerial == dealt) decideNextStarter();
    if (!again) {
        declineRematch();
        return;
    }
    if (f_.m.dealSerial != dealt) return;
    if (g.gPlayMode == 0) {
        f_.dealer.NewGame(false);
        f_.dealer.DealCards();
        return;
    }
    if (f_.socketState() == 8) return;
    // A deal that came from the wire while this side waited stands, and a game abandoned
    // meanwhile deals nothing.
    if (!answerRematch() || f_.m.dealSerial != dealt) return;
    f_.dealer.NewGame(false);
    // In a rematch only the host deals, so that both sides play one deck; the client waits
    // for its DEAL.
    if (g.gPlayMode != 2) f_.dealer.DealCards();
}

// The answer may already have come while this side was still finishing the deal. False when
// the session ended meanwhile (a refusal told, then the loss of the peer): nothing is asked.
bool MatchEnd::askingRematch(int dealt) {
    f_.g.gRematchPending = true;
    f_.net.rematchAsked();
    return f_.m.dealSerial == dealt;
}

// No: the peer is told, and the program closes.
void MatchEnd::declineRematch() {
    if (f_.g.gPlayMode != 0) {
        f_.net.leave();
        f_.sendToPeer("NEWG,1");
    }
    f_.Unload();
}

// Yes to a rematch on a network: a peer that has not said yes yet is asked and waited for.
// False when the session ended while this side waited.
bool MatchEnd::answerRematch() {
    // The peer's own yes may come while this one is sent: it counts as one that came before.
    f_.sendToPeer("NEWG,0");
    const bool peerUndecided = f_.g.gRematchPending;
    f_.g.gRematchPending = false;
    return !peerUndecided || f_.waitForPeer(PETAL_TR("core", "Please Wait..."), PETAL_TR("core", "Asking your opponent for another game."));
}

void MatchEnd::endTournamentRound() {
    MainVars& m = f_.m;
    Globals& g = f_.g;
    ++m.mRoundNo;
    const int p = scoreOf(0), c = scoreOf(1);
    g.gRoundScores[0].at(0) += p;
    g.gRoundScores[1].at(0) += c;
    g.gRoundScores[0].at(m.mRoundNo) = p;
    g.gRoundScores[1].at(m.mRoundNo) = c;
    CheckWinLose();
    f_.journal.offersDone();
    f_.setMousePointer(FrmMain::kPointerHourglass);
    const int dealt = f_.m.dealSerial;
    if (g.gPlayMode != 0 && !askingRematch(dealt)) {
        f_.setMousePointer(FrmMain::kPointerDefault);
        return;
    }
    // The host deals the next round once the client's card of this round has opened and closed.
    if (g.gPlayMode == 1) m.mPeerReady = false;
    EndComment();
    showScoreCard();
    f_.setMousePointer(FrmMain::kPointerDefault);
    if (f_.host.ending()) return;
    // A deal came from the wire, or the tournament was abandoned, while its card stood or was
    // awaited: no round follows from here.
    if (m.dealSerial != dealt) {
        if (g.gGameInProgress == 0) m.mTournamentYakus = 0;
        return;
    }
    if (m.mRoundNo < g.gRounds) {
        m.mTurn = g.gRoundScores[0][m.mRoundNo] > g.gRoundScores[1][m.mRoundNo] ? 0 : 1;
        if (g.gPlayMode == 0) {
            f_.dealer.DealCards();
        } else {
            f_.dealer.NewGame(false);
            m.mAutoDeal = true;
            awaitNextRound();
        }
        return;
    }
    g.gGameInProgress = 0;
    m.mTournamentYakus = 0;
    if (m.mRoundNo > g.gRounds) return;
    m.mRoundNo = 0;
    const MsgResult answer = askPlayAgain();
    if (answer == MsgResult::Cancel) return;
    const bool again = answer == MsgResult::Yes;
    pumpAfterQuestion();
    if (!again) {
        declineRematch();
        return;
    }
    if (g.gPlayMode == 0) {
        f_.dealer.DealCards();
        return;
    }
    if (f_.socketState() != 8 && !answerRematch()) return;
    if (f_.m.dealSerial != dealt) return;
    f_.dealer.NewGame(false);
    if (m.mTurn == 1) m.mPeerReady = false;
}

// The side that closed its card first is told what the next round waits for: the host for the
// other card; the client for the host's deal, which comes at once if the host's card is closed.
void MatchEnd::awaitNextRound() {
    MainVars& m = f_.m;
    if (f_.g.gPlayMode == 1) {
        if (!m.mPeerReady) f_.waitForPeer(PETAL_TR("core", "Please Wait..."),
                                        PETAL_TR("core", "Waiting for your opponent to close the score card."));
        return;
    }
    const int serial = m.dealSerial;
    const auto waiting = [&] {
        return m.dealSerial == serial && f_.g.gPlayMode == 2 && f_.socketState() == Socket::sckConnected;
    };
    bool late = false;
    Timer grace(f_.host, [&late] { late = true; }, kNextRoundGraceMs);
    grace.setEnabled(true);
    f_.host.waitUntil([&] { return late || !waiting(); });
    if (waiting()) f_.waitForPeer(PETAL_TR("core", "Please Wait..."), PETAL_TR("core", "Waiting for your host to start the next round."));
}

void MatchEnd::showScoreCard() {
    if (f_.g.gPlayMode != 0 && !f_.g.gLocalLeads) {
        // The wait ends too if the session ends meanwhile: no card opens on the other side then.
        f_.host.waitUntil(
            [this] { return f_.m.mPeerScoreOpen || f_.g.gGameInProgress == 0 || f_.g.gPlayMode == 0; });
        if (!f_.m.mPeerScoreOpen) return;
        FrmScoreCard card(f_);
        f_.host.showModal(card);
        f_.m.mPeerScoreOpen = false;
        return;
    }
    FrmScoreCard card(f_);
    f_.host.showModal(card);
}

void MatchEnd::CheckWinLose() {
    TableModel& c = f_.ctl;
    c.panel[0].imgTurn.Visible = false;
    c.panel[1].imgTurn.Visible = false;
    const int p = scoreOf(0), o = scoreOf(1);
    const int mine = p > o ? 0 : p < o ? 1 : 2;
    const int theirs = p > o ? 1 : p < o ? 0 : 2;
    for (int side = 0; side < 2; ++side) {
        Image& banner = c.imgWinLose[side];
        banner.Visible = false;
        banner.Picture = FrmCards::imgWinLose(side == 0 ? mine : theirs);
        f_.host.refresh();
        banner.Visible = true;
    }
    if (f_.g.gPlayMode != 0) return;
    if (p >= o && f_.hof.IsHighScore(0, p)) offerSingleHighScore(p);
    if (f_.g.gGameType > 0) {
        if (f_.m.mRoundNo != f_.g.gRounds) {
            f_.m.mTournamentYakus += f_.m.mYakuCount[0];
            return;
        }
        offerTournamentHighScore();
    }
}

void MatchEnd::offerSingleHighScore(int p) {
    FrmHOFWinner winner(f_.g, f_.hof);
    winner.mScore = p;
    winner.mYakuCount = f_.m.mYakuCount[0];
    winner.mRounds = 0;
    winner.mFormCaption = PETAL_TR("core", "Single Game High Score");
    f_.host.showModal(winner);
}

void MatchEnd::offerTournamentHighScore() {
    const Globals& g = f_.g;
    const int total = g.gRoundScores[0].at(0);
    if (total < g.gRoundScores[1].at(0) || !f_.hof.IsHighScore(g.gGameType, total)) return;
    FrmHOFWinner winner(f_.g, f_.hof);
    winner.mScore = total;
    winner.mYakuCount = f_.m.mYakuCount[0] + f_.m.mTournamentYakus;
    int won = 0;
    for (int i = 1; i <= g.roundScoresUpper(); ++i) won += g.gRoundScores[0][i] > g.gRoundScores[1][i] ? 1 : 0;
    winner.mRoundsWon = won;
    winner.mRounds = g.gRounds;
    winner.mFormCaption = PETAL_TR("core", "Tournament High Score");
    f_.host.showModal(winner);
}

void MatchEnd::EndComment() {
    const int round = f_.m.mRoundNo;
    playRoundSound(f_.g.gRoundScores[0].at(round), f_.g.gRoundScores[1].at(round));
}

// Won or lost by up to 50, by up to 100, or by more; or tied.
void MatchEnd::playRoundSound(int p, int c) {
    const int d = std::abs(p - c);
    const int level = d < 51 ? 1 : d <= 100 ? 2 : 3;
    if (p == c)
        f_.PlaySound(f_.programFile("Tie.wav"));
    else
        f_.PlaySound(f_.programFile((p > c ? "pwin" : "cwin") + std::to_string(level) + ".wav"));
}

}  // namespace petal
