#include "RawPeer.h"

#include "platform/sim/SimWorld.h"

namespace petal::fuzz {

RawPeer::RawPeer(SimWorld& world, const std::filesystem::path& folder) : world_(world), host_(folder) {
    world.join(host_);
    socket_ = host_.createSocket();
    socket_->DataArrival = [this](long) { received_ += socket_->GetData(); };
    socket_->ConnectionRequest = [this](long id) {
        socket_->Close();
        socket_->Accept(id);
        sent_.clear();
    };
}

void RawPeer::listen(int port) {
    world_.act(host_, [&] {
        socket_->Close();
        socket_->LocalPort = port;
        socket_->Listen();
    });
}

void RawPeer::connect(const std::string& address, int port) {
    world_.act(host_, [&] {
        socket_->Close();
        socket_->RemoteHost = address;
        socket_->RemotePort = port;
        socket_->Connect();
        sent_.clear();
    });
}

void RawPeer::send(const std::string& bytes) {
    if (!connected() || bytes.empty()) return;
    world_.act(host_, [&] { socket_->SendData(bytes); });
    sent_ += bytes;
}

std::string RawPeer::take() {
    std::string taken;
    taken.swap(received_);
    return taken;
}

}  // namespace petal::fuzz
