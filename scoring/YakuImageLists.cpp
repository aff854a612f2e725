#include "scoring/YakuImageLists.h"

#include <stdexcept>

namespace petal {

namespace {

// The slot of a key: the codes run 11..13, 21..23, ... 81..83 in the order of the yaku rows.
int slotOf(std::string_view key) {
    if (key.size() == 6 && key.substr(0, 4) == "Yaku") {
        const int group = key[4] - '0', member = key[5] - '0';
        if (group >= 1 && group <= 8 && member >= 1 && member <= 3) return (group - 1) * 3 + member - 1;
    }
    throw std::out_of_range("no image list entry \"" + std::string(key) + "\"");
}

// The Tag of a list image: the catalogue index of the card that the slot shows.
TagText cardTag(int slot) {
    TagText tag;
    tag = yakuSlotCard(slot);
    return tag;
}

}  // namespace

ListImage ilsYaku(std::string_view key) {
    const int slot = slotOf(key);
    return {pic::thumbGrey(slot), cardTag(slot)};
}

ListImage ilsYakuColor(std::string_view key) {
    if (key == "Back") return {pic::ThumbBack, {}};
    const int slot = slotOf(key);
    return {pic::thumbColour(slot), cardTag(slot)};
}

}  // namespace petal
