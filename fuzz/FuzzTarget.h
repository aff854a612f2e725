#pragma once
// A fuzz target: one untrusted input of the game run against the core. The same target is run
// by libFuzzer (coverage-guided, with the sanitizers) and by the seeded fuzzer of the test
// suite, which feeds it inputs of its own making.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "SplitMix.h"

namespace petal::fuzz {

class FuzzTarget {
public:
    virtual ~FuzzTarget() = default;

    virtual const char* name() const = 0;
    // Runs one input; the first broken rule in words, or "" when it ran clean. A crash or a
    // sanitizer's report ends the process instead.
    virtual std::string run(const std::uint8_t* data, std::size_t size) = 0;
    // An input of the seeded fuzzer's: random, but shaped so that most of them go deep.
    virtual std::vector<std::uint8_t> sample(SplitMix& random) = 0;
    // What the runs have reached so far, in one line.
    virtual std::string stats() const = 0;
};

}  // namespace petal::fuzz
