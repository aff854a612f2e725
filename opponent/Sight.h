#pragma once
// What one side of a game against the computer sees when it is to choose: its own hand, the
// table, both capture piles and their counts, the card just turned, how many cards the other
// hand and the deck hold, the standing of a tournament, and the hand cards the other side has
// played this deal. The cards it cannot see are known as a set, each with the odds of lying in
// each place of the other hand; sample() deals them out afresh, the other hand first, then the
// deck.
#include <array>
#include <cstdint>

#include "opponent/DealState.h"

namespace petal {

class FrmMain;

struct Sight {
    static constexpr std::int8_t kUnseen = -2;  // a place that holds a card the side cannot see

    DealState seen;         // the other hand's places and the unturned deck hold -1
    int side = 0;           // 0 the local player, 1 the computer
    int turned = -1;        // the turned card that waits to be placed, or -1 while a hand card is to go
    std::array<std::int8_t, 48> hidden{};
    int hiddenCount = 0;
    // odds[card][slot]: how likely the hidden card lies in that slot of the other hand, up to a
    // factor, as the other side's plays so far make it (readHand); a card never yet ruled on, 1.
    std::array<std::array<double, 8>, 48> odds = evenOdds();
    // Tournament: the side's lead in the running totals before this deal, and the deals to come
    // after it; a single game has no standing.
    bool tournament = false;
    int lead = 0;
    int dealsAfter = 0;

    // Everything above in one number, to seed the search: the same sight, the same choice.
    std::uint64_t fingerprint() const;
    // Whether the hidden cards fill every place the sight cannot see, as they do in any game.
    bool complete() const;
    // One deal of the hidden cards that agrees with the sight, each place of the other hand
    // drawn by the odds; rng is a SplitMix64 state.
    DealState sample(std::uint64_t& rng) const;

private:
    static std::array<std::array<double, 8>, 48> evenOdds() {
        std::array<std::array<double, 8>, 48> odds;
        for (auto& slots : odds) slots.fill(1.0);
        return odds;
    }
};

// The sight of `side` in the game as it stands, at a moment when that side is to choose.
Sight sightOf(const FrmMain& f, int side);

// SplitMix64: the search's own generator, never the game's.
inline std::uint64_t nextRandom(std::uint64_t& state) {
    std::uint64_t z = (state += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

}  // namespace petal
