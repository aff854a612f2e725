// Capture piles: rows by value, their layout, the counters and labels, the wild card's marker,
// and the totals with and without yaku.
#include "GameFixture.h"

namespace petal::test {
namespace {

class Piles : public GameFixture {
protected:
    void SetUp() override {
        start();
        dealWith({}, {}, {});
    }
    // Positions of the cards of one value in the dealt order.
    std::vector<int> positionsWorth(int points) const {
        std::vector<int> out;
        for (int p = 0; p < 48; ++p)
            if (f->m.mCards[p].Points == points) out.push_back(p);
        return out;
    }
};

TEST_F(Piles, AValuedRowLaysSevenSideBySideThenASecondLayer) {
    const auto tens = positionsWorth(10);
    for (int k = 0; k < 8; ++k) f->piles.SendToPlayerPoints(tens[k], false, 1);
    const auto& row = f->ctl.panel[0].piles[1];
    ASSERT_EQ(row.size(), 8u);
    EXPECT_EQ(row[6].Left, 810 + 6 * 540);
    EXPECT_EQ(row[7].Left, 810 + 262);
    EXPECT_EQ(row[7].Top, 1080);
    EXPECT_GT(row[7].ZOrder, row[6].ZOrder) << "the second layer stands in front";
    EXPECT_EQ(f->ctl.panel[0].lblPoints[1].Caption, "10 x 8");
    EXPECT_EQ(f->ctl.panel[0].lblPointsTotal[1].Caption, "80");
    EXPECT_EQ(row[0].ToolTipText, cardToolTip(f->m.mCards[tens[0]]));
}

TEST_F(Piles, TheChaffRowFansAndWrapsAfterFifteen) {
    const auto chaff = positionsWorth(0);
    for (int k = 0; k < 16; ++k) f->piles.SendToCompPoints(chaff[k], false, 1);
    const auto& row = f->ctl.panel[1].piles[3];
    EXPECT_EQ(row[14].Left, 810 + 14 * 262);
    EXPECT_EQ(row[14].Top, 2910);
    EXPECT_EQ(row[15].Left, 810);
    EXPECT_EQ(row[15].Top, 2910 + 420);
    EXPECT_TRUE(f->ctl.panel[1].lblPoints[3].Caption.empty()) << "nothing counts the chaff";
}

TEST_F(Piles, TheCountersFollowTheTurnAndTheTotalAddsFiftyPerGroup) {
    const auto twenties = positionsWorth(20);
    f->m.mTurn = 1;
    f->piles.SendToCompPoints(twenties[0], false, 0);
    f->piles.SendToCompPoints(positionsWorth(5)[0], false, 1);
    f->piles.CalcPlayerPoints();
    EXPECT_EQ(f->ctl.panel[1].lblPoints[3].Caption, "Total");
    EXPECT_EQ(f->ctl.panel[1].lblPointsTotal[3].Caption, "25");
    f->m.mYakuCards[1][4] = 3;
    f->piles.CalcPlayerPoints();
    EXPECT_EQ(f->ctl.panel[1].lblPointsTotal[3].Caption, "75");
    program->g.gUseYaku = false;
    f->piles.CalcPlayerPoints();
    EXPECT_EQ(f->ctl.panel[1].lblPointsTotal[3].Caption, "25");
    EXPECT_TRUE(f->ctl.panel[0].lblPointsTotal[3].Caption.empty());
}

// The marker stands on the caught card wherever it lies (the chaff row's fan and its second line,
// a valued row's second layer), and stays there when the wild card itself follows it.
TEST_F(Piles, TheWildCardsMarkerStandsOnTheCaughtCardInAnyRowAndPlace) {
    struct Case {
        int points, before;
    };
    f->m.mTurn = 1;  // the counters and the marker follow the side on turn
    for (const Case& c : {Case{0, 0}, Case{0, 5}, Case{0, 16}, Case{10, 7}}) {
        f->dealer.NewGame(false);
        const auto worth = positionsWorth(c.points);
        for (int k = 0; k < c.before; ++k) f->piles.SendToCompPoints(worth[k], false, 1);
        f->piles.SendToCompPoints(worth[c.before], true, 0);
        const Image& caught = f->ctl.panel[1].piles[c.points == 0 ? 3 : 1].back();
        const Image& marker = f->ctl.panel[1].imgGagi;
        EXPECT_TRUE(marker.Visible);
        EXPECT_EQ(std::make_pair(marker.Left, marker.Top), std::make_pair(caught.Left, caught.Top))
            << c.points << " points after " << c.before;
        EXPECT_GT(marker.ZOrder, caught.ZOrder);
        EXPECT_EQ(marker.Tag, std::to_string(worth[c.before]));
        f->piles.SendToCompPoints(worth[c.before + 1], true, 1);
        EXPECT_EQ(marker.Tag, std::to_string(worth[c.before])) << "the wild card itself is not marked";
    }
}

TEST_F(Piles, NewGameEmptiesEveryRowAndLabelAndTakesTheMarkersAway) {
    for (int p : positionsWorth(5)) f->piles.SendToPlayerPoints(p, false, 1);
    f->piles.CalcPlayerPoints();
    f->piles.SendToPlayerPoints(positionsWorth(0)[0], true, 0);
    f->m.mTurn = 1;
    f->piles.SendToCompPoints(positionsWorth(20)[0], true, 0);
    f->dealer.NewGame(false);
    for (const ScorePanel& panel : f->ctl.panel) {
        EXPECT_FALSE(panel.imgGagi.Visible);
        EXPECT_EQ(panel.imgGagi.Tag, "-1") << "no claim is swept at the next deal's end";
    }
    for (const auto& row : f->ctl.panel[0].piles) {
        EXPECT_EQ(row.size(), 1u);
        EXPECT_FALSE(row[0].hasPicture());
    }
    EXPECT_TRUE(f->ctl.panel[0].lblPointsTotal[3].Caption.empty());
    EXPECT_EQ(f->m.mPoints[0][0][2], 0);
}

}  // namespace
}  // namespace petal::test
