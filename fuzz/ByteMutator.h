#pragma once
// Small spoilings of a file's bytes, as a disk, a copy or a hand would make them: bits turned,
// bytes changed, put in or taken out, a piece repeated, the end cut off.
#include <algorithm>
#include <string>

#include "SplitMix.h"

namespace petal::fuzz {

class ByteMutator {
public:
    explicit ByteMutator(SplitMix& random) : random_(random) {}

    // One to `most` spoilings, each somewhere within [from, size).
    void mutate(std::string& bytes, unsigned most, std::size_t from = 0) {
        const unsigned count = 1 + random_.below(most);
        for (unsigned i = 0; i < count; ++i) once(bytes, from);
    }

    // Cut at a random place, now and then at a multiple of `unit` (a page, say).
    void truncate(std::string& bytes, std::size_t unit = 1) {
        if (bytes.empty()) return;
        std::size_t at = random_.below(static_cast<unsigned>(bytes.size()));
        if (unit > 1 && random_.chance(50)) at -= at % unit;
        bytes.resize(at);
    }

private:
    void once(std::string& bytes, std::size_t from) {
        static const unsigned char kTelling[] = {0, 1, 0x7F, 0x80, 0xFF, '\r', '\n', ',', '-', ' ', '0', '9'};
        const std::size_t size = bytes.size();
        const std::size_t span = size > from ? size - from : 0;
        const std::size_t at = from + (span ? random_.below(static_cast<unsigned>(span)) : 0);
        switch (random_.below(span ? 7 : 1)) {
            case 0:  // a byte more
                bytes.insert(std::min(at, size), 1, static_cast<char>(random_.below(256)));
                break;
            case 1:
                bytes[at] = static_cast<char>(bytes[at] ^ (1u << random_.below(8)));
                break;
            case 2:
                bytes[at] = static_cast<char>(random_.below(256));
                break;
            case 3:
                bytes[at] = static_cast<char>(kTelling[random_.below(sizeof kTelling)]);
                break;
            case 4:  // a piece less
                bytes.erase(at, 1 + random_.below(16));
                break;
            case 5: {  // a piece again
                const std::string piece = bytes.substr(at, 1 + random_.below(32));
                bytes.insert(from + random_.below(static_cast<unsigned>(span)), piece);
                break;
            }
            default:
                truncate(bytes);
                break;
        }
    }

    SplitMix& random_;
};

}  // namespace petal::fuzz
