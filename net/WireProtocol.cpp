#include "net/WireProtocol.h"

#include <algorithm>
#include <climits>

#include "cards/Val.h"
#include "net/FrmConnectionStatus.h"
#include "platform/FatalError.h"
#include "platform/Host.h"
#include "platform/Socket.h"
#include "shell/FrmMain.h"
#include "platform/Words.h"

namespace petal {

namespace {

// A field of a message as a 16-bit number; the framer has already seen that it is digits.
bool number16(const WireMessage& message, std::size_t index, int& value) {
    const std::optional<std::string_view> field = message.findField(index);
    if (!field) return false;
    const long v = Val(*field);
    if (v < SHRT_MIN || v > SHRT_MAX) return false;
    value = static_cast<int>(v);
    return true;
}

}  // namespace

WireProtocol::WireProtocol(FrmMain& f) : f_(f), tmrSettle(f.host, [this] { tmrSettle_Timer(); }, kSettleMs) {}

void WireProtocol::send(const std::string& message) {
    if (f_.tcpMultiPlayer->State() != Socket::sckConnected) return;  // the poll tells of the loss
    ++sendsMade_;
    f_.tcpMultiPlayer->SendData(message);
    CompleteSend();
}

// Sleeps until the socket says the bytes have left, the connection has gone, or the limit. A
// send made while another waits (from a handler that the wait let run) may leave with it, and
// the socket tells once for both: each wait looks for its own send among those that have left.
void WireProtocol::CompleteSend() {
    const std::uint64_t mine = sendsMade_;
    bool timedOut = false;
    Timer limit(f_.host, [&timedOut] { timedOut = true; }, kSendLimitMs);
    limit.setEnabled(true);
    f_.host.waitUntil([&] {
        return sendsLeft_ >= mine || timedOut || f_.tcpMultiPlayer->State() != Socket::sckConnected;
    });
    if (sendsLeft_ >= mine) return;
    if (timedOut && !f_.host.ending()) throw FatalError(PETAL_TR("core", "Time Out"), PETAL_TR("core", "The connected computer took too long to respond."));
}

// Every send made so far has left.
void WireProtocol::tcpMultiPlayer_SendComplete() { sendsLeft_ = sendsMade_; }

// The bytes are taken at once and read from a call of their own. A handler run inside the
// socket's event that waited (a box, a deal) could see the connection closed and freed under the
// event that is still being delivered, and return into it.
void WireProtocol::tcpMultiPlayer_DataArrival(long) {
    if (f_.g.gPlayMode <= 0) return;
    received_ += f_.tcpMultiPlayer->GetData();
    if (receivePosted_) return;
    receivePosted_ = true;
    f_.host.post([this] { receive(); });
}

void WireProtocol::receive() {
    receivePosted_ = false;
    std::string bytes = std::move(received_);
    received_.clear();
    if (f_.g.gPlayMode <= 0 || bytes.empty()) return;
    MainVars& m = f_.m;
    const bool wasReceiving = m.mReceiving;
    m.mReceiving = true;
    framed(framer_.feed(bytes, incoming_));
    m.mReceiving = wasReceiving;
}

void WireProtocol::tmrSettle_Timer() {
    tmrSettle.setEnabled(false);
    if (f_.g.gPlayMode <= 0) return;
    // A message cut short by the end of the connection is that end's to tell, as a lost
    // connection, not a fault of step.
    if (f_.socketState() != Socket::sckConnected) return;
    const bool wasReceiving = f_.m.mReceiving;
    f_.m.mReceiving = true;
    framed(framer_.settle(incoming_));
    f_.m.mReceiving = wasReceiving;
}

void WireProtocol::framed(MessageFramer::Result result) {
    for (WireMessage& message : incoming_) arrived_.push_back(std::move(message));
    incoming_.clear();
    // What came whole before the fault is still the peer's, in order.
    dispatchAll();
    if (result != MessageFramer::Result::Ok) {
        outOfStep(framer_.problem());
        return;
    }
    // The settle pause counts from the last byte that came.
    tmrSettle.setEnabled(false);
    tmrSettle.setEnabled(framer_.holding());
}

// Handlers that run inside a dispatch (a message box, a deal) may let more data in; it waits
// its turn behind the message being dispatched.
void WireProtocol::dispatchAll() {
    if (dispatching_) return;
    dispatching_ = true;
    struct Reset {
        bool& flag;
        ~Reset() { flag = false; }
    } reset{dispatching_};
    while (!arrived_.empty() && f_.g.gPlayMode > 0 && !f_.host.ending() && !leaving_) {
        const WireMessage message = std::move(arrived_.front());
        arrived_.pop_front();
        f_.recvBuffer() = message.text;
        dispatch(message);
    }
    if (f_.g.gPlayMode <= 0) arrived_.clear();
}

void WireProtocol::dispatch(const WireMessage& message) {
    MainVars& m = f_.m;
    const bool host = f_.g.gPlayMode == 1;
    const std::string_view tag = message.field(0);
    if (tag == "DEAL") {
        receiveDeal(message);
    } else if (tag == "QUIT") {
        moves_.clear();
        f_.dealer.NewGame(true);
        // Told once the messages behind it have been dispatched: the host may deal at once.
        if (!host) f_.host.post([this] { tellRestart(); });
    } else if (tag == "SCOP") {
        m.mPeerScoreOpen = true;
        if (host) m.mPeerReady = false;
    } else if (tag == "SCCL") {
        if (host) {
            m.mPeerReady = true;
            if (f_.connectionStatus && f_.connectionStatus->waitsForPeer) f_.connectionStatus->Unload();
        }
    } else if (tag == "NEWG") {
        const int answer = message.field(1) == "1" ? 1 : 0;
        if (rematchAsked_) receiveNewg(answer);
        else heldAnswers_.push_back(answer);  // the answer to a question this side has yet to ask
    } else if (tag == "SEUP") {
        if (!host) receiveSetup(message);
    } else if (tag == "CARD") {
        receiveMove(message);
    } else if (tag == "CHAT") {
        if (chatReceived) chatReceived(typedLine(std::string_view(message.text).substr(5)));
    }
}

// The host deals; a DEAL from the client is taken only as the answer to a rematch that this
// host has not dealt yet, so that two DEALs that cross end on the host's deck.
void WireProtocol::receiveDeal(const WireMessage& message) {
    if (f_.g.gPlayMode == 1 && !rematchAsked_) return;
    if (f_.g.gPlayMode == 2 && f_.connectionStatus) f_.connectionStatus->Unload();
    dealFrom(std::string(message.field(1)), message.field(2) == "1" ? 1 : 0);
}

void WireProtocol::dealFrom(const std::string& seed, int turn) {
    MainVars& m = f_.m;
    moves_.clear();
    m.mDealSeed = seed;
    m.mTurn = turn;
    dealFromWire_ = true;
    struct Reset {
        bool& flag;
        ~Reset() { flag = false; }
    } reset{dealFromWire_};
    f_.dealer.DealCards();
}

void WireProtocol::receiveNewg(int answer) {
    Globals& g = f_.g;
    if (g.gRematchPending) {
        if (answer == 0) g.gRematchPending = false;
        return;  // a refusal goes unreported while the question stands
    }
    if (f_.connectionStatus) f_.connectionStatus->Unload();
    if (answer == 1) tellRefusal();
}

void WireProtocol::tellRestart() {
    if (f_.g.gPlayMode != 2) return;
    f_.host.msgBox({PETAL_TR("core", "Your host has restarted the session: the game in progress has ended, and your "
                                     "host deals the next one."),
                    PETAL_TR("core", "Session Restarted"), MsgIcon::Information, MsgButtons::OK});
}

void WireProtocol::tellRefusal() {
    f_.host.msgBox({PETAL_TR("core", "Your opponent declined a rematch."), PETAL_TR("core", "Rematch Declined"), MsgIcon::Information, MsgButtons::OK,
                    f_.g.gPlayMode == 1});
}

// A refusal that came before this side asked was the answer to nothing it had asked yet: it is
// told as it would have been on arrival, before the question or the end of the session.
void WireProtocol::tellHeldRefusal() {
    const auto refusal = std::find(heldAnswers_.begin(), heldAnswers_.end(), 1);
    if (refusal == heldAnswers_.end()) return;
    heldAnswers_.erase(refusal);
    tellRefusal();
}

void WireProtocol::receiveSetup(const WireMessage& message) {
    // The options come once, before the session's first deal: taken later they would score a
    // game, or the deal still on the table, by rules other than those it was played by.
    if (dealtInSession_) {
        outOfStep(said(f_.host, PETAL_TR("core", "the host's options \"%1\" came after the game had begun"), {message.text}));
        return;
    }
    f_.connection.clearStaleTable();
    // Rounds size the tournament's score table even in a single game: never below 0, and at
    // least one in a tournament.
    int gameType = 0, rounds = 0, yaku = 0;
    if (!number16(message, 1, gameType) || !number16(message, 2, rounds) || !number16(message, 3, yaku) ||
        (gameType != 0 && gameType != 1) || rounds < gameType || rounds > 99) {
        outOfStep(said(f_.host, PETAL_TR("core", "the host's options \"%1\" are no game that can be played"), {message.text}));
        return;
    }
    f_.settings.WriteSettings(gameType, rounds, -yaku, f_.g.gPlayMode);
}

void WireProtocol::receiveMove(const WireMessage& message) {
    int what = 0, where = 0;
    if (!number16(message, 1, what) || !number16(message, 2, where)) {
        outOfStep(said(f_.host, PETAL_TR("core", "the move \"%1\" names no card"), {message.text}));
        return;
    }
    if (moves_.size() >= kMaxMoves) {
        outOfStep(said(f_.host, PETAL_TR("core", "the opponent sent more moves than a turn holds")));
        return;
    }
    moves_.push_back({message.text, what, where});
}

void WireProtocol::dealStarted() {
    dealtInSession_ = true;
    rematchAsked_ = false;
    heldAnswers_.clear();
    // A move that came while no deal ran (one that crossed a restart) belongs to no deal.
    moves_.clear();
}

void WireProtocol::rematchAsked() {
    rematchAsked_ = true;
    tellHeldRefusal();
    const std::vector<int> held = std::move(heldAnswers_);
    heldAnswers_.clear();
    for (int answer : held) receiveNewg(answer);
}

void WireProtocol::reset() {
    leaving_ = false;
    received_.clear();
    framer_.clear();
    arrived_.clear();
    moves_.clear();
    heldAnswers_.clear();
    rematchAsked_ = false;
    dealtInSession_ = false;
    tmrSettle.setEnabled(false);
}

void WireProtocol::outOfStep(std::string what) {
    if (f_.g.gPlayMode <= 0) return;
    reset();
    f_.tcpMultiPlayer->Close();
    f_.host.msgBox({said(f_.host,
                         PETAL_TR("core", "The two copies of the game are out of step: %1.\n\nThe connection has been "
                                          "closed, and the game goes on without your opponent."),
                         {what}),
                    PETAL_TR("core", "Out of Step"), MsgIcon::Exclamation, MsgButtons::OK});
    if (f_.connectionStatus) f_.connectionStatus->Unload();
    f_.g.gConnectState = 0;
    f_.connection.fallBack(true);
}

}  // namespace petal
