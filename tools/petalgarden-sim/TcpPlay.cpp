#include "TcpPlay.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <ostream>

#include "HeadlessHost.h"
#include "Policy.h"
#include "SimPlay.h"
#include "TempFolder.h"
#include "Tracer.h"
#include "net/Connection.h"
#include "net/FrmConnectionStatus.h"
#include "platform/Socket.h"
#include "scoring/FrmScoreCard.h"
#include "shell/FrmSetup.h"
#include "shell/Program.h"
#include "platform/qt/Language.h"

namespace petal::sim {

namespace {

// The session and its player, answering what the game asks as play does.
class TcpSide {
public:
    TcpSide(const TcpOptions& o, std::ostream& out, std::ostream& err)
        : o_(o),
          err_(err), host_(folder_.path()), program_(host_), tracer_(program_.frmMain, o.trace ? &out : nullptr),
          policy_(o.randomPolicy, o.policySeed) {
        host_.setSpeed(o.speed);
        f().events = &tracer_;
        host_.onMsgBox = [this](const MsgBox& box) { return answer(box); };
        host_.onForm = [this](Form& form) { act(form); };
    }

    int run();
    int deals() const { return tracer_.ended; }
    std::string summary(double seconds) const { return tracer_.summary(seconds); }
    const std::string& failure() const { return failure_; }

private:
    FrmMain& f() { return program_.frmMain; }
    void fail(const std::string& reason) {
        if (failure_.empty()) failure_ = reason;
        host_.endProgramAfterFailure();
    }
    bool done() const { return tracer_.ended >= o_.deals; }
    MsgResult answer(const MsgBox& box);
    void act(Form& form);
    void start();
    void setUp();
    void play();
    // Real time that the game's timers would take, at the run's speed.
    int scaled(int ms) const { return std::max(1, static_cast<int>(ms / o_.speed)); }
    void pause(int gameMs);
    void tellWhereToJoin(const FrmConnectionStatus& status, std::string& told);

