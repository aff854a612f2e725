// Dealing: the generator and its seed text, the deck's question, the client's deck, and NewGame
// clearing what a deal left behind. (Who leads the next deal is MatchEnd's.)
#include "GameFixture.h"
#include "engine/SeedText.h"

namespace petal::test {
namespace {

std::vector<int> indices(const FrmMain& f) {
    std::vector<int> out;
    for (const CardRecord& c : f.m.mCards) out.push_back(c.Index);
    return out;
}

const std::vector<int> kNoonDeal = {19, 41, 9,  7,  11, 28, 45, 12, 38, 16, 8,  21, 47, 18, 22, 15,
                                    10, 5,  0,  25, 26, 24, 27, 44, 4,  34, 37, 36, 43, 33, 6,  23,
                                    14, 2,  42, 40, 32, 3,  1,  13, 29, 30, 17, 46, 20, 31, 39, 35};

class Deal : public GameFixture {
protected:
    void SetUp() override {
        host->setClock(12, 0, 0);
        start();
    }
};

// The first deal at noon is the known order. A network deal depends on its seed alone: the same
// second deals that order again, whatever came before; a single deal depends on its history.
TEST_F(Deal, NetworkDealsDependOnTheSeedAloneAndSingleDealsOnTheirHistory) {
    f->dealer.imgDeck_Click();
    EXPECT_EQ(f->m.mDealSeed, "12:00:00");
    EXPECT_EQ(indices(*f), kNoonDeal);
    program->g.gPlayMode = 1;  // a host that is not connected deals alone
    f->dealer.DealCards();
    EXPECT_EQ(indices(*f), kNoonDeal) << "the generator is reset to the seed";
    program->g.gPlayMode = 0;
    f->dealer.DealCards();
    const auto single1 = indices(*f);
    f->dealer.DealCards();
    EXPECT_NE(indices(*f), single1) << "the same second without a reset deals anew";
}

TEST(SeedText, ReadsTwentyFourHourAndTwelveHourTextsAndNothingElse) {
    struct Case {
        const char* text;
        double value;
    };
    const Case cases[] = {{"12:00:00", 0.5},        {"00:00:00", 0.0},     {"23:59:59", 86399 / 86400.0},
                          {"6:30:00 PM", 66600 / 86400.0}, {"12:00:00 AM", 0.0}, {"12:15:00 PM", 44100 / 86400.0},
                          {"1:02:03 AM", 3723 / 86400.0}, {"24:00:00", 0},   {"12:60:00", 0},
                          {"13:00:00 PM", 0},     {"noon", 0},           {"", 0},
                          {"12:00", 0},           {"12:00:00pm", 0}};
    for (const Case& c : cases) EXPECT_DOUBLE_EQ(seedValue(c.text), c.value) << c.text;
}

TEST_F(Deal, TheDeckAsksBeforeAbandoningAGame) {
    f->dealer.imgDeck_Click();
    const auto dealt = indices(*f);
    host->expectMsgBox("Do you want to quit the game in progress?", "Game In Progress", MsgResult::No);
    f->dealer.imgDeck_Click();
    EXPECT_EQ(indices(*f), dealt);
    EXPECT_EQ(program->g.gGameInProgress, 1);

    host->expectMsgBox("Do you want to quit the game in progress?", "Game In Progress", MsgResult::Yes);
    f->dealer.imgDeck_Click();
    EXPECT_EQ(program->g.gGameInProgress, 0);
    EXPECT_FALSE(f->ctl.imgPCard[0].hasPicture());
    EXPECT_EQ(f->ctl.imgPYaku[0].Picture, NoPicture);  // blank but visible until the next deal
    EXPECT_TRUE(f->ctl.imgPYaku[0].Visible);
    f->dealer.imgDeck_Click();  // a new deal takes a further click
    EXPECT_EQ(f->ctl.imgPYaku[0].Picture, pic::thumbGrey(0));
}

TEST_F(Deal, AClientsDeckDoesNothing) {
    program->g.gPlayMode = 2;
    f->dealer.imgDeck_Click();
    EXPECT_EQ(program->g.gGameInProgress, 0);
    EXPECT_TRUE(host->shownBoxes().empty());
}

TEST_F(Deal, NewGameShrinksAGrownTableBackToEightSlots) {
    f->dealer.imgDeck_Click();
    for (int i = 0; i < 4; ++i) f->play.AddCardToTable(30 + i);
    ASSERT_EQ(f->ctl.imgTCard.size(), 12u);
    f->dealer.NewGame(false);
    EXPECT_EQ(f->ctl.imgTCard.size(), 8u);
    EXPECT_EQ(f->ctl.shpTHilite.size(), 8u);
    for (const Image& slot : f->ctl.imgTCard) EXPECT_EQ(slot.Tag, "-1");
}

}  // namespace
}  // namespace petal::test
