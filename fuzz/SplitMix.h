#pragma once
// The seeded generator of the seeded fuzzer: SplitMix64, small and the same on every machine.
#include <cstdint>

namespace petal::fuzz {

class SplitMix {
public:
    explicit SplitMix(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next() {
        std::uint64_t z = (state_ += 0x9E3779B97F4A7C15ULL);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }
    // 0 to n - 1.
    unsigned below(unsigned n) { return n ? static_cast<unsigned>(next() % n) : 0; }
    bool chance(unsigned percent) { return below(100) < percent; }

private:
    std::uint64_t state_;
};

}  // namespace petal::fuzz
