#include "net/JoinAddress.h"

#include <arpa/inet.h>

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

bool nameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '_';
}

// An IPv6 address, with a zone after "%" for a link-local one.
bool ipv6(std::string_view text) {
    const std::size_t percent = text.find('%');
    const std::string_view zone = percent == std::string_view::npos ? std::string_view{} : text.substr(percent + 1);
    if (percent != std::string_view::npos &&
        (zone.empty() || !std::all_of(zone.begin(), zone.end(), [](char c) { return nameCharacter(c) || c == '.'; })))
        return false;
    in6_addr parsed{};
    return inet_pton(AF_INET6, std::string(text.substr(0, percent)).c_str(), &parsed) == 1;
}

// A host name of dot-separated labels (a last dot allowed), or, where it is all digits and
// dots, an IPv4 address.
bool nameOrIPv4(std::string_view text) {
    if (text.find_first_not_of("0123456789.") == std::string_view::npos) {
        in_addr parsed{};
        return inet_pton(AF_INET, std::string(text).c_str(), &parsed) == 1;
    }
    if (text.back() == '.') text.remove_suffix(1);
    if (text.empty() || text.size() > 253) return false;
    std::size_t start = 0;
    for (;;) {
        const std::size_t dot = std::min(text.find('.', start), text.size());
        const std::string_view label = text.substr(start, dot - start);
        if (label.empty() || label.size() > 63 || !std::all_of(label.begin(), label.end(), nameCharacter)) return false;
        if (dot == text.size()) return true;
        start = dot + 1;
    }
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
    const bool bracketed = text.front() == '[';
    if (bracketed || host.find(':') != std::string_view::npos ? !ipv6(host) : !nameOrIPv4(host)) return std::nullopt;
    JoinAddress address{std::string(host), 0};
    if (port) {
        const std::optional<int> number = portOf(*port);
        if (!number) return std::nullopt;
        address.port = *number;
    }
    return address;
}

std::string joinAddressText(const std::string& host, int port, int gamePort) {
    if (port == gamePort) return host;
    const bool ipv6 = host.find(':') != std::string::npos;
    return (ipv6 ? "[" + host + "]" : host) + ":" + std::to_string(port);
}

}  // namespace petal
