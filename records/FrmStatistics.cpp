#include "records/FrmStatistics.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

#include "platform/Host.h"
#include "records/Statistics.h"
#include "records/StatsFigures.h"

namespace petal {

namespace {

std::string recordCaption(int kind, const std::string& opponent) {
    const std::string games = kind == 0 ? "Single games" : "Tournaments";
    if (opponent == GameResult::kPeople) return games + " against people on the network";
    std::string name = opponent;
    if (!name.empty()) name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
    return games + " against the " + name + " computer";
}

// The standard computer's two records always stand first; other computers follow by name, and
// people last, each once it has games.
int recordRank(const std::string& opponent) {
    return opponent == "standard" ? 0 : opponent == GameResult::kPeople ? 2 : 1;
}

std::string runText(int length, int result) {
    const char* word = result > 0 ? " won" : result < 0 ? " lost" : " tied";
    return std::to_string(length) + word;
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
    figures = {{"Games played", std::to_string(f.played)},
               {"Won", std::to_string(f.won)},
               {"Lost", std::to_string(f.lost)},
               {"Tied", std::to_string(f.tied)},
               {"Share won", any ? share : none},
               {"Best score", any ? std::to_string(f.best) : none},
               {"Mean score", any ? mean : none},
               {"Longest run of wins", std::to_string(f.longestWinRun)},
               {"Current run", any ? runText(f.currentRun, f.currentResult) : none}};
    for (int k = 0; k < 8; ++k) yakuMade[k] = {"Yaku " + std::to_string(k + 1), std::to_string(f.yaku[k])};
    chartMargins = f.lastMargins;
    chartCaption = any ? "Your margin in the last " + std::to_string(chartMargins.size()) +
                             (chartMargins.size() == 1 ? " game" : " games")
                       : "No games yet";
}

void FrmStatistics::cmdReset_Click() {
    const MsgBox ask{"Reset the statistics? The record of every game played so far is lost.", "Reset Statistics",
                     MsgIcon::Question, MsgButtons::YesNo};
    if (host_.msgBox(ask) != MsgResult::Yes) return;
    stats_.reset();
    listRecords();
    cboRecordIndex = 0;
    showRecord();
}

}  // namespace petal
