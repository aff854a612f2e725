// The local player's hand: matching by month, the wild card, selection, captures and drops,
// and where a card laid down goes on the table.
#include "GameFixture.h"

namespace petal::test {
namespace {

// Catalogue indices used below.
constexpr int kPineCrane = 0, kPineRibbon = 1, kPineChaffA = 2;
constexpr int kPlumWarbler = 4, kCherryCurtain = 8, kWillowPoet = 40, kWillowWild = 43;
constexpr int kPaulowniaPhoenix = 44, kPaulowniaChaff = 46;

class HandPlay : public GameFixture {};

TEST_F(HandPlay, SelectingFramesTheMatchesOfTheSameMonth) {
    dealWith({kPineCrane, kPlumWarbler}, {}, {kPineChaffA, kCherryCurtain, kPineRibbon});
    f->play.imgPCard_Click(0);
    EXPECT_TRUE(f->ctl.shpPHilite.Visible);
    EXPECT_EQ(f->ctl.shpPHilite.Tag, "0");
    EXPECT_EQ(f->ctl.shpPHilite.BorderColor, 0xFF0000u);  // the local player's blue
    EXPECT_EQ(framedSlots(), (std::vector<int>{0, 2}));
    EXPECT_EQ(f->play.RelativeCheck(0, false), 2) << "the ribbon is worth more than the chaff";
}

TEST_F(HandPlay, TheWildCardMatchesEveryCardAndOnlyWillowTakesItFromTheTable) {
    dealWith({kWillowWild, kWillowPoet, kPineCrane}, {}, {kPineChaffA, kPaulowniaPhoenix, kPlumWarbler});
    f->play.imgPCard_Click(0);
    EXPECT_EQ(framedSlots(), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7})) << "every occupied slot";
    EXPECT_EQ(f->play.RelativeCheck(0, false), 1) << "the phoenix is the most valuable";
    f->play.imgTable_Click();  // refused while anything lies on the table
    EXPECT_TRUE(f->ctl.imgPCard[0].hasPicture());

    // Once on the table the wild card is plain willow.
    ASSERT_EQ(f->play.AddCardToTable(0), 8);
    EXPECT_EQ(f->play.RelativeCheck(1, false), 8);
    EXPECT_EQ(f->play.RelativeCheck(2, false), 0) << "pine takes the pine, not the wild card";
}

TEST_F(HandPlay, OnAnEmptyTableTheWildCardIsLaidDown) {
    dealWith({kWillowWild}, {}, {});
    for (Image& slot : f->ctl.imgTCard) slot.clearCard();
    f->play.imgPCard_Click(0);
    f->play.imgTable_Click();
    EXPECT_FALSE(f->ctl.imgPCard[0].Visible);
    EXPECT_EQ(tagOf(f->ctl.imgTCard[0]), 0);
}

TEST_F(HandPlay, AClickMovesClearsOrDropsTheSelection) {
    dealWith({kPineCrane, kPlumWarbler}, {}, {kPineChaffA, 6});
    f->ctl.imgPCard[3].clearCard();
    f->play.imgPCard_Click(0);
    f->play.imgPCard_Click(1);  // another card: the frames follow its matches
    EXPECT_EQ(f->ctl.shpPHilite.Tag, "1");
    EXPECT_EQ(f->ctl.shpPHilite.Left, f->ctl.imgPCard[1].Left + 30);
    EXPECT_EQ(framedSlots(), (std::vector<int>{1}));
    f->play.imgPCard_Click(1);  // the same card again: nothing stays framed
    EXPECT_FALSE(f->ctl.shpPHilite.Visible);
    EXPECT_EQ(f->ctl.shpPHilite.Tag, "-1");
    EXPECT_TRUE(framedSlots().empty());
    f->play.imgPCard_Click(0);
    f->play.imgPCard_Click(3);  // an empty place deselects
    EXPECT_FALSE(f->ctl.shpPHilite.Visible);
    EXPECT_TRUE(framedSlots().empty());
}

