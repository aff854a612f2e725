// The program's entry: the Qt host, the core's program, and the main window that draws it.
#include <QApplication>
#include <QFont>
#include <QIcon>
#include <cstdio>
#include <cstring>

#include "assets/PictureStore.h"
#include "engine/table_view/TableView.h"
#include "platform/FatalError.h"
#include "shell/CommandLine.h"
#include "shell/FormDialogs.h"
#include "shell/MainWindow.h"
#include "shell/Program.h"
#include "platform/qt/QtHost.h"

int main(int argc, char** argv) {
    // The usage is printed where no display may be: before Qt opens one.
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
            std::fputs(petal::commandLineUsage().c_str(), stdout);
            return 0;
        }
    QApplication app(argc, argv);
    std::vector<std::string> args;
    for (const QString& arg : QApplication::arguments().mid(1)) args.push_back(arg.toStdString());
    const petal::CommandLine line = petal::parseCommandLine(args);
    if (!line.error.empty()) {
        std::fprintf(stderr, "petalgarden: %s\n\n%s", line.error.c_str(), petal::commandLineUsage().c_str());
        return 2;
    }
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
    petal::runHandler(host, [&program, &line] {
        program.Main();
        if (line.playMode != 0 && !program.host.ending())
            program.frmMain.startSession(line.playMode, line.address, line.port);
    });
    if (host.ending()) return host.exitStatus();
    const int status = app.exec();
    return host.ending() ? host.exitStatus() : status;
}
