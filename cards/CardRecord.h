#pragma once
#include <string>

#include "assets/Pictures.h"

namespace petal {

// One card as the game holds it in mCards, filled from a catalogue tag.
struct CardRecord {
    int Index = 0;  // 0..47, the card's identity
    std::string Name;
    PictureId Picture = NoPicture;
    std::string Flower;  // "F1".."F12"
    int Points = 0;
    std::string YakuCodes;  // "82", "63,83", "G" for the wild card, or empty

    bool isWild() const { return YakuCodes == "G"; }
};

}  // namespace petal
