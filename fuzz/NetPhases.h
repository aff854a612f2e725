#pragma once
// Brings a rig's program to a phase of a deal from wherever the last input left it: the session
// set up again if it was closed, the table cleared, a deal from a seed that the input chooses,
// and both players moving as correct players until the phase stands.
#include <functional>

#include "NetPhase.h"
#include "Policy.h"

namespace petal::fuzz {

class NetRig;

class NetPhases {
public:
    explicit NetPhases(NetRig& rig) : rig_(rig) {}

    // False if the phase could not be reached within bounds; the rig's failure tells if the
    // program failed on the way.
    bool reach(NetPhase phase, int variant, sim::Policy& policy);

private:
    bool clearTable();
    bool deal(bool peerLeads, int variant);
    bool remoteTo(int phase);
    bool playUntil(const std::function<bool()>& reached, sim::Policy& policy);

    NetRig& rig_;
};

}  // namespace petal::fuzz
