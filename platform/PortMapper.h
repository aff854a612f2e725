#pragma once
// A port of this machine opened on the home router, so that a friend beyond it can reach a
// hosted game. The router is asked in the background: open() and state() never wait on it.
#include <cstdint>
#include <string>

namespace petal {

struct RouterPort {
    enum class Outcome {
        Asking,    // no answer yet
        Mapped,    // the router forwards externalAddress:port to this machine
        NoRouter,  // no router answered, by either protocol
        Refused,   // a router answered and would not map the port (reason says why)
        Unroutable // mapped or not, the router's own external address is private or shared
    };
    Outcome outcome = Outcome::Asking;
    std::string externalAddress;
    std::string reason;
};

class PortMapper {
public:
    // The mapping ends with the mapper: it is removed from the router before this returns.
    virtual ~PortMapper() = default;
    // Asks the router to forward this TCP port to this machine, and to renew it while it stands.
    virtual void open(int port) = 0;
    virtual RouterPort state() const = 0;
};

}  // namespace petal

namespace petal {

// An IPv4 address that the internet does not route to: private (10/8, 172.16/12, 192.168/16),
// shared by a carrier's NAT (100.64/10), link-local, loopback or unspecified. Text that is no
// IPv4 address is not one.
bool unroutableIPv4(const std::string& address);

}  // namespace petal
