// The Help menu offscreen on the Qt host: F1 and Help → Help opening the help window beside the
// running game, and a missing help file told in a message box.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "TableWindow.h"
#include "engine/table_view/TableView.h"
#include "shell/HelpWindow.h"

namespace petal::test {
namespace {

class HelpAbout : public ::testing::Test, protected TableWindow {
protected:
    // The help page and its pictures as the build lays them beside the program.
    void copyHelpBeside() {
        namespace fs = std::filesystem;
        const fs::path build = PETAL_BUILD_DIR;
        fs::copy_file(build / "PetalgardenHelp.html", dir.path() / "PetalgardenHelp.html");
        fs::copy(build / "help-pictures", dir.path() / "help-pictures", fs::copy_options::recursive);
    }
};

TEST_F(HelpAbout, F1AndHelpHelpOpenTheHelpWindowBesideTheGame) {
    copyHelpBeside();
    QTest::keyClick(window.table(), Qt::Key_F1);
    HelpWindow* help = window.helpWindow();
    ASSERT_NE(help, nullptr);
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(help->source(), QUrl::fromLocalFile(QString::fromStdString(program.frmMain.helpFile)));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "the game must go on behind the help";
    help->close();

    window.findChild<QAction*>("mnuHHelp")->trigger();  // presses F1 for the user
    QTest::qWait(50);
    EXPECT_TRUE(window.helpWindow()->isVisible());
}

TEST_F(HelpAbout, AMissingHelpFileIsToldInAMessageBox) {
    QString told;
    QTimer::singleShot(50, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        told = box->text();
        box->accept();
    });
    QTest::keyClick(window.table(), Qt::Key_F1);
    EXPECT_TRUE(told.contains(QString::fromStdString(program.frmMain.helpFile))) << told.toStdString();
    EXPECT_EQ(window.helpWindow(), nullptr);
}

}  // namespace
}  // namespace petal::test
