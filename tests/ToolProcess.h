#pragma once
// Programs as processes of their own, for tests over real TCP on this machine.
#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace petal::test {

// A port on 127.0.0.1 that nothing listens on just now.
int freePort();
// Starts a program with its standard output (and error, if given) in files.
pid_t startProgram(const std::string& program, const std::vector<std::string>& args,
                   const std::filesystem::path& output, const std::filesystem::path& errors = {});
// The exit status, or -1 if the process had to be killed after the limit.
int finishProgram(pid_t pid, std::chrono::milliseconds limit);
// Waits until something listens on the port (read from the kernel's tables, without
// connecting, since a connection is itself an event for the listener).
bool listening(int port, std::chrono::milliseconds limit);

}  // namespace petal::test
