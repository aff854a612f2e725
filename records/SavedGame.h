#pragma once
// A game against the computer as it is kept between runs: its options, the generator's state
// at its first deal, and what happened since, one entry per completed move. Replayed through
// the game's own handlers, that rebuilds the table; each entry carries a fingerprint of the
// table after it, so that a build which plays the same moves otherwise is caught, never misread.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace petal {

struct SavedGame {
    static constexpr const char* kFileName = "petalgarden-game.sav";
    static constexpr const char* kHeading = "Petalgarden saved game";
    static constexpr int kVersion = 1;
    static constexpr std::size_t kLongestFile = 256 * 1024;

    struct Options {
        int gameType = 0;  // 0 single game, 1 tournament
        int rounds = 10;
        bool useYaku = true;
        std::string computer = "standard";
        bool operator==(const Options&) const = default;
    };

    // D a deal (its seed), P the player's hand card and where it went (table slot, -1 laid
    // down) with the flip after it, F where the player put a flipped card, C a turn of the
    // computer, E a round's result with its Hall of Fame offers behind it.
    struct Entry {
        char kind = 'D';
        int slot = -1;
        int target = -1;
        std::string seed;
        std::uint32_t check = 0;
        bool operator==(const Entry&) const = default;
    };

    Options options;
    int firstTurn = 0;
    std::uint64_t rndState = 0;
    std::string id;  // the game's name in the statistics: when it began, and its generator
    // Where the game stands, for the question at the next start; the replay does not read them.
    int round = 1;
    int playerTotal = 0, opponentTotal = 0;
    std::vector<Entry> entries;

    std::string text() const;
    // The game a file holds, or nothing and the reason in words ("it is cut short").
    static std::optional<SavedGame> parse(std::string_view bytes, std::string& reason);
};

}  // namespace petal
