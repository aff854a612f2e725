// petalgarden-sim: the game's core, headless on the simulated host.
//   petalgarden-sim deal --seed HH:MM:SS [--network]
//   petalgarden-sim play [--deals N] [--tournament R] [--yaku on|off]
//                        [--policy first|random:K|standard|strong] [--computer standard|strong]
//                        [--start HH:MM:SS] [--trace] [--timing]
//   petalgarden-sim net [--deals N] [--tournament R] [--yaku on|off] [--policy first|random:K]
//                       [--faults K] [--trace]
//   petalgarden-sim keep --folder DIR [--tournament R] [--yaku on|off] [--policy random:K]
//                        [--start HH:MM:SS] [--dwell MS]
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "KeepPlay.h"
#include "NetPlay.h"
#include "TcpPlay.h"
#include "SimPlay.h"
#include "TempFolder.h"
#include "cards/Val.h"
#include "platform/FatalError.h"
#include "shell/Program.h"
#include "platform/sim/SimHost.h"

namespace {

int usage() {
    std::cerr << "usage: petalgarden-sim deal --seed TEXT [--network]\n"
                 "       petalgarden-sim play [--deals N] [--tournament R] [--yaku on|off]\n"
                 "                            [--policy first|random:K|standard|strong]\n"
                 "                            [--computer standard|strong] [--start HH:MM:SS] [--trace] [--timing]\n"
                 "       petalgarden-sim net [--deals N] [--tournament R] [--yaku on|off]\n"
                 "                           [--policy first|random:K] [--faults K] [--trace]\n"
                 "       petalgarden-sim host [--port P] [--deals N] [--tournament R] [--yaku on|off]\n"
                 "                            [--policy first|random:K] [--speed X] [--stay] [--router-port] [--trace]\n"
                 "                            [--language CODE]\n"
                 "       petalgarden-sim join ADDRESS [--port P] [--deals N] [--policy first|random:K]\n"
                 "                            [--speed X] [--trace] [--language CODE]\n"
                 "       petalgarden-sim keep --folder DIR [--tournament R] [--yaku on|off] [--policy random:K]\n"
                 "                            [--start HH:MM:SS] [--dwell MS]\n";
    return 2;
}

bool isTime(const std::string& text) {
    if (text.size() != 8 || text[2] != ':' || text[5] != ':') return false;
    for (int i : {0, 1, 3, 4, 6, 7})
        if (text[i] < '0' || text[i] > '9') return false;
    return petal::Val(text) < 24 && petal::Val(text.substr(3)) < 60 && petal::Val(text.substr(6)) < 60;
}

// One deal from the program's start state. A time of day sets the clock, as a deal of a single
// game takes its seed from it; any other text, or a network deal, seeds the deal as a received
// DEAL does.
int deal(const std::string& seed, bool network) {
    petal::sim::TempFolder folder;
    petal::SimHost host(folder.path());
    const bool clock = isTime(seed) && !network;
    if (clock)
        host.setClock(static_cast<int>(petal::Val(seed)), static_cast<int>(petal::Val(seed.substr(3))),
                      static_cast<int>(petal::Val(seed.substr(6))));
    petal::Program program(host);
    host.onForm = [](petal::Form& splash) { splash.Unload(true); };
    petal::runHandler(host, [&] {
        program.Main();
        if (clock) {
            program.frmMain.dealer.DealCards();
            return;
        }
        program.g.gPlayMode = 1;  // a host that is not connected deals alone
        program.frmMain.net.dealFrom(seed, 0);
    });
    if (host.ending()) return 1;
    const auto& cards = program.frmMain.m.mCards;
    for (int p = 0; p < 48; ++p) std::cout << (p ? " " : "") << cards[p].Index;
    std::cout << "\n";
    return 0;
}

// The options that play and net share; false for one that neither knows.
bool commonOption(const std::vector<std::string>& args, std::size_t& i, int& deals, int& rounds, bool& yaku,
                  bool& random, std::uint64_t& seed, bool& trace) {
    const std::string& a = args[i];
    const bool hasValue = i + 1 < args.size();
    if (a == "--trace") {
        trace = true;
    } else if (a == "--deals" && hasValue) {
        deals = static_cast<int>(petal::Val(args[++i]));
        if (deals < 1) return false;
    } else if (a == "--tournament" && hasValue) {
        rounds = static_cast<int>(petal::Val(args[++i]));
        if (rounds < 1) return false;
    } else if (a == "--yaku" && hasValue) {
        const std::string v = args[++i];
        if (v != "on" && v != "off") return false;
        yaku = v == "on";
    } else if (a == "--policy" && hasValue) {
        const std::string v = args[++i];
        if (v.rfind("random:", 0) == 0 && v.size() > 7 && v.find_first_not_of("0123456789", 7) == std::string::npos) {
            random = true;
            seed = std::stoull(v.substr(7));
        } else if (v != "first") {
            return false;
        }
    } else {
        return false;
    }
    return true;
}

int play(const std::vector<std::string>& args) {
    petal::sim::PlayOptions o;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string next = i + 1 < args.size() ? args[i + 1] : "";
        // Only play has a computer to play as, or to play against.
        if (args[i] == "--policy" && (next == "standard" || next == "strong")) {
            o.chooser = next == "strong" ? petal::sim::Chooser::Strong : petal::sim::Chooser::Standard;
            ++i;
            continue;
        }
        if (args[i] == "--timing") {
            o.timing = true;
            continue;
        }
        if (args[i] == "--computer" && (next == "standard" || next == "strong")) {
            o.strongComputer = next == "strong";
            ++i;
            continue;
        }
        if (commonOption(args, i, o.deals, o.tournamentRounds, o.yaku, o.randomPolicy, o.policySeed, o.trace)) continue;
        if (args[i] == "--start" && isTime(next)) {
            o.start = args[++i];
            continue;
        }
        return usage();
    }
    return petal::sim::play(o, std::cout, std::cerr);
}

