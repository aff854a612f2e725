#include "TwinUser.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <algorithm>
#include <sstream>

#include "SimPlay.h"
#include "net/ConnectionStatusDialog.h"
#include "net/FrmPetalChat.h"
#include "net/PetalChatDialog.h"
#include "platform/Socket.h"
#include "platform/qt/QtHost.h"
#include "records/HofWinnerDialog.h"
#include "scoring/ScoreCardDialog.h"
#include "shell/MainWindow.h"
#include "shell/Program.h"
#include "shell/SplashDialog.h"

namespace petal::twin {

namespace {

// Lines that a wire could take for messages of its own: tag words, commas, the longest line a
// player may type, letters beyond ASCII.
const std::vector<std::string> kLines = {
    "gg",
    "x CARD,1,-1 y",
    "SCOP,SCCL,QUIT,NEWG,1,CHAT,",
    "well played, again?",
    "\xe8\x8a\xb1\xe6\x9c\xad \xc3\xa9t\xc3\xa9 \xe2\x80\x94 bien jou\xc3\xa9",
    std::string(100, ',') + std::string(95, 'x') + "DEAL,",
};

QAbstractButton* buttonOf(QWidget& widget, const QString& text) {
    for (QAbstractButton* button : widget.findChildren<QAbstractButton*>())
        if (button->isVisible() && button->text().remove(QLatin1Char('&')) == text) return button;
    return nullptr;
}

// A box's text as the game gave it: the box may have broken it into lines to fit.
std::string oneLine(QString text) { return text.replace(QLatin1Char('\n'), QLatin1Char(' ')).toStdString(); }

}  // namespace

TwinUser::TwinUser(QtHost& host, Program& program, MainWindow& window, TwinPlan plan)
    : host_(host),
      program_(program),
      window_(window),
      plan_(std::move(plan)),
      log_(plan_.folder / "twin.log", std::ios::app),
      random_(plan_.seed),
      policy_(true, plan_.seed) {
    host_.setSpeed(plan_.speed);
    quiet_.start();
    clock_.start();
    waited_.start();
    connect(&eye_, &QTimer::timeout, this, [this] { look(); });
    eye_.start(15);
}

FrmMain& TwinUser::f() { return program_.frmMain; }

void TwinUser::log(const std::string& line) {
    log_ << line << "  @" << clock_.elapsed() << std::endl;
    quiet_.restart();
}

void TwinUser::fail(const std::string& why) {
    log("failed " + why);
    host_.endProgramAfterFailure();
}

void TwinUser::look() {
    if (host_.ending()) return;
    if (quiet_.elapsed() > 20000) {
        std::ostringstream state;
        state << "mode " << f().g.gPlayMode << ", game " << f().g.gGameInProgress << ", turn " << f().m.mTurn
              << ", pointer " << f().MousePointer() << ", on top "
              << (QApplication::activeModalWidget() ? QApplication::activeModalWidget()->windowTitle().toStdString() : "nothing");
        return fail("stalled: nothing happened for 20 s (" + state.str() + ")");
    }
    if (busy_) return;
    QWidget* top = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QMessageBox*>(top)) return answerBox(*box);
    if (auto* dialog = qobject_cast<QDialog*>(top)) return actOnForm(*dialog);
    playTable();
}

void TwinUser::later(QObject* on, std::function<void()> step) {
    busy_ = true;
    const int delay = static_cast<int>(random_() % 301);
    QTimer::singleShot(delay, this, [this, target = QPointer<QObject>(on), step = std::move(step)] {
        busy_ = false;
        if (target && !host_.ending()) step();
    });
}

std::string TwinUser::answerOf(const std::vector<std::string>& answers, const std::string& key) {
    const int number = asked_[key];
    std::string answer = number <= static_cast<int>(answers.size()) ? answers[number - 1] : "N";
    if (answer.empty() || answer[0] != '^') return answer;
    answer.erase(0, 1);
    std::ifstream peer(plan_.peer / "twin.log");
    const std::string mark = "answer " + key + "#" + std::to_string(number) + " ";
    // A peer that said yes to another game is waited for until it waits for this side's answer:
    // one that came while its own question stood would go unreported, as it should.
    bool answered = false;
    for (std::string line; std::getline(peer, line);) {
        if (line.rfind("end ", 0) == 0) return answer;
        if (line.rfind(mark, 0) == 0) {
            if (key != "again" || line.rfind(mark + "Y", 0) != 0) return answer;
            answered = true;
        } else if (answered && line.rfind("form Please Wait... | Asking", 0) == 0) {
            return answer;
        }
    }
    return waited_.elapsed() > 10000 ? answer : "";
}

