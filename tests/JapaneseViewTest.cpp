// The program under Japanese, offscreen: every menu, every form and the questions of a game in
// progress show no English word but names. Each form's picture is saved under the build folder.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTimer>

#include "TableWindow.h"
#include "platform/qt/Language.h"
#include "records/FrmHOFWinner.h"

namespace petal::test {
namespace {

// The words of a text that are English: names and the licence's are not.
QStringList englishIn(QString text) {
    for (const char* name : {"GPL-3.0-or-later", "Windows'98", "Petalgarden", "Copyright", "OK", "IP"})
        text.remove(QLatin1String(name));
    QStringList words;
    for (const auto& match : QRegularExpression(QStringLiteral("[A-Za-z]{2,}")).globalMatch(text)) words << match.captured();
    return words;
}

QStringList textsOf(QWidget* w) {
    QStringList texts{w->windowTitle(), w->accessibleName()};
    if (auto* box = qobject_cast<QMessageBox*>(w)) texts << box->text();
    for (auto* c : w->findChildren<QWidget*>()) texts << c->accessibleName() << c->toolTip();
    for (auto* c : w->findChildren<QLabel*>()) texts << c->text();
    for (auto* c : w->findChildren<QAbstractButton*>()) texts << c->text();
    for (auto* c : w->findChildren<QGroupBox*>()) texts << c->title();
    for (auto* c : w->findChildren<QComboBox*>())
        for (int i = 0; i < c->count(); ++i) texts << c->itemText(i);
    for (auto* c : w->findChildren<QTableWidget*>())
        for (int r = 0; r < c->rowCount(); ++r)
            for (int k = 0; k < c->columnCount(); ++k)
                if (c->item(r, k)) texts << c->item(r, k)->text();
    return texts;
}

class JapaneseView : public TableWindow, public ::testing::Test {
protected:
    void SetUp() override {
        language.apply(QStringLiteral("ja"));
        window.addLanguageMenu(language);
        // Each modal window as it opens: its words are read, then it is answered and closed.
        connect_ = new QTimer;
        QObject::connect(connect_, &QTimer::timeout, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (!modal || modal == last_) return;
            last_ = modal;
            for (const QString& text : textsOf(modal))
                if (!englishIn(text).isEmpty()) english_ << text;
            modal->grab().save(QStringLiteral(PETAL_BUILD_DIR "/ja-%1.png").arg(++shots_));
            if (auto* box = qobject_cast<QMessageBox*>(modal)) {
                QAbstractButton* yes = box->button(QMessageBox::Yes);
                (yes ? yes : box->buttons().first())->click();
            } else {
                QMetaObject::invokeMethod(modal, "reject", Qt::QueuedConnection);
            }
        });
        connect_->start(20);
    }
    void TearDown() override {
        delete connect_;
        language.apply(QStringLiteral("en"));
    }

    Language language;
    QTimer* connect_ = nullptr;
    QWidget* last_ = nullptr;
    int shots_ = 0;
    QStringList english_;
};

TEST_F(JapaneseView, NoEnglishWordIsLeftInTheMenusFormsAndQuestions) {
    for (QAction* menu : window.menuBar()->actions()) {
        english_ << englishIn(menu->text());
        for (QAction* item : menu->menu()->actions()) {
            if (!englishIn(item->text()).isEmpty()) english_ << item->text();
            if (item->menu())
                for (QAction* choice : item->menu()->actions())
                    if (!englishIn(choice->text()).isEmpty() && choice->text() != "English") english_ << choice->text();
        }
    }
    FrmMain& f = program.frmMain;
    FrmHOFWinner winner(program.g, program.hof);
    winner.mFormCaption = "Single Game High Score";
    const std::vector<std::function<void()>> opens = {
        [&] { f.mnuSetup_Click(); },
        [&] { f.mnuVScore_Click(); },
        [&] { f.mnuVHallofFame_Click(); },
        [&] { f.mnuStatistics_Click(); },
        [&] { f.mnuHAbout_Click(); },
        [&] { f.chat.show(); },
        [&] { host.showModal(winner); },
        [&] { f.connection.showStatus(2, "Connection Status", "Attempting connection to your opponent."); },
        [&] { f.dealer.imgDeck_Click(); },
        [&] { f.dealer.imgDeck_Click(); },  // the question of a game in progress
    };
    for (const auto& open : opens) host.dispatch(open);
    EXPECT_GE(shots_, 9);
    EXPECT_EQ(english_.join(QStringLiteral(" | ")).toStdString(), "");
}

}  // namespace
}  // namespace petal::test
