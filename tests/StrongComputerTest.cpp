// The strong computer: what it may see, and what it plays for.
#include "GameFixture.h"
#include "opponent/StrongSearch.h"

namespace petal::test {
namespace {

class Strong : public GameFixture {
protected:
    void SetUp() override { start(); }
    // The cards of the catalogue that are in none of the lists.
    static std::vector<int> others(const std::vector<int>& a, const std::vector<int>& b) {
        std::vector<int> rest;
        for (int card = 0; card < 48; ++card)
            if (std::count(a.begin(), a.end(), card) + std::count(b.begin(), b.end(), card) == 0) rest.push_back(card);
        return rest;
    }
};

// Two deals that differ only in what one side cannot see (the other hand and the deck's order)
// give that side the same hand card and the same table card, the computer as the player.
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
                const HandMove move = StrongSearch::choose(sightOf(*f, 0));
                played[variant] = {move.handSlot, move.tableSlot};
            }
            std::reverse(hidden.begin(), hidden.end());  // another hand, and the deck the other way round
        }
        EXPECT_EQ(played[0], played[1]) << "side " << side;
    }
}

// Per deal the strong computer weighs the difference of the totals; in the last deal of a
// tournament only whether it wins the tournament, so it gambles when behind and plays safe when
// ahead, where the difference would have it do otherwise.
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

}  // namespace
}  // namespace petal::test
