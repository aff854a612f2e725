#include "engine/SeedText.h"

#include <cctype>
#include <optional>

namespace petal {

namespace {

// Reads 1 or 2 digits (exactly 2 when two is set) at pos.
std::optional<int> digits(std::string_view text, std::size_t& pos, bool two) {
    std::size_t start = pos;
    while (pos < text.size() && pos - start < 2 && std::isdigit(static_cast<unsigned char>(text[pos]))) ++pos;
    const std::size_t n = pos - start;
    if (n == 0 || (two && n != 2)) return std::nullopt;
    int value = 0;
    for (std::size_t i = start; i < pos; ++i) value = value * 10 + (text[i] - '0');
    return value;
}

bool colon(std::string_view text, std::size_t& pos) {
    if (pos >= text.size() || text[pos] != ':') return false;
    ++pos;
    return true;
}

}  // namespace

double seedValue(std::string_view text) {
    std::size_t pos = 0;
    const auto h = digits(text, pos, false);
    if (!h || !colon(text, pos)) return 0;
    const auto m = digits(text, pos, true);
    if (!m || !colon(text, pos)) return 0;
    const auto s = digits(text, pos, true);
    if (!s || *m > 59 || *s > 59) return 0;
    int hour = *h;
    const std::string_view rest = text.substr(pos);
    if (rest == " AM" || rest == " PM") {
        if (hour < 1 || hour > 12) return 0;
        hour = hour % 12 + (rest == " PM" ? 12 : 0);
    } else if (!rest.empty() || hour > 23) {
        return 0;
    }
    return (hour * 3600 + *m * 60 + *s) / 86400.0;
}

}  // namespace petal
