// The jumps below go from one stack to another, which the fortified longjmp refuses.
#undef _FORTIFY_SOURCE
#include "platform/sim/Fiber.h"

#include <setjmp.h>
#include <sys/mman.h>
#include <ucontext.h>

#include <cstdint>
#include <new>

#if defined(__SANITIZE_ADDRESS__)
#define PETAL_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define PETAL_ASAN 1
#endif
#endif
#ifdef PETAL_ASAN
#include <sanitizer/common_interface_defs.h>
#include <sanitizer/lsan_interface.h>
#endif

namespace petal {

namespace {
thread_local Fiber* running = nullptr;

// The address sanitizer must be told of every switch between stacks, or it takes one stack's
// frames for another's.
void startSwitch([[maybe_unused]] void** fake, [[maybe_unused]] const void* bottom, [[maybe_unused]] std::size_t size) {
#ifdef PETAL_ASAN
    __sanitizer_start_switch_fiber(fake, bottom, size);
#endif
}

void finishSwitch([[maybe_unused]] void* fake, [[maybe_unused]] const void** bottom, [[maybe_unused]] std::size_t* size) {
#ifdef PETAL_ASAN
    __sanitizer_finish_switch_fiber(fake, bottom, size);
#endif
}

// The leak checker must look into a stack that waits, or what only its frames hold (a form
// shown modally, a question's text) looks lost.
void rootStack([[maybe_unused]] const void* stack, [[maybe_unused]] std::size_t size, [[maybe_unused]] bool root) {
#ifdef PETAL_ASAN
    if (root)
        __lsan_register_root_region(stack, size);
    else
        __lsan_unregister_root_region(stack, size);
#endif
}
}  // namespace

// A fiber is entered once through its ucontext; every later switch is a _setjmp/_longjmp
// pair, which, unlike swapcontext, makes no system call to save the signal mask: a switch
// costs a few dozen instructions instead of two trips into the kernel.
struct Fiber::Context {
    ucontext_t self{};
    jmp_buf selfJump{};
    jmp_buf callerJump{};
    bool entered = false;
    void* stack = nullptr;
    std::size_t stackSize = 0;
    const void* callerBottom = nullptr;
    std::size_t callerSize = 0;
};

Fiber::Fiber(std::function<void()> body, std::size_t stackSize) : body_(std::move(body)), context_(new Context) {
    Context& c = *context_;
    // Pages are only backed once touched, so a roomy stack costs little.
    c.stack = ::mmap(nullptr, stackSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_STACK, -1, 0);
    if (c.stack == MAP_FAILED) throw std::bad_alloc();
    c.stackSize = stackSize;
    rootStack(c.stack, stackSize, true);
    ::getcontext(&c.self);
    c.self.uc_stack.ss_sp = c.stack;
    c.self.uc_stack.ss_size = stackSize;
    c.self.uc_link = nullptr;  // the body never returns to it: it jumps back (see entry)
    const auto self = reinterpret_cast<std::uintptr_t>(this);
    ::makecontext(&c.self, reinterpret_cast<void (*)()>(&Fiber::entry), 2, static_cast<unsigned>(self >> 32),
                  static_cast<unsigned>(self & 0xFFFFFFFFu));
}

Fiber::~Fiber() {
    rootStack(context_->stack, context_->stackSize, false);
    ::munmap(context_->stack, context_->stackSize);
}

Fiber* Fiber::current() { return running; }

void Fiber::entry(unsigned high, unsigned low) {
    auto* fiber = reinterpret_cast<Fiber*>((static_cast<std::uintptr_t>(high) << 32) | low);
    Context& c = *fiber->context_;
    finishSwitch(nullptr, &c.callerBottom, &c.callerSize);
    fiber->body_();
    fiber->finished_ = true;
    // The stack ends here: no fake frames of it are to be kept.
    startSwitch(nullptr, c.callerBottom, c.callerSize);
    _longjmp(c.callerJump, 1);
}

void Fiber::resume() {
    if (finished_) return;
    Context& c = *context_;
    Fiber* previous = running;
    running = this;
    void* fake = nullptr;
    startSwitch(&fake, c.stack, c.stackSize);
    // The fiber comes back by a jump to here, never by returning from the calls below.
    if (_setjmp(c.callerJump) == 0) {
        if (c.entered) _longjmp(c.selfJump, 1);
        c.entered = true;
        ::setcontext(&c.self);
    }
    finishSwitch(fake, nullptr, nullptr);
    running = previous;
}

void Fiber::yield() {
    Context& c = *context_;
    void* fake = nullptr;
    startSwitch(&fake, c.callerBottom, c.callerSize);
    if (_setjmp(c.selfJump) == 0) _longjmp(c.callerJump, 1);
    finishSwitch(fake, &c.callerBottom, &c.callerSize);
}

}  // namespace petal
