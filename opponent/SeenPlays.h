#pragma once
// The hand cards played in the deal so far, each with the table it was played onto: what
// either side saw of the other's choices, from which the search reads the hand it cannot see.
#include <array>
#include <cstdint>
#include <span>

#include "opponent/DealState.h"

namespace petal {

class FrmMain;

class SeenPlays {
public:
    struct Play {
        std::int8_t side = 0;
        std::int8_t handSlot = 0;
        std::int8_t card = 0;  // catalogue index
        std::int8_t tableSlots = 0;
        std::array<std::int8_t, DealState::kSlots> table{};  // catalogue indices, -1 free
    };

    void clear() { count_ = 0; }
    // `side` plays the card at `position` from `handSlot`, the table still as it was.
    void add(const FrmMain& f, int side, int handSlot, int position);
    std::span<const Play> all() const { return {plays_.data(), static_cast<std::size_t>(count_)}; }

private:
    std::array<Play, 16> plays_{};
    int count_ = 0;
};

}  // namespace petal
