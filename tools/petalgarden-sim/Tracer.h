#pragma once
// Watches one program's deals: writes the JSON-lines trace, counts ended deals, and keeps a
// record of every event for the mirror check of a network run.
#include <array>
#include <iosfwd>
#include <string>

#include "RecordQueue.h"
#include "shell/GameEvents.h"

namespace petal {
class FrmMain;
}

namespace petal::sim {

class Tracer : public GameEvents {
public:
    // out: where the trace lines go, or nullptr for none.
    Tracer(FrmMain& f, std::ostream* out) : f_(f), out_(out) {}

    int ended = 0;
    int events = 0;  // every deal, move, claim and end so far
    // The deals' results from the local player's side, and the sum of its totals less the other's.
    int won = 0, lost = 0, tied = 0;
    long long difference = 0;
    // The mirror's queue of this side's records, if any.
    RecordQueue* log = nullptr;
    // Records the sides of a move as the other program sees them (see Record).
    bool mirrored = false;

    void dealt() override;
    void moved(int side, bool fromDeck, int pos, int took, int slot) override;
    void claimed(int side, int pos, int slot) override;
    void dealEnded() override;

    // The closing line of play: the deals, their results and the run's speed.
    std::string summary(double seconds) const;

private:
    int complete(int side) const;
    void snapshot(Record& record) const;

    FrmMain& f_;
    std::ostream* out_;
    // The deal's position of each picture, read once per deal: the deck does not change in it.
    std::array<int, 72> positionOf_{};
};

// A text as a JSON string, quotes included.
std::string jsonString(const std::string& text);

}  // namespace petal::sim