int net(const std::vector<std::string>& args) {
    petal::sim::NetOptions o;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (commonOption(args, i, o.deals, o.tournamentRounds, o.yaku, o.randomPolicy, o.policySeed, o.trace)) continue;
        if (args[i] == "--faults" && i + 1 < args.size() &&
            args[i + 1].find_first_not_of("0123456789") == std::string::npos && !args[i + 1].empty()) {
            o.faults = std::stoull(args[++i]);
            continue;
        }
        return usage();
    }
    return petal::sim::net(o, std::cout, std::cerr);
}

// One game as the program keeps it, in a folder that outlives the process.
int keep(const std::vector<std::string>& args) {
    petal::sim::KeepOptions o;
    int deals = 1;
    bool random = true, trace = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const bool hasValue = i + 1 < args.size();
        if (args[i] == "--folder" && hasValue) {
            o.folder = args[++i];
        } else if (args[i] == "--start" && hasValue && isTime(args[i + 1])) {
            o.start = args[++i];
        } else if (args[i] == "--dwell" && hasValue) {
            o.dwellMs = static_cast<int>(petal::Val(args[++i]));
        } else if (!commonOption(args, i, deals, o.tournamentRounds, o.yaku, random, o.policySeed, trace) || trace ||
                   deals != 1) {
            return usage();
        }
    }
    if (o.folder.empty() || !std::filesystem::is_directory(o.folder)) return usage();
    return petal::sim::keep(o, std::cout, std::cerr);
}

// One side over real TCP. The client takes the host's options, so it has none of its own.
int tcp(bool host, const std::vector<std::string>& args) {
    petal::sim::TcpOptions o;
    o.host = host;
    std::size_t i = 0;
    if (!host) {
        if (args.empty() || args[0].rfind("--", 0) == 0) return usage();
        o.address = args[i++];
    }
    for (; i < args.size(); ++i) {
        const bool hasValue = i + 1 < args.size();
        int rounds = 0;
        bool yaku = true;
        if (host && commonOption(args, i, o.deals, o.tournamentRounds, o.yaku, o.randomPolicy, o.policySeed, o.trace))
            continue;
        if (!host && args[i] != "--tournament" && args[i] != "--yaku" &&
            commonOption(args, i, o.deals, rounds, yaku, o.randomPolicy, o.policySeed, o.trace))
            continue;
        if (args[i] == "--port" && hasValue) {
            o.port = static_cast<int>(petal::Val(args[++i]));
            if (o.port < 1 || o.port > 65535) return usage();
        } else if (args[i] == "--language" && hasValue) {
            o.language = args[++i];
        } else if (host && args[i] == "--stay") {
            o.stay = true;
        } else if (host && args[i] == "--router-port") {
            o.routerPort = true;
        } else if (args[i] == "--speed" && hasValue) {
            o.speed = std::atof(args[++i].c_str());
            if (!(o.speed > 0)) return usage();
        } else {
            return usage();
        }
    }
    return petal::sim::tcpPlay(o, std::cout, std::cerr);
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    if (argc < 2) return usage();
    const std::string command = argv[1];
    std::vector<std::string> args(argv + 2, argv + argc);
    try {
        if (command == "deal") {
            bool network = false, haveSeed = false;
            std::string seed;
            for (std::size_t i = 0; i < args.size(); ++i) {
                if (args[i] == "--network") network = true;
                else if (args[i] == "--seed" && i + 1 < args.size()) seed = args[++i], haveSeed = true;
                else return usage();
            }
            if (!haveSeed) return usage();
            return deal(seed, network);
        }
        if (command == "play") return play(args);
        if (command == "net") return net(args);
        if (command == "keep") return keep(args);
        if (command == "host" || command == "join") return tcp(command == "host", args);
    } catch (const std::exception& e) {
        std::cerr << "petalgarden-sim: " << e.what() << "\n";
        return 1;
    }
    return usage();
}
