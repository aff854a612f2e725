#pragma once
// What the command line asks of a start: a network session begun as Setup begins one, or the
// usage. Options that Qt takes for itself are gone before these are read.
#include <string>
#include <vector>

namespace petal {

struct CommandLine {
    int playMode = 0;     // 0 as the settings leave the program; 1 host, 2 join
    std::string address;  // the host to join
    int port = 0;         // 0: the game's own
    bool help = false;
    std::string error;  // what is wrong with the arguments; nothing to start then
};

// The arguments after the program's name.
CommandLine parseCommandLine(const std::vector<std::string>& args);
// What --help prints.
std::string commandLineUsage();

}  // namespace petal