// The crane counts for its yaku group only while yaku are played.
TEST_F(HandPlay, ACaptureSendsBothCardsAndEmptiesTheSlots) {
    for (const bool yaku : {true, false}) {
        restart();
        program->g.gUseYaku = yaku;
        // The deck's first card has no match, so the flip lies down by itself (where is Flip's).
        dealWith({kPineCrane}, {}, {kPineChaffA, kPlumWarbler}, {kPaulowniaChaff});
        f->play.imgPCard_Click(0);
        f->play.imgTCard_Click(0);
        EXPECT_EQ(pileIndices(0, 0), std::vector<int>{kPineCrane});
        EXPECT_EQ(pileIndices(0, 3), std::vector<int>{kPineChaffA});
        EXPECT_FALSE(f->ctl.imgPCard[0].hasPicture());
        EXPECT_TRUE(f->ctl.imgPCard[0].Visible) << "a capture leaves the hand place visible";
        EXPECT_EQ(f->ctl.imgPCard[0].Tag, "-1");
        EXPECT_TRUE(framedSlots().empty());
        const auto& groups = f->m.mYakuCards[0];
        EXPECT_EQ(std::count(groups.begin(), groups.end(), 1), yaku ? 1 : 0);
    }
}

TEST_F(HandPlay, ADropIsRefusedWhileAMatchExistsAndShowsWhy) {
    dealWith({kPineCrane}, {}, {kPlumWarbler, kPineChaffA});
    f->play.imgPCard_Click(0);
    f->play.imgTCard_Click(0);  // a non-matching card: no drop, a match exists
    EXPECT_TRUE(f->ctl.imgPCard[0].hasPicture());
    f->play.imgTable_Click();
    EXPECT_TRUE(f->ctl.imgPCard[0].hasPicture());
    EXPECT_EQ(framedSlots(), std::vector<int>{1});
}

TEST_F(HandPlay, AClickOnANonMatchingTableCardDropsACardWithoutMatches) {
    dealWith({kPaulowniaChaff}, {}, {kPlumWarbler}, {kPineChaffA});
    f->play.imgPCard_Click(0);
    f->play.imgTCard_Click(0);
    EXPECT_FALSE(f->ctl.imgPCard[0].Visible) << "a drop hides the hand place";
    EXPECT_EQ(f->ctl.imgTCard.size(), 10u) << "the drop and the flip grew the table";
    EXPECT_EQ(tagOf(f->ctl.imgTCard[8]), 0);
    EXPECT_EQ(tagOf(f->ctl.imgTCard[9]), 24);
}

// A client's hand holds positions 8 to 15: a capture and a drop play the card that the slot's
// Tag names, not the position equal to the slot.
TEST_F(HandPlay, AClientPlaysTheCardItsSlotHoldsNotThePositionOfTheSlot) {
    for (const bool capture : {true, false}) {
        restart();
        program->g.gPlayMode = 2;
        dealWith({kPlumWarbler, kWillowPoet}, {kPineCrane, kPaulowniaChaff}, {kPineChaffA});
        ASSERT_EQ(tagOf(f->ctl.imgPCard[0]), 8);
        f->play.imgPCard_Click(capture ? 0 : 1);
        EXPECT_EQ(framedSlots(), capture ? std::vector<int>{0} : std::vector<int>{});
        if (capture) {
            f->play.imgTCard_Click(0);
            EXPECT_EQ(pileIndices(0, 0), std::vector<int>{kPineCrane}) << "the crane, not the warbler at position 0";
        } else {
            f->play.imgTable_Click();
            EXPECT_EQ(tagOf(f->ctl.imgTCard[8]), 9) << "the paulownia at position 9 lies on the table";
        }
    }
}

TEST_F(HandPlay, NoTableClickCountsDuringTheOppositeTurn) {
    dealWith({kPineCrane}, {}, {kPineChaffA});
    f->play.imgPCard_Click(0);
    f->m.mTurn = 1;
    f->play.imgTCard_Click(0);
    EXPECT_TRUE(f->ctl.imgTCard[0].hasPicture());
}

}  // namespace
}  // namespace petal::test
