#pragma once
// A stack of its own for one simulated program, switched to and from the main context. Two
// programs on one virtual clock each wait in nested loops, as two processes would; on one
// shared stack the inner wait of one would hold up the outer wait of the other.
#include <cstddef>
#include <functional>
#include <memory>

namespace petal {

class Fiber {
public:
    explicit Fiber(std::function<void()> body, std::size_t stackSize = 1 << 20);
    ~Fiber();
    Fiber(const Fiber&) = delete;
    Fiber& operator=(const Fiber&) = delete;

    // From the main context: runs the fiber until it yields or its body returns.
    void resume();
    // From inside the fiber: back to the main context, until the next resume.
    void yield();
    bool finished() const { return finished_; }
    // The fiber running now; nullptr on the main context.
    static Fiber* current();

private:
    struct Context;
    static void entry(Fiber* fiber);
    static void entryParts(unsigned high, unsigned low);  // makecontext passes ints only
    void switchIn();
    void switchOut();

    std::function<void()> body_;
    std::unique_ptr<Context> context_;
    bool finished_ = false;
};

}  // namespace petal
