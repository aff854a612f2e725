#include "platform/sim/SimNetwork.h"

#include <algorithm>
#include <iterator>

#include "net/MessageFramer.h"
#include "platform/Socket.h"
#include "platform/sim/SimHost.h"
#include "platform/sim/SimSocket.h"
#include "platform/sim/SimWorld.h"

namespace petal {

namespace {
// Chances, in percent, of each fault while a plan is on.
constexpr int kSplitPercent = 12;
constexpr int kMergePercent = 8;
constexpr int kDelayPercent = 10;
constexpr int kRefusePercent = 25;
constexpr std::uint64_t kDropOneIn = 300;  // sends
constexpr int kChatPercent = 3;
// Before the messages of a deal's end, where a line that swallowed one would stall the game.
constexpr int kChatBeforeEndPercent = 30;

bool endsADeal(const std::string& bytes) {
    for (const char* tag : {"SCOP", "SCCL", "QUIT", "NEWG"})
        if (bytes.rfind(tag, 0) == 0) return true;
    return false;
}
}  // namespace

SimNetwork::SimNetwork(SimWorld& world) : world_(world) {}

void SimNetwork::setFaults(std::uint64_t seed) {
    faultsOn_ = seed != 0;
    rng_ = seed;
}

// What players type: words of the game's messages, commas, numbers, letters beyond ASCII, and
// now and then a line as long as the box takes.
std::string SimNetwork::chatLine() {
    static constexpr const char* kPieces[] = {"gg", " ", ",", "CARD,1,-1", "SCOP", "SCCL", "QUIT", "NEWG,1",
                                              "CHAT,", "DEAL,12:00:00,1", "SEUP", "\xC3\xA9", "\xE6\xBC\xA2", "\x10"};
    if (random() % 10 == 0) return std::string(197, 'Q') + "UIT";
    std::string line;
    for (std::uint64_t n = 1 + random() % 5; n > 0; --n) line += kPieces[random() % std::size(kPieces)];
    return line;
}

std::uint64_t SimNetwork::random() {
    std::uint64_t z = (rng_ += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

int SimNetwork::add(SimSocket& socket) {
    const int id = nextId_++;
    sockets_[id] = &socket;
    return id;
}

void SimNetwork::remove(SimSocket& socket) {
    close(socket);
    sockets_.erase(socket.id());
}

SimSocket* SimNetwork::socket(int id) const {
    const auto it = sockets_.find(id);
    return it == sockets_.end() ? nullptr : it->second;
}

void SimNetwork::listen(SimSocket& s) {
    const auto taken = listeners_.find(s.LocalPort);
    if (taken != listeners_.end() && socket(taken->second) && socket(taken->second)->State() == Socket::sckListening) {
        s.post(0, [](SimSocket& self) { self.raiseError(10048, "Address already in use"); });
        return;
    }
    listeners_[s.LocalPort] = s.id();
    s.setState(Socket::sckListening);
}

void SimNetwork::stopListening(SimSocket& s) {
    for (auto it = listeners_.begin(); it != listeners_.end();)
        it = it->second == s.id() ? listeners_.erase(it) : std::next(it);
}

void SimNetwork::connect(SimSocket& client) {
    client.setState(Socket::sckResolvingHost);
    client.post(1, [this](SimSocket& c) {
        if (c.State() != Socket::sckResolvingHost) return;
        if (c.RemoteHost.find_first_not_of(' ') == std::string::npos) {
            c.raiseError(11001, "Host not found");
            return;
        }
        c.setState(Socket::sckConnecting);
        c.post(kLatency, [this](SimSocket& c2) {
            if (c2.State() != Socket::sckConnecting) return;
            const auto listener = listeners_.find(c2.RemotePort);
            const bool listening = listener != listeners_.end() && socket(listener->second);
            if (listening && chance(kRefusePercent)) ++faults_;
            else if (listening) return request(c2.id(), listener->second);
            c2.raiseError(10061, "Connection refused");
        });
    });
}

// The handshake is done before the listener hears of it: the client is connected at once, and
// a request that the listener does not accept is closed again.
void SimNetwork::request(int clientId, int listenerId) {
    const int id = nextId_++;
    Link& link = links_[id];
    link.ends[0] = clientId;
    SimSocket* client = socket(clientId);
    client->link = id;
    client->setState(Socket::sckConnected);
    socket(listenerId)->post(kLatency, [this, id](SimSocket& listener) {
        listener.raiseConnectionRequest(id);
        if (!links_[id].accepted) breakLink(id, -1);
    });
}

void SimNetwork::accept(SimSocket& server, long requestID) {
    const auto it = links_.find(static_cast<int>(requestID));
    if (it == links_.end() || it->second.accepted) return;
    stopListening(server);
    it->second.ends[1] = server.id();
    it->second.accepted = true;
    server.link = it->first;
    server.inbound.clear();
    server.setState(Socket::sckConnected);
    if (it->second.closedBeforeAccept) {
        const int id = it->first;
        server.post(kLatency, [id](SimSocket& s) {
            if (s.link == id && s.State() == Socket::sckConnected) s.setState(Socket::sckClosing);
        });
    }
}

void SimNetwork::close(SimSocket& s) {
    stopListening(s);
    const int id = s.link;
    if (id == 0) return;
    Link& link = links_[id];
    const int self = link.ends[0] == s.id() ? 0 : 1;
    const int peer = 1 - self;
    if (!link.accepted) link.closedBeforeAccept = true;
    if (!link.held[peer].empty()) flushHeld(id, peer, link.heldGeneration[peer]);
    // The peer hears of the close after what was sent before it.
    if (SimSocket* other = socket(link.ends[peer]); other && other->link == id) {
        const std::int64_t at = std::max(world_.now() + kLatency, link.lastArrival[peer]);
        other->post(at - world_.now(), [id](SimSocket& o) {
            if (o.link == id && o.State() == Socket::sckConnected) o.setState(Socket::sckClosing);
        });
    }
    s.link = 0;
}

void SimNetwork::send(SimSocket& from, const std::string& bytes) {
    const int id = from.link;
    const auto it = links_.find(id);
    if (it == links_.end()) return;
    Link& link = it->second;
    const int to = link.ends[0] == from.id() ? 1 : 0;
    from.sendsLeave();
    std::string data = std::move(link.held[to]) + bytes;
    if (chance(endsADeal(bytes) ? kChatBeforeEndPercent : kChatPercent)) {
        ++faults_;
        std::string line = chatLine();
        data.insert(data.size() - bytes.size(), "CHAT," + chatText(line));
        chatTo_[link.ends[to]].push_back(std::move(line));
    }
    link.held[to].clear();
    ++link.heldGeneration[to];
    if (chance(kMergePercent)) {
        ++faults_;
        link.held[to] = std::move(data);
        const int generation = link.heldGeneration[to];
        from.post(kMergeHold, [this, id, to, generation](SimSocket&) { flushHeld(id, to, generation); });
    } else {
        sendPlanned(id, to, std::move(data));
    }
    if (faultsOn_ && random() % kDropOneIn == 0) {
        const std::int64_t delay = static_cast<std::int64_t>(random() % 2000);
        const bool atListener = random() % 2 == 0;
        from.post(delay, [this, id, atListener](SimSocket&) {
            if (!links_.count(id) || links_[id].reset || !breakLink(id, atListener ? 1 : 0)) return;
            ++faults_;
            dropped_ = true;
        });
    }
}

void SimNetwork::drop(bool errorAtListener) {
    for (auto& [id, link] : links_) {
        if (!link.accepted || link.reset) continue;
        const SimSocket* a = socket(link.ends[0]);
        const SimSocket* b = socket(link.ends[1]);
        if (a && b && a->link == id && b->link == id && breakLink(id, errorAtListener ? 1 : 0)) dropped_ = true;
    }
}

void SimNetwork::flushHeld(int id, int to, int generation) {
    Link& link = links_[id];
    if (link.heldGeneration[to] != generation || link.held[to].empty()) return;
    std::string data = std::move(link.held[to]);
    link.held[to].clear();
    ++link.heldGeneration[to];
    sendPlanned(id, to, std::move(data));
}

void SimNetwork::sendPlanned(int id, int to, std::string bytes) {
    std::int64_t at = world_.now() + kLatency;
    if (chance(kDelayPercent)) {
        ++faults_;
        at += 100 + static_cast<std::int64_t>(random() % 1400);
    }
    if (bytes.size() >= 2 && chance(kSplitPercent)) {
        ++faults_;
        const std::size_t cut = 1 + random() % (bytes.size() - 1);
        deliver(id, to, bytes.substr(0, cut), at);
        deliver(id, to, bytes.substr(cut), at + 1 + static_cast<std::int64_t>(random() % kSplitGapMax));
        return;
    }
    deliver(id, to, std::move(bytes), at);
}

void SimNetwork::deliver(int id, int to, std::string bytes, std::int64_t at) {
    Link& link = links_[id];
    at = std::max(at, link.lastArrival[to]);
    link.lastArrival[to] = at;
    SimSocket* receiver = socket(link.ends[to]);
    if (!receiver) return;
    receiver->post(at - world_.now(), [this, id, bytes = std::move(bytes)](SimSocket& s) {
        if (s.link != id || links_[id].reset) return;
        s.inbound += bytes;
        s.raiseDataArrival();
    });
}

// errorEnd: the end (0 or 1) that sees the connection reset; -1 for a plain close by the
// listener, which the client sees as its peer closing.
bool SimNetwork::breakLink(int id, int errorEnd) {
    Link& link = links_[id];
    if (errorEnd >= 0) link.reset = true;
    bool broke = false;
    for (int end = 0; end < 2; ++end) {
        SimSocket* s = socket(link.ends[end]);
        if (!s || s->link != id) continue;
        broke = true;
        if (end == errorEnd) {
            s->post(0, [id](SimSocket& self) {
                if (self.link == id) self.raiseError(10054, "Connection reset by peer");
            });
        } else {
            s->post(kLatency, [id](SimSocket& self) {
                if (self.link == id && self.State() == Socket::sckConnected) self.setState(Socket::sckClosing);
            });
        }
    }
    return broke;
}

}  // namespace petal
