#pragma once
// The game in progress, kept as it goes: against the computer, each completed move is written
// to the saved game at once (write and rename, so a cut-off write leaves the last save whole);
// every finished game, network games too, goes into the statistics. During a resume it checks
// each move the replay makes against the save, and says when the replay has caught up.
#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

#include "records/SavedGame.h"

namespace petal {

class FrmMain;

// The replay went otherwise than the saved game: the save is of another build, or not a game.
class ReplayMismatch : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class GameJournal {
public:
    explicit GameJournal(FrmMain& f) : f_(f) {}

    // The program keeps its games; the headless tools and most tests play without, as fast as
    // before and leaving no files.
    void keep(bool on) { keeping_ = on; }
    bool keeping() const { return keeping_; }
    std::filesystem::path path() const;

    // What the game tells, at the moments a move has come to rest.
    void dealt(bool newGame, std::uint64_t rndBefore);
    void handPlayed(int slot, int target) {
        pendingSlot_ = slot;
        pendingTarget_ = target;
    }
    void flipRests();
    void flipPlaced(int target);
    void computerTurnEnded();
    // After the wild card's claim: the player's yaku are counted, and a last round's result
    // goes into the statistics before any question can hold it up.
    void roundOver();
    // The result is shown and its Hall of Fame offers answered: a replay passes them over.
    void offersDone();
    void abandoned();
    // The player would rather not resume: the save goes.
    void drop();

    // The replay: each entry the game makes is checked against saved; caughtUp runs at the last.
    void beginReplay(const SavedGame& saved, std::function<void()> caughtUp);
    void cancelReplay();
    bool replaying() const { return expected_.has_value(); }
    std::size_t recorded() const { return game_.entries.size(); }
    // The seed of the deal the save holds next; a deal where it holds none is a mismatch.
    std::string replaySeed() const;
    const SavedGame& game() const { return game_; }

    // After each save, and once when a replay has caught up (true): the headless tool shows
    // the table then.
    std::function<void(bool caughtUp)> onRecorded;

private:
    void beginGame(std::uint64_t rndBefore);
    void record(char kind, int slot = -1, int target = -1, std::string seed = {});
    void save();
    void finish();
    bool finalRound() const;
    std::uint32_t fingerprint() const;

    FrmMain& f_;
    bool keeping_ = false;
    bool saving_ = false;    // a game against the computer is saved as it goes
    bool counting_ = false;  // a game runs whose result goes into the statistics
    SavedGame game_;
    std::optional<SavedGame> expected_;
    std::function<void()> caughtUp_;
    int pendingSlot_ = -1, pendingTarget_ = -1;
    std::array<int, 8> yaku_{};
    bool toldUnsaved_ = false;
};

}  // namespace petal
