#pragma once
// The two runs that each fuzz target's suite makes: inputs of the seeded fuzzer's own making,
// and the kept inputs of its corpus folder, each on a target of its own as when it was kept.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>

#include "FuzzTargets.h"
#include "SeededFuzzer.h"

namespace petal::fuzz {

inline void expectSeededRunClean(FuzzTarget& target, long runs) {
    const SeededFuzzer::Result result = SeededFuzzer::run(target, 20261123, runs, 600.0);
    EXPECT_EQ(result.failure, "") << "input " << SeededFuzzer::hex(result.input);
    EXPECT_EQ(result.runs, runs);
    std::printf("%ld inputs in %.1f s (%.0f/s): %s\n", result.runs, result.seconds, result.runs / result.seconds,
                target.stats().c_str());
}

// Replays tests/fuzz-corpus/<folder>; the number of inputs.
template <class Target>
int expectKeptInputsClean(const char* folder) {
    int inputs = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::path(PETAL_SOURCE_DIR) / "tests/fuzz-corpus" / folder)) {
        Target target(fuzzScratch());
        EXPECT_EQ(SeededFuzzer::replay(target, entry.path()), "") << entry.path().filename();
        ++inputs;
    }
    return inputs;
}

}  // namespace petal::fuzz
