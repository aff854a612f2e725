#pragma once
// One message as it came off the wire. Its fields are read from the text where they are asked
// for: messages are a few bytes long, and most are read once.
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace petal {

struct WireMessage {
    std::string text;  // the message as it was sent

    // The field at `index` when the text is split at every comma, field 0 being the tag; none
    // past the last. Searched byte by byte: the fields are short.
    std::optional<std::string_view> findField(std::size_t index) const {
        std::size_t start = 0;
        for (std::size_t at = 0; index > 0; ++at) {
            if (at == text.size()) return std::nullopt;
            if (text[at] == ',') {
                --index;
                start = at + 1;
            }
        }
        std::size_t end = start;
        while (end < text.size() && text[end] != ',') ++end;
        return std::string_view(text).substr(start, end - start);
    }
    // The field at `index`, "" past the last.
    std::string_view field(std::size_t index) const { return findField(index).value_or(std::string_view()); }
};

}  // namespace petal
