#include "net/Connection.h"

#include <algorithm>
#include <vector>

#include "net/FrmConnectionStatus.h"
#include "net/JoinAddress.h"
#include "platform/Host.h"
#include "platform/PortMapper.h"
#include "platform/Socket.h"
#include "scoring/FrmScoreCard.h"
#include "shell/FrmMain.h"
#include "platform/Words.h"

namespace petal {

Connection::Connection(FrmMain& f) : f_(f) {}

Connection::~Connection() = default;

int Connection::yakuFlag() const { return f_.g.gUseYaku ? 1 : 0; }

void Connection::StartConnection() {
    Socket& s = *f_.tcpMultiPlayer;
    f_.net.reset();
    if (f_.g.gPlayMode == 1) {
        s.Close();
        if (s.LocalPort == 0) s.LocalPort = port;
        s.Listen();
        openRouterPort();
    } else if (f_.g.gPlayMode == 2) {
        s.Close();
        // Text that is no address goes whole, and the platform tells that no host answers to it.
        const std::optional<JoinAddress> address = parseJoinAddress(f_.g.gHostIP);
        const std::string host = address ? address->host : f_.g.gHostIP;
        if (s.RemoteHost != host) s.RemoteHost = host;
        s.RemotePort = address && address->port != 0 ? address->port : port;
    }
}

void Connection::tcpMultiPlayer_ConnectionRequest(long requestID) {
    if (f_.g.gPlayMode != 1) return;
    Socket& s = *f_.tcpMultiPlayer;
    if (s.State() != Socket::sckClosed) s.Close();
    f_.net.reset();
    s.Accept(requestID);
}

void Connection::tmrWinsockState_Timer() {
    Socket& s = *f_.tcpMultiPlayer;
    MainVars& m = f_.m;
    Globals& g = f_.g;
    // The poll runs no other events of its own: a game that ran inside its tick (an end of deal,
    // a wait for the peer's answer) would keep it from ticking, and a lost peer would never be
    // seen. A refusal that came just before the end is told first, and the end after it; what
    // came just before the end is taken before the end is told.
    if (f_.net.tellingRefusal()) return;
    const bool ending = s.State() == Socket::sckClosing || s.State() == Socket::sckError;
    if (ending) f_.net.receivePending();
    if (s.State() == Socket::sckClosing && g.gPlayMode == 2) hostLost();
    if (m.mConnected) return;
    if (s.State() != g.gConnectState) {
        g.gConnectState = s.State();
        actOnState(g.gConnectState);
    }
    if (g.gPlayMode == 1 && m.mPeerReady && m.mLocalReady && m.mAutoDeal && s.State() == Socket::sckConnected) {
        f_.dealer.DealCards();
        m.mAutoDeal = false;
    }
}

void Connection::actOnState(int state) {
    Globals& g = f_.g;
    switch (state) {
        case Socket::sckListening:
            showStatus(1, PETAL_TR("core", "Connection Status"), PETAL_TR("core", "Waiting for your opponent to connect."));
            break;
        case Socket::sckResolvingHost:
        case Socket::sckConnecting:
            if (!f_.connectionStatus) showStatus(2, PETAL_TR("core", "Connection Status"), PETAL_TR("core", "Attempting connection to your opponent."));
            break;
        case Socket::sckConnected:
            clearStaleTable();
            if (g.gPlayMode == 1) {
                if (f_.connectionStatus) f_.connectionStatus->Unload();
                f_.net.send("SEUP," + std::to_string(g.gGameType) + "," + std::to_string(g.gRounds) + "," +
                            (g.gUseYaku ? "-1" : "0"));
                f_.host.msgBox({PETAL_TR("core", "Your opponent has successfully connected to your computer.  "
                                                 "Click the deck to start the match.  Good Luck!"),
                                PETAL_TR("core", "Connection Successful"), MsgIcon::Information, MsgButtons::OK});
            } else if (g.gPlayMode == 2) {
                f_.m.mConnected = true;
                // A host that dealt at once has started the game already: nothing to wait for.
                if (g.gGameInProgress != 0) break;
                showStatus(2, PETAL_TR("core", "Connection Successful"), PETAL_TR("core", "Waiting for your host to start the game"));
                if (f_.tcpMultiPlayer->State() != Socket::sckConnected) f_.m.mConnected = false;
            }
            break;
        case Socket::sckClosing:
        case Socket::sckError:
            lossProcedure();
            break;
        default:
            break;
    }
}

// The client's host has gone: tested even while the session stands.
void Connection::hostLost() {
    endSessionPrompts();
    f_.net.tellHeldRefusal();
    f_.host.msgBox({PETAL_TR("core", "Your host has just terminated the network connection."),
                    PETAL_TR("core", "Remote Connection Closed"),
                    MsgIcon::Exclamation, MsgButtons::OK});
    f_.m.mRoundNo = f_.g.gRounds + 1;
    fallBack(true);
}

void Connection::lossProcedure() {
    Socket& s = *f_.tcpMultiPlayer;
    endSessionPrompts();
    if (f_.g.gConnectState == Socket::sckClosing) {
        f_.net.tellHeldRefusal();
        f_.host.msgBox({PETAL_TR("core", "Your opponent has just terminated the network connection."),
                        PETAL_TR("core", "Remote Connection Closed"),
                        MsgIcon::Exclamation, MsgButtons::OK});
        unloadScoreCard();
        f_.m.mRoundNo = f_.g.gRounds + 1;
    } else {
        f_.host.msgBox({PETAL_TR("core", "An error occurred while trying to connect to your opponent."),
                        PETAL_TR("core", "Client Connection Closed"),
                        MsgIcon::Exclamation, MsgButtons::OK});
    }
    s.Close();
    f_.net.reset();
    f_.dealer.NewGame(true);
    const MsgResult again = f_.host.msgBox(
        {PETAL_TR("core", "Do you want to try and reconnect?"), PETAL_TR("core", "Reconnect"), MsgIcon::Question,
         MsgButtons::YesNo});
    if (again != MsgResult::Yes) {
        fallBack(false);
        return;
    }
    // A connection that comes and goes before the next poll would leave the socket in the
    // state just acted on, and the poll would see nothing: the new wait starts from closed.
    f_.g.gConnectState = 0;
    if (f_.g.gPlayMode == 1) {
        f_.m.mTurn = 0;
        f_.setMousePointer(FrmMain::kPointerDefault);
        s.Listen();
    } else {
        s.Connect();
    }
}

// The failure is told from a call of its own, not inside the socket's event (see DataArrival).
// Its state is taken as acted upon at once, so that the poll does not tell the failure first,
// in words of its own, before the reason comes.
void Connection::tcpMultiPlayer_Error(int Number, const std::string& Description) {
    f_.g.gConnectState = f_.tcpMultiPlayer->State();
    f_.host.post([this, Number, Description] { socketFailed(Number, Description); });
}

void Connection::socketFailed(int Number, const std::string& Description) {
    Socket& s = *f_.tcpMultiPlayer;
    endSessionPrompts();
    f_.host.msgBox({Description, said(f_.host, PETAL_TR("core", "Winsock Error %1"), {std::to_string(Number)}),
                    MsgIcon::Exclamation, MsgButtons::OK});
    s.Close();
    f_.net.reset();
    if (f_.g.gPlayMode != 2) {  // a host does not listen again by itself
        closeRouterPort();
        return;
    }
    const MsgResult again = f_.host.msgBox(
        {PETAL_TR("core", "Do you want to try and reconnect?"), PETAL_TR("core", "Reconnect"), MsgIcon::Question,
         MsgButtons::YesNo});
    if (again == MsgResult::Yes) {
        f_.g.gConnectState = 0;
        s.Connect();
        return;
    }
    f_.settings.WriteSettings(f_.g.gGameType, f_.g.gRounds, yakuFlag(), 0);
    f_.setMousePointer(FrmMain::kPointerDefault);
    f_.menu.mnuVChat.Enabled = false;
    if (f_.connectionStatus) f_.connectionStatus->Unload();
    f_.g.gConnectState = 0;
    f_.tmrWinsockState.setEnabled(false);
}

void Connection::showStatus(long connectMode, const std::string& caption, const std::string& message,
                            const std::string& detail) {
    FrmConnectionStatus status(f_);
    status.shownByPoll = f_.tmrWinsockState.ticking();
    status.ConnectMode = connectMode;
    status.StatusCaption = caption;
    status.StatusMessage = message;
    status.StatusDetail = detail;
    status.showsWhereToJoin = connectMode == 1;
    f_.host.showModal(status);
}

void Connection::openRouterPort() {
    if (router_ || !f_.options.flag(kRouterOption, false)) return;
    router_ = f_.host.createPortMapper();
    if (router_) router_->open(f_.tcpMultiPlayer->LocalPort);
}

void Connection::closeRouterPort() { router_.reset(); }

// The host's addresses and port, each marked for who can reach it, and what the router said.
// The marks stay English in the model; the form's view says them in the player's language.
void Connection::showWhereToJoin(FrmConnectionStatus& status) const {
    const int localPort = f_.tcpMultiPlayer->LocalPort;
    const std::string port = std::to_string(localPort);
    const char* const ownNetwork = PETAL_TR("core", "on your own network");
    std::vector<JoinPlace> places;
    if (router_ && router_->state().outcome == RouterPort::Outcome::Mapped)
        places.push_back({router_->state().externalAddress, PETAL_TR("core", "on the internet, through your router"), localPort});
    for (const std::string& address : f_.host.localAddresses()) {
        const bool ipv6 = address.find(':') != std::string::npos;
        // Global IPv6 addresses are 2000::/3; the rest (unique local ones) name a home network.
        const bool global = ipv6 ? (address[0] == '2' || address[0] == '3') : !unroutableIPv4(address);
        places.push_back({address,
                          !global ? ownNetwork
                          : ipv6  ? PETAL_TR("core", "on the internet, over IPv6")
                                  : PETAL_TR("core", "on the internet"),
                          localPort});
    }
    std::stable_partition(places.begin(), places.end(), [&](const JoinPlace& p) { return p.what != ownNetwork; });
    status.joinPlaces = places;
    std::string note = routerNote(port);
    if (places.empty())
        note = said(f_.host, PETAL_TR("core", "This computer is on no network: only a game on this computer can join, at port %1."),
                    {port});
    status.Label2 = note;
}

std::string Connection::routerNote(const std::string& port) const {
    if (!router_) return {};
    const RouterPort router = router_->state();
    const std::string helps = said(f_.host, PETAL_TR("core", "A friend on the internet can still join over IPv6, or through a port "
                                                             "forwarded to this computer by hand or by your provider."));
    switch (router.outcome) {
        case RouterPort::Outcome::Asking:
            return said(f_.host, PETAL_TR("core", "Asking your router to open port %1 for a friend on the internet..."), {port});
        case RouterPort::Outcome::Mapped:
            return said(f_.host, PETAL_TR("core", "Your friend can join at %1, port %2."), {router.externalAddress, port});
        case RouterPort::Outcome::NoRouter:
            return said(f_.host, PETAL_TR("core", "No router answered the request to open port %1. %2"), {port, helps});
        case RouterPort::Outcome::Refused:
            if (router.reason.empty())
                return said(f_.host, PETAL_TR("core", "Your router refused to open port %1. %2"), {port, helps});
            return said(f_.host, PETAL_TR("core", "Your router refused to open port %1 (%2). %3"), {port, router.reason, helps});
        case RouterPort::Outcome::Unroutable:
            if (router.externalAddress.empty())
                return said(f_.host, PETAL_TR("core", "Your router's own address on the internet is private or shared (a "
                                                      "carrier's NAT), so opening a port on it cannot help. %1"),
                            {helps});
            return said(f_.host, PETAL_TR("core", "Your router's own address on the internet, %1, is private or shared (a "
                                                  "carrier's NAT), so opening a port on it cannot help. %2"),
                        {router.externalAddress, helps});
    }
    return {};
}

bool Connection::waitForPeer(const std::string& caption, const std::string& message) {
    FrmConnectionStatus status(f_);
    status.waitsForPeer = true;
    status.ConnectMode = f_.g.gPlayMode;
    status.StatusCaption = caption;
    status.StatusMessage = message;
    f_.host.showModal(status);
    return !status.endedWithSession;
}

void Connection::endSessionPrompts() {
    f_.host.endSessionBoxes();
    std::vector<FrmConnectionStatus*> waits;
    for (FrmConnectionStatus* wait = f_.connectionStatus; wait; wait = wait->covered())
        if (wait->waitsForPeer && wait->loaded()) waits.push_back(wait);
    for (FrmConnectionStatus* wait : waits) {
        wait->endedWithSession = true;
        wait->Unload();
    }
}

void Connection::fallBack(bool clearTable) {
    Socket& s = *f_.tcpMultiPlayer;
    MainVars& m = f_.m;
    endSessionPrompts();
    s.Close();
    s.LocalPort = 0;
    f_.net.reset();
    closeRouterPort();
    f_.menu.mnuVChat.Enabled = false;
    f_.settings.WriteSettings(f_.g.gGameType, f_.g.gRounds, yakuFlag(), 0);
    m.mTurn = 0;
    m.mConnected = false;
    f_.setMousePointer(FrmMain::kPointerDefault);
    f_.tmrWinsockState.setEnabled(false);
    if (!clearTable) return;
    unloadScoreCard();
    m.mRoundNo = f_.g.gRounds + 1;
    f_.dealer.NewGame(true);
}

// Setup's "Reset Game" answered No, or a reconnect after a failure, leaves the last deal on
// the table while the connection is made anew.
void Connection::clearStaleTable() {
    if (f_.g.gGameInProgress != 0 && !f_.net.dealtInSession()) f_.dealer.NewGame(true);
}

void Connection::unloadScoreCard() {
    if (f_.scoreCard) f_.scoreCard->Unload();
}

}  // namespace petal
