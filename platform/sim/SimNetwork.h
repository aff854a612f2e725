#pragma once
// The network between simulated programs: listening ports, connections, and a seeded plan of
// faults. A send may arrive whole, split over two reads, merged with the next send or late;
// a connection may be refused or dropped at any moment; a line of chat may come before a send,
// as if the peer had typed it just then. Bytes on a connection keep their order.
#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

namespace petal {

class SimSocket;
class SimWorld;

class SimNetwork {
public:
    static constexpr std::int64_t kLatency = 2;       // one way, milliseconds
    static constexpr std::int64_t kSplitGapMax = 40;  // between the two reads of a split send
    static constexpr std::int64_t kMergeHold = 150;   // how long a send waits for the next

    explicit SimNetwork(SimWorld& world);

    // 0: every send arrives whole and on time. Otherwise a plan seeded with the number.
    void setFaults(std::uint64_t seed);
    int faults() const { return faults_; }
    // A drop that the plan has scheduled and that has struck; the caller resets it.
    bool dropped() const { return dropped_; }
    void clearDropped() { dropped_ = false; }
    // Breaks the live connection now: one end sees an error, the other its peer closing.
    void drop(bool errorAtListener);
    // The chat lines that the plan sent to a socket and that have not been taken, oldest first.
    std::deque<std::string>& chatLinesTo(int socketId) { return chatTo_[socketId]; }

    // For sockets.
    int add(SimSocket& socket);
    void remove(SimSocket& socket);
    void listen(SimSocket& socket);
    void stopListening(SimSocket& socket);
    void connect(SimSocket& client);
    void accept(SimSocket& server, long requestID);
    void close(SimSocket& socket);
    void send(SimSocket& from, const std::string& bytes);

private:
    struct Link {
        int ends[2] = {0, 0};  // socket ids: 0 the connecting end, 1 the accepting end
        bool accepted = false;
        bool reset = false;  // dropped: what is still on the way is lost
        bool closedBeforeAccept = false;  // the connecting end left before the listener took it
        std::int64_t lastArrival[2] = {0, 0};  // by the end that receives
        std::string held[2];                   // a send held back to be merged with the next
        int heldGeneration[2] = {0, 0};
    };

    SimSocket* socket(int id) const;
    void request(int clientId, int listenerId);
    void deliver(int link, int to, std::string bytes, std::int64_t at);
    void sendPlanned(int link, int to, std::string bytes);
    void flushHeld(int link, int to, int generation);
    bool breakLink(int link, int errorEnd);
    std::uint64_t random();
    bool chance(int percent) { return faultsOn_ && static_cast<int>(random() % 100) < percent; }
    std::string chatLine();

    SimWorld& world_;
    std::map<int, SimSocket*> sockets_;
    std::map<int, int> listeners_;  // port to socket id
    std::map<int, Link> links_;
    std::map<int, std::deque<std::string>> chatTo_;
    int nextId_ = 1;
    bool faultsOn_ = false;
    std::uint64_t rng_ = 0;
    int faults_ = 0;
    bool dropped_ = false;
};

}  // namespace petal