void TwinUser::answerBox(QMessageBox& box) {
    const std::string title = box.windowTitle().toStdString(), text = oneLine(box.text());
    std::string key;
    const std::vector<std::string>* answers = nullptr;
    if (text == "Do you want to play again?") key = "again", answers = &plan_.again;
    else if (text == "Do you want to try and reconnect?") key = "reconnect", answers = &plan_.reconnect;
    else if (title == "Game In Progress") key = "restart", answers = &plan_.restart;
    if (waitingOn_ != &box) {
        waitingOn_ = &box;
        waited_.restart();
        // A box that another covered is seen again once that one is answered.
        if (!box.property("twinSeen").toBool()) {
            box.setProperty("twinSeen", true);
            log("box " + title + ": " + text);
            if (answers) ++asked_[key];
        }
    }
    std::string answer = box.button(QMessageBox::Yes) ? "Y" : "OK";
    if (answers) {
        answer = answerOf(*answers, key);
        if (answer.empty()) return;  // the peer answers first
    }
    const bool known = answers || answer == "Y" ||
                       (title != "Out of Step" && title != "Time Out" && title != "Petalgarden");
    later(&box, [this, &box, key, answer, known, title] {
        if (QApplication::activeModalWidget() != &box) return;
        if (!key.empty()) log("answer " + key + "#" + std::to_string(asked_[key]) + " " + answer);
        if (key == "again" && answer == "N") log("end declined");
        if (title == "Quit Petalgardn") log("end quit");
        QAbstractButton* button = box.button(answer == "OK" ? QMessageBox::Ok
                                             : answer == "Y" ? QMessageBox::Yes
                                                             : QMessageBox::No);
        if (!known || !button) return fail("no answer for the box \"" + title + "\"");
        button->click();
    });
}

void TwinUser::actOnForm(QDialog& dialog) {
    const bool fresh = waitingOn_ != &dialog;
    if (fresh) {
        waitingOn_ = &dialog;
        waited_.restart();
        std::string words;
        for (const QLabel* label : dialog.findChildren<QLabel*>())
            if (label->isVisible() && !label->text().isEmpty()) words += " | " + oneLine(label->text());
        log("form " + dialog.windowTitle().toStdString() + words);
    }
    if (qobject_cast<SplashDialog*>(&dialog)) return;  // it leaves by itself
    if (qobject_cast<ConnectionStatusDialog*>(&dialog)) {
        if (waited_.elapsed() > plan_.patienceMs)
            later(&dialog, [this, &dialog] {
                if (QApplication::activeModalWidget() != &dialog) return;
                log("cancel " + dialog.windowTitle().toStdString());
                if (QAbstractButton* cancel = buttonOf(dialog, QStringLiteral("Cancel"))) cancel->click();
            });
        return;
    }
    if (qobject_cast<ScoreCardDialog*>(&dialog)) {
        if (fresh) ++asked_["card"];
        const std::string answer = answerOf(plan_.cards, "card");
        if (answer.empty()) return;
        later(&dialog, [this, &dialog] {
            log("answer card#" + std::to_string(asked_["card"]) + " OK");
            if (QAbstractButton* ok = buttonOf(dialog, QStringLiteral("OK"))) ok->click();
        });
        return;
    }
    if (qobject_cast<HofWinnerDialog*>(&dialog)) {
        later(&dialog, [&dialog] {
            if (auto* name = dialog.findChild<QLineEdit*>()) QTest::keyClicks(name, QStringLiteral("Twin"));
            if (QAbstractButton* ok = buttonOf(dialog, QStringLiteral("OK"))) ok->click();
        });
        return;
    }
    if (qobject_cast<PetalChatDialog*>(&dialog)) return chatIn(dialog);
    fail("an unexpected form: " + dialog.windowTitle().toStdString());
}

