#include "platform/qt/RouterPortMapper.h"

#include <miniupnpc/miniupnpc.h>
#include <miniupnpc/upnpcommands.h>
#include <miniupnpc/upnperrors.h>
#include <arpa/inet.h>
#include <natpmp.h>
#include <ifaddrs.h>
#include <sys/select.h>

#include <chrono>
#include <string>

namespace petal {

namespace {

using Clock = std::chrono::steady_clock;

// Routers answer a search within a second; longer would keep a friend's address from the
// player for nothing. Both versions of the gateway are searched for at once.
constexpr int kSearchMs = 1000;
constexpr const char* kGateways[] = {"urn:schemas-upnp-org:device:InternetGatewayDevice:1",
                                     "urn:schemas-upnp-org:device:InternetGatewayDevice:2", nullptr};
constexpr std::chrono::milliseconds kNatPmpWait{1500};
// About an hour, renewed at half time, so that a mapping left by a program that crashed ends.
constexpr int kLeaseSeconds = 3600;
constexpr char kDescription[] = "Petalgarden";
// The UPnP error of a router that takes only mappings without an end.
constexpr int kOnlyPermanentLeases = 725;

// One request and its answer; false when none came in time.
bool natPmpAsk(natpmp_t& pmp, natpmpresp_t& response, Clock::time_point deadline) {
    for (;;) {
        fd_set fds;
        FD_ZERO(&fds);
        FD_SET(pmp.s, &fds);
        timeval timeout{};
        getnatpmprequesttimeout(&pmp, &timeout);
        const auto left = std::chrono::duration_cast<std::chrono::microseconds>(deadline - Clock::now()).count();
        if (left <= 0) return false;
        if (timeout.tv_sec * 1'000'000 + timeout.tv_usec > left) timeout = {left / 1'000'000, left % 1'000'000};
        select(pmp.s + 1, &fds, nullptr, nullptr, &timeout);
        const int r = readnatpmpresponseorretry(&pmp, &response);
        if (r != NATPMP_TRYAGAIN) return r >= 0;
    }
}

// This machine's global IPv6 addresses (2000::/3), which a friend on the internet can reach
// once the router lets them through.
std::vector<std::string> globalIPv6() {
    std::vector<std::string> found;
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0) return found;
    for (const ifaddrs* entry = list; entry; entry = entry->ifa_next) {
        if (!entry->ifa_addr || entry->ifa_addr->sa_family != AF_INET6) continue;
        const in6_addr& address = reinterpret_cast<const sockaddr_in6*>(entry->ifa_addr)->sin6_addr;
        if ((address.s6_addr[0] & 0xE0) != 0x20) continue;
        char text[INET6_ADDRSTRLEN] = {};
        inet_ntop(AF_INET6, &address, text, sizeof text);
        found.push_back(text);
    }
    freeifaddrs(list);
    return found;
}

}  // namespace

RouterPortMapper::~RouterPortMapper() {
    {
        std::lock_guard lock(mutex_);
        stop_ = true;
    }
    wake_.notify_all();
    if (worker_.joinable()) worker_.join();
}

void RouterPortMapper::open(int port) {
    if (worker_.joinable()) return;
    worker_ = std::thread([this, port] { run(port); });
}

RouterPort RouterPortMapper::state() const {
    std::lock_guard lock(mutex_);
    return state_;
}

bool RouterPortMapper::stopping() const {
    std::lock_guard lock(mutex_);
    return stop_;
}

void RouterPortMapper::set(RouterPort::Outcome outcome, const std::string& address, const std::string& reason) {
    std::lock_guard lock(mutex_);
    state_ = {outcome, address, reason};
}

void RouterPortMapper::run(int port) {
    if (!mapByUpnp(port) && !stopping() && !mapByNatPmp(port, kLeaseSeconds))
        set(RouterPort::Outcome::NoRouter, {}, {});
    if (!stopping()) openPinholes(port);
    std::unique_lock lock(mutex_);
    while (!stop_ && (state_.outcome == RouterPort::Outcome::Mapped || !pinholes_.empty())) {
        if (wake_.wait_for(lock, std::chrono::seconds(kLeaseSeconds / 2), [this] { return stop_; })) break;
        lock.unlock();
        renew(port);
        lock.lock();
    }
    const bool mapped = state_.outcome == RouterPort::Outcome::Mapped;
    lock.unlock();
    if (mapped) remove(port);
    for (const std::string& id : pinholes_) UPNP_DeletePinhole(pinholeUrl_.c_str(), pinholeService_.c_str(), id.c_str());
}

