#pragma once
// A socket of a simulated program, joined to others by the world's SimNetwork. Its events run
// as handlers of its own program at virtual times that the network sets.
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/Socket.h"

namespace petal {

class SimHost;
class SimNetwork;

class SimSocket : public Socket {
public:
    SimSocket(SimHost& host, SimNetwork* network);
    ~SimSocket() override;

    int State() const override { return state_; }
    void Listen() override;
    void Connect() override;
    void Accept(long requestID) override;
    void Close() override;
    void SendData(const std::string& data) override;
    std::string GetData() override;

    // For the network.
    int id() const { return id_; }
    SimHost* host() const { return host_; }
    void hostGone() { host_ = nullptr; }
    void setState(int state) { state_ = state; }
    int link = 0;         // the connection this socket is an end of; 0 none
    std::string inbound;  // arrived, not yet taken
    // Runs an event of this socket on its program, unless the socket is gone by then.
    void post(std::int64_t delay, std::function<void(SimSocket&)> event);
    // The events, each delivered with the game's handler running inside it.
    void raiseError(int number, const std::string& description);
    void raiseDataArrival();
    void raiseConnectionRequest(long requestID);
    // Once the sends made so far have left: one event for all that leave together.
    void sendsLeave();

    // A pass of events in a loop `depth` loops deep on this program's stack. A platform socket
    // runs the game's handler inside the signal that delivers its event, and frees a connection
    // closed by a handler at the next pass of the loop in which it was closed: if that comes
    // while the event is still being delivered, the program returns into a freed object. The
    // simulated socket fails the run there instead.
    void eventPass(int depth) const;

private:
    void requireClosed() const;
    template <class Event>
    void deliver(Event&& event);

    bool completionDue_ = false;
    int delivering_ = 0;     // events of this socket being delivered on the program's stack
    int releaseDepth_ = -1;  // where a connection closed under one of them is freed; -1 none

    SimHost* host_;
    SimNetwork* network_;
    int id_;
    int state_ = sckClosed;
};

}  // namespace petal
