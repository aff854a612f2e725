// The main window offscreen: its size, controls where the layout puts them, clicks that reach
// the handlers, and a picture of the table saved for review.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QToolTip>
#include <QMouseEvent>
#include <QTest>

#include "TableWindow.h"
#include "engine/table_view/TableView.h"
#include "records/FrmHOFWinner.h"

namespace petal::test {
namespace {

class TableViewTest : public ::testing::Test, protected TableWindow {
protected:
    QPoint centre(const Control& c) const { return QPoint((c.Left + c.Width / 2) / 15, (c.Top + c.Height / 2) / 15); }
    void click(const Control& c) { QTest::mouseClick(window.table(), Qt::LeftButton, {}, centre(c)); }
    QString toolTipAt(const Control& c) {
        QHelpEvent help(QEvent::ToolTip, centre(c), window.table()->mapToGlobal(centre(c)));
        QApplication::sendEvent(window.table(), &help);
        return QToolTip::text();
    }
};

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

TEST_F(TableViewTest, ControlsStandWhereTheLayoutPutsThem) {
    const auto items = window.table()->items();
    const TableModel& c = program.frmMain.ctl;
    struct Case {
        const Control& control;
        QPoint pixel;
        const Control* expected;
    };
    const Case cases[] = {
        {c.imgDeck, centre(c.imgDeck), &c.imgDeck},
        {c.imgPCard[7], centre(c.imgPCard[7]), &c.imgPCard[7]},
        {c.imgTCard[5], centre(c.imgTCard[5]), &c.imgTCard[5]},
        {c.imgTable, QPoint(6400 / 15, 5400 / 15), &c.imgTable},
        {c.imgPYaku[23], QPoint((240 + 780 * 7 + 360 + 100) / 15, (7530 + 500) / 15), &c.imgPYaku[23]},
    };
    for (const Case& k : cases) {
        const TableView::Item* hit = window.table()->hitTest(k.pixel, items);
        ASSERT_NE(hit, nullptr);
        EXPECT_EQ(hit->control, k.expected) << k.pixel.x() << "," << k.pixel.y();
    }
    EXPECT_EQ(c.imgCCard[3].Left, 2535);
    EXPECT_EQ(c.shpTHilite[2].Top, 4110);
    EXPECT_EQ(c.panel[0].box.Top, 4170);
    EXPECT_EQ(c.picYakuShow.Left, 9315);
}

TEST_F(TableViewTest, AClickOnTheDeckDealsAndTheWindowIsSavedForReview) {
    EXPECT_EQ(toolTipAt(program.frmMain.ctl.imgDeck), "Click the deck to deal.") << "a newcomer learns how to start";
    click(program.frmMain.ctl.imgDeck);
    EXPECT_EQ(program.g.gGameInProgress, 1);
    EXPECT_TRUE(program.frmMain.ctl.imgPCard[0].hasPicture());
    click(program.frmMain.ctl.imgPCard[0]);
    EXPECT_TRUE(program.frmMain.ctl.shpPHilite.Visible);
    const QString file = QStringLiteral(PETAL_BUILD_DIR "/table-view.png");
    EXPECT_TRUE(window.grab().save(file));
    program.g.gGameInProgress = 0;  // so that closing the window asks nothing
}

// A stray Escape or a click on the close box must not answer "Do you want to play again?" with
// No, which ends the program; and the box, like the name form after it, leaves the totals in
// the panels in sight.
TEST_F(TableViewTest, AQuestionAnswersOnlyToItsButtonsAndBoxesStandClearOfThePanels) {
    bool openAfterEscape = false, openAfterClose = false;
    QRect box, form;
    QTimer::singleShot(50, [&] {
        auto* dialog = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        QTest::keyClick(dialog, Qt::Key_Escape);
        openAfterEscape = dialog->isVisible();
        dialog->close();
        openAfterClose = dialog->isVisible();
        box = dialog->frameGeometry();
        dialog->button(QMessageBox::Yes)->click();
    });
    const MsgResult answer =
        host.msgBox({"Do you want to play again?", "Play Again?", MsgIcon::Question, MsgButtons::YesNo});
    EXPECT_EQ(answer, MsgResult::Yes);
    EXPECT_TRUE(openAfterEscape);
    EXPECT_TRUE(openAfterClose);

    registerFormDialogs(host, pictures);
    FrmHOFWinner winner(program.g, program.hof);
    QTimer::singleShot(50, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        form = dialog->frameGeometry();
        dialog->close();
    });
    host.dispatch([&] { host.showModal(winner); });

    const QRect table(window.table()->mapToGlobal(QPoint(6, 168)), QSize(432, 209));
    for (const QRect& shown : {box, form}) {
        for (const ScorePanel& panel : program.frmMain.ctl.panel) {
            const QRect pixels(window.table()->mapToGlobal(QPoint(panel.box.Left / 15, panel.box.Top / 15)),
                               QSize(panel.box.Width / 15, panel.box.Height / 15));
            EXPECT_FALSE(shown.intersects(pixels)) << "a score panel is covered";
        }
        EXPECT_TRUE(shown.intersects(table)) << "it stands over the table";
    }
}

}  // namespace
}  // namespace petal::test
