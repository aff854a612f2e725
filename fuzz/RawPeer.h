#pragma once
// A bare socket in a simulated world, driven by a fuzz target instead of a copy of the game: it
// listens or connects as its rig tells it, sends whatever bytes it is given, and keeps what the
// program sent it.
#include <memory>
#include <string>

#include "platform/Socket.h"
#include "platform/sim/SimHost.h"

namespace petal {
class SimWorld;
}

namespace petal::fuzz {

class RawPeer {
public:
    RawPeer(SimWorld& world, const std::filesystem::path& folder);

    void listen(int port);
    void connect(const std::string& address, int port);
    void close() { socket_->Close(); }
    bool connected() const { return socket_->State() == Socket::sckConnected; }
    // Sends now, on the peer's own stack; nothing goes out without a connection.
    void send(const std::string& bytes);
    // Everything the program has sent since the last take.
    std::string take();
    // Everything this peer has sent on the current connection.
    const std::string& sent() const { return sent_; }
    void forgetSent() { sent_.clear(); }

private:
    SimWorld& world_;
    SimHost host_;
    std::unique_ptr<Socket> socket_;
    std::string received_;
    std::string sent_;
};

}  // namespace petal::fuzz
