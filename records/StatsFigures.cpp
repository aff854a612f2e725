#include "records/StatsFigures.h"

#include <algorithm>

namespace petal {

StatsFigures StatsFigures::of(const std::vector<GameResult>& games, int kind, const std::string& opponent) {
    StatsFigures f;
    long long sum = 0;
    int winRun = 0;
    for (const GameResult& g : games) {
        if (g.kind != kind || g.opponent != opponent) continue;
        const int result = g.margin() > 0 ? 1 : g.margin() < 0 ? -1 : 0;
        (result > 0 ? f.won : result < 0 ? f.lost : f.tied) += 1;
        f.best = f.played == 0 ? g.score : std::max(f.best, g.score);
        ++f.played;
        sum += g.score;
        winRun = result > 0 ? winRun + 1 : 0;
        f.longestWinRun = std::max(f.longestWinRun, winRun);
        f.currentRun = f.played > 1 && result == f.currentResult ? f.currentRun + 1 : 1;
        f.currentResult = result;
        for (int k = 0; k < 8; ++k) f.yaku[k] += g.yaku[k];
        f.lastMargins.push_back(g.margin());
    }
    if (f.played > 0) f.mean = static_cast<double>(sum) / f.played;
    if (f.lastMargins.size() > kChartGames)
        f.lastMargins.erase(f.lastMargins.begin(), f.lastMargins.end() - kChartGames);
    return f;
}

}  // namespace petal
