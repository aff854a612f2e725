#pragma once
// One side of a network game over real TCP, headless: the game's core on the program's own
// socket code in a QCoreApplication, the local player driven by a policy.
#include <cstdint>
#include <iosfwd>
#include <string>

namespace petal::sim {

struct TcpOptions {
    bool host = true;     // host listens on every address; a client joins `address`
    std::string address;  // where a client joins
    int port = 4800;
    int deals = 1;
    int tournamentRounds = 0;  // host only: 0 single games
    bool yaku = true;          // host only
    bool randomPolicy = false;
    std::uint64_t policySeed = 0;
    double speed = 50;  // how many times faster than the game's timers
    bool trace = false;
    int idleSeconds = 60;  // nothing happening this long is a time-out
    // Host only: a lost or faulty peer ends nothing; the host listens again for the next one,
    // until N deals have ended. Each such end is told on err.
    bool stay = false;
    // Host only: the option that opens the port on the home router, on for this run; what the
    // waiting form says of where to join is told on err as it changes.
    bool routerPort = false;
    // The language of this side's words, which never cross the wire.
    std::string language = "en";
};

// Exit 0 after N deals and the designed end of the session; otherwise 1, the reason on err.
int tcpPlay(const TcpOptions& options, std::ostream& out, std::ostream& err);

}  // namespace petal::sim
