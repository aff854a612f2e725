#pragma once
// Cuts the connection's byte stream into the protocol's messages. Messages have no terminator,
// so the grammar finds their ends: eight tags, each with a fixed shape of fields; a chat line
// ends where the next tag word begins. A message whose last field could still grow (a number, a
// chat line) and that ends where the bytes end is held until the next bytes show where it ends,
// or until no more have come for a while.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "net/WireMessage.h"

namespace petal {

class MessageFramer {
public:
    // More than this without the end of a message is no peer of ours.
    static constexpr std::size_t kMaxPending = 64 * 1024;

    enum class Result { Ok, Malformed, Overflow };

    // Appends what arrived and moves every message known to be whole to out, in order.
    Result feed(std::string_view bytes, std::vector<WireMessage>& out);
    // No more bytes came for a while: a held message ends where the bytes end.
    Result settle(std::vector<WireMessage>& out);
    // Bytes wait for the end of their message.
    bool holding() const { return !pending_.empty(); }
    // What broke the grammar, in words for the player.
    const std::string& problem() const { return problem_; }
    void clear();

private:
    Result take(bool settled, std::vector<WireMessage>& out);

    std::string pending_;
    std::size_t scanned_ = 0;  // how far a held chat line has been searched for its end
    std::string problem_;
};

// A chat line as it goes on the wire. A line has no end of its own, so a tag word inside it
// ("gg" before a SCOP, or a typed "CARD,0,-1") would read as a message: every tag word goes with
// an escape byte after its first letter, and the escape byte itself goes doubled. A line that
// holds neither goes as typed.
std::string chatText(std::string_view line);
// The line as it was typed, from its text on the wire.
std::string typedLine(std::string_view text);

}  // namespace petal
