#pragma once
// A fuzz target: the bytes of one untrusted input of the game (what a peer sends, a settings
// file, a Hall of Fame file) given to the program's own entry point, then the rules that must
// hold whatever the bytes are checked. libFuzzer runs each target; the test suite replays the
// inputs kept for it and spoilings of them.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace petal::fuzz {

class FuzzTarget {
public:
    virtual ~FuzzTarget() = default;
    // The first broken rule in words, or "" when the input ran clean. A crash or a sanitizer's
    // report ends the process instead.
    virtual std::string run(const std::uint8_t* data, std::size_t size) = 0;
};

std::unique_ptr<FuzzTarget> makeNetTarget();
std::unique_ptr<FuzzTarget> makeSettingsTarget();
std::unique_ptr<FuzzTarget> makeHallOfFameTarget();

// "net", "settings" or "halloffame"; nullptr for any other name.
inline std::unique_ptr<FuzzTarget> makeFuzzTarget(std::string_view name) {
    if (name == "net") return makeNetTarget();
    if (name == "settings") return makeSettingsTarget();
    if (name == "halloffame") return makeHallOfFameTarget();
    return nullptr;
}

}  // namespace petal::fuzz
