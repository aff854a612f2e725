// The simulated host: timers in order of due time, no tick inside its own previous tick,
// and a posted call that runs next.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "NestedTicks.h"
#include "platform/Form.h"
#include "platform/sim/SimHost.h"
#include "platform/Timer.h"

namespace petal {
namespace {

TEST(SimHost, TimersFireInOrderOfDueTime) {
    SimHost host("/tmp");
    std::vector<std::string> log;
    Timer slow(host, [&] { log.push_back("slow@" + std::to_string(host.now())); }, 300);
    Timer fast(host, [&] { log.push_back("fast@" + std::to_string(host.now())); }, 200);
    slow.setEnabled(true);
    fast.setEnabled(true);
    host.advance(600);
    EXPECT_EQ(log, (std::vector<std::string>{"fast@200", "slow@300", "fast@400", "slow@600", "fast@600"}));
}

TEST(SimHost, NoTickStartsWhileThePreviousTickRuns) {
    SimHost host("/tmp");
    NestedTicks busy(host, 500, 1200);
    host.advance(2000);
    EXPECT_EQ(busy.deepest, 1);
    EXPECT_TRUE(busy.released);
    // The ticks due at 1000 and 1500 fell inside the first one; the grid goes on after it.
    EXPECT_EQ(busy.ticks, 2);
    EXPECT_EQ(host.now(), 2000);
}

TEST(SimHost, APostedCallRunsNextWithoutTimePassing) {
    SimHost host("/tmp");
    std::vector<std::string> log;
    Timer later(host, [&] { log.push_back("timer@" + std::to_string(host.now())); }, 100);
    later.setEnabled(true);
    host.advance(50);
    host.post([&] { log.push_back("posted@" + std::to_string(host.now())); });
    EXPECT_TRUE(log.empty()) << "not on the caller's stack";
    host.advance(50);
    EXPECT_EQ(log, (std::vector<std::string>{"posted@50", "timer@100"}));
}

}  // namespace
}  // namespace petal
