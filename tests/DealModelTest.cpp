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

// Replays a trace in the model; returns the number of deals that agreed to the end.
int replay(const std::string& trace, bool standardComputer) {
    std::istringstream lines(trace);
    std::array<int, 48> cards{};
    DealState s;
    int claims = 0, agreed = 0;
    for (std::string line; std::getline(lines, line);) {
        auto f = traceFields(line);
        const auto number = [&f](const char* key) { return std::stoi(f[key]); };
        if (f["ev"] == "\"deal\"") {
            std::istringstream list(f["cards"].substr(1));
            for (int& card : cards) (list >> card).ignore();
            s = DealState::dealt(cards, number("lead"), f["yaku"] == "1");
            claims = 0;
        } else if (f["ev"] == "\"move\"") {
            const int side = number("side"), pos = number("pos"), took = number("took"), slot = number("slot");
            const int target = took >= 0 ? slot : -1;
            const bool hand = f["from"] == "\"hand\"";
            EXPECT_EQ(s.turn, side) << line;
            const int card = hand ? cards.at(pos) : s.turnCard();
            EXPECT_EQ(card, cards.at(pos)) << "the card turned: " << line;
            if (took >= 0) EXPECT_TRUE(s.matches(card, slot) && s.table.at(slot) == cards.at(took)) << line;
            else EXPECT_EQ(s.bestMatch(card), -1) << "a card that matches must capture: " << line;
            if (side == 1 && standardComputer) {
                const HandMove chosen = hand ? standardHand(s) : HandMove{pos - 8, s.bestMatch(card)};
                EXPECT_EQ(std::pair(chosen.handSlot, chosen.tableSlot), std::pair(pos - 8, target)) << line;
            }
            const int laid = hand ? s.playHand(side == 0 ? pos : pos - 8, target) : s.placeTurned(card, target);
            EXPECT_EQ(laid, slot) << line;
        } else if (f["ev"] == "\"claim\"") {
            ++claims;
        } else if (f["ev"] == "\"end\"") {
            EXPECT_TRUE(s.over());
            EXPECT_EQ(s.claim(), claims);
            const bool same = s.score(0) == number("p") && s.score(1) == number("c");
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
