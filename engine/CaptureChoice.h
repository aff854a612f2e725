#pragma once
// For every month, and for the wild card, the table slot that RelativeCheck would choose: the
// first of the highest points. Found in one pass over the table, because the computer weighs
// every card of its hand against the same table.
#include <array>

#include "cards/CardRecord.h"

namespace petal {

struct CaptureChoice {
    std::array<int, 13> byMonth;  // -1 where no card of the month lies
    int any = -1;                 // what the wild card takes

    CaptureChoice() { byMonth.fill(-1); }
    int forCard(const CardRecord& card) const {
        if (card.isWild()) return any;
        return card.month >= 0 && card.month < static_cast<int>(byMonth.size()) ? byMonth[card.month] : -1;
    }
};

}  // namespace petal
