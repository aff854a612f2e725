#include "records/FrmStatistics.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

#include "platform/Host.h"
#include "records/Statistics.h"
#include "records/StatsFigures.h"
#include "platform/Words.h"

namespace petal {

namespace {

std::string recordCaption(int kind, const std::string& opponent) {
    if (opponent == GameResult::kPeople)
        return kind == 0 ? PETAL_TR("core", "Single games against people on the network")
                         : PETAL_TR("core", "Tournaments against people on the network");
    if (opponent == "standard")
        return kind == 0 ? PETAL_TR("core", "Single games against the Standard computer")
                         : PETAL_TR("core", "Tournaments against the Standard computer");
    if (opponent == "strong")
        return kind == 0 ? PETAL_TR("core", "Single games against the Strong computer")
                         : PETAL_TR("core", "Tournaments against the Strong computer");
    std::string name = opponent;
    if (!name.empty()) name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
    return (kind == 0 ? "Single games" : "Tournaments") + std::string(" against the ") + name + " computer";
}

// The standard computer's two records always stand first; other computers follow by name, and
// people last, each once it has games.
int recordRank(const std::string& opponent) {
    return opponent == "standard" ? 0 : opponent == GameResult::kPeople ? 2 : 1;
}

std::string runText(Host& host, int length, int result) {
    const char* pattern = result > 0   ? PETAL_TR("core", "%1 won")
                          : result < 0 ? PETAL_TR("core", "%1 lost")
                                       : PETAL_TR("core", "%1 tied");
    return said(host, pattern, {std::to_string(length)});
}

}  // namespace

void FrmStatistics::Form_Load() {
    listRecords();
    // The record of the game played last comes up first.
    cboRecordIndex = 0;
    if (!games_.empty())
        for (std::size_t i = 0; i < records.size(); ++i)
            if (records[i].kind == games_.back().kind && records[i].opponent == games_.back().opponent)
                cboRecordIndex = static_cast<int>(i);
    showRecord();
}

void FrmStatistics::listRecords() {
    games_ = stats_.games();
    records.clear();
    const auto add = [this](int kind, const std::string& opponent) {
        for (const Record& r : records)
            if (r.kind == kind && r.opponent == opponent) return;
        records.push_back({kind, opponent, recordCaption(kind, opponent)});
    };
    add(0, "standard");
    add(1, "standard");
    for (const GameResult& g : games_) add(g.kind, g.opponent);
    std::stable_sort(records.begin(), records.end(), [](const Record& a, const Record& b) {
        const int ra = recordRank(a.opponent), rb = recordRank(b.opponent);
        if (ra != rb) return ra < rb;
        return a.opponent != b.opponent ? a.opponent < b.opponent : a.kind < b.kind;
    });
    cmdResetEnabled = !games_.empty();
}

void FrmStatistics::cboRecord_Click(int index) {
    if (index < 0 || index >= static_cast<int>(records.size())) return;
    cboRecordIndex = index;
    showRecord();
}

void FrmStatistics::showRecord() {
    const Record& r = records.at(cboRecordIndex);
    const StatsFigures f = StatsFigures::of(games_, r.kind, r.opponent);
    const bool any = f.played > 0;
    char share[16], mean[32];
    std::snprintf(share, sizeof share, "%d%%", any ? (f.won * 200 + f.played) / (2 * f.played) : 0);
    std::snprintf(mean, sizeof mean, "%.1f", f.mean);
    const std::string none = "\u2013";
    figures = {{PETAL_TR("core", "Games played"), std::to_string(f.played)},
               {PETAL_TR("core", "Won"), std::to_string(f.won)},
               {PETAL_TR("core", "Lost"), std::to_string(f.lost)},
               {PETAL_TR("core", "Tied"), std::to_string(f.tied)},
               {PETAL_TR("core", "Share won"), any ? share : none},
               {PETAL_TR("core", "Best score"), any ? std::to_string(f.best) : none},
               {PETAL_TR("core", "Mean score"), any ? mean : none},
               {PETAL_TR("core", "Longest run of wins"), std::to_string(f.longestWinRun)},
               {PETAL_TR("core", "Current run"), any ? runText(host_, f.currentRun, f.currentResult) : none}};
    // Each yaku by a label of its own, so that a language can give it its name.
    static constexpr const char* kYaku[8] = {PETAL_TR("core", "Yaku 1"), PETAL_TR("core", "Yaku 2"), PETAL_TR("core", "Yaku 3"),
                                             PETAL_TR("core", "Yaku 4"), PETAL_TR("core", "Yaku 5"), PETAL_TR("core", "Yaku 6"),
                                             PETAL_TR("core", "Yaku 7"), PETAL_TR("core", "Yaku 8")};
    for (int k = 0; k < 8; ++k) yakuMade[k] = {kYaku[k], std::to_string(f.yaku[k])};
    chartMargins = f.lastMargins;
    chartCaption = !any                     ? PETAL_TR("core", "No games yet")
                   : chartMargins.size() == 1 ? said(host_, PETAL_TR("core", "Your margin in the last game"))
                                              : said(host_, PETAL_TR("core", "Your margin in the last %1 games"),
                                                     {std::to_string(chartMargins.size())});
}

void FrmStatistics::cmdReset_Click() {
    const MsgBox ask{PETAL_TR("core", "Reset the statistics? The record of every game played so far is lost."),
                     PETAL_TR("core", "Reset Statistics"),
                     MsgIcon::Question, MsgButtons::YesNo};
    if (host_.msgBox(ask) != MsgResult::Yes) return;
    stats_.reset();
    listRecords();
    cboRecordIndex = 0;
    showRecord();
}

}  // namespace petal
