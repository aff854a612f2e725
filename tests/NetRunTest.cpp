// Whole network sessions of the headless tool: a host and a client mirror each other after
// every move, over a clean network and over one that splits, merges, delays and drops.
#include <gtest/gtest.h>

#include <sstream>

#include "NetPlay.h"

namespace petal::test {
namespace {

struct Session {
    const char* name;
    sim::NetOptions options;
};

TEST(NetRun, WholeGamesMirrorEvenWhenTheNetworkFails) {
    const Session runs[] = {
        {"single games", {.deals = 12}},
        {"tournaments without yaku, random players", {.deals = 6, .tournamentRounds = 3, .yaku = false, .randomPolicy = true, .policySeed = 5}},
        {"a tournament of 20 rounds", {.deals = 20, .tournamentRounds = 20, .randomPolicy = true, .policySeed = 2}},
        {"faults", {.deals = 40, .randomPolicy = true, .policySeed = 11, .faults = 7}},
        {"faults in tournaments", {.deals = 30, .tournamentRounds = 5, .faults = 21}},
    };
    for (const Session& run : runs) {
        std::ostringstream out, err;
        EXPECT_EQ(sim::net(run.options, out, err), 0) << run.name << ": " << err.str();
        const std::string summary = out.str();
        EXPECT_NE(summary.find("\"mismatches\":0"), std::string::npos) << run.name;
        if (run.options.faults) {
            EXPECT_EQ(summary.find("\"faults\":0,"), std::string::npos) << run.name << ": faults struck";
        }
    }
}

}  // namespace
}  // namespace petal::test
