#pragma once
// Starts the program on the Qt host as the program does, with its splash over the window; a key
// is pressed on the splash as soon as it stands, so that the tests go on at once.
#include <QApplication>
#include <QTest>
#include <QTimer>

#include "platform/FatalError.h"
#include "platform/qt/QtHost.h"
#include "shell/Program.h"

namespace petal::test {

inline void startPastSplash(QtHost& host, Program& program) {
    QTimer::singleShot(0, [] {
        if (QWidget* splash = QApplication::activeModalWidget()) QTest::keyClick(splash, Qt::Key_Space);
    });
    runHandler(host, [&program] { program.Main(); });
}

}  // namespace petal::test
