#pragma once
#include <exception>
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

bool handlersRun(const Host& host);
// What a handler threw: shown in a message box, then the program ends. A test script's
// UnexpectedPrompt is thrown on, failing the test.
void endAfterFailure(Host& host, std::exception_ptr failure);

// Every entry from the platform into the core (input, ticks, start-up) goes through here, so
// that a failure anywhere ends in a message box and a clean exit, never a crash. A template,
// so that the simulator's millions of ticks do not each wrap their handler in a std::function.
template <class Handler>
void runHandler(Host& host, Handler&& handler) {
    if (!handlersRun(host)) return;
    try {
        handler();
    } catch (...) {
        endAfterFailure(host, std::current_exception());
    }
}

}  // namespace petal
