// The program's entry: the Qt host, the core's program, and the main window that draws it.
#include <QApplication>
#include <QFont>
#include <QIcon>

#include "assets/PictureStore.h"
#include "engine/table_view/TableView.h"
#include "platform/FatalError.h"
#include "shell/FormDialogs.h"
#include "shell/MainWindow.h"
#include "shell/Program.h"
#include "platform/qt/QtHost.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Petalgarden"));
    QApplication::setDesktopFileName(QStringLiteral("org.petalgarden.Petalgarden"));  // its menu entry
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 9));  // the forms' classic sans face
    petal::QtHost host;
    petal::PictureStore pictures;
    QIcon icon;
    for (int size : {16, 24, 32, 48, 64, 128, 256}) icon.addPixmap(pictures.pixmap(petal::pic::AppIcon, QSize(size, size), 1.0));
    app.setWindowIcon(icon);
    petal::Program program(host);
    program.keepGames();
    petal::MainWindow window(program.frmMain, host, pictures);
    host.setMainWidget(&window);
    host.onModelChanged = [&window] { window.sync(); };
    petal::registerFormDialogs(host, pictures);
    host.onMousePointer = [&window](int pointer) { window.table()->applyMousePointer(pointer); };
    // The splash shows the window from its load and stays over it for its three seconds.
    petal::runHandler(host, [&program] { program.Main(); });
    if (host.ending()) return host.exitStatus();
    const int status = app.exec();
    return host.ending() ? host.exitStatus() : status;
}
