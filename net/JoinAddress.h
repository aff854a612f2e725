#pragma once
// What a player types to join a game: a host name, an IPv4 address or an IPv6 address, each
// with or without a port.
#include <optional>
#include <string>
#include <string_view>

namespace petal {

struct JoinAddress {
    std::string host;
    int port = 0;  // 0: none given
};

// "name", "name:5000", "192.0.2.7", "192.0.2.7:5000", "2001:db8::7" (bare, so without a port),
// "[2001:db8::7]" and "[2001:db8::7]:5000"; blanks around are ignored. Nothing when the text
// cannot be one of these (a port out of range, a bracket left open, blanks inside, a character
// no name holds, an address of four numbers that is no IPv4 address).
std::optional<JoinAddress> parseJoinAddress(std::string_view text);

// What to type in the join box to reach host at port: the port only where it is not the
// game's own, and an IPv6 address in brackets when a port follows it.
std::string joinAddressText(const std::string& host, int port, int gamePort);

}  // namespace petal
