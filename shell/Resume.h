#pragma once
// At start, a game that the last run left in progress is offered; Yes replays it through the
// game's own handlers, on the replay host's clock, up to its last completed move. A save that
// cannot be read, or that this build plays otherwise, is told once and set aside, and the
// program starts as it always does.
#include <cstdint>
#include <string>

#include "records/SavedGame.h"

namespace petal {

class FrmMain;
class ReplayHost;

class Resume {
public:
    Resume(FrmMain& f, ReplayHost& host) : f_(f), host_(host) {}

    // Whether the last run left a saved game (or something under its name).
    bool found() const;
    void offer();

    // The question for a saved game.
    std::string question(const SavedGame& saved) const;

private:
    struct Before {
        int gameType, rounds;
        bool useYaku;
        std::uint64_t rnd;
        std::string computer;
    };
    void takeOptions(const SavedGame::Options& options);
    void setComputer(const std::string& kind);
    bool replay(const SavedGame& saved, std::string& why);
    void replayEntry(const SavedGame::Entry& entry, std::size_t at);
    void clearTable(const Before& before);
    void setAside(const std::string& reason);

    FrmMain& f_;
    ReplayHost& host_;
};

}  // namespace petal
