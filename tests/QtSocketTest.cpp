// The program's socket over loopback: a peer that vanishes without closing is noticed.
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <QTimer>
#include <filesystem>

#include "ToolProcess.h"
#include "platform/Socket.h"
#include "platform/qt/QtHost.h"

namespace petal {
namespace {

int portOf(const sockaddr_storage& address) {
    return ntohs(address.ss_family == AF_INET6 ? reinterpret_cast<const sockaddr_in6&>(address).sin6_port
                                               : reinterpret_cast<const sockaddr_in&>(address).sin_port);
}

// The worst time in seconds that this process's connected sockets at the port take to give up
// on a silent peer, each end; 0 for an end that never does.
std::vector<int> giveUpSeconds(int port) {
    std::vector<int> ends;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        const int fd = std::stoi(entry.path().filename().string());
        sockaddr_storage local{}, peer{};
        socklen_t size = sizeof local, peerSize = sizeof peer;
        if (::getsockname(fd, reinterpret_cast<sockaddr*>(&local), &size) != 0 ||
            ::getpeername(fd, reinterpret_cast<sockaddr*>(&peer), &peerSize) != 0 ||
            (portOf(local) != port && portOf(peer) != port))
            continue;
        int on = 0, idle = 0, interval = 0, probes = 0;
        socklen_t n = sizeof(int);
        ::getsockopt(fd, SOL_SOCKET, SO_KEEPALIVE, &on, &n);
        ::getsockopt(fd, IPPROTO_TCP, TCP_KEEPIDLE, &idle, &n);
        ::getsockopt(fd, IPPROTO_TCP, TCP_KEEPINTVL, &interval, &n);
        ::getsockopt(fd, IPPROTO_TCP, TCP_KEEPCNT, &probes, &n);
        ends.push_back(on ? idle + interval * probes : 0);
    }
    return ends;
}

TEST(QtSocket, BothEndsGiveUpOnASilentPeerWithinAMinute) {
    QtHost host("/tmp");
    const auto listener = host.createSocket();
    const auto joiner = host.createSocket();
    listener->ConnectionRequest = [&](long id) {
        listener->Close();
        listener->Accept(id);
    };
    const int port = test::freePort();
    listener->LocalPort = port;
    listener->Listen();
    ASSERT_EQ(listener->State(), Socket::sckListening);
    joiner->RemoteHost = "127.0.0.1";
    joiner->RemotePort = port;
    joiner->Connect();
    bool late = false;
    QTimer::singleShot(10'000, [&late] { late = true; });
    host.waitUntil([&] {
        return late || (listener->State() == Socket::sckConnected && joiner->State() == Socket::sckConnected);
    });
    ASSERT_FALSE(late);
    const std::vector<int> ends = giveUpSeconds(port);
    ASSERT_EQ(ends.size(), 2u);
    for (int seconds : ends) {
        EXPECT_GT(seconds, 0) << "keep-alive is off";
        EXPECT_LE(seconds, 60);
    }
}

}  // namespace
}  // namespace petal
