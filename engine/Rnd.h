#pragma once
// The deal generator. Both ends of a network game must draw the same numbers from the same
// seed, so the algorithm is fixed: a SplitMix64 stream whose state is xor-seeded.
#include <bit>
#include <cstdint>

namespace petal {

class Rnd {
public:
    static constexpr std::uint64_t kStart = 0x2545F4914F6CDD1DULL;

    // The reset call: back to the fixed starting state.
    void reset() { s_ = kStart; }
    void seed(double value) { s_ ^= std::bit_cast<std::uint64_t>(value); }
    // A saved game starts its replay from the state its first deal found.
    std::uint64_t state() const { return s_; }
    void setState(std::uint64_t state) { s_ = state; }
    // At least 0 and below 1, 53 bits of resolution.
    double next() {
        s_ += 0x9E3779B97F4A7C15ULL;
        std::uint64_t z = s_;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        z ^= z >> 31;
        return static_cast<double>(z >> 11) * 0x1.0p-53;
    }

private:
    std::uint64_t s_ = kStart;
};

}  // namespace petal
