#pragma once
// The figures of one kind of game against one opponent, from the games in the order they ended.
#include <array>
#include <string>
#include <vector>

#include "records/GameResult.h"

namespace petal {

struct StatsFigures {
    static constexpr std::size_t kChartGames = 50;

    int played = 0, won = 0, lost = 0, tied = 0;
    int best = 0;
    double mean = 0;
    int longestWinRun = 0;
    // The run the last game belongs to: its length, and its result (1 won, 0 tied, -1 lost).
    int currentRun = 0;
    int currentResult = 0;
    std::array<int, 8> yaku{};
    std::vector<int> lastMargins;  // at most kChartGames, the oldest first

    static StatsFigures of(const std::vector<GameResult>& games, int kind, const std::string& opponent);
};

}  // namespace petal
