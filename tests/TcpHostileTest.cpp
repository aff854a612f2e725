// Hostile peers over real TCP against a headless host that stays: after each, the host tells
// and listens again, its memory stays bounded, and the next game works.
#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <thread>

#include "GameFixture.h"
#include "ToolProcess.h"

namespace petal::test {
namespace {

using namespace std::chrono_literals;

// A bare TCP peer on 127.0.0.1; -1 if nothing took the connection within the limit.
int connectTo(int port) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (::connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) return fd;
        ::close(fd);
        std::this_thread::sleep_for(20ms);
    }
    return -1;
}

void sendAll(int fd, const std::string& bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        const ssize_t n = ::send(fd, bytes.data() + at, bytes.size() - at, MSG_NOSIGNAL);
        if (n <= 0) return;  // the host has closed: what is left is not wanted
        at += static_cast<std::size_t>(n);
    }
}

// Reads until the text holds `wanted`, the peer closes, or the limit.
std::string readUntil(int fd, const std::string& wanted, std::chrono::milliseconds limit) {
    timeval wait{0, 100'000};
    ::setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &wait, sizeof wait);
    std::string got;
    const auto until = std::chrono::steady_clock::now() + limit;
    char buffer[4096];
    while (got.find(wanted) == std::string::npos && std::chrono::steady_clock::now() < until) {
        const ssize_t n = ::recv(fd, buffer, sizeof buffer, 0);
        if (n == 0) break;
        if (n > 0) got.append(buffer, static_cast<std::size_t>(n));
    }
    return got;
}

class TcpHostile : public ::testing::Test {
protected:
    void SetUp() override {
        port = freePort();
        host = startTool({"host", "--port", std::to_string(port), "--stay", "--deals", "1000", "--tournament", "2",
                          "--policy", "random:3"},
                         dir.path() / "host.txt", dir.path() / "host.err");
    }
    void TearDown() override {
        ::kill(host, SIGTERM);
        finishTool(host, 5s);
    }
    // A headless player joins for one tournament of two rounds; true if it ended as designed.
    bool goodGame() {
        if (!listening(port, 10s)) return false;
        const auto trace = dir.path() / "join.txt";
        const pid_t join = startTool({"join", "127.0.0.1", "--port", std::to_string(port), "--deals", "2", "--trace"},
                                     trace, dir.path() / "join.err");
        const int status = finishTool(join, 60s);
        const std::string text = fileText(trace);
        int ends = 0;
        for (std::size_t at = 0; (at = text.find("\"ev\":\"end\"", at)) != std::string::npos; ++at) ++ends;
        return status == 0 && ends == 2;
    }

    TempDir dir;
    int port = 0;
    pid_t host = 0;
};

TEST_F(TcpHostile, EachHostilePeerLeavesTheHostWorking) {
    ASSERT_TRUE(goodGame()) << "a first game";
    const long before = residentKiB(host);

    // Eight megabytes that never end a message.
    ASSERT_TRUE(listening(port, 10s));
    int fd = connectTo(port);
    ASSERT_GE(fd, 0);
    sendAll(fd, "CHAT," + std::string(8 << 20, 'x'));
    ::close(fd);
    EXPECT_TRUE(goodGame()) << "after a flood";

    // Connections opened and closed in a loop.
    ASSERT_TRUE(listening(port, 10s));
    for (int i = 0; i < 60; ++i) {
        fd = connectTo(port);
        if (fd >= 0) ::close(fd);
        std::this_thread::sleep_for(5ms);
    }
    EXPECT_TRUE(goodGame()) << "after connections in a loop";

    ASSERT_TRUE(listening(port, 10s));
    // One that connects, hears the options and the deal, and says nothing.
    fd = connectTo(port);
    ASSERT_GE(fd, 0);
    EXPECT_THAT(readUntil(fd, "DEAL,", 5s), HasSubstr("SEUP,1,2,"));
    std::this_thread::sleep_for(1500ms);
    ::close(fd);
    EXPECT_TRUE(goodGame()) << "after a silent peer";

    // A move that no table allows.
    ASSERT_TRUE(listening(port, 10s));
    fd = connectTo(port);
    ASSERT_GE(fd, 0);
    readUntil(fd, "DEAL,", 5s);
    sendAll(fd, "CARD,0,99");
    readUntil(fd, "never", 3s);  // until the host closes
    ::close(fd);
    EXPECT_TRUE(goodGame()) << "after an impossible move";

    // Players killed at any moment of a tournament: waiting for the deal, in a turn, at the
    // score card, at the question.
    for (const auto after : {100ms, 400ms, 900ms, 1600ms, 2500ms}) {
        ASSERT_TRUE(listening(port, 10s));
        const pid_t join = startTool({"join", "127.0.0.1", "--port", std::to_string(port), "--deals", "4"},
                                     dir.path() / "killed.txt");
        std::this_thread::sleep_for(after);
        ::kill(join, SIGKILL);
        finishTool(join, 5s);
    }
    EXPECT_TRUE(goodGame()) << "after players killed";

    const std::string told = fileText(dir.path() / "host.err");
    EXPECT_THAT(told, HasSubstr("Out of Step"));
    EXPECT_THAT(told, HasSubstr("Remote Connection Closed"));
    const long after = residentKiB(host);
    EXPECT_GT(after, 0) << "the host runs";
    EXPECT_LT(after - before, 32 * 1024) << "memory stays bounded: " << before << " KiB, then " << after;
}

}  // namespace
}  // namespace petal::test
