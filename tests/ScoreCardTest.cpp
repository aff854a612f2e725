// The tournament score card: its size from the rounds, the scores and their bold winners, and
// the verdict that reads the grid.
#include "GameFixture.h"
#include "scoring/FrmScoreCard.h"

namespace petal::test {
namespace {

class ScoreCard : public GameFixture {
protected:
    void SetUp() override {
        start();
        f->settings.WriteSettings(1, 3, -1, 0);
    }
    // Loads a card as the View menu opens it.
    FrmScoreCard open() {
        FrmScoreCard card(*f);
        card.mFromMenu = true;
        card.markLoaded();
        card.Form_Load();
        return card;
    }
};

TEST_F(ScoreCard, DuringATournamentTheScoresSoFarAndZerosToCome) {
    program->g.gGameInProgress = 1;
    program->g.dimRoundScores(3);
    program->g.gRoundScores = {std::vector<int>{70, 40, 30, 0}, std::vector<int>{70, 30, 40, 0}};
    FrmScoreCard card = open();
    EXPECT_EQ(card.grid[1][1].text, "40");
    EXPECT_TRUE(card.grid[1][1].bold);
    EXPECT_FALSE(card.grid[1][2].bold);
    EXPECT_TRUE(card.grid[2][2].bold);
    EXPECT_EQ(card.grid[3][1].text, "0");
    EXPECT_EQ(card.grid[4][0].text, "Total");
    EXPECT_TRUE(card.grid[4][1].bold);
}

TEST_F(ScoreCard, AFinishedTournamentShowsItsVerdict) {
    struct Case {
        std::vector<int> mine, theirs;
        const char* caption;
        const char* last;
    };
    const Case cases[] = {
        {{90, 30, 30, 30}, {60, 20, 20, 20}, "You Win!", "Final"},
        {{60, 20, 20, 20}, {60, 10, 10, 40}, "Tie Game!", "Final"},
        {{50, 25, 25, 0}, {10, 5, 5, 0}, "Tournament Score Card", "Total"},  // no points in the last round
        {{30, 10, 10, 10}, {90, 30, 30, 30}, "You Lose!", "Final"},
    };
    program->g.gGameInProgress = 1;
    for (const Case& c : cases) {
        program->g.gRoundScores = {c.mine, c.theirs};
        FrmScoreCard card = open();
        EXPECT_EQ(card.lblFormCaption, c.caption);
        EXPECT_EQ(card.grid[4][0].text, c.last);
    }
}

}  // namespace
}  // namespace petal::test
