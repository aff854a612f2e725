#pragma once
#include <stdexcept>

namespace petal {

// A prompt that a scripted host was not told to expect: a test's failure, never the program's.
// Handlers let it through, so that it reaches the test that caused it.
class UnexpectedPrompt : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

}  // namespace petal
