#pragma once
// The local player's choices: the lowest slots, or a seeded pick of its own; or, in play, a
// whole move chosen as the standard computer or the strong one would choose it.
#include <cstdint>
#include <span>

namespace petal::sim {

enum class Chooser { None, Standard, Strong };

class Policy {
public:
    Policy(bool random, std::uint64_t seed, Chooser chooser = Chooser::None)
        : random_(random), state_(seed), chooser_(chooser) {}

    Chooser chooser() const { return chooser_; }

    // Picks one of the candidates, which are in ascending order and not empty.
    int pick(std::span<const int> candidates) {
        if (!random_ || candidates.size() == 1) return candidates.front();
        return candidates[next() % candidates.size()];
    }

private:
    // SplitMix64, kept apart from the game's generator so the deals stay the game's own.
    std::uint64_t next() {
        std::uint64_t z = (state_ += 0x9E3779B97F4A7C15ULL);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }

    bool random_;
    std::uint64_t state_;
    Chooser chooser_;
};

}  // namespace petal::sim
