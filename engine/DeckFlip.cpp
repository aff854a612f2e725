#include "engine/DeckFlip.h"

#include "cards/FrmCards.h"
#include "shell/FrmMain.h"
#include "platform/Host.h"

namespace petal {

void DeckFlip::FlipCard() {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    ++m.mDeckPos;
    const int best = f_.play.RelativeCheck(m.mDeckPos, true);
    if (m.mTurn == 0) {
        m.mPlayerFlipped = 1;
        ++m.mPlayerPlays;
    }
    c.imgFlipCard.Tag = m.mDeckPos;
    c.imgFlipCard.Picture = m.mCards.at(m.mDeckPos).Picture;
    c.imgFlipCard.ToolTipText = cardToolTip(m.mCards[m.mDeckPos]);
    f_.playSoundFile("flip.wav");
    if (best > -1) {
        c.shpFlipCard.BorderColor = m.mHiliteColor.at(m.mTurn);
        c.shpFlipCard.Visible = true;
    }
    if (m.mTurn == 1) m.mCompDeckPos = m.mDeckPos;
    if (best != -1) {
        // The player's card waits to be placed: the hand card's move is complete.
        if (m.mTurn == 0) f_.journal.flipRests();
        return;
    }

    // No match: the card stands for the flip timer's pause, then lies down by itself. Clicks
    // that come in meanwhile meet the hourglass (the hand pointer too gives way to it) and the
    // cleared frames.
    f_.setMousePointer(FrmMain::kPointerHourglass);
    m.mFlipDone = false;
    f_.tmrFlipTimer.setEnabled(true);
    f_.host.refresh();
    // A game abandoned during the pause takes its flip with it.
    const int deal = m.dealSerial;
    f_.host.waitUntil([&m, deal] { return m.mFlipDone || m.dealSerial != deal; });
    if (f_.host.ending() || m.dealSerial != deal) return;
    c.imgFlipCard.clearCard();
    const int turn = m.mTurn;
    const int slot = f_.play.AddCardToTable(m.mDeckPos);
    if (f_.events) f_.events->moved(turn == 0 ? 0 : 1, true, m.mDeckPos, -1, slot);
    if (turn == 0) f_.journal.flipRests();
    if (m.mCompPlays == 8 && m.mPlayerPlays == 8) f_.EndMatch();
}

void DeckFlip::tmrFlipTimer_Timer() {
    f_.m.mFlipDone = true;
    f_.tmrFlipTimer.setEnabled(false);
}

}  // namespace petal
