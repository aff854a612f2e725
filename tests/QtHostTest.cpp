// The program's host: a wait sleeps instead of spinning, and a timer's tick never starts inside
// its own previous tick, though the tick runs a nested wait.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QApplication>
#include <string>
#include <vector>

#include <QElapsedTimer>
#include <QTimer>

#include "platform/qt/QtHost.h"
#include "NestedTicks.h"

namespace petal {
namespace {

double cpuSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

TEST(QtHost, AWaitSleepsUntilItsTimerFires) {
    QtHost host("/tmp");
    bool done = false;
    Timer timer(host, [&] { done = true; }, 300);
    timer.setEnabled(true);
    QElapsedTimer clock;
    clock.start();
    const double cpuBefore = cpuSeconds();
    host.waitUntil([&] { return done; });
    EXPECT_TRUE(done);
    EXPECT_GE(clock.elapsed(), 280);
    EXPECT_LT(cpuSeconds() - cpuBefore, 0.05) << "the wait burnt CPU";
}

TEST(QtHost, ATickNeverStartsInsideItsOwnPreviousTick) {
    QtHost host("/tmp");
    NestedTicks busy(host, 10, 120);
    host.waitUntil([&] { return busy.ticks >= 3; });
    EXPECT_EQ(busy.deepest, 1);
}

// A posted call waits until the handler that posted it has returned, then runs as a handler
// of its own, after which the views catch up.
TEST(QtHost, APostedCallRunsAfterThePostingHandler) {
    QtHost host("/tmp");
    std::vector<std::string> log;
    bool redrawnAfter = false;
    host.onModelChanged = [&] { redrawnAfter = !log.empty() && log.back() == "posted"; };
    host.dispatch([&] {
        host.post([&] { log.push_back("posted"); });
        log.push_back("handler ends");
    });
    EXPECT_EQ(log, std::vector<std::string>{"handler ends"});
    host.waitUntil([&] { return redrawnAfter; });
    EXPECT_EQ(log, (std::vector<std::string>{"handler ends", "posted"}));
}

// Scripts and the desktop learn of an end after a failure from the process's exit status.
TEST(QtHost, AnEndAfterAFailureLeavesTheEventLoopWithANonZeroStatus) {
    for (const bool failure : {false, true}) {
        QtHost host("/tmp");
        QTimer::singleShot(0, [&] { failure ? host.endProgramAfterFailure() : host.endProgram(); });
        EXPECT_EQ(QApplication::exec() != 0, failure);
        EXPECT_EQ(host.exitStatus() != 0, failure);
    }
}

}  // namespace
}  // namespace petal
