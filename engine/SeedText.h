#pragma once
#include <string_view>

namespace petal {

// The fraction of the day that a seed text names: "HH:MM:SS" (24-hour), or "H:MM:SS AM" and
// "H:MM:SS PM". A text that cannot be read gives 0 on every machine, so a deal never splits.
double seedValue(std::string_view text);

}  // namespace petal
