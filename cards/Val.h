#pragma once
#include <string_view>

namespace petal {

// The number at the head of a text, 0 if there is none: "12abc" is 12, " -3" is -3, "" is 0.
long Val(std::string_view text);

}  // namespace petal
