#include "ToolProcess.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <thread>

extern char** environ;

namespace petal::test {

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

pid_t startProgram(const std::string& program, const std::vector<std::string>& args,
                   const std::filesystem::path& output, const std::filesystem::path& errors) {
    std::vector<std::string> all = {program};
    all.insert(all.end(), args.begin(), args.end());
    std::vector<char*> argv;
    for (std::string& a : all) argv.push_back(a.data());
    argv.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, 1, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (!errors.empty()) posix_spawn_file_actions_addopen(&files, 2, errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    pid_t pid = 0;
    posix_spawn(&pid, program.c_str(), &files, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    return pid;
}

int finishProgram(pid_t pid, std::chrono::milliseconds limit) {
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

bool listening(int port, std::chrono::milliseconds limit) {
    char wanted[16];
    std::snprintf(wanted, sizeof wanted, ":%04X ", port);
    const auto until = std::chrono::steady_clock::now() + limit;
    while (std::chrono::steady_clock::now() < until) {
        for (const char* table : {"/proc/net/tcp", "/proc/net/tcp6"}) {
            std::ifstream in(table);
            for (std::string line; std::getline(in, line);) {
                // Fields: slot, local address, remote address, state (0A is listening).
                std::istringstream fields(line);
                std::string slot, local, remote, state;
                fields >> slot >> local >> remote >> state;
                if (state == "0A" && (local + " ").find(wanted) != std::string::npos) return true;
            }
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return false;
}

}  // namespace petal::test