bool RouterPortMapper::mapByUpnp(int port) {
    int error = 0;
    UPNPDev* devices = upnpDiscoverDevices(kGateways, kSearchMs, nullptr, nullptr, UPNP_LOCAL_PORT_ANY, 0, 2, &error, 1);
    if (!devices) return false;
    UPNPUrls urls{};
    IGDdatas data{};
    char lanAddress[64] = {};
    const int found = UPNP_GetValidIGD(devices, &urls, &data, lanAddress, sizeof lanAddress);
    freeUPNPDevlist(devices);
    if (found != 1 && found != 2) {
        if (found != 0) FreeUPNPUrls(&urls);
        return false;
    }
    controlUrl_ = urls.controlURL;
    serviceType_ = data.first.servicetype;
    FreeUPNPUrls(&urls);
    char external[40] = {};
    if (UPNP_GetExternalIPAddress(controlUrl_.c_str(), serviceType_.c_str(), external) != UPNPCOMMAND_SUCCESS)
        external[0] = '\0';
    // A router with no address of its own on the internet says 0.0.0.0, or nothing.
    if (external[0] == '\0' || unroutableIPv4(external)) {
        set(RouterPort::Outcome::Unroutable, std::string(external) == "0.0.0.0" ? "" : external, {});
        return true;
    }
    const std::string portText = std::to_string(port);
    int r = UPNP_AddPortMapping(controlUrl_.c_str(), serviceType_.c_str(), portText.c_str(), portText.c_str(),
                                lanAddress, kDescription, "TCP", nullptr, std::to_string(kLeaseSeconds).c_str());
    if (r == kOnlyPermanentLeases)
        r = UPNP_AddPortMapping(controlUrl_.c_str(), serviceType_.c_str(), portText.c_str(), portText.c_str(),
                                lanAddress, kDescription, "TCP", nullptr, "0");
    if (r != UPNPCOMMAND_SUCCESS) {
        set(RouterPort::Outcome::Refused, external, strupnperror(r));
        return true;
    }
    protocol_ = Protocol::Upnp;
    lanAddress_ = lanAddress;
    set(RouterPort::Outcome::Mapped, external, {});
    return true;
}

bool RouterPortMapper::mapByNatPmp(int port, int lifetime) {
    natpmp_t pmp;
    if (initnatpmp(&pmp, 0, 0) < 0) return false;
    const auto deadline = Clock::now() + kNatPmpWait;
    natpmpresp_t response{};
    if (sendpublicaddressrequest(&pmp) < 0 || !natPmpAsk(pmp, response, deadline)) {
        closenatpmp(&pmp);
        return false;
    }
    char external[INET_ADDRSTRLEN] = {};
    inet_ntop(AF_INET, &response.pnu.publicaddress.addr, external, sizeof external);
    if (lifetime > 0 && unroutableIPv4(external)) {
        set(RouterPort::Outcome::Unroutable, external, {});
    } else if (sendnewportmappingrequest(&pmp, NATPMP_PROTOCOL_TCP, static_cast<uint16_t>(port),
                                         static_cast<uint16_t>(lifetime > 0 ? port : 0),  // 0 and 0: remove it
                                         static_cast<uint32_t>(lifetime)) < 0 ||
               !natPmpAsk(pmp, response, Clock::now() + kNatPmpWait)) {
        if (lifetime > 0) set(RouterPort::Outcome::Refused, external, "the router did not map the port");
    } else if (lifetime > 0) {
        protocol_ = Protocol::NatPmp;
        const bool samePort = response.pnu.newportmapping.mappedpublicport == port;
        if (samePort) set(RouterPort::Outcome::Mapped, external, {});
        else set(RouterPort::Outcome::Refused, external, "the router offered another port");
    }
    closenatpmp(&pmp);
    return true;
}

// Asked over IPv6, as a router lets a machine open its firewall only for the address it asks
// from.
void RouterPortMapper::openPinholes(int port) {
    const std::vector<std::string> addresses = globalIPv6();
    if (addresses.empty()) return;
    int error = 0;
    UPNPDev* devices = upnpDiscoverDevices(kGateways, kSearchMs, nullptr, nullptr, UPNP_LOCAL_PORT_ANY, 1, 2, &error, 1);
    if (!devices) return;
    UPNPUrls urls{};
    IGDdatas data{};
    char lanAddress[64] = {};
    const int found = UPNP_GetValidIGD(devices, &urls, &data, lanAddress, sizeof lanAddress);
    freeUPNPDevlist(devices);
    if (found == 0) return;
    if (urls.controlURL_6FC && urls.controlURL_6FC[0] && data.IPv6FC.servicetype[0]) {
        pinholeUrl_ = urls.controlURL_6FC;
        pinholeService_ = data.IPv6FC.servicetype;
        const std::string portText = std::to_string(port);
        for (const std::string& address : addresses) {
            char id[8] = {};
            if (UPNP_AddPinhole(pinholeUrl_.c_str(), pinholeService_.c_str(), "", "0", address.c_str(), portText.c_str(),
                                "6", std::to_string(kLeaseSeconds).c_str(), id) == UPNPCOMMAND_SUCCESS)
                pinholes_.push_back(id);
        }
    }
    FreeUPNPUrls(&urls);
}

void RouterPortMapper::renew(int port) {
    for (const std::string& id : pinholes_)
        UPNP_UpdatePinhole(pinholeUrl_.c_str(), pinholeService_.c_str(), id.c_str(), std::to_string(kLeaseSeconds).c_str());
    if (protocol_ == Protocol::None) return;
    if (protocol_ == Protocol::NatPmp) {
        mapByNatPmp(port, kLeaseSeconds);
        return;
    }
    const std::string portText = std::to_string(port);
    const int r = UPNP_AddPortMapping(controlUrl_.c_str(), serviceType_.c_str(), portText.c_str(), portText.c_str(),
                                      lanAddress_.c_str(), kDescription, "TCP", nullptr,
                                      std::to_string(kLeaseSeconds).c_str());
    if (r != UPNPCOMMAND_SUCCESS && r != kOnlyPermanentLeases)
        set(RouterPort::Outcome::Refused, state().externalAddress, strupnperror(r));
}

void RouterPortMapper::remove(int port) {
    if (protocol_ == Protocol::NatPmp) {
        mapByNatPmp(port, 0);
        return;
    }
    UPNP_DeletePortMapping(controlUrl_.c_str(), serviceType_.c_str(), std::to_string(port).c_str(), "TCP", nullptr);
}

}  // namespace petal
