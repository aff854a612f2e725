#pragma once
// Plays a host and a client against each other on the simulated network, each local player
// driven by a policy, and checks after every move that the two copies mirror each other.
#include <cstdint>
#include <iosfwd>

namespace petal::sim {

struct NetOptions {
    int deals = 1;
    int tournamentRounds = 0;  // 0: single games
    bool yaku = true;
    bool randomPolicy = false;
    std::uint64_t policySeed = 0;
    std::uint64_t faults = 0;  // 0: a faultless network; otherwise the plan's seed
    bool trace = false;
};

// Returns the process exit code: 0 after N mirrored deals and the designed end of the session.
int net(const NetOptions& options, std::ostream& out, std::ostream& err);

}  // namespace petal::sim
