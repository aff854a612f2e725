#include "net/RemoteReplay.h"

#include "net/WireProtocol.h"
#include "shell/FrmMain.h"
#include "platform/Words.h"

namespace petal {

// A table slot that the card at `position` may take: a card lies there of its month, or the
// card is the wild one.
bool RemoteReplay::canTake(int position, int slot) const {
    const auto& table = f_.ctl.imgTCard;
    if (slot < 0 || slot >= static_cast<int>(table.size()) || !table[slot].hasPicture()) return false;
    const CardRecord& card = f_.m.mCards.at(position);
    return card.isWild() || f_.m.mCards.at(table[slot].Tag.value()).sameMonth(card);
}

// A hand card may be laid down only where nothing on the table matches it.
bool RemoteReplay::fits(int position, int where) const {
    if (where == -1) return f_.play.RelativeCheck(position, false) == -1;
    return canTake(position, where);
}

bool RemoteReplay::MultiPlayerSelectCard() {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    const WireProtocol::Move* move = f_.net.nextMove();
    if (!move) return false;
    int s = move->what;
    const int where = move->where;
    // The hand slot must hold a card not yet played; on the host, slot s holds position s + 8.
    const bool client = f_.g.gPlayMode == 2;
    const bool held = s >= 0 && s < 8 && c.imgCCard[s].hasPicture() && c.imgCCard[s].Tag != "-1" &&
                      (client || c.imgCCard[s].Tag.value() == s + 8);
    if (!held || !fits(static_cast<int>(c.imgCCard[s].Tag.value()), where)) {
        f_.net.outOfStep(said(f_.host, PETAL_TR("core", "the opponent's move \"%1\" does not fit this table"), {move->text}));
        return false;
    }
    f_.net.takeMove();
    if (client) {
        m.mCompCard = s;
        m.mCompDeckPos = static_cast<int>(c.imgCCard[s].Tag.value());
    } else {
        m.mCompCard = s;
        m.mCompDeckPos = s + 8;
        for (int j = 0; j < 8; ++j) {
            if (c.imgCCard[j].Tag.value() == s) {
                s = m.mCompCard = j;
                break;
            }
        }
    }
    c.imgCCard[s].Picture = m.mCards.at(m.mCompDeckPos).Picture;
    f_.play.RelativeCheck(m.mCompDeckPos, true);
    c.imgCCard[s].Tag = "-1";
    m.mRemoteTableCard = where;
    return true;
}

bool RemoteReplay::MultiPlayerDropCard(int phase) {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    if (phase == 3) {
        const WireProtocol::Move* move = f_.net.nextMove();
        if (!move) return false;
        const int what = move->what, where = move->where;
        // The flipped card, and one of the cards it may take: a flip that matches must capture.
        if (what != m.mCompDeckPos || c.imgFlipCard.Tag.value() != what || !canTake(what, where)) {
            f_.net.outOfStep(
                said(f_.host, PETAL_TR("core", "the opponent's move \"%1\" does not fit the flipped card"), {move->text}));
            return false;
        }
        f_.net.takeMove();
        m.mRemoteTableCard = where;
    }
    if (m.mRemoteTableCard == -1) {
        f_.play.imgTable_Click();
        return true;
    }
    f_.piles.captureFromTable(1, m.mRemoteTableCard, m.mCompDeckPos, phase != 1);
    f_.piles.CalcPlayerPoints();
    f_.yaku.CountYakus();
    if (phase == 1) {
        c.imgCCard.at(m.mCompCard).clearCard();
    } else {
        c.imgFlipCard.clearCard();
        c.shpFlipCard.Visible = false;
    }
    for (Shape& frame : c.shpTHilite) frame.Visible = false;
    m.mRemoteTableCard = -1;
    return true;
}

}  // namespace petal