    const TcpOptions& o_;
    std::ostream& err_;
    TempFolder folder_;
    HeadlessHost host_;
    Program program_;
    Tracer tracer_;
    Policy policy_;
    std::string failure_;
    QElapsedTimer idle_;
    int lastEvents_ = -1;
};

MsgResult TcpSide::answer(const MsgBox& box) {
    if (box.text == "Do you want to play again?") {
        if (!done()) return MsgResult::Yes;
        // The other side may still be replaying the last moves: its deal ends before this
        // side's No closes the connection.
        pause(5000);
        return MsgResult::No;
    }
    if (box.title == "Connection Successful" || box.title == "Session Restarted") return MsgResult::OK;
    if (box.title == "Reset Game" || box.title == "Cancel Connection" || box.title == "Close Connection" ||
        box.title == "Opponent Connected")
        return MsgResult::Yes;
    const bool peerGone = box.title == "Remote Connection Closed" || box.title == "Client Connection Closed" ||
                          box.title.rfind("Winsock Error ", 0) == 0 || box.title == "Rematch Declined";
    if (peerGone && done()) return MsgResult::OK;  // the peer ended the session after the last deal
    if (o_.stay && (peerGone || box.title == "Out of Step")) {
        err_ << "petalgarden-sim: " << box.title << ": " << box.text << " (listening again)\n";
        return MsgResult::OK;
    }
    if (o_.stay && box.text == "Do you want to try and reconnect?") return MsgResult::Yes;
    if (box.text == "Do you want to try and reconnect?") {
        if (!done()) fail("the peer was lost after " + std::to_string(deals()) + " deals");
        return MsgResult::No;
    }
    if (peerGone)
        fail("the peer was lost after " + std::to_string(deals()) + " deals: " + box.text);
    else if (box.title == "Out of Step")
        fail("out of step: " + box.text);
    else if (box.title == "Time Out")
        fail("time-out: " + box.text);
    else
        fail(box.title + ": " + box.text);
    return box.buttons == MsgButtons::YesNo ? MsgResult::No : MsgResult::OK;
}

void TcpSide::act(Form& form) {
    if (auto* setup = dynamic_cast<FrmSetup*>(&form)) {
        if (o_.host) {
            const bool tournament = o_.tournamentRounds > 0;
            setup->selectGameType(tournament ? 1 : 0);
            if (tournament) setup->txtRounds.Text = std::to_string(o_.tournamentRounds);
            setup->chkUseYaku = o_.yaku ? 1 : 0;
            setup->selectGame(1);
        } else {
            setup->selectGame(2);
            setup->txtHostIP.Text = o_.address;
        }
        setup->cmdOK_Click();
    } else if (auto* status = dynamic_cast<FrmConnectionStatus*>(&form)) {
        // A wait stands until the game unloads it; a player cancels a rematch whose peer is gone.
        const bool rematch = status->StatusCaption == "Please Wait...";
        std::string told;
        host_.waitUntil([&] {
            tellWhereToJoin(*status, told);
            return !status->loaded() || (rematch && f().socketState() != Socket::sckConnected);
        });
        if (status->loaded()) status->cmdCancel_Click();
    } else if (auto* card = dynamic_cast<FrmScoreCard*>(&form)) {
        card->cmdOK_Click();
    }
}

void TcpSide::tellWhereToJoin(const FrmConnectionStatus& status, std::string& told) {
    if (!o_.routerPort || !status.showsWhereToJoin || !status.loaded()) return;
    std::string where = status.Label2;
    for (const JoinPlace& place : status.joinPlaces)
        where += "\n  " + place.address + ", port " + std::to_string(place.port) + " (" + place.what + ")";
    if (where == told) return;
    told = where;
    err_ << "petalgarden-sim: where to join: " << where << "\n";
    err_.flush();
}

void TcpSide::pause(int gameMs) {
    bool over = false;
    QTimer::singleShot(scaled(gameMs), &host_, [&over] { over = true; });
    host_.waitUntil([&over] { return over; });
}

void TcpSide::start() {
    host_.dispatch([this] {
        program_.Main();
        setUp();
    });
}

// Setup, as a player opens it, on the port of the command line.
void TcpSide::setUp() {
    f().connection.port = o_.port;
    if (o_.routerPort) f().options.setFlag(Connection::kRouterOption, true);
    f().mnuSetup_Click();
}

// The host deals once connected and idle; the local player moves when on turn.
void TcpSide::play() {
    if (host_.ending() || !host_.resting()) return;
    FrmMain& game = f();
    if (tracer_.events != lastEvents_) {
        lastEvents_ = tracer_.events;
        idle_.restart();
    } else if (!o_.stay && idle_.elapsed() > o_.idleSeconds * 1000) {
        host_.dispatch([this] { fail("time-out: nothing happened for " + std::to_string(o_.idleSeconds) + " seconds"); });
        return;
    }
    // A host that stays sets up again after its session ended out of step.
    if (o_.stay && o_.host && game.g.gPlayMode == 0) {
        host_.dispatch([this] { setUp(); });
        return;
    }
    // The peer ended the session after the last deal, and with it this side's question: the
    // player closes the program.
    if (done() && game.g.gPlayMode == 0) {
        host_.dispatch([&game] { game.mnuExit_Click(); });
        return;
    }
    if (o_.host && game.g.gPlayMode == 1 && game.g.gGameInProgress == 0 && game.g.gConnectState == Socket::sckConnected &&
        game.socketState() == Socket::sckConnected && !game.m.mAutoDeal && !done()) {
        host_.dispatch([&game] { game.dealer.imgDeck_Click(); });
        return;
    }
    if (canMove(game)) host_.dispatch([&] { localMove(game, policy_); });
}

int TcpSide::run() {
    idle_.start();
    QTimer::singleShot(0, &host_, [this] { start(); });
    QTimer driver;
    QObject::connect(&driver, &QTimer::timeout, &host_, [this] { play(); });
    driver.start(1);
    const int status = QCoreApplication::exec();
    if (failure_.empty() && status != 0) failure_ = "the game ended after a failure";
    if (failure_.empty() && !done())
        failure_ = "the session ended after " + std::to_string(deals()) + " of " + std::to_string(o_.deals) + " deals";
    return failure_.empty() ? status : 1;
}

}  // namespace

int tcpPlay(const TcpOptions& options, std::ostream& out, std::ostream& err) {
    int argc = 1;
    char name[] = "petalgarden-sim";
    char* argv[] = {name, nullptr};
    QCoreApplication app(argc, argv);
    Language language;
    language.apply(QString::fromStdString(options.language));
    const auto started = std::chrono::steady_clock::now();
    int code = 1;
    std::string summary;
    {
        TcpSide side(options, out, err);
        code = side.run();
        if (code != 0) err << "petalgarden-sim: " << side.failure() << "\n";
        summary = side.summary(std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count());
    }
    out << summary;
    out.flush();
    return code;
}

}  // namespace petal::sim
