// Two headless players over real TCP on this machine: the program's own socket code carries
// whole deals, and the two traces are the same events seen from the two sides.
#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <thread>

#include "GameFixture.h"

extern char** environ;

namespace petal::test {
namespace {

// A port that nothing listens on just now.
int freePort() {
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address);
    socklen_t length = sizeof address;
    ::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length);
    ::close(fd);
    return ntohs(address.sin_port);
}

// Runs the tool with its output in a file; the process id.
pid_t start(const std::vector<std::string>& args, const std::filesystem::path& output) {
    std::vector<std::string> all = {PETAL_SIM};
    all.insert(all.end(), args.begin(), args.end());
    std::vector<char*> argv;
    for (std::string& a : all) argv.push_back(a.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, 1, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    pid_t pid = 0;
    posix_spawn(&pid, PETAL_SIM, &files, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    return pid;
}

// The exit status, or -1 if the process had to be killed after the limit.
int finish(pid_t pid, std::chrono::seconds limit) {
    const auto until = std::chrono::steady_clock::now() + limit;
    int status = 0;
    while (::waitpid(pid, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > until) {
            ::kill(pid, SIGKILL);
            ::waitpid(pid, &status, 0);
            return -1;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::map<std::string, std::string> fields(const std::string& line) {
    static const std::regex field(R"re("(\w+)":("[^"]*"|\[[^\]]*\]|-?[0-9.]+))re");
    std::map<std::string, std::string> out;
    for (auto it = std::sregex_iterator(line.begin(), line.end(), field); it != std::sregex_iterator(); ++it)
        out[(*it)[1]] = (*it)[2];
    return out;
}

// The host's event as the client sees it: the sides, the lead and the scores swapped.
std::map<std::string, std::string> mirrored(std::map<std::string, std::string> e) {
    const auto flip = [](const std::string& v) { return std::to_string(1 - std::stoi(v)); };
    if (e.count("side")) e["side"] = flip(e["side"]);
    if (e.count("lead")) e["lead"] = flip(e["lead"]);
    if (e.count("p")) std::swap(e["p"], e["c"]), std::swap(e["pyaku"], e["cyaku"]);
    return e;
}

std::vector<std::string> events(const std::filesystem::path& file) {
    std::ifstream in(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        if (line.find("\"ev\":\"summary\"") == std::string::npos) lines.push_back(line);
    return lines;
}

TEST(TcpPair, TwoPlayersOverLoopbackPlayWholeGamesThatMirror) {
    struct Session {
        const char* name;
        std::vector<std::string> hostOptions;
        int deals;
    };
    const Session sessions[] = {
        {"single games", {"--deals", "3"}, 3},
        {"a tournament without yaku", {"--deals", "2", "--tournament", "2", "--yaku", "off", "--policy", "random:4"}, 2},
    };
    TempDir dir;
    for (const Session& s : sessions) {
        SCOPED_TRACE(s.name);
        const std::string port = std::to_string(freePort());
        std::vector<std::string> hostArgs = {"host", "--port", port, "--trace"};
        hostArgs.insert(hostArgs.end(), s.hostOptions.begin(), s.hostOptions.end());
        const pid_t host = start(hostArgs, dir.path() / "host.txt");
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        const pid_t client = start({"join", "127.0.0.1", "--port", port, "--deals", std::to_string(s.deals), "--trace",
                                    "--policy", "random:9"},
                                   dir.path() / "client.txt");
        EXPECT_EQ(finish(client, std::chrono::seconds(60)), 0);
        EXPECT_EQ(finish(host, std::chrono::seconds(60)), 0);
        const auto hostEvents = events(dir.path() / "host.txt");
        const auto clientEvents = events(dir.path() / "client.txt");
        ASSERT_EQ(hostEvents.size(), clientEvents.size());
        int ends = 0;
        for (std::size_t i = 0; i < hostEvents.size(); ++i) {
            EXPECT_EQ(mirrored(fields(hostEvents[i])), fields(clientEvents[i])) << hostEvents[i];
            ends += hostEvents[i].find("\"ev\":\"end\"") != std::string::npos;
        }
        EXPECT_EQ(ends, s.deals);
    }
}

}  // namespace
}  // namespace petal::test
