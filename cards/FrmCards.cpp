#include "cards/FrmCards.h"

#include <stdexcept>
#include <vector>

#include "cards/Val.h"
#include "platform/Words.h"

namespace petal {

namespace {

constexpr std::array<std::string_view, FrmCards::kCards> kTags = {
    // Marked so that each tag is also the key of the card's name in another language.
    PETAL_TR("card", "Matsu Ni Tsuru/F1/20/82"),
    PETAL_TR("card", "Matsu No Tan/F1/10/72"),
    PETAL_TR("card", "Matsu No Kasu/F1/0"),
    PETAL_TR("card", "Matsu No Kasu/F1/0"),
    PETAL_TR("card", "Ume Ni Uguisu/F2/5/81"),
    PETAL_TR("card", "Ume No Tan/F2/10/71"),
    PETAL_TR("card", "Ume No Kasu/F2/0"),
    PETAL_TR("card", "Ume No Kasu/F2/0"),
    PETAL_TR("card", "Sakura Ni Maku/F3/20/63,83"),
    PETAL_TR("card", "Sakura No Tan/F3/10/73"),
    PETAL_TR("card", "Sakura No Kasu/F3/0"),
    PETAL_TR("card", "Sakura No Kasu/F3/0"),
    PETAL_TR("card", "Fuji Ni Kakko/F4/5/22"),
    PETAL_TR("card", "Fuji No Tan/F4/10/12"),
    PETAL_TR("card", "Fuji No Kasu/F4/0"),
    PETAL_TR("card", "Fuji No Kasu/F4/0"),
    PETAL_TR("card", "Shoubu Ni Yatsuhashi/F5/5/23"),
    PETAL_TR("card", "Shoubu No Tan/F5/10/13"),
    PETAL_TR("card", "Shoubu No Kasu/F5/0"),
    PETAL_TR("card", "Shoubu No Kasu/F5/0"),
    PETAL_TR("card", "Botan Ni Chou/F6/5/51"),
    PETAL_TR("card", "Botan No Tan/F6/10/41"),
    PETAL_TR("card", "Botan No Kasu/F6/0"),
    PETAL_TR("card", "Botan No Kasu/F6/0"),
    PETAL_TR("card", "Hagi Ni Inoshishi/F7/5/21,31"),
    PETAL_TR("card", "Hagi No Tan/F7/10/11"),
    PETAL_TR("card", "Hagi No Kasu/F7/0"),
    PETAL_TR("card", "Hagi No Kasu/F7/0"),
    PETAL_TR("card", "Susuki Ni Tsuki/F8/20/61"),
    PETAL_TR("card", "Susuki Ni Kari/F8/5/33"),
    PETAL_TR("card", "Susuki No Kasu/F8/0"),
    PETAL_TR("card", "Susuki No Kasu/F8/0"),
    PETAL_TR("card", "Kiku Ni Sakazuki/F9/5/52,62"),
    PETAL_TR("card", "Kiku No Tan/F9/10/42"),
    PETAL_TR("card", "Kiku No Kasu/F9/0"),
    PETAL_TR("card", "Kiku No Kasu/F9/0"),
    PETAL_TR("card", "Momiji Ni Shika/F10/5/32,53"),
    PETAL_TR("card", "Momiji No Tan/F10/10/43"),
    PETAL_TR("card", "Momiji No Kasu/F10/0"),
    PETAL_TR("card", "Momiji No Kasu/F10/0"),
    PETAL_TR("card", "Yanagi Ni Ono Toufuu/F11/5"),
    PETAL_TR("card", "Yanagi Ni Tsubame/F11/5"),
    PETAL_TR("card", "Yanagi No Tan/F11/10"),
    PETAL_TR("card", "Yanagi No Kasu/F11/0/G"),
    PETAL_TR("card", "Kiri Ni Hooh/F12/20"),
    PETAL_TR("card", "Kiri No Kasu/F12/10"),
    PETAL_TR("card", "Kiri No Kasu/F12/0"),
    PETAL_TR("card", "Kiri No Kasu/F12/0"),
};

// The yaku pictures' tags are read by nothing; they are kept as the catalogue has them.
constexpr std::string_view kYakuPictureTag = "Fuji Ni Kakko/F4/5/22";

std::vector<std::string_view> split(std::string_view text, char sep) {
    std::vector<std::string_view> fields;
    std::size_t start = 0;
    while (true) {
        std::size_t at = text.find(sep, start);
        fields.emplace_back(text.substr(start, at - start));
        if (at == std::string_view::npos) return fields;
        start = at + 1;
    }
}

std::array<CatalogueImage, FrmCards::kImages> makeImages() {
    std::array<CatalogueImage, FrmCards::kImages> images{};
    for (int i = 0; i < FrmCards::kImages; ++i)
        images[i] = {i < FrmCards::kCards ? kTags[i] : kYakuPictureTag, pic::card(i)};
    return images;
}

}  // namespace

const CatalogueImage& FrmCards::imgCard(int index) {
    static const auto images = makeImages();
    return images.at(index);
}

PictureId FrmCards::imgWinLose(int index) {
    if (index < 0 || index > 2) throw std::out_of_range("imgWinLose");
    return pic::banner(index);
}

CardRecord FrmCards::parseCard(int n) {
    const CatalogueImage& image = imgCard(n - 1);
    const std::vector<std::string_view> fields = split(image.Tag, '/');
    CardRecord card;
    card.Picture = image.Picture;
    card.Index = n - 1;
    card.Name = fields.at(0);
    card.Flower = fields.at(1);
    card.Points = Val(fields.at(2));
    if (fields.size() >= 4) card.YakuCodes = fields[3];
    card.month = static_cast<int>(Val(card.Flower.substr(1)));
    card.wild = card.YakuCodes == "G";
    return card;
}

namespace {

// Made once, out of line, so that the look-ups below, which a deal makes often, stay a few
// instructions.
[[gnu::noinline]] std::array<CardRecord, FrmCards::kCards> makeCards() {
    std::array<CardRecord, FrmCards::kCards> all;
    for (int n = 1; n <= FrmCards::kCards; ++n) all[n - 1] = FrmCards::parseCard(n);
    return all;
}

[[gnu::noinline]] std::array<std::string, FrmCards::kCards> makeToolTips() {
    std::array<std::string, FrmCards::kCards> all;
    for (int n = 1; n <= FrmCards::kCards; ++n) {
        const CardRecord& c = FrmCards::card(n);
        all[n - 1] = std::string(c.Name) + " (" + std::to_string(c.Points) + " pts.)";
    }
    return all;
}

}  // namespace

const CardRecord& FrmCards::card(int n) {
    static const auto cards = makeCards();
    return cards.at(n - 1);
}

const std::string& cardToolTip(const CardRecord& card) {
    static const auto tips = makeToolTips();
    return tips.at(card.Index);
}

}  // namespace petal