// A line to send is typed and sent; a chat that opened for a line that came may be answered.
// The lines that came are logged as the form shows them, and the form is closed.
void TwinUser::chatIn(QDialog& dialog) {
    if (toSend_.empty() && plan_.chat && chats_ < 4 && random_() % 2 == 0) toSend_ = kLines[random_() % kLines.size()];
    later(&dialog, [this, &dialog] {
        FrmPetalChat* form = f().chat.form();
        if (!form) return;
        if (!toSend_.empty()) {
            auto* text = dialog.findChild<QLineEdit*>();
            if (text) QTest::keyClicks(text, QString::fromStdString(toSend_));
            if (form->txtMsg.Text != toSend_) return fail("typed \"" + toSend_ + "\", the box holds \"" + form->txtMsg.Text + "\"");
            log("sent " + toSend_);
            ++chats_;
            toSend_.clear();
            if (QAbstractButton* send = buttonOf(dialog, QStringLiteral("Send"))) send->click();
        }
        for (const std::string& line : form->lstChat.List)
            if (line.rfind(">>>", 0) == 0) log("recv " + line.substr(3));
        if (QAbstractButton* close = buttonOf(dialog, QStringLiteral("Close"))) close->click();
    });
}

void TwinUser::menu(const char* text) {
    for (QAction* action : window_.menuBar()->findChildren<QAction*>())
        if (action->text().remove(QLatin1Char('&')) == QLatin1String(text) && action->isEnabled()) return action->trigger();
}

void TwinUser::playTable() {
    FrmMain& game = f();
    if (game.m.dealSerial != dealSerial_) dealSerial_ = game.m.dealSerial, dealMoves_ = 0;
    if (game.g.gPlayMode == 0) {
        // The session is over: the player leaves the game.
        if (!ended_) later(&window_, [this] {
            if (f().g.gPlayMode != 0 || ended_) return;
            ended_ = true;
            log("end single");
            menu("Exit");
        });
        return;
    }
    const bool connected = game.socketState() == Socket::sckConnected;
    if (plan_.quitAfter >= 0 && moves_ >= plan_.quitAfter && !quitDone_) {
        quitDone_ = true;
        return later(&window_, [this] { menu("Exit"); });
    }
    // The host clicks the deck once for each restart answer, two moves apart.
    if (plan_.restartAfter >= 0 && restarts_ < static_cast<int>(plan_.restart.size()) &&
        moves_ >= plan_.restartAfter + 2 * restarts_ && game.g.gGameInProgress == 1) {
        ++restarts_;
        return later(&window_, [this] { host_.dispatch([this] { f().dealer.imgDeck_Click(); }); });
    }
    if (!toSend_.empty() && game.menu.mnuVChat.Enabled) return later(&window_, [this] { menu("Chat"); });
    if (game.g.gPlayMode == 1 && game.g.gGameInProgress == 0 && connected && game.g.gConnectState == Socket::sckConnected &&
        !game.m.mAutoDeal)
        return later(&window_, [this] { host_.dispatch([this] { f().dealer.imgDeck_Click(); }); });
    if (sim::canMove(game)) later(&window_, [this] { move(); });
}

// A move as a click makes it; the last card of a deal may come with a line to the opponent.
void TwinUser::move() {
    if (!sim::canMove(f())) return;
    bool moved = false;
    host_.dispatch([this, &moved] { moved = sim::localMove(f(), policy_); });
    if (!moved) return;
    ++moves_;
    log("move " + std::to_string(moves_) + " of deal " + std::to_string(f().m.dealSerial) + ", game " +
        std::to_string(f().g.gGameInProgress));
    const auto& hand = f().ctl.imgPCard;
    const bool last = std::none_of(hand.begin(), hand.end(), [](const auto& card) { return card.Visible; });
    if (last && dealMoves_++ == 0 && plan_.chat && chats_ < 4) toSend_ = kLines[random_() % kLines.size()];
}

}  // namespace petal::twin
