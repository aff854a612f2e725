#pragma once
// Watches one program's deals: writes the JSON-lines trace, counts ended deals, and keeps a
// record of every event for the mirror check of a network run.
#include <array>
#include <deque>
#include <iosfwd>
#include <string>
#include <vector>

#include "shell/GameEvents.h"

namespace petal {
class FrmMain;
}

namespace petal::sim {

// One event as the mirror compares it. For a move, `where` tells for each position where it
// lies as the card comes to rest: -1 elsewhere, 100 + slot on the table, 200 + 10 side + row
// in a pile; with the pile counters and the yaku cards of both sides.
struct Record {
    enum class Kind { Deal, Move, Claim, End } kind = Kind::Deal;
    int side = 0, pos = 0, took = 0, slot = 0;
    bool fromDeck = false;
    int lead = 0, yaku = 0;
    std::string seed;
    std::vector<int> cards;
    int p = 0, c = 0, pyaku = 0, cyaku = 0;
    std::array<int, 48> where{};
    std::array<std::array<int, 8>, 2> yakuCards{};
    std::array<std::array<std::array<int, 3>, 2>, 2> points{};
};

class Tracer : public GameEvents {
public:
    // out: where the trace lines go, or nullptr for none.
    Tracer(FrmMain& f, std::ostream* out) : f_(f), out_(out) {}

    int ended = 0;
    int events = 0;  // every deal, move, claim and end so far
    // The mirror's queue of this side's records, if any.
    std::deque<Record>* log = nullptr;

    void dealt() override;
    void moved(int side, bool fromDeck, int pos, int took, int slot) override;
    void claimed(int side, int pos, int slot) override;
    void dealEnded() override;

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
