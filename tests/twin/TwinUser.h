#pragma once
// The scripted user of one copy of the program: it looks at the screen as a person does,
// answers whatever box or form stands on top after a random 0 to 300 ms, plays its moves, chats,
// and closes the program once its session has ended. What it sees and does goes to its log,
// which the test reads, and which the other copy's user reads to answer in a given order.
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <fstream>
#include <functional>
#include <map>
#include <random>
#include <string>

#include "Policy.h"
#include "TwinPlan.h"

class QDialog;
class QMessageBox;

namespace petal {
class MainWindow;
class Program;
class QtHost;
class FrmMain;
}  // namespace petal

namespace petal::twin {

class TwinUser : public QObject {
public:
    TwinUser(QtHost& host, Program& program, MainWindow& window, TwinPlan plan);

private:
    FrmMain& f();
    void look();
    void answerBox(QMessageBox& box);
    void actOnForm(QDialog& dialog);
    void chatIn(QDialog& dialog);
    void playTable();
    void move();
    // One step at a time, after the delay of a person's reaction; nothing if what it acts on
    // has gone meanwhile.
    void later(QObject* on, std::function<void()> step);
    void menu(const char* text);
    void log(const std::string& line);
    // The answer to the number-th asking of a question, or empty while it waits for the peer.
    std::string answerOf(const std::vector<std::string>& answers, const std::string& key);
    void fail(const std::string& why);

    QtHost& host_;
    Program& program_;
    MainWindow& window_;
    TwinPlan plan_;
    std::ofstream log_;
    std::mt19937_64 random_;
    sim::Policy policy_;
    QTimer eye_;
    QElapsedTimer clock_;
    QElapsedTimer quiet_;   // since the user last saw or did anything
    QElapsedTimer waited_;  // the wait for the peer's answer, or under a status form
    QPointer<QObject> waitingOn_;
    bool busy_ = false;
    std::map<std::string, int> asked_;  // how often each question came
    int moves_ = 0, dealMoves_ = 0, dealSerial_ = -1, chats_ = 0;
    std::string toSend_;
    int restarts_ = 0;
    bool quitDone_ = false, ended_ = false;
};

}  // namespace petal::twin
