#include "platform/sim/SimSocket.h"

#include <algorithm>

#include "platform/sim/SimHost.h"
#include "platform/sim/SimNetwork.h"
#include "platform/UnexpectedPrompt.h"

namespace petal {

SimSocket::SimSocket(SimHost& host, SimNetwork* network)
    : host_(&host), network_(network), id_(network ? network->add(*this) : 0) {}

SimSocket::~SimSocket() {
    if (network_) network_->remove(*this);
    if (host_) host_->socketGone(*this);
}

void SimSocket::requireClosed() const {
    if (state_ != sckClosed) throw SocketError(kInvalidOperation, "Invalid operation at current state");
}

void SimSocket::post(std::int64_t delay, std::function<void(SimSocket&)> event) {
    if (!host_) return;
    host_->scheduleSocketEvent(host_->now() + delay, *this, std::move(event));
}

template <class Event>
void SimSocket::deliver(Event&& event) {
    ++delivering_;
    struct Done {
        SimSocket& s;
        ~Done() {
            if (--s.delivering_ == 0 && s.releaseDepth_ >= 0) {
                s.releaseDepth_ = -1;
                if (s.host_) s.host_->releaseSettled();
            }
        }
    } done{*this};
    event();
}

void SimSocket::raiseError(int number, const std::string& description) {
    state_ = sckError;
    deliver([&] {
        if (Error) Error(number, description);
    });
}

void SimSocket::raiseDataArrival() {
    deliver([this] {
        if (DataArrival) DataArrival(static_cast<long>(inbound.size()));
    });
}

void SimSocket::raiseConnectionRequest(long requestID) {
    deliver([&] {
        if (ConnectionRequest) ConnectionRequest(requestID);
    });
}

void SimSocket::sendsLeave() {
    if (completionDue_) return;
    completionDue_ = true;
    post(0, [connection = link](SimSocket& s) {
        if (s.link != connection || !s.completionDue_) return;
        s.completionDue_ = false;
        s.deliver([&s] {
            if (s.SendComplete) s.SendComplete();
        });
    });
}

void SimSocket::eventPass(int depth) const {
    if (releaseDepth_ >= 0 && depth <= releaseDepth_)
        throw UnexpectedPrompt("a connection closed under its own event was freed while that event was still being "
                               "delivered: the program would return into a freed socket");
}

void SimSocket::Listen() {
    requireClosed();
    if (!network_) {
        post(0, [](SimSocket& s) { s.raiseError(10050, "The network is down"); });
        return;
    }
    network_->listen(*this);
}

void SimSocket::Connect() {
    requireClosed();
    if (!network_) {
        post(0, [](SimSocket& s) { s.raiseError(10050, "The network is down"); });
        return;
    }
    network_->connect(*this);
}

void SimSocket::Accept(long requestID) {
    if (network_) network_->accept(*this, requestID);
}

void SimSocket::Close() {
    if (network_) network_->close(*this);
    if (delivering_ > 0 && releaseDepth_ < 0 && host_) {
        releaseDepth_ = host_->loopDepth();
        host_->releasePending();
    }
    state_ = sckClosed;
    link = 0;
    completionDue_ = false;
    inbound.clear();
}

void SimSocket::SendData(const std::string& data) {
    if (state_ == sckConnected && network_) network_->send(*this, data);
}

std::string SimSocket::GetData() {
    std::string taken;
    taken.swap(inbound);
    return taken;
}

}  // namespace petal
