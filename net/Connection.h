#pragma once
// The connection's life: listening or connecting, the poll of the socket's state, the waiting
// forms, the loss of the peer and the socket's errors, and the fall back to single play.
#include <string>

namespace petal {

class FrmMain;

class Connection {
public:
    static constexpr int kPort = 4800;

    explicit Connection(FrmMain& f) : f_(f) {}

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

private:
    void actOnState(int state);
    void hostLost();
    void lossProcedure();
    void socketFailed(int Number, const std::string& Description);
    void unloadScoreCard();
    std::string whereToJoin() const;

    FrmMain& f_;
};

}  // namespace petal
