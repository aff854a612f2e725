#pragma once
// The main window on the Qt host in a fresh folder of its own, its program started past the
// splash as the program starts.
#include "GameFixture.h"
#include "ViewStart.h"
#include "assets/PictureStore.h"
#include "shell/FormDialogs.h"
#include "shell/MainWindow.h"

namespace petal::test {

class TableWindow {
protected:
    TableWindow() {
        host.setMainWidget(&window);
        host.onModelChanged = [this] { window.sync(); };
        registerFormDialogs(host, pictures);
        startPastSplash(host, program);
    }

    TempDir dir;
    QtHost host{dir.path()};
    PictureStore pictures;
    Program program{host};
    MainWindow window{program.frmMain, host, pictures};
};

}  // namespace petal::test
