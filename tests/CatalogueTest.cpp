// The card catalogue as the tags define it.
#include <gtest/gtest.h>

#include <map>

#include "cards/FrmCards.h"

namespace petal {
namespace {

TEST(Catalogue, ValuesAddUpTo240InFourKinds) {
    std::map<int, int> byValue;
    int sum = 0;
    for (int n = 1; n <= 48; ++n) {
        const CardRecord card = FrmCards::parseCard(n);
        EXPECT_EQ(card.Index, n - 1);
        EXPECT_EQ(card.Picture, pic::card(n - 1));
        EXPECT_EQ(card.Flower, "F" + std::to_string((n - 1) / 4 + 1)) << card.Name;
        sum += card.Points;
        ++byValue[card.Points];
    }
    EXPECT_EQ(sum, 240);
    EXPECT_EQ(byValue, (std::map<int, int>{{0, 23}, {5, 10}, {10, 11}, {20, 4}}));
}

TEST(Catalogue, ToolTipsNameTheCardAndItsValue) {
    EXPECT_EQ(cardToolTip(FrmCards::card(1)), "Matsu Ni Tsuru (20 pts.)");
    EXPECT_EQ(cardToolTip(FrmCards::card(44)), "Yanagi No Kasu (0 pts.)");
}

}  // namespace
}  // namespace petal
