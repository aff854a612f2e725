#pragma once
// The connection's life: listening or connecting, the poll of the socket's state, the waiting
// forms, the loss of the peer and the socket's errors, and the fall back to single play.
#include <memory>
#include <string>

namespace petal {

class FrmConnectionStatus;
class FrmMain;
class PortMapper;

class Connection {
public:
    static constexpr int kPort = 4800;

    // Ours, in the options file: hosting opens the port on the home router. Off unless the
    // player turns it on, so that no run of a test or tool asks a router.
    static constexpr const char* kRouterOption = "router-port";

    explicit Connection(FrmMain& f);
    ~Connection();

    // The port of a session where the join box names none: the game's own, or the one that the
    // command line gave.
    int port = kPort;

    void StartConnection();
    void tcpMultiPlayer_ConnectionRequest(long requestID);
    void tcpMultiPlayer_Error(int Number, const std::string& Description);
    void tmrWinsockState_Timer();
    // The modal wait of the network, until something unloads it.
    void showStatus(long connectMode, const std::string& caption, const std::string& message,
                    const std::string& detail = {});
    // A wait of the session for the peer's answer; false when the session ended instead.
    bool waitForPeer(const std::string& caption, const std::string& message);
    // The session has ended: its questions and its waits for the peer close.
    void endSessionPrompts();
    // Back to single play after the session has ended: the socket closed, the options kept.
    // With clearTable, the game of the session ends too, as a lost connection ends it.
    void fallBack(bool clearTable);
    // A deal left on the table from before this connection is no game of its session: cleared.
    void clearStaleTable();
    // The yaku flag as the fall back writes it: 1 or 0.
    int yakuFlag() const;
    // Hosting has ended, or Setup changed: the port on the router closes.
    void closeRouterPort();
    // The host's wait shows where a friend can join, as the router's answer comes.
    void showWhereToJoin(FrmConnectionStatus& status) const;

private:
    void actOnState(int state);
    void hostLost();
    void lossProcedure();
    void socketFailed(int Number, const std::string& Description);
    void unloadScoreCard();
    void openRouterPort();
    std::string routerNote(const std::string& port) const;

    FrmMain& f_;
    std::unique_ptr<PortMapper> router_;
};

}  // namespace petal
