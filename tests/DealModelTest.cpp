// The model that the strong computer searches on keeps the game's rules: deals played by the
// game are replayed in it move for move, the standard computer's choices and the scores
// included, so that the rules are not written twice with a difference between them.
#include <gtest/gtest.h>

#include <sstream>

#include "SimPlay.h"
#include "TraceFields.h"
#include "opponent/StandardRule.h"

namespace petal::test {
namespace {

std::array<int, 48> cardsOf(const std::string& list) {
    std::array<int, 48> cards{};
    std::stringstream in(list.substr(1, list.size() - 2));
    std::string item;
    for (int& card : cards) {
        std::getline(in, item, ',');
        card = std::stoi(item);
    }
    return cards;
}

// Replays a trace in the model; returns the number of deals that agreed to the end.
int replay(const std::string& trace, bool standardComputer) {
    std::istringstream lines(trace);
    std::array<int, 48> cards{};
    DealState s;
    int claims = 0, agreed = 0;
    for (std::string line; std::getline(lines, line);) {
        auto f = traceFields(line);
        if (f["ev"] == "\"deal\"") {
            cards = cardsOf(f["cards"]);
            s = DealState::dealt(cards, std::stoi(f["lead"]), f["yaku"] == "1");
            claims = 0;
        } else if (f["ev"] == "\"move\"") {
            const int side = std::stoi(f["side"]), pos = std::stoi(f["pos"]), took = std::stoi(f["took"]);
            const int slot = std::stoi(f["slot"]), target = took >= 0 ? slot : -1;
            const bool hand = f["from"] == "\"hand\"";
            EXPECT_EQ(s.turn, side) << line;
            const int card = hand ? cards.at(pos) : s.turnCard();
            EXPECT_EQ(card, cards.at(pos)) << "the card turned: " << line;
            if (took >= 0) {
                EXPECT_TRUE(s.matches(card, slot)) << line;
                EXPECT_EQ(s.table.at(slot), cards.at(took)) << line;
            } else {
                EXPECT_EQ(s.bestMatch(card), -1) << "a card that matches must capture: " << line;
            }
            if (side == 1 && standardComputer && hand) {
                const HandMove chosen = standardHand(s);
                EXPECT_EQ(chosen.handSlot, pos - 8) << line;
                EXPECT_EQ(chosen.tableSlot, target) << line;
            } else if (side == 1 && standardComputer) {
                EXPECT_EQ(s.bestMatch(card), target) << line;
            }
            const int at = hand ? s.playHand(side == 0 ? pos : pos - 8, target) : s.placeTurned(card, target);
            if (at != slot) ADD_FAILURE() << "laid into slot " << at << ": " << line;
        } else if (f["ev"] == "\"claim\"") {
            ++claims;
        } else if (f["ev"] == "\"end\"") {
            EXPECT_TRUE(s.over());
            EXPECT_EQ(s.claim(), claims);
            const bool same = s.score(0) == std::stoi(f["p"]) && s.score(1) == std::stoi(f["c"]);
            EXPECT_TRUE(same) << s.score(0) << " to " << s.score(1) << " in the model: " << line;
            agreed += same ? 1 : 0;
        }
    }
    return agreed;
}

TEST(DealModel, ReplaysTheGamesDealsMoveForMove) {
    struct Run {
        const char* name;
        sim::PlayOptions options;
        bool standardComputer;
    };
    const Run runs[] = {
        {"random player, yaku", {.deals = 400, .randomPolicy = true, .policySeed = 3}, true},
        {"random player, no yaku, tournaments",
         {.deals = 300, .tournamentRounds = 3, .yaku = false, .randomPolicy = true, .policySeed = 8}, true},
        {"the standard rule on both sides", {.deals = 300, .chooser = sim::Chooser::Standard}, true},
        {"the strong search on both sides", {.deals = 2, .chooser = sim::Chooser::Strong, .strongComputer = true}, false},
    };
    for (Run run : runs) {
        run.options.trace = true;
        std::ostringstream out, err;
        ASSERT_EQ(sim::play(run.options, out, err), 0) << err.str();
        EXPECT_EQ(replay(out.str(), run.standardComputer), run.options.deals) << run.name;
    }
}

}  // namespace
}  // namespace petal::test
