// A whole deal clicked through on the program's own host with sound and motion on, on a machine
// without an audio device (as the test runs): the sounds are asked for, nothing is said.
#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "TableWindow.h"
#include "engine/table_view/TableView.h"

namespace petal::test {
namespace {

// What Qt says, from before the program starts (its audio is looked for as the table first
// shows) until the end of the test.
class Listening {
protected:
    Listening() {
        said().clear();
        previous_ = qInstallMessageHandler(keep);
    }
    ~Listening() { qInstallMessageHandler(previous_); }
    static QStringList& said() {
        static QStringList messages;
        return messages;
    }

private:
    static void keep(QtMsgType, const QMessageLogContext&, const QString& text) {
        // The offscreen platform's own notes on what it cannot do are not the game's.
        if (!text.startsWith(QStringLiteral("This plugin does not support"))) said() << text;
    }
    QtMessageHandler previous_;
};

class QuietDeal : public ::testing::Test, protected Listening, protected TableWindow {
protected:
    QPoint centre(const Control& c) const { return QPoint((c.Left + c.Width / 2) / 15, (c.Top + c.Height / 2) / 15); }
    void click(QPoint at) { QTest::mouseClick(window.table(), Qt::LeftButton, {}, at); }
    const Control* framed() const {
        const TableModel& c = program.frmMain.ctl;
        for (std::size_t i = 0; i < c.imgTCard.size(); ++i)
            if (c.shpTHilite[i].Visible) return &c.imgTCard[i];
        return nullptr;
    }
    // A turn of the local player by the lowest slots, as a person clicks it.
    void playTurn() {
        const TableModel& c = program.frmMain.ctl;
        if (c.shpFlipCard.Visible && framed()) return click(centre(*framed()));
        for (const Image& card : c.imgPCard) {
            if (!card.hasPicture()) continue;
            click(centre(card));
            return click(framed() ? centre(*framed()) : QPoint(6400 / 15, 5400 / 15));
        }
    }
};

TEST_F(QuietDeal, AWholeDealWithSoundAndMotionSaysNothing) {
    FrmMain& f = program.frmMain;
    ASSERT_TRUE(f.menu.mnuSound.Checked && f.menu.mnuAnimations.Checked);
    host.setSpeed(50);
    bool asked = false;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        auto* box = qobject_cast<QMessageBox*>(modal);
        if (box && box->text() == "Do you want to play again?") {
            asked = true;
            box->button(QMessageBox::Yes)->click();
        } else if (modal) {
            modal->close();  // a won deal's name form of the Hall of Fame
        }
    });
    answer.start(20);
    click(centre(f.ctl.imgDeck));
    for (int turn = 0; turn < 40 && !asked; ++turn) {
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return asked || (f.m.mTurn == 0 && !f.tmrComputer.Enabled() && f.MousePointer() == 0); }, 5000))
            << "the local player's turn";
        if (!asked) playTurn();
    }
    EXPECT_TRUE(asked) << "the deal came to its end";
    EXPECT_EQ(said().join(QLatin1Char('\n')).toStdString(), "");
    EXPECT_THAT(f.lastSound(), ::testing::MatchesRegex(".*/([pc]win[123]|Tie)[.]wav")) << "the round's sound";
    f.g.gGameInProgress = 0;  // so that closing the window asks nothing
}

}  // namespace
}  // namespace petal::test
