#pragma once
// The card catalogue: the hidden store of the card pictures and their tags. The tags are the
// only source of the cards' names, months, values and yaku.
#include <array>
#include <string>
#include <string_view>

#include "cards/CardRecord.h"

namespace petal {

struct CatalogueImage {
    std::string_view Tag;
    PictureId Picture;
};

class FrmCards {
public:
    static constexpr int kCards = 48;
    static constexpr int kImages = 72;

    // imgCard(0..71).
    static const CatalogueImage& imgCard(int index);
    // imgWinLose(0..2): win, lose, tie banners.
    static PictureId imgWinLose(int index);

    // The parsing rule: card number n (1..48) becomes a record.
    static CardRecord parseCard(int n);
    // The record of card number n, parsed once and kept (the tags never change).
    static const CardRecord& card(int n);
};

// The tool tip of a card: "Matsu Ni Tsuru (20 pts.)".
const std::string& cardToolTip(const CardRecord& card);

}  // namespace petal
