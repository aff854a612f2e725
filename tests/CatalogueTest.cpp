// The card catalogue as the tags define it.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "cards/FrmCards.h"
#include "cards/Val.h"

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

TEST(Catalogue, EachYakuGroupHasExactlyItsThreeMembers) {
    const std::map<std::string, int> expected = {
        {"11", 25}, {"12", 13}, {"13", 17}, {"21", 24}, {"22", 12}, {"23", 16}, {"31", 24}, {"32", 36},
        {"33", 29}, {"41", 21}, {"42", 33}, {"43", 37}, {"51", 20}, {"52", 32}, {"53", 36}, {"61", 28},
        {"62", 32}, {"63", 8},  {"71", 5},  {"72", 1},  {"73", 9},  {"81", 4},  {"82", 0},  {"83", 8}};
    std::map<std::string, int> found;
    for (int n = 1; n <= 48; ++n) {
        const CardRecord card = FrmCards::parseCard(n);
        if (card.YakuCodes.empty() || card.isWild()) continue;
        std::size_t start = 0;
        while (start <= card.YakuCodes.size()) {
            const std::size_t comma = card.YakuCodes.find(',', start);
            const std::string code(card.YakuCodes.substr(start, comma - start));
            EXPECT_TRUE(found.emplace(code, card.Index).second) << "code " << code << " twice";
            if (comma == std::string::npos) break;
            start = comma + 1;
        }
    }
    EXPECT_EQ(found, expected);
}

TEST(Catalogue, TheWildCardIsTheOnlyGAndCardsWithoutAFourthFieldHaveNoCodes) {
    std::vector<int> wild;
    for (int n = 1; n <= 48; ++n)
        if (FrmCards::parseCard(n).isWild()) wild.push_back(n - 1);
    EXPECT_EQ(wild, std::vector<int>{43});
    EXPECT_EQ(FrmCards::parseCard(43 + 1).Name, "Yanagi No Kasu");
    for (int index : {40, 44, 2}) EXPECT_EQ(FrmCards::parseCard(index + 1).YakuCodes, "") << index;
    EXPECT_EQ(FrmCards::parseCard(45 + 1).Points, 10);  // named like chaff, worth 10
    EXPECT_EQ(FrmCards::parseCard(40 + 1).Points, 5);
}

TEST(Catalogue, EqualNamesAreNotEqualCards) {
    const CardRecord a = FrmCards::parseCard(3), b = FrmCards::parseCard(4);
    EXPECT_EQ(a.Name, b.Name);
    EXPECT_NE(a.Index, b.Index);
    EXPECT_NE(a.Picture, b.Picture);
}

TEST(Catalogue, ToolTipsNameTheCardAndItsValue) {
    EXPECT_EQ(cardToolTip(FrmCards::card(1)), "Matsu Ni Tsuru (20 pts.)");
    EXPECT_EQ(cardToolTip(FrmCards::card(44)), "Yanagi No Kasu (0 pts.)");
}

TEST(Catalogue, ValReadsTheNumberAtTheHeadOfAText) {
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val("12abc"), 12);
    EXPECT_EQ(Val(" -35"), -35);
    EXPECT_EQ(Val("-1"), -1);
}

}  // namespace
}  // namespace petal
