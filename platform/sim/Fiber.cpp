#include "platform/sim/Fiber.h"

#include <sys/mman.h>
#include <unistd.h>

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
#include <sanitizer/asan_interface.h>
#include <sanitizer/lsan_interface.h>
#endif

// On x86-64 a switch saves the callee-saved registers and the SSE and x87 control words, and
// nothing else: it makes no system call, unlike swapcontext, which sets the signal mask each
// time. Elsewhere ucontext does the switching.
#if defined(__x86_64__) && !defined(PETAL_FIBER_UCONTEXT)
#define PETAL_FIBER_ASM 1
extern "C" void petal_fiber_switch(void** save, void* load);
extern "C" void petal_fiber_start();
asm(R"(
    .text
    .globl petal_fiber_switch
    .type petal_fiber_switch, @function
petal_fiber_switch:
    pushq %rbp
    pushq %rbx
    pushq %r12
    pushq %r13
    pushq %r14
    pushq %r15
    subq $8, %rsp
    stmxcsr (%rsp)
    fnstcw 4(%rsp)
    movq %rsp, (%rdi)
    movq %rsi, %rsp
    ldmxcsr (%rsp)
    fldcw 4(%rsp)
    addq $8, %rsp
    popq %r15
    popq %r14
    popq %r13
    popq %r12
    popq %rbx
    popq %rbp
    ret
    .size petal_fiber_switch, .-petal_fiber_switch

    .globl petal_fiber_start
    .type petal_fiber_start, @function
petal_fiber_start:
    movq %r12, %rdi
    call *%r13
    ud2
    .size petal_fiber_start, .-petal_fiber_start
)");
#else
#include <ucontext.h>
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
    // A fiber that goes while suspended leaves its frames' shadow behind, which a later stack
    // mapped at the same place would inherit.
    __asan_unpoison_memory_region(stack, size);
    if (root)
        __lsan_register_root_region(stack, size);
    else
        __lsan_unregister_root_region(stack, size);
#endif
}
}  // namespace

struct Fiber::Context {
#ifdef PETAL_FIBER_ASM
    void* self = nullptr;    // the fiber's stack pointer while it is switched out
    void* caller = nullptr;  // the main context's, while the fiber runs
#else
    ucontext_t self{};
    ucontext_t caller{};
#endif
    void* stack = nullptr;  // the mapping, its lowest page a guard
    std::size_t stackSize = 0;
    const void* callerBottom = nullptr;
    std::size_t callerSize = 0;
};

Fiber::Fiber(std::function<void()> body, std::size_t stackSize) : body_(std::move(body)), context_(new Context) {
    Context& c = *context_;
    // Pages are only backed once touched, so a roomy stack costs little; the page below it
    // stops an overflow at once instead of letting it write over something else.
    const std::size_t page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    c.stack = ::mmap(nullptr, stackSize + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_STACK, -1, 0);
    if (c.stack == MAP_FAILED) throw std::bad_alloc();
    ::mprotect(c.stack, page, PROT_NONE);
    c.stack = static_cast<char*>(c.stack) + page;
    c.stackSize = stackSize;
    rootStack(c.stack, stackSize, true);
#ifdef PETAL_FIBER_ASM
    // The first switch to the fiber "returns" into petal_fiber_start, which calls entry with
    // this fiber: a frame as petal_fiber_switch leaves one, from the lowest address up: the
    // control words, r15, r14, r13 (entry), r12 (this), rbx, rbp, the return address.
    auto top = reinterpret_cast<std::uintptr_t>(c.stack) + stackSize;
    top &= ~std::uintptr_t{15};
    auto* frame = reinterpret_cast<std::uint64_t*>(top - 24 - 7 * 8);
    frame[0] = 0x1F80 | (std::uint64_t{0x037F} << 32);  // MXCSR and x87 defaults
    frame[1] = frame[2] = 0;                            // r15, r14
    frame[3] = reinterpret_cast<std::uint64_t>(&Fiber::entry);
    frame[4] = reinterpret_cast<std::uint64_t>(this);
    frame[5] = frame[6] = 0;  // rbx, rbp
    frame[7] = reinterpret_cast<std::uint64_t>(&petal_fiber_start);
    c.self = frame;
#else
    ::getcontext(&c.self);
    c.self.uc_stack.ss_sp = c.stack;
    c.self.uc_stack.ss_size = stackSize;
    c.self.uc_link = &c.caller;
    const auto self = reinterpret_cast<std::uintptr_t>(this);
    ::makecontext(&c.self, reinterpret_cast<void (*)()>(&Fiber::entryParts), 2, static_cast<unsigned>(self >> 32),
                  static_cast<unsigned>(self & 0xFFFFFFFFu));
#endif
}

Fiber::~Fiber() {
    rootStack(context_->stack, context_->stackSize, false);
    const std::size_t page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    ::munmap(static_cast<char*>(context_->stack) - page, context_->stackSize + page);
}

Fiber* Fiber::current() { return running; }

void Fiber::entryParts(unsigned high, unsigned low) {
    entry(reinterpret_cast<Fiber*>((static_cast<std::uintptr_t>(high) << 32) | low));
}

void Fiber::entry(Fiber* fiber) {
    Context& c = *fiber->context_;
    finishSwitch(nullptr, &c.callerBottom, &c.callerSize);
    fiber->body_();
    fiber->finished_ = true;
    // The stack ends here: no fake frames of it are to be kept.
    startSwitch(nullptr, c.callerBottom, c.callerSize);
#ifdef PETAL_FIBER_ASM
    petal_fiber_switch(&c.self, c.caller);  // never resumed again
#endif
}

void Fiber::switchIn() {
    Context& c = *context_;
#ifdef PETAL_FIBER_ASM
    petal_fiber_switch(&c.caller, c.self);
#else
    ::swapcontext(&c.caller, &c.self);
#endif
}

void Fiber::switchOut() {
    Context& c = *context_;
#ifdef PETAL_FIBER_ASM
    petal_fiber_switch(&c.self, c.caller);
#else
    ::swapcontext(&c.self, &c.caller);
#endif
}

void Fiber::resume() {
    if (finished_) return;
    Context& c = *context_;
    Fiber* previous = running;
    running = this;
    void* fake = nullptr;
    startSwitch(&fake, c.stack, c.stackSize);
    switchIn();
    finishSwitch(fake, nullptr, nullptr);
    running = previous;
}

void Fiber::yield() {
    Context& c = *context_;
    void* fake = nullptr;
    startSwitch(&fake, c.callerBottom, c.callerSize);
    switchOut();
    finishSwitch(fake, &c.callerBottom, &c.callerSize);
}

}  // namespace petal
