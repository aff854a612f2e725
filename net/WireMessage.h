#pragma once
// One message as it came off the wire. Its fields are read from the text where they are asked
// for: messages are a few bytes long, and most are read once.
#include <cstddef>
#include <string>
#include <string_view>

namespace petal {

struct WireMessage {
    std::string text;  // the message as it was sent

    // The number of fields when the text is split at every comma; field 0 is the tag.
    std::size_t fieldCount() const {
        std::size_t count = 1;
        for (std::size_t at = text.find(','); at != std::string::npos; at = text.find(',', at + 1)) ++count;
        return count;
    }

    // The field at `index`, "" past the last.
    std::string_view field(std::size_t index) const {
        std::string_view rest = text;
        for (; index > 0; --index) {
            const std::size_t comma = rest.find(',');
            if (comma == std::string_view::npos) return {};
            rest.remove_prefix(comma + 1);
        }
        return rest.substr(0, rest.find(','));
    }
};

}  // namespace petal
