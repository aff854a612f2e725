#pragma once
// Inputs of the net target for the seeded fuzzer: the head bytes at random, then pieces that
// are mostly messages of the game's grammar with fields near and beyond what fits, cut
// anywhere, some spoilt, some merged, among correct moves and the local player's clicks.
#include <cstdint>
#include <string>
#include <vector>

#include "SplitMix.h"

namespace petal::fuzz {

class NetSampler {
public:
    explicit NetSampler(SplitMix& random) : r_(random) {}

    std::vector<std::uint8_t> input();

private:
    std::string message();
    std::string number();
    std::string seedText();
    std::string chatText();
    std::string spoilt(std::string text);
    void piece(std::vector<std::uint8_t>& out, const std::string& bytes, std::uint8_t control);
    std::uint8_t control();

    SplitMix& r_;
};

}  // namespace petal::fuzz
