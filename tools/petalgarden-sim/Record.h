#pragma once
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace petal::sim {

// One event as the mirror compares it. For a move, `where` tells for each position where it
// lies as the card comes to rest: -1 elsewhere, 100 + slot on the table, 200 + 10 side + row
// in a pile; with the pile counters and the yaku cards of both sides. A mirrored tracer writes
// the sides of `where`, `yakuCards` and `points` as the other program sees them, so that the
// two records of one move hold the same bytes there; `side` is always this program's own.
struct Record {
    enum class Kind : std::uint8_t { Deal, Move, Claim, End } kind = Kind::Deal;
    bool fromDeck = false;
    int side = 0, pos = 0, took = 0, slot = 0;
    int lead = 0, yaku = 0;
    int p = 0, c = 0, pyaku = 0, cyaku = 0;
    std::string seed;
    std::vector<int> cards;
    std::array<std::int16_t, 48> where{};
    std::array<std::array<int, 8>, 2> yakuCards{};
    std::array<std::array<std::array<int, 3>, 2>, 2> points{};
};

}  // namespace petal::sim
