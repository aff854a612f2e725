#include "cards/Globals.h"

#include <stdexcept>

namespace petal {

void Globals::dimRoundScores(int rounds) {
    if (rounds < 0) throw std::out_of_range("gRoundScores dimensioned to " + std::to_string(rounds));
    for (auto& row : gRoundScores) row.assign(static_cast<std::size_t>(rounds) + 1, 0);
}

}  // namespace petal
