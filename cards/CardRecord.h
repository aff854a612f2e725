#pragma once
#include <string_view>

#include "assets/Pictures.h"

namespace petal {

// One card as the game holds it in mCards, filled from a catalogue tag. The texts are views of
// the catalogue's tags, which never change, so that a deal copies no text.
struct CardRecord {
    int Index = 0;  // 0..47, the card's identity
    std::string_view Name;
    PictureId Picture = NoPicture;
    std::string_view Flower;  // "F1".."F12"
    int Points = 0;
    std::string_view YakuCodes;  // "82", "63,83", "G" for the wild card, or empty
    // Read once from the texts: two flowers are equal exactly when their months are.
    int month = 0;
    bool wild = false;

    bool isWild() const { return wild; }
    bool sameMonth(const CardRecord& other) const { return month == other.month; }
};

}  // namespace petal
