// petalgarden-sim: the game's core, headless on the simulated host.
//   petalgarden-sim deal --seed HH:MM:SS [--network]
//   petalgarden-sim play [--deals N] [--tournament R] [--yaku on|off] [--policy first|random:K]
//                        [--start HH:MM:SS] [--trace]
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

#include "SimPlay.h"
#include "TempFolder.h"
#include "cards/Val.h"
#include "platform/FatalError.h"
#include "shell/Program.h"
#include "platform/sim/SimHost.h"

namespace {

int usage() {
    std::cerr << "usage: petalgarden-sim deal --seed HH:MM:SS [--network]\n"
                 "       petalgarden-sim play [--deals N] [--tournament R] [--yaku on|off]\n"
                 "                            [--policy first|random:K] [--start HH:MM:SS] [--trace]\n";
    return 2;
}

bool isTime(const std::string& text) {
    if (text.size() != 8 || text[2] != ':' || text[5] != ':') return false;
    for (int i : {0, 1, 3, 4, 6, 7})
        if (text[i] < '0' || text[i] > '9') return false;
    return petal::Val(text) < 24 && petal::Val(text.substr(3)) < 60 && petal::Val(text.substr(6)) < 60;
}

// One deal from the program's start state; a network deal resets the generator first.
int deal(const std::string& seed, bool network) {
    petal::sim::TempFolder folder;
    petal::SimHost host(folder.path());
    host.setClock(static_cast<int>(petal::Val(seed)), static_cast<int>(petal::Val(seed.substr(3))),
                  static_cast<int>(petal::Val(seed.substr(6))));
    petal::Program program(host);
    host.onForm = [](petal::Form& splash) { splash.Unload(true); };
    petal::runHandler(host, [&] {
        program.Main();
        if (network) program.g.gPlayMode = 1;  // a host that is not connected deals alone
        program.frmMain.dealer.DealCards();
    });
    if (host.ending()) return 1;
    const auto& cards = program.frmMain.m.mCards;
    for (int p = 0; p < 48; ++p) std::cout << (p ? " " : "") << cards[p].Index;
    std::cout << "\n";
    return 0;
}

int play(const std::vector<std::string>& args) {
    petal::sim::PlayOptions options;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const bool hasValue = i + 1 < args.size();
        if (a == "--trace") {
            options.trace = true;
        } else if (a == "--deals" && hasValue) {
            options.deals = static_cast<int>(petal::Val(args[++i]));
            if (options.deals < 1) return usage();
        } else if (a == "--tournament" && hasValue) {
            options.tournamentRounds = static_cast<int>(petal::Val(args[++i]));
            if (options.tournamentRounds < 1) return usage();
        } else if (a == "--yaku" && hasValue) {
            const std::string v = args[++i];
            if (v != "on" && v != "off") return usage();
            options.yaku = v == "on";
        } else if (a == "--policy" && hasValue) {
            const std::string v = args[++i];
            if (v.rfind("random:", 0) == 0 && v.size() > 7) {
                options.randomPolicy = true;
                options.policySeed = std::stoull(v.substr(7));
            } else if (v != "first") {
                return usage();
            }
        } else if (a == "--start" && hasValue && isTime(args[i + 1])) {
            options.start = args[++i];
        } else {
            return usage();
        }
    }
    return petal::sim::play(options, std::cout, std::cerr);
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    if (argc < 2) return usage();
    const std::string command = argv[1];
    std::vector<std::string> args(argv + 2, argv + argc);
    try {
        if (command == "deal") {
            bool network = false;
            std::string seed;
            for (std::size_t i = 0; i < args.size(); ++i) {
                if (args[i] == "--network") network = true;
                else if (args[i] == "--seed" && i + 1 < args.size()) seed = args[++i];
                else return usage();
            }
            if (!isTime(seed)) return usage();
            return deal(seed, network);
        }
        if (command == "play") return play(args);
    } catch (const std::exception& e) {
        std::cerr << "petalgarden-sim: " << e.what() << "\n";
        return 1;
    }
    return usage();
}
