#include "shell/CommandLine.h"

#include "net/JoinAddress.h"

namespace petal {

namespace {

// Reads "--port P" and "--port=P" alike: the value, or nothing when the option is not this one.
bool takeValue(const std::vector<std::string>& args, std::size_t& i, const std::string& name, std::string& value,
               std::string& error) {
    const std::string& arg = args[i];
    if (arg.rfind(name + "=", 0) == 0) {
        value = arg.substr(name.size() + 1);
        return true;
    }
    if (arg != name) return false;
    if (i + 1 == args.size()) error = name + " needs a value";
    else value = args[++i];
    return true;
}

}  // namespace

CommandLine parseCommandLine(const std::vector<std::string>& args) {
    CommandLine line;
    std::string port;
    bool portGiven = false;
    for (std::size_t i = 0; i < args.size() && line.error.empty(); ++i) {
        const std::string& arg = args[i];
        std::string value;
        const int mode = arg == "--host" ? 1 : 0;
        if (arg == "--help" || arg == "-h") {
            line.help = true;
        } else if (mode == 1 || takeValue(args, i, "--join", value, line.error)) {
            if (line.playMode != 0) line.error = "--host and --join are given together, or one of them twice";
            line.playMode = mode == 1 ? 1 : 2;
            line.address = value;
        } else if (takeValue(args, i, "--port", port, line.error)) {
            portGiven = true;
        } else {
            line.error = "unknown option \"" + arg + "\"";
        }
    }
    if (!line.error.empty() || line.help) return line;
    if (line.playMode == 2) {
        const auto address = parseJoinAddress(line.address);
        if (!address || address->host.empty()) line.error = "--join needs a host name or address, not \"" + line.address + "\"";
    }
    if (portGiven) {
        const auto number = parseJoinAddress("port:" + port);
        if (number && number->port != 0) line.port = number->port;
        else line.error = "--port needs a number from 1 to 65535, not \"" + port + "\"";
        if (line.playMode == 0) line.error = "--port goes with --host or --join";
    }
    return line;
}

std::string commandLineUsage() {
    return "Usage: petalgarden [--host | --join ADDRESS] [--port P]\n"
           "Japanese flower cards against the computer, or against a friend over the network.\n"
           "\n"
           "  --host          host a network game: wait for an opponent to join\n"
           "  --join ADDRESS  join the game of the host at ADDRESS: a name, an IPv4 or an IPv6\n"
           "                  address\n"
           "  --port P        the port to host at or to join (4800 unless given)\n"
           "  --help          show this help and leave\n"
           "\n"
           "Without options the game starts against the computer; Game → Setup starts a network game too.\n";
}

}  // namespace petal
