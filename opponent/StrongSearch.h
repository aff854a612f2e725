#pragma once
// The strong computer's choice, and the hint's: each move is tried on many deals of the cards
// the side cannot see, played out to the end with the standard rule for both sides, and the
// move with the best result on average is taken. The deals are drawn from a generator seeded
// by the sight, so a sight always gives the same choice and a trace replays; and since only
// the sight goes in, the cards hidden from the side cannot sway it.
#include "opponent/Sight.h"
#include "opponent/StandardRule.h"

namespace petal {

class StrongSearch {
public:
    // Deals played out per choice, spread over the moves to weigh.
    static constexpr int kPlayouts = 3000;

    // With a hand card to play: the card and the table card it takes (-1: laid down). With a
    // turned card waiting: handSlot is -1 and tableSlot the table card it takes.
    static HandMove choose(const Sight& sight, int playouts = kPlayouts);

    // The result of a deal for the sight's side: the difference of the totals and the win, or
    // in a tournament the standing it leaves.
    static double worth(const Sight& sight, int difference);
};

}  // namespace petal
