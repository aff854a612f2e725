// The figures of a record from its games, the chart's fifty, a game recorded once, and Reset.
#include <gtest/gtest.h>

#include "GameFixture.h"
#include "records/FrmStatistics.h"
#include "records/Statistics.h"
#include "records/StatsFigures.h"

namespace petal::test {
namespace {

// Games of one record from their margins; the score is 100 plus the margin.
std::vector<GameResult> games(const std::vector<int>& margins, int kind = 0, const std::string& opponent = "standard") {
    std::vector<GameResult> out;
    for (const int m : margins) {
        GameResult& g = out.emplace_back();
        g.id = std::to_string(out.size());
        g.kind = kind;
        g.opponent = opponent;
        g.score = 100 + m;
        g.against = 100;
        g.yaku[out.size() % 8] = 1;
    }
    return out;
}

TEST(Statistics, FiguresOfARecord) {
    std::vector<int> sixty;
    for (int i = 0; i < 60; ++i) sixty.push_back(i % 2 ? -i : i);
    std::vector<GameResult> mixed = games({5, 5, 5});
    for (const auto& other : {games({40, 40}, 1), games({40}, 0, "strong"), games({-40}, 0, GameResult::kPeople)})
        mixed.insert(mixed.begin() + 1, other.begin(), other.end());
    struct Case {
        const char* name;
        std::vector<GameResult> games;
        int played, won, lost, tied, best, longest, run, result;
        double mean;
    };
    const Case cases[] = {
        {"none", {}, 0, 0, 0, 0, 0, 0, 0, 0, 0.0},
        {"runs", games({10, 20, -5, 0, 30, 40, 50}), 7, 5, 1, 1, 150, 3, 3, 1, 845.0 / 7},
        {"ending in losses", games({10, -10, -20}), 3, 1, 2, 0, 110, 1, 2, -1, 280.0 / 3},
        {"ties only", games({0, 0}), 2, 0, 0, 2, 100, 0, 2, 0, 100.0},
        {"other records left out", mixed, 3, 3, 0, 0, 105, 3, 3, 1, 105.0},
        {"sixty", games(sixty), 60, 29, 30, 1, 158, 1, 1, -1, 100.0 - 0.5},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const StatsFigures f = StatsFigures::of(c.games, 0, "standard");
        EXPECT_EQ(std::vector<int>({f.played, f.won, f.lost, f.tied, f.best, f.longestWinRun, f.currentRun, f.currentResult}),
                  std::vector<int>({c.played, c.won, c.lost, c.tied, c.best, c.longest, c.run, c.result}));
        EXPECT_DOUBLE_EQ(f.mean, c.mean);
        EXPECT_EQ(f.lastMargins.size(), std::min<std::size_t>(c.played, StatsFigures::kChartGames));
    }
    // The chart keeps the last fifty, the oldest first.
    const StatsFigures f = StatsFigures::of(games(sixty), 0, "standard");
    EXPECT_EQ(f.lastMargins.front(), sixty[10]);
    EXPECT_EQ(f.lastMargins.back(), sixty[59]);
    EXPECT_EQ(f.yaku[1], 8);  // games 1, 9, ..., 57 made yaku 2
}

TEST(Statistics, AGameIsRecordedOnceAndResetOnlyWhenTheAnswerIsYes) {
    TempDir dir;
    SimHost host(dir.path());
    Statistics stats(host);
    for (const GameResult& g : games({10, 10, -10})) stats.record(g);
    stats.record(games({10})[0]);  // the first game again, as a resumed game's end records it
    ASSERT_EQ(stats.games().size(), 3u);
    for (const MsgResult answer : {MsgResult::No, MsgResult::Yes}) {
        FrmStatistics form(host, stats);
        form.Form_Load();
        EXPECT_EQ(form.figures[0], std::make_pair(std::string("Games played"), std::string("3")));
        EXPECT_TRUE(form.cmdResetEnabled);
        host.expectMsgBox("Reset the statistics? The record of every game played so far is lost.", "Reset Statistics",
                          answer);
        form.cmdReset_Click();
        EXPECT_EQ(form.figures[0].second, answer == MsgResult::Yes ? "0" : "3");
    }
    EXPECT_TRUE(stats.games().empty());
}

}  // namespace
}  // namespace petal::test
