// The program's host: a wait sleeps instead of spinning, and a timer's tick never starts inside
// its own previous tick, though the tick runs a nested wait.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QApplication>
#include <string>
#include <vector>

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

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

// The game pumps ten thousand passes after "Do you want to play again?": passes must not
// each redraw the table, or the answer takes seconds to act.
TEST(QtHost, PumpingEventsDoesNotRedrawEachPass) {
    struct Counting : QWidget {
        int paints = 0;
        void paintEvent(QPaintEvent*) override { ++paints; }
    } table;
    table.resize(200, 100);
    table.show();
    QtHost host("/tmp");
    host.onModelChanged = [&table] { table.update(); };
    host.refresh();
    QElapsedTimer clock;
    clock.start();
    for (int pass = 0; pass < 10000; ++pass) host.doEvents();
    EXPECT_LE(table.paints, 3);
    EXPECT_LT(clock.elapsed(), 1000);
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

// A box with a long folder name covered both score panels and ran past the window: a path has
// no blank to break at. Its lines are broken to the table's width, and the box stands over the
// table, clear of the panels; before the table shows, it is broken to half the screen at most.
TEST(QtHost, ABoxWithALongPathWrapsAndStandsWithinTheTable) {
    QtHost host("/tmp");
    QWidget window;
    window.setGeometry(0, 0, 800, 600);
    host.setMainWidget(&window);
    host.tableArea = [&] { return QRect(window.mapToGlobal(QPoint(0, 0)), QSize(520, 600)); };
    const std::string folder = "/home/" + std::string(60, 'a') + "/" + std::string(150, 'b');
    for (const bool tableShows : {true, false}) {
        window.setVisible(tableShows);
        QRect shown;
        QTimer::singleShot(50, [&] {
            QWidget* box = QApplication::activeModalWidget();
            ASSERT_NE(box, nullptr);
            shown = box->frameGeometry();
            box->close();
        });
        host.msgBox({"The settings file \"" + folder + "/GARDENIA.ini\" cannot be read: it is far too long for four "
                     "numbers.\n\nRestore Defaults keeps it as \"GARDENIA.ini.bad\" beside it.",
                     "Petalgarden", MsgIcon::Exclamation, MsgButtons::RestoreDefaultsClose});
        EXPECT_TRUE(tableShows ? host.tableArea().contains(shown) : shown.width() <= 500)
            << "the box at " << shown.x() << "," << shown.y() << " " << shown.width() << "x" << shown.height();
    }
}

}  // namespace
}  // namespace petal
