// A whole deal clicked through on the program's own host with sound and motion on, on a machine
// without an audio device (as the test runs): the sounds are asked for, and Qt says nothing.
#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "TableWindow.h"
#include "engine/table_view/TableView.h"

namespace petal::test {
namespace {

QStringList said;

// Heard from before the program starts, as its audio is looked for when the table first shows.
struct Listening {
    Listening() {
        said.clear();
        previous = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            // The offscreen platform's own notes on what it cannot do are not the game's.
            if (!text.startsWith("This plugin does not support")) said << text;
        });
    }
    ~Listening() { qInstallMessageHandler(previous); }
    QtMessageHandler previous;
};

class QuietDeal : public ::testing::Test, protected Listening, protected TableWindow {
protected:
    void click(const Control* c) {
        const QPoint at = c ? QPoint((c->Left + c->Width / 2) / 15, (c->Top + c->Height / 2) / 15) : QPoint(427, 360);
        QTest::mouseClick(window.table(), Qt::LeftButton, {}, at);
    }
    const Control* framed() const {
        for (std::size_t i = 0; i < f.ctl.imgTCard.size(); ++i)
            if (f.ctl.shpTHilite[i].Visible) return &f.ctl.imgTCard[i];
        return nullptr;  // the table top
    }
    FrmMain& f = program.frmMain;
};

TEST_F(QuietDeal, AWholeDealWithSoundAndMotionSaysNothing) {
    ASSERT_TRUE(f.menu.mnuSound.Checked && f.menu.mnuAnimations.Checked);
    host.setSpeed(50);
    bool asked = false;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box && box->text() == "Do you want to play again?") {
            asked = true;
            box->button(QMessageBox::Yes)->click();
        } else if (QApplication::activeModalWidget()) {
            QApplication::activeModalWidget()->close();  // a won deal's name form of the Hall of Fame
        }
    });
    answer.start(20);
    click(&f.ctl.imgDeck);
    for (int turn = 0; turn < 40 && !asked; ++turn) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return asked || (f.m.mTurn == 0 && !f.tmrComputer.Enabled() && f.MousePointer() == 0); }, 5000));
        if (asked) break;
        // The lowest hand card captures the first framed table card or lies down; a flipped
        // card that matches captures the first framed one.
        const auto card = std::find_if(f.ctl.imgPCard.begin(), f.ctl.imgPCard.end(), [](const Image& c) { return c.hasPicture(); });
        if (!f.ctl.shpFlipCard.Visible) click(&*card);
        click(framed());
    }
    EXPECT_TRUE(asked) << "the deal came to its end";
    EXPECT_EQ(said.join('\n').toStdString(), "");
    EXPECT_THAT(f.lastSound(), ::testing::MatchesRegex(".*/([pc]win[123]|Tie)[.]wav")) << "the round's sound";
    f.g.gGameInProgress = 0;  // so that closing the window asks nothing
}

}  // namespace
}  // namespace petal::test
