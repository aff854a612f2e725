#include "opponent/SeenPlays.h"

#include <algorithm>

#include "shell/FrmMain.h"

namespace petal {

void SeenPlays::add(const FrmMain& f, int side, int handSlot, int position) {
    if (count_ == static_cast<int>(plays_.size())) return;
    Play& play = plays_[static_cast<std::size_t>(count_++)];
    play.side = static_cast<std::int8_t>(side);
    play.handSlot = static_cast<std::int8_t>(handSlot);
    play.card = static_cast<std::int8_t>(f.m.mCards.at(position).Index);
    const auto& table = f.ctl.imgTCard;
    play.tableSlots = static_cast<std::int8_t>(std::min<std::size_t>(table.size(), DealState::kSlots));
    play.table.fill(-1);
    for (int i = 0; i < play.tableSlots; ++i)
        if (table[i].hasPicture()) play.table[i] = static_cast<std::int8_t>(f.m.mCards.at(table[i].Tag.value()).Index);
}

}  // namespace petal
