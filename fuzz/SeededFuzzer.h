#pragma once
// Runs a fuzz target on inputs of its own making from one seed, within a count and a time;
// stops at the first failure, which is kept with the input that caused it. An input that hangs
// ends the process with the input printed.
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "FuzzTarget.h"

namespace petal::fuzz {

class SeededFuzzer {
public:
    static constexpr int kHangSeconds = 20;

    struct Result {
        long runs = 0;
        double seconds = 0;
        std::string failure;  // empty when every input ran clean
        std::vector<std::uint8_t> input;
    };

    static Result run(FuzzTarget& target, std::uint64_t seed, long count, double secondsLimit,
                      int hangSeconds = kHangSeconds);
    // Runs one input kept in a file (a corpus entry, a crash); the failure or "".
    static std::string replay(FuzzTarget& target, const std::filesystem::path& file);
    static std::string hex(const std::vector<std::uint8_t>& bytes);
};

}  // namespace petal::fuzz
