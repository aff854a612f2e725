// The strong computer and the hint: what they may see, what they play for, and the hint's marks.
#include "GameFixture.h"
#include "opponent/HandReading.h"
#include "opponent/StrongSearch.h"

namespace petal::test {
namespace {

class Strong : public GameFixture {
protected:
    // The cards of the catalogue that are in none of the lists.
    static std::vector<int> others(const std::vector<int>& a, const std::vector<int>& b) {
        std::vector<int> rest;
        for (int card = 0; card < 48; ++card)
            if (std::count(a.begin(), a.end(), card) + std::count(b.begin(), b.end(), card) == 0) rest.push_back(card);
        return rest;
    }
};

// Two deals that differ only in what one side cannot see (the other hand and the deck's order)
// give that side the same hand card and the same table card: the computer's choice, and the
// hint's for the player.
TEST_F(Strong, TheChoiceDependsOnlyOnWhatTheSideSees) {
    const std::vector<int> own = {0, 9, 13, 20, 28, 33, 40, 43};
    const std::vector<int> table = {1, 2, 10, 44, 29, 34, 41, 24};
    std::vector<int> hidden = others(own, table);
    for (int side : {1, 0}) {
        std::vector<int> played[2];
        for (int variant = 0; variant < 2; ++variant) {
            restart();
            f->options.set(petal::Computer::kOption, "strong");
            const std::vector<int> theirs(hidden.begin(), hidden.begin() + 8), deck(hidden.begin() + 8, hidden.end());
            side == 1 ? dealWith(theirs, own, table, deck) : dealWith(own, theirs, table, deck);
            if (side == 1) {
                f->m.mTurn = 1;
                f->computer.CompSelectCard();
                f->m.mCompPhase = 1;
                f->computer.CompDropCard();
                played[variant] = {f->m.mCompCard, pileIndices(1, 0).empty() ? -1 : pileIndices(1, 0).front()};
            } else {
                f->mnuHint_Click();
                const Hint::Marks marks = f->hint.marks();
                ASSERT_GE(marks.hand, 0);
                played[variant] = {tagOf(f->ctl.imgPCard[marks.hand]), marks.table};
            }
            std::reverse(hidden.begin(), hidden.end());  // another hand, and the deck the other way round
        }
        EXPECT_EQ(played[0], played[1]) << "side " << side;
    }
}

// Per deal the strong computer weighs the difference of the totals and whether the deal is won;
// in the last deal of a tournament only whether it wins the tournament, so it gambles when
// behind and plays safe when ahead, where the difference would have it do otherwise.
TEST(StrongSearch, InTheLastDealOfATournamentItPlaysToWinTheTournament) {
    struct Case {
        const char* rule;
        Sight sight;
        std::vector<int> safe, gamble;  // the outcomes of two moves, equally likely each
        bool gambles;
    };
    Sight single, behind, ahead, early;
    behind.tournament = ahead.tournament = early.tournament = true;
    behind.lead = -40;
    ahead.lead = 30;
    early.lead = -40;
    early.dealsAfter = 3;
    const Case cases[] = {
        {"a single game: the better mean", single, {20, 20}, {45, -60}, false},
        {"a single game: a sure narrow win over a richer gamble", single, {5, 5}, {40, -20}, false},
        {"behind by 40: only a win counts", behind, {20, 20}, {45, -60}, true},
        {"ahead by 30: a certain win", ahead, {0, 0}, {100, -40}, false},
        {"deals to come: the mean still leads", early, {20, 20}, {45, -60}, false},
    };
    for (const Case& c : cases) {
        double safe = 0, gamble = 0;
        for (int d : c.safe) safe += StrongSearch::worth(c.sight, d);
        for (int d : c.gamble) gamble += StrongSearch::worth(c.sight, d);
        EXPECT_EQ(gamble > safe, c.gambles) << c.rule;
    }
}

// The other side's plays, read as the standard rule's, make a hidden card less likely where
// holding it the rule would have played otherwise. The table holds Matsu No Tan and Ume No Kasu;
// the other side played from slot 3.
TEST(StrongSearch, AHandIsReadFromThePlaysAsTheStandardRule) {
    struct Case {
        const char* rule;
        int played, card, slot;
        bool agrees;
    };
    const Case cases[] = {
        {"Ume No Tan took 10: Matsu Ni Tsuru would have taken 30", 5, 0, 5, false},
        {"a capture as rich in a lower slot goes first", 5, 2, 1, false},
        {"a capture as rich in a higher slot does not", 5, 2, 5, true},
        {"a card that takes nothing", 5, 10, 1, true},
        {"laid down: no capture was worth anything", 10, 0, 1, false},
        {"laid down: a capture worth nothing is none", 10, 7, 1, true},
        {"laid down: the cheapest in the highest slot goes", 10, 11, 5, false},
        {"laid down: as cheap in a lower slot", 10, 11, 1, true},
        {"laid down: a dearer card stays", 10, 8, 5, true},
    };
    for (const Case& c : cases) {
        SeenPlays::Play play;
        play.handSlot = 3;
        play.card = static_cast<std::int8_t>(c.played);
        play.tableSlots = 2;
        play.table.fill(-1);
        play.table[0] = 1;
        play.table[1] = 6;
        Sight sight;
        sight.side = 1;
        sight.seen.hand[0].fill(Sight::kUnseen);
        sight.seen.hand[0][3] = -1;
        sight.hidden[0] = static_cast<std::int8_t>(c.card);
        sight.hiddenCount = 1;
        readHand(sight, std::span(&play, 1), 0.01);
        EXPECT_EQ(sight.odds[c.card][c.slot], c.agrees ? 1.0 : 0.01) << c.rule;
    }
}

TEST_F(Strong, TheHintMarksTheStrongChoiceUntilThePlayerMoves) {
    // Every hand card may take either of two cards of its month.
    dealWith({1, 3, 9, 11, 29, 31, 33, 35}, {}, {0, 2, 8, 10, 28, 30, 32, 34});
    f->syncMenu();
    EXPECT_TRUE(f->menu.mnuHint.Enabled);
    f->mnuHint_Click();
    const Hint::Marks marks = f->hint.marks();
    const int hand = marks.hand, table = marks.table;
    ASSERT_GE(hand, 0);
    ASSERT_GE(table, 0) << "the table card where there is a choice";
    EXPECT_TRUE(f->m.mCards[tagOf(f->ctl.imgPCard[hand])].sameMonth(f->m.mCards[tagOf(f->ctl.imgTCard[table])]));
    EXPECT_FALSE(f->ctl.shpPHilite.Visible) << "a hint chooses nothing for the player";
    f->play.imgPCard_Click((hand + 1) % 8);
    EXPECT_EQ(f->hint.marks().hand, marks.hand) << "a selection is no move";
    f->play.imgPCard_Click(hand);
    f->play.imgTCard_Click(table);
    EXPECT_EQ(f->hint.marks().hand, -1);
    EXPECT_EQ(f->hint.marks().table, -1);
    f->g.gPlayMode = 1;
    f->syncMenu();
    EXPECT_FALSE(f->menu.mnuHint.Enabled) << "not offered in a network game";
}

}  // namespace
}  // namespace petal::test
