// The form dialogs on the Qt host: each opens for its model, draws it, forwards its buttons,
// and closes when the model unloads. Pictures of each are saved under the build folder.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "GameFixture.h"
#include "ViewStart.h"
#include "assets/PictureStore.h"
#include "net/FrmConnectionStatus.h"
#include "records/FrmHOFWinner.h"
#include "records/MarginChart.h"
#include "shell/FormDialogs.h"
#include "platform/qt/QtHost.h"

namespace petal::test {
namespace {

class DialogView : public ::testing::Test {
protected:
    void SetUp() override {
        registerFormDialogs(host, pictures);
        startPastSplash(host, program);
    }
    // Once the modal dialog stands: save its picture, then act on it as the user.
    void whenShown(const QString& picture, std::function<void(QWidget*)> act) {
        QTimer::singleShot(50, [picture, act] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            dialog->grab().save(QStringLiteral(PETAL_BUILD_DIR "/") + picture);
            act(dialog);
        });
    }
    static QPushButton* button(QWidget* dialog, const QString& text) {
        for (auto* b : dialog->findChildren<QPushButton*>())
            if (b->text() == text) return b;
        return nullptr;
    }

    TempDir dir;
    QtHost host{dir.path()};
    PictureStore pictures;
    Program program{host};
};

TEST_F(DialogView, TheNameFormStoresTheTypedNameInTheHallOfFame) {
    FrmHOFWinner winner(program.g, program.hof);
    winner.mScore = 120;
    winner.mFormCaption = "Single Game High Score";
    bool okWhenEmpty = true, okWithText = false;
    whenShown("hof-winner.png", [&](QWidget* dialog) {
        EXPECT_EQ(dialog->windowTitle(), "Single Game High Score");
        auto* name = dialog->findChild<QLineEdit*>();
        name->setFocus();
        QTest::keyClicks(name, "x");
        QTest::keyClick(name, Qt::Key_Backspace);
        okWhenEmpty = button(dialog, "OK")->isEnabled();
        QTest::keyClicks(name, "Sakura");
        okWithText = button(dialog, "OK")->isEnabled();
        button(dialog, "OK")->click();
    });
    host.dispatch([&] { host.showModal(winner); });
    EXPECT_FALSE(okWhenEmpty) << "clearing the box disables OK";
    EXPECT_TRUE(okWithText);
    EXPECT_EQ(program.g.gHighScoreName, "Sakura");
    EXPECT_EQ(program.hof.GetHallOfFame(0).substr(0, 7), "Sakura,");
}

TEST_F(DialogView, SetupFiltersTheRoundsAndStoresTheChoice) {
    whenShown("setup.png", [&](QWidget* dialog) {
        auto radios = dialog->findChildren<QRadioButton*>();
        for (QRadioButton* r : radios)
            if (r->text() == "Tournament") r->click();
        auto* rounds = dialog->findChildren<QLineEdit*>().front();
        rounds->setFocus();
        rounds->selectAll();
        QTest::keyClicks(rounds, "a7-");
        button(dialog, "OK")->click();
    });
    host.dispatch([this] { program.frmMain.mnuSetup_Click(); });
    EXPECT_EQ(program.g.gGameType, 1);
    EXPECT_EQ(program.g.gRounds, 7);
}

// A line from the other player opens the chat by itself once its handler has returned; Enter
// and Escape in the text box reach the form. Alone, the sent line goes nowhere.
TEST_F(DialogView, AChatLineOpensTheFormWhichForwardsEnterAndEscape) {
    bool closed = false;
    whenShown("chat.png", [&](QWidget* dialog) {
        struct CloseAnyway {  // a failed check must not leave the test waiting on the form
            QWidget* dialog;
            bool& closed;
            ~CloseAnyway() {
                if (dialog->isVisible()) button(dialog, "Close")->click();
                closed = true;
            }
        } guard{dialog, closed};
        EXPECT_EQ(dialog->windowTitle(), "Petalgarden Chat");
        auto* list = dialog->findChild<QListWidget*>("lstChat");
        auto* text = dialog->findChild<QLineEdit*>("txtMsg");
        ASSERT_EQ(list->count(), 1);
        QTest::keyClicks(text, "hi, you");
        QTest::keyClick(text, Qt::Key_Return);
        ASSERT_EQ(list->count(), 2);
        QTest::keyClicks(text, "x");
        QTest::keyClick(text, Qt::Key_Escape);
        EXPECT_TRUE(dialog->isVisible()) << "the first Escape only clears";
        QTest::keyClick(text, Qt::Key_Escape);
        EXPECT_FALSE(dialog->isVisible());
    });
    host.dispatch([this] { program.frmMain.chat.receive("hello, there"); });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "not inside the receiving handler";
    host.waitUntil([&] { return closed && !QApplication::activeModalWidget(); });
    EXPECT_EQ(program.frmMain.chat.form(), nullptr);
}

// The wait for the peer's answer often follows a box answered with Enter: more Enters or Spaces,
// meant for the table, leave it standing; Escape asks before the session ends.
TEST_F(DialogView, TheWaitForThePeerTakesNeitherEnterNorSpace) {
    FrmConnectionStatus wait(program.frmMain);
    wait.ConnectMode = 2;
    QStringList asked;
    QMessageBox::StandardButton answer = QMessageBox::No;
    QTimer answerer;
    answerer.callOnTimeout([&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            asked << box->windowTitle();
            box->button(answer)->click();
        }
    });
    answerer.start(20);
    whenShown("connection-wait.png", [&](QWidget* dialog) {
        for (int key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Enter})
            QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, Qt::Key(key));
        answer = QMessageBox::Yes;
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    host.showModal(wait);
    EXPECT_EQ(asked.join(" | "), "Close Connection") << "only Escape asks to end the session";
}

// The record chosen in the statistics' list is the one shown, with its chart.
TEST_F(DialogView, TheStatisticsShowTheChosenRecordWithItsChart) {
    for (int i = 0; i < 12; ++i)
        program.frmMain.stats.record({"s" + std::to_string(i), "11/22/2026", 0, "standard", 1, 100 + i * 7 % 40, 110});
    program.frmMain.stats.record({"t", "11/22/2026", 1, "standard", 5, 420, 300});
    QStringList shown;
    whenShown("statistics.png", [&](QWidget* dialog) {
        const auto played = [dialog] {
            for (QLabel* label : dialog->findChildren<QLabel*>())
                if (label->text() == "Games played") return label->parentWidget()->findChildren<QLabel*>()[1]->text();
            return QString();
        };
        auto* record = dialog->findChild<QComboBox*>();
        ASSERT_NE(dialog->findChild<MarginChart*>(), nullptr);
        shown << record->currentText() << played();
        record->setCurrentIndex(0);
        emit record->activated(0);
        shown << record->currentText() << played();
        button(dialog, "Close")->click();
    });
    host.dispatch([&] { program.frmMain.mnuStatistics_Click(); });
    EXPECT_EQ(shown, QStringList({"Tournaments against the Standard computer", "1",
                                  "Single games against the Standard computer", "12"}));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace petal::test
