#pragma once
// What crosses the wire, both ways: sending with CompleteSend, and the receive path that cuts
// the bytes into messages and dispatches each once, whole and in order. The remote player's
// moves (CARD) wait in order for the turn driver; everything else acts on arrival.
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "net/MessageFramer.h"
#include "platform/Timer.h"

namespace petal {

class FrmMain;

class WireProtocol {
public:
    static constexpr int kSettleMs = 100;      // a held message ends when no byte came this long
    static constexpr int kSendLimitMs = 30000;  // CompleteSend gives up after this
    static constexpr std::size_t kMaxMoves = 8;  // a peer is never this many moves ahead

    // A move of the remote player (CARD), its numbers read when it came.
    struct Move {
        std::string text;  // as it was sent
        int what = 0, where = 0;
    };

    explicit WireProtocol(FrmMain& f);

    // The socket's events.
    void tcpMultiPlayer_DataArrival(long bytesTotal);
    void tcpMultiPlayer_SendComplete();

    // Sends one message and waits until it has left (nothing is sent without a connection).
    void send(const std::string& message);
    void CompleteSend();
    // Dispatches now what came and waits for its own call, if anything does.
    void receivePending() {
        if (receivePosted_) receive();
    }

    // The oldest move of the remote player not yet replayed, or nullptr.
    const Move* nextMove() const { return moves_.empty() ? nullptr : &moves_.front(); }
    void takeMove() { moves_.pop_front(); }
    // True while a deal that came as DEAL is being dealt: it takes the seed and sends nothing.
    bool dealFromWire() const { return dealFromWire_; }
    // Deals from a seed text and a turn as a received DEAL gives them.
    void dealFrom(const std::string& seed, int turn);
    // A deal starts: answers and moves held for the last one are void.
    void dealStarted();
    // A deal of this connection has been dealt.
    bool dealtInSession() const { return dealtInSession_; }
    // "Your opponent declined a rematch." stands: the end of the connection that follows waits.
    bool tellingRefusal() const { return tellingRefusal_; }
    // This side is about to ask "Do you want to play again?": an answer that came early is
    // taken now.
    void rematchAsked();
    // Tells a refusal of the peer that came before this side asked, if one is held: the session
    // ends before it can be asked.
    void tellHeldRefusal();

    // A message that the game cannot take: the player is told, the connection is closed and
    // the game falls back to single play.
    void outOfStep(std::string what);
    // This side has said No to another game and is about to end: what comes meanwhile (the
    // host's next deal, say) is no longer taken.
    void leave() { leaving_ = true; }
    // A new connection, or none: what waits from the last one is dropped.
    void reset();

    // Where a received chat line goes, marker not included.
    std::function<void(const std::string& line)> chatReceived;

private:
    void receive();
    void framed(MessageFramer::Result result);
    void dispatchAll();
    void dispatch(const WireMessage& message);
    void receiveDeal(const WireMessage& message);
    void receiveNewg(int answer);
    void tellRefusal();
    void tellRestart();
    void receiveSetup(const WireMessage& message);
    void receiveMove(const WireMessage& message);
    void tmrSettle_Timer();

    FrmMain& f_;
    std::uint64_t sendsMade_ = 0, sendsLeft_ = 0;
    std::string received_;  // taken from the socket, not yet read
    bool receivePosted_ = false;
    MessageFramer framer_;
    std::vector<WireMessage> incoming_;  // framed from the last bytes; emptied before any dispatch
    std::deque<WireMessage> arrived_;  // framed, not yet dispatched
    std::deque<Move> moves_;           // CARD, for the turn driver
    std::vector<int> heldAnswers_;     // NEWG that came before this side asked
    bool rematchAsked_ = false;
    bool dealtInSession_ = false;  // the host's options are no longer taken
    bool dealFromWire_ = false;
    bool tellingRefusal_ = false;
    bool dispatching_ = false;
    bool leaving_ = false;
    Timer tmrSettle;
};

}  // namespace petal
