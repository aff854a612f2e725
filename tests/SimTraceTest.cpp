// The trace of the headless player: it follows the fixed format, and every deal it records
// conserves its cards and scores what was captured.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>

#include "SimPlay.h"
#include "TraceFields.h"
#include "cards/FrmCards.h"

namespace petal::test {
namespace {

std::vector<int> numbers(const std::string& list) {
    std::vector<int> out;
    std::stringstream in(list.substr(1, list.size() - 2));
    for (std::string item; std::getline(in, item, ',');) out.push_back(std::stoi(item));
    return out;
}

// Replays one run's trace and checks each deal; returns the number of deals ended.
int checkTrace(const std::string& trace, bool yaku) {
    std::istringstream lines(trace);
    std::vector<int> cards;
    std::set<int> captured[2];
    std::set<int> onTable;
    int ended = 0;
    for (std::string line; std::getline(lines, line);) {
        auto f = traceFields(line);
        const std::string ev = f["ev"];
        EXPECT_EQ(line.front(), '{');
        if (ev == "\"deal\"") {
            cards = numbers(f["cards"]);
            EXPECT_EQ(std::set<int>(cards.begin(), cards.end()).size(), 48u) << "a permutation";
            EXPECT_EQ(f["yaku"], yaku ? "1" : "0");
            captured[0].clear();
            captured[1].clear();
            onTable = {16, 17, 18, 19, 20, 21, 22, 23};
        } else if (ev == "\"move\"") {
            const int side = std::stoi(f["side"]), pos = std::stoi(f["pos"]), took = std::stoi(f["took"]);
            EXPECT_FALSE(captured[0].count(pos) || captured[1].count(pos) || onTable.count(pos)) << line;
            if (f["from"] == "\"hand\"") {
                EXPECT_TRUE(side == 0 ? pos < 8 : (pos >= 8 && pos < 16)) << line;
            } else {
                EXPECT_TRUE(pos >= 24 && pos < 40) << line;
            }
            if (took < 0) {
                onTable.insert(pos);
            } else {
                EXPECT_EQ(onTable.erase(took), 1u) << "took a card that was on the table: " << line;
                captured[side].insert({pos, took});
            }
        } else if (ev == "\"claim\"") {
            const int side = std::stoi(f["side"]), pos = std::stoi(f["pos"]);
            EXPECT_EQ(onTable.erase(pos), 1u) << line;
            captured[side].insert(pos);
        } else if (ev == "\"end\"") {
            ++ended;
            EXPECT_EQ(captured[0].size() + captured[1].size() + onTable.size(), 40u) << "every card in one place";
            const int yakus[2] = {std::stoi(f["pyaku"]), std::stoi(f["cyaku"])};
            const char* key[2] = {"p", "c"};
            for (int side = 0; side < 2; ++side) {
                int value = 0;
                for (int pos : captured[side]) value += FrmCards::card(cards.at(pos) + 1).Points;
                EXPECT_EQ(std::stoi(f[key[side]]), value + 50 * yakus[side]) << line;
                if (!yaku) {
                    EXPECT_EQ(yakus[side], 0);
                }
            }
        } else {
            EXPECT_EQ(ev, "\"summary\"");
            EXPECT_EQ(std::stoi(f["deals"]), ended);
        }
    }
    return ended;
}

// Runs the headless player; returns its output, failing the test on an error.
std::string run(sim::PlayOptions options) {
    std::ostringstream out, err;
    EXPECT_EQ(sim::play(options, out, err), 0) << err.str();
    return out.str();
}

TEST(SimTrace, SingleGamesAndTournamentsConserveTheirCardsAndScoreTheirCaptures) {
    for (bool yaku : {true, false}) {
        sim::PlayOptions options;
        options.deals = 6;
        options.yaku = yaku;
        options.trace = true;
        options.randomPolicy = true;
        options.policySeed = 7;
        EXPECT_EQ(checkTrace(run(options), yaku), 6);
    }
    sim::PlayOptions tournament;
    tournament.deals = 5;
    tournament.tournamentRounds = 2;
    tournament.trace = true;
    EXPECT_EQ(checkTrace(run(tournament), true), 5);
}

TEST(SimTrace, WithoutTraceOnlyTheSummaryIsPrinted) {
    sim::PlayOptions options;
    options.deals = 3;
    const std::string text = run(options);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1);
    EXPECT_EQ(text.rfind("{\"ev\":\"summary\",\"deals\":3,", 0), 0u) << text;
}

}  // namespace
}  // namespace petal::test
