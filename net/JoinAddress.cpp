#include "net/JoinAddress.h"

#include <algorithm>

namespace petal {

namespace {

// A port of 1 to 65535 in plain digits.
std::optional<int> portOf(std::string_view digits) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (digits.empty() || digits.size() > 5 || !std::all_of(digits.begin(), digits.end(), isDigit))
        return std::nullopt;
    const int port = std::stoi(std::string(digits));
    if (port < 1 || port > 65535) return std::nullopt;
    return port;
}

}  // namespace

std::optional<JoinAddress> parseJoinAddress(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return JoinAddress{};
    text = text.substr(first, text.find_last_not_of(" \t") + 1 - first);
    if (text.find_first_of(" \t") != std::string_view::npos) return std::nullopt;
    std::string_view host = text;
    std::optional<std::string_view> port;
    if (text.front() == '[') {
        const std::size_t close = text.find(']');
        if (close == std::string_view::npos || close == 1) return std::nullopt;
        host = text.substr(1, close - 1);
        const std::string_view rest = text.substr(close + 1);
        if (!rest.empty() && rest.front() != ':') return std::nullopt;
        if (!rest.empty()) port = rest.substr(1);
    } else if (const std::size_t colon = text.find(':'); colon != std::string_view::npos && text.rfind(':') == colon) {
        // One colon: a name or an IPv4 address and its port. More: an IPv6 address alone.
        host = text.substr(0, colon);
        port = text.substr(colon + 1);
        if (host.empty()) return std::nullopt;
    }
    JoinAddress address{std::string(host), 0};
    if (port) {
        const std::optional<int> number = portOf(*port);
        if (!number) return std::nullopt;
        address.port = *number;
    }
    return address;
}

}  // namespace petal
