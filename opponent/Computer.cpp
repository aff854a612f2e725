#include "opponent/Computer.h"

#include "cards/Val.h"
#include "opponent/StrongSearch.h"
#include "shell/FrmMain.h"
#include "platform/Host.h"

namespace petal {

void Computer::tmrComputer_Timer() {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    f_.host.doEvents();
    // What ran meanwhile may have ended the game (a lost connection, a restart): the turn is over.
    if (!f_.tmrComputer.Enabled()) return;
    f_.setMousePointer(FrmMain::kPointerHourglass);
    if (!c.panel[1].imgTurn.Visible) {
        c.panel[0].imgTurn.Visible = false;
        c.panel[1].imgTurn.Visible = true;
        if (f_.g.gPlayMode > 0) f_.menu.mnuVChat.Enabled = false;
    }
    if (m.mCompPlays >= 8) {
        closingTick();
        return;
    }
    const int deal = m.dealSerial;
    const bool advance = runPhase();
    // A deal that began while the phase waited (the flip's pause lets a restart and a new deal
    // in) has set its own turn: the old turn's phase must not carry over into it.
    if (m.dealSerial != deal) return;
    if (f_.g.gPlayMode == 0 || advance) ++m.mCompPhase;
}

bool Computer::runPhase() {
    MainVars& m = f_.m;
    const bool remote = f_.g.gPlayMode > 0;
    switch (m.mCompPhase) {
        case 0:
            if (remote) return f_.remote.MultiPlayerSelectCard();
            CompSelectCard();
            return true;
        case 1:
            if (remote) return f_.remote.MultiPlayerDropCard(1);
            CompDropCard();
            return true;
        case 2:
            CompFlipFromDeck();
            return true;
        case 3: {
            bool done = true;
            if (f_.ctl.imgFlipCard.hasPicture()) {
                if (remote)
                    done = f_.remote.MultiPlayerDropCard(3);
                else
                    CompDropCard();
            }
            if (done) endTurn();
            return done;
        }
        default:
            return true;
    }
}

void Computer::endTurn() {
    MainVars& m = f_.m;
    ++m.mCompPlays;
    m.mTurn = 0;
    m.mPlayerFlipped = 0;
    f_.setMousePointer(FrmMain::kPointerDefault);
    if (!(m.mPlayerPlays == 8 && m.mCompPlays == 8)) {
        f_.tmrComputer.setEnabled(false);
        handMarkersToLocal();
    } else {
        // Both hands are empty: the timer stays on for exactly one more tick, which ends the deal.
        f_.ctl.panel[1].imgTurn.Visible = false;
        f_.ctl.panel[0].imgTurn.Visible = false;
        if (f_.g.gPlayMode > 0) f_.menu.mnuVChat.Enabled = true;
    }
    f_.journal.computerTurnEnded();
}

void Computer::closingTick() {
    MainVars& m = f_.m;
    f_.tmrComputer.setEnabled(false);
    m.mTurn = 0;
    m.mPlayerFlipped = 0;
    f_.setMousePointer(FrmMain::kPointerDefault);
    if (!(m.mPlayerPlays == 8 && m.mCompPlays == 8)) {
        handMarkersToLocal();
        return;
    }
    f_.ctl.panel[1].imgTurn.Visible = false;
    f_.ctl.panel[0].imgTurn.Visible = false;
    if (f_.g.gPlayMode > 0) f_.menu.mnuVChat.Enabled = true;
    f_.EndMatch();
}

void Computer::handMarkersToLocal() {
    TableModel& c = f_.ctl;
    if (c.panel[0].imgTurn.Visible) return;
    c.panel[1].imgTurn.Visible = false;
    c.panel[0].imgTurn.Visible = true;
    if (f_.g.gPlayMode > 0) f_.menu.mnuVChat.Enabled = true;
}

bool Computer::strong() const { return f_.g.gPlayMode == 0 && f_.options.text(kOption, "standard") == "strong"; }

void Computer::CompSelectCard() {
    if (strong() && selectStrong()) return;
    const MainVars& m = f_.m;
    const TableModel& c = f_.ctl;
    int bestValue = 0, bestSlot = 0;
    bool matched = false;
    const CaptureChoice captures = f_.play.captureChoice();
    // Pass 1: the most valuable capture, the lowest slot among equals.
    for (int i = 0; i < 8; ++i) {
        if (!c.imgCCard[i].hasPicture()) continue;
        const int card = c.imgCCard[i].Tag.value();
        const int t = card < 0 ? -1 : captures.forCard(m.mCards.at(card));
        if (t <= -1) continue;
        matched = true;
        const int value = m.mCards.at(card).Points + m.mCards.at(c.imgTCard.at(t).Tag.value()).Points;
        if (bestValue < value) {
            bestValue = value;
            bestSlot = i;
        }
    }
    if (matched && bestValue != 0) {
        commitSelection(bestSlot, true);
        return;
    }
    // Pass 2: the cheapest card, the highest slot among equals. A capture worth 0 is no
    // reason to play a card.
    bestValue = 20;
    for (int i = 0; i < 8; ++i) {
        if (!c.imgCCard[i].hasPicture()) continue;
        const int points = m.mCards.at(c.imgCCard[i].Tag.value()).Points;
        if (points <= bestValue) {
            bestValue = points;
            bestSlot = i;
        }
    }
    commitSelection(bestSlot, false);
}

void Computer::commitSelection(int slot, bool highlight) {
    MainVars& m = f_.m;
    Image& card = f_.ctl.imgCCard.at(slot);
    m.mCompCard = slot;
    m.mCompDeckPos = card.Tag.value();
    f_.seenPlays.add(f_, 1, slot, m.mCompDeckPos);
    card.Picture = m.mCards.at(m.mCompDeckPos).Picture;
    if (highlight) f_.play.RelativeCheck(m.mCompDeckPos, true);
    card.Tag = -1;
}

bool Computer::selectStrong() {
    const HandMove move = StrongSearch::choose(sightOf(f_, 1));
    if (move.handSlot < 0) return false;
    commitSelection(move.handSlot, move.tableSlot >= 0);
    plannedCard_ = f_.m.mCompDeckPos;
    plannedSlot_ = move.tableSlot;
    return true;
}

int Computer::strongTake(int best) {
    const MainVars& m = f_.m;
    int slot = best;
    if (m.mCompPhase == 1) {
        if (plannedCard_ == m.mCompDeckPos) slot = plannedSlot_;
    } else {
        slot = StrongSearch::choose(sightOf(f_, 1)).tableSlot;
    }
    // The drop has just framed every match: a choice that is not among them is not taken.
    const auto& frames = f_.ctl.shpTHilite;
    return slot >= 0 && slot < static_cast<int>(frames.size()) && frames[slot].Visible ? slot : best;
}

void Computer::CompDropCard() {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    // A click on the table between the select and the drop tick has laid the card down already.
    if (m.mCompPhase == 1 && !c.imgCCard.at(m.mCompCard).hasPicture()) return;
    int t = f_.play.RelativeCheck(m.mCompDeckPos, true);
    if (t == -1) {
        f_.play.imgTable_Click();
        return;
    }
    if (strong()) t = strongTake(t);
    f_.piles.captureFromTable(1, t, m.mCompDeckPos, m.mCompPhase != 1);
    f_.piles.CalcPlayerPoints();
    if (m.mCompPhase == 1) {
        c.imgCCard.at(m.mCompCard).clearCard();
    } else {
        c.imgFlipCard.clearCard();
        c.shpFlipCard.Visible = false;
    }
    for (Shape& frame : c.shpTHilite) frame.Visible = false;
    f_.yaku.CountYakus();
}

void Computer::CompFlipFromDeck() { f_.flip.FlipCard(); }

}  // namespace petal
