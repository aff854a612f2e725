#pragma once
// The program's way to open its port on the home router: UPnP-IGD first, NAT-PMP where no
// UPnP router answers. A thread of its own asks, renews the lease while the mapper stands and
// removes the mapping at its end, so that the game never waits on a router.
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/PortMapper.h"

namespace petal {

class RouterPortMapper : public PortMapper {
public:
    RouterPortMapper() = default;
    ~RouterPortMapper() override;

    void open(int port) override;
    RouterPort state() const override;

private:
    enum class Protocol { None, Upnp, NatPmp };
    void run(int port);
    // Each asks once and sets the state; true when the router answered at all.
    bool mapByUpnp(int port);
    bool mapByNatPmp(int port, int lifetime);
    // The router's IPv6 firewall, where it has one, opened for this machine's global addresses.
    void openPinholes(int port);
    void renew(int port);
    void remove(int port);
    void set(RouterPort::Outcome outcome, const std::string& address, const std::string& reason);
    bool stopping() const;

    mutable std::mutex mutex_;
    std::condition_variable wake_;
    RouterPort state_;
    Protocol protocol_ = Protocol::None;
    std::string controlUrl_, serviceType_, lanAddress_;
    std::string pinholeUrl_, pinholeService_;
    std::vector<std::string> pinholes_;  // their ids
    bool stop_ = false;
    std::thread worker_;
};

}  // namespace petal
