#include "shell/ProgramRun.h"

#include <QApplication>
#include <QFont>
#include <QIcon>

#include "assets/PictureStore.h"
#include "engine/table_view/TableView.h"
#include "platform/FatalError.h"
#include "platform/qt/Language.h"
#include "platform/qt/QtHost.h"
#include "records/OwnOptions.h"
#include "shell/CommandLine.h"
#include "shell/FormDialogs.h"
#include "shell/MainWindow.h"
#include "shell/Program.h"

namespace petal {

int runProgram(const CommandLine& line, const std::filesystem::path& folder, const ProgramStarted& started) {
    QApplication::setApplicationName(QStringLiteral("Petalgarden"));
    QApplication::setDesktopFileName(QStringLiteral("org.petalgarden.Petalgarden"));  // its menu entry
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 9));  // the forms' classic sans face
    QtHost host(folder);
    // The language is in place before the first window, the splash, opens.
    Language language;
    OwnOptions own;
    own.load(host.programFolder());
    language.apply(QString::fromStdString(own.text(Language::kOption, "system")));
    PictureStore pictures;
    QIcon icon;
    for (int size : {16, 24, 32, 48, 64, 128, 256}) icon.addPixmap(pictures.pixmap(pic::AppIcon, QSize(size, size), 1.0));
    QApplication::setWindowIcon(icon);
    Program program(host);
    program.keepGames();
    MainWindow window(program.frmMain, host, pictures);
    window.addLanguageMenu(language);
    host.setMainWidget(&window);
    host.onModelChanged = [&window] { window.sync(); };
    registerFormDialogs(host, pictures);
    host.onMousePointer = [&window](int pointer) { window.table()->applyMousePointer(pointer); };
    if (started) started(host, program, window);
    // The splash shows the window from its load and stays over it for its three seconds; a
    // session that the command line asks for begins once it has gone.
    runHandler(host, [&program, &line] {
        program.Main();
        if (line.playMode != 0 && !program.host.ending())
            program.frmMain.startSession(line.playMode, line.address, line.port);
    });
    if (host.ending()) return host.exitStatus();
    const int status = QApplication::exec();
    return host.ending() ? host.exitStatus() : status;
}

}  // namespace petal
