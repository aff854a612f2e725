#include "opponent/Hint.h"

#include "opponent/StrongSearch.h"
#include "shell/FrmMain.h"

namespace petal {

bool Hint::offered() const {
    const MainVars& m = f_.m;
    return f_.g.gPlayMode == 0 && f_.g.gGameInProgress == 1 && m.mTurn == 0 && !f_.tmrComputer.Enabled() &&
           f_.MousePointer() != FrmMain::kPointerHourglass && (f_.ctl.shpFlipCard.Visible || m.mPlayerFlipped == 0);
}

void Hint::mnuHint_Click() {
    if (!offered()) return;
    const MainVars& m = f_.m;
    const TableModel& c = f_.ctl;
    const Sight sight = sightOf(f_, 0);
    const HandMove move = StrongSearch::choose(sight);
    deal_ = m.dealSerial;
    plays_ = m.mPlayerPlays;
    flipped_ = m.mPlayerFlipped;
    handSlot_ = move.handSlot;
    handCard_ = move.handSlot >= 0 ? static_cast<int>(c.imgPCard.at(move.handSlot).Tag.value()) : -1;
    turnedCard_ = sight.turned >= 0 ? static_cast<int>(c.imgFlipCard.Tag.value()) : -1;
    // A hand card's table card is worth marking only where the card could take another one.
    int choices = 0;
    if (move.handSlot >= 0)
        for (int t = 0; t < sight.seen.tableSlots; ++t)
            choices += sight.seen.matches(sight.seen.hand[0][move.handSlot], t) ? 1 : 0;
    const bool markTable = move.tableSlot >= 0 && (move.handSlot < 0 || choices > 1);
    tableSlot_ = markTable ? move.tableSlot : -1;
    tableCard_ = markTable ? static_cast<int>(c.imgTCard.at(move.tableSlot).Tag.value()) : -1;
}

Hint::Marks Hint::marks() const {
    const MainVars& m = f_.m;
    const TableModel& c = f_.ctl;
    Marks marks;
    if (deal_ != m.dealSerial || plays_ != m.mPlayerPlays || flipped_ != m.mPlayerFlipped || !offered()) return marks;
    if (handSlot_ >= 0) {
        if (!c.imgPCard.at(handSlot_).hasPicture() || c.imgPCard[handSlot_].Tag.value() != handCard_) return marks;
        marks.hand = handSlot_;
    } else if (c.imgFlipCard.Tag.value() != turnedCard_) {
        return marks;
    }
    if (tableSlot_ >= 0 && tableSlot_ < static_cast<int>(c.imgTCard.size()) && c.imgTCard[tableSlot_].Tag.value() == tableCard_)
        marks.table = tableSlot_;
    return marks;
}

}  // namespace petal
