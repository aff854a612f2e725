// The stacks of the simulated programs: a fiber runs until it yields and goes on where it left
// off, with its own locals, however often and however deep; two fibers keep apart; a body that
// ends hands back for good.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/sim/Fiber.h"

namespace petal::test {
namespace {

TEST(Fiber, GoesOnWhereItYieldedWithItsLocalsAfterManySwitches) {
    std::vector<int> seen;
    Fiber* self = nullptr;
    Fiber fiber([&] {
        const std::string mark = "kept across switches";
        for (int i = 0; i < 100'000; ++i) {
            seen.push_back(i);
            EXPECT_EQ(Fiber::current(), self);
            self->yield();
            if (mark != "kept across switches") return;
        }
    });
    self = &fiber;
    EXPECT_EQ(Fiber::current(), nullptr);
    for (int i = 0; i < 100'000; ++i) {
        fiber.resume();
        ASSERT_EQ(seen.size(), static_cast<std::size_t>(i + 1));
        ASSERT_EQ(seen.back(), i);
    }
    EXPECT_FALSE(fiber.finished());
    EXPECT_EQ(Fiber::current(), nullptr);
    fiber.resume();
    EXPECT_TRUE(fiber.finished()) << "the loop ran out and the body returned";
}

// Each yields from deep inside its own recursion, the other's frames untouched meanwhile.
int depthSum(Fiber*& self, int depth, int& yields) {
    volatile int local = depth;  // a frame that must survive the other fiber's run
    if (depth == 0) {
        ++yields;
        self->yield();
        return 0;
    }
    return local + depthSum(self, depth - 1, yields);
}

TEST(Fiber, TwoFibersKeepTheirStacksApart) {
    Fiber *a = nullptr, *b = nullptr;
    int yieldsA = 0, yieldsB = 0, sumA = -1, sumB = -1;
    Fiber fa([&] { sumA = depthSum(a, 200, yieldsA); });
    Fiber fb([&] { sumB = depthSum(b, 300, yieldsB); });
    a = &fa;
    b = &fb;
    fa.resume();
    fb.resume();
    EXPECT_EQ(yieldsA + yieldsB, 2);
    fb.resume();
    fa.resume();
    EXPECT_EQ(sumA, 200 * 201 / 2);
    EXPECT_EQ(sumB, 300 * 301 / 2);
}

TEST(Fiber, ABodyThatEndsHandsBackForGood) {
    int runs = 0;
    Fiber fiber([&] { ++runs; });
    fiber.resume();
    EXPECT_TRUE(fiber.finished());
    fiber.resume();
    EXPECT_EQ(runs, 1) << "a finished fiber is not run again";
    EXPECT_EQ(Fiber::current(), nullptr);
}

}  // namespace
}  // namespace petal::test
