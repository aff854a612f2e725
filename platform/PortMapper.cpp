#include "platform/PortMapper.h"

#include <arpa/inet.h>

namespace petal {

bool unroutableIPv4(const std::string& address) {
    in_addr parsed{};
    if (inet_pton(AF_INET, address.c_str(), &parsed) != 1) return false;
    const std::uint32_t a = ntohl(parsed.s_addr);
    const auto in = [a](std::uint32_t net, int bits) { return (a >> (32 - bits)) == (net >> (32 - bits)); };
    return in(0x0A000000, 8) || in(0xAC100000, 12) || in(0xC0A80000, 16) || in(0x64400000, 10) ||
           in(0xA9FE0000, 16) || in(0x7F000000, 8) || in(0x00000000, 8);
}

}  // namespace petal
