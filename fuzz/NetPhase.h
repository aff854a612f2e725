#pragma once
// The moments of a network deal at which the net fuzz target lets bytes arrive.
namespace petal::fuzz {

enum class NetPhase {
    AwaitDeal,        // connected, no deal on the table (the client waits for its host's DEAL)
    RemoteSelect,     // the peer's turn: the driver polls for its hand card (phase 0)
    RemoteDrop,       // the hand card is taken, its drop is next (phase 1)
    RemoteFlip,       // the peer's deck flip is next (phase 2)
    RemoteFlipWaits,  // the peer's flipped card matches: the driver polls for where it goes (phase 3)
    LocalFlipWaits,   // the local player's flipped card waits to be placed
    ScoreCard,        // a tournament round has ended and the score card stands
    Rematch,          // a single game has ended and "Do you want to play again?" stands
};

constexpr int kNetPhases = 8;

inline const char* phaseName(NetPhase phase) {
    static const char* const names[kNetPhases] = {"AwaitDeal",       "RemoteSelect",   "RemoteDrop", "RemoteFlip",
                                                  "RemoteFlipWaits", "LocalFlipWaits", "ScoreCard",  "Rematch"};
    return names[static_cast<int>(phase)];
}

}  // namespace petal::fuzz
