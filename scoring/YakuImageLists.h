#pragma once
// The two image lists of the yaku rows: grey thumbnails (ilsYaku) and colour thumbnails with
// the card back (ilsYakuColor). A look-up by key gives a picture and the list image's Tag.
#include <string>
#include <string_view>

#include "assets/Pictures.h"
#include "engine/table_view/TagText.h"

namespace petal {

struct ListImage {
    PictureId Picture = NoPicture;
    TagText Tag;
};

// The key of a yaku code in the lists: "Yaku" and the code, kept in place (no allocation).
class YakuKey {
public:
    explicit YakuKey(std::string_view code) {
        for (std::size_t i = 0; i < code.size() && size_ < sizeof text_; ++i) text_[size_++] = code[i];
    }
    operator std::string_view() const { return {text_, size_}; }  // NOLINT: a key is read as text

private:
    char text_[8] = {'Y', 'a', 'k', 'u'};
    std::size_t size_ = 4;
};
inline YakuKey yakuKey(std::string_view code) { return YakuKey(code); }

// Keys "Yaku11" to "Yaku83".
ListImage ilsYaku(std::string_view key);
// Keys "Yaku11" to "Yaku83", and "Back".
ListImage ilsYakuColor(std::string_view key);

}  // namespace petal
