#pragma once
// The two image lists of the yaku rows: grey thumbnails (ilsYaku) and colour thumbnails with
// the card back (ilsYakuColor). A look-up by key gives a picture and the list image's Tag.
#include <string>
#include <string_view>

#include "assets/Pictures.h"

namespace petal {

struct ListImage {
    PictureId Picture = NoPicture;
    std::string Tag;
};

// Keys "Yaku11" to "Yaku83".
ListImage ilsYaku(std::string_view key);
// Keys "Yaku11" to "Yaku83", and "Back".
ListImage ilsYakuColor(std::string_view key);

}  // namespace petal
