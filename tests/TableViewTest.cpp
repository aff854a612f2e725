// The main window offscreen: its size and menus, and the question boxes over the table.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QTest>

#include "TableWindow.h"
#include "engine/table_view/TableView.h"

namespace petal::test {
namespace {

class TableViewTest : public ::testing::Test, protected TableWindow {};

TEST_F(TableViewTest, TheTableStartsAtItsDesignedClientAreaWithTheMenus) {
    EXPECT_EQ(window.table()->size(), QSize(790, 552));
    // The yaku panel, cut off at the bottom edge and by two pixels at the right, stands whole.
    program.frmMain.ctl.picYakuShow.Visible = true;
    for (const TableView::Item& item : window.table()->items()) {
        const Control& c = *item.control;
        EXPECT_LE((c.Top + c.Height) / 15.0, window.table()->height()) << c.Left << "," << c.Top;
        EXPECT_LE((c.Left + c.Width) / 15.0, window.table()->width()) << c.Left << "," << c.Top;
    }
    EXPECT_EQ(window.windowTitle(), "Petalgarden");
    QStringList menus;
    for (QAction* action : window.menuBar()->actions()) menus << action->text();
    EXPECT_EQ(menus, (QStringList{"Game", "&View", "&Help"}));
    auto* score = window.findChild<QAction*>("mnuVScore");
    ASSERT_NE(score, nullptr);
    EXPECT_EQ(score->shortcut(), QKeySequence(Qt::Key_F6));
    EXPECT_FALSE(score->isEnabled());
    EXPECT_FALSE(window.findChild<QAction*>("mnuVChat")->isEnabled());
}

// A stray Escape or a click on the close box must not answer "Do you want to play again?" with
// No, which ends the program.
TEST_F(TableViewTest, AQuestionAnswersOnlyToItsButtons) {
    bool openAfterEscape = false, openAfterClose = false;
    QTimer::singleShot(50, [&] {
        auto* dialog = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        QTest::keyClick(dialog, Qt::Key_Escape);
        openAfterEscape = dialog->isVisible();
        dialog->close();
        openAfterClose = dialog->isVisible();
        dialog->button(QMessageBox::Yes)->click();
    });
    const MsgResult answer =
        host.msgBox({"Do you want to play again?", "Play Again?", MsgIcon::Question, MsgButtons::YesNo});
    EXPECT_EQ(answer, MsgResult::Yes);
    EXPECT_TRUE(openAfterEscape);
    EXPECT_TRUE(openAfterClose);
}

}  // namespace
}  // namespace petal::test
