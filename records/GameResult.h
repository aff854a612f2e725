#pragma once
// One finished game as the statistics keep it, from the local player's side.
#include <array>
#include <string>

namespace petal {

struct GameResult {
    // The statistics' name for games played against people on the network.
    static constexpr const char* kPeople = "people";

    std::string id;  // recording the same game twice (after a resume) keeps one row
    std::string date;
    int kind = 0;          // 0 single game, 1 tournament
    std::string opponent;  // the computer's kind ("standard", "strong"), or kPeople
    int rounds = 1;
    int score = 0, against = 0;
    std::array<int, 8> yaku{};  // how often each of the eight yaku was made

    int margin() const { return score - against; }
    bool operator==(const GameResult&) const = default;
};

}  // namespace petal
