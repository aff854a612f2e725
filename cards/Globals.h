#pragma once
// The program's globals, in one object that the forms share by reference.
#include <array>
#include <string>
#include <vector>

namespace petal {

struct Globals {
    int gGameInProgress = 0;  // 0 no game, 1 a game or tournament runs
    int gGameType = 0;        // 0 single game, 1 tournament
    int gRounds = 0;
    bool gUseYaku = false;
    int gPlayMode = 0;  // 0 single player, 1 host, 2 client
    std::string gHostIP;
    int gConnectState = 0;  // the socket state last acted upon; 7 connected
    bool gSetupCancelled = false;
    bool gLocalLeads = false;
    bool gRematchPending = false;
    // gRoundScores(player, column): column 0 the running totals, column r round r.
    std::array<std::vector<int>, 2> gRoundScores{std::vector<int>(1), std::vector<int>(1)};
    std::array<std::string, 24> gYakuCodes{};
    std::string gHighScoreName;

    // ReDim gRoundScores(0 To 1, 0 To rounds): all zero.
    void dimRoundScores(int rounds);
    int roundScoresUpper() const { return static_cast<int>(gRoundScores[0].size()) - 1; }
};

}  // namespace petal
