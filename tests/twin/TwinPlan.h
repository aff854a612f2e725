#pragma once
// What the scripted user of one copy does, from its command line: the answers it gives to the
// questions of a session, in order, and the moments at which it acts by itself.
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace petal::twin {

struct TwinPlan {
    std::filesystem::path folder;  // the copy's own; its log is "twin.log" in it
    std::filesystem::path peer;    // the other copy's folder, whose log orders the answers
    std::uint64_t seed = 1;
    double speed = 8;  // the game's timers run this much faster; the user's delays do not
    // Answers to "Do you want to play again?", to "Do you want to try and reconnect?" and to
    // the host's restart question, one per asking ("Y" or "N"; missing ones are "N"). A "^"
    // first waits until the peer has answered its own question of that number, and so does a
    // "^" in `cards` for the closing of a score card.
    std::vector<std::string> again, reconnect, restart, cards;
    int restartAfter = -1;  // the host clicks the deck after this many of its moves
    int quitAfter = -1;     // the user closes the program after this many of its moves
    // A wait for the peer that stands longer is cancelled: well beyond what fourteen sanitized
    // copies on two loaded cores take to answer, so that only a peer that never answers meets it.
    int patienceMs = 20000;
    bool chat = false;
};

// Takes this user's options out of the arguments and leaves the program's own.
TwinPlan readTwinPlan(std::vector<std::string>& args);

}  // namespace petal::twin
