#pragma once
// Settings files for the seeded fuzzer: files as the program writes them, with every value
// that matters to the game; files as a hand or another program writes them (other line ends,
// commas, blanks, signs, missing and fifth numbers, numbers beyond 16 bits, words, a byte order
// mark, far too long); and spoilings of both. A few are bytes of chance.
#include <cstdint>
#include <string>
#include <vector>

#include "SplitMix.h"

namespace petal::fuzz {

class SettingsSampler {
public:
    explicit SettingsSampler(SplitMix& random) : random_(random) {}

    std::vector<std::uint8_t> input();

    // The file as the program writes it.
    static std::string written(int gameType, int rounds, int useYaku, int playMode);

private:
    std::string value();
    std::string token();
    std::string separator();
    std::string handWritten();

    SplitMix& random_;
};

}  // namespace petal::fuzz
