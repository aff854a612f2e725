#pragma once
#include <functional>
#include <stdexcept>
#include <string>

namespace petal {

class Host;

// A failure that ends the program: shown in a message box, then the program ends in order.
class FatalError : public std::runtime_error {
public:
    FatalError(std::string title, const std::string& text)
        : std::runtime_error(text), title_(std::move(title)) {}
    const std::string& title() const { return title_; }

private:
    std::string title_;
};

// Every entry from the platform into the core (input, ticks, start-up) goes through here, so
// that a failure anywhere ends in a message box and a clean exit, never a crash.
void runHandler(Host& host, const std::function<void()>& handler);

}  // namespace petal
