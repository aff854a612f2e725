#pragma once
// The rules that every state of a deal keeps, however it was reached: each of the 48 positions
// lies in exactly one place (a hand, the table, the flipped card, a pile, or the deck beyond
// mDeckPos), every control that shows a card names it by its Tag and shows its face, and each
// side's counters and totals are the sum of its piles and its yaku. Read from the model only,
// so any driver of the core (a fuzzer, the headless player, a test) can ask after every step.
#include <string>

namespace petal {
class FrmMain;
}

namespace petal::sim {

class TableInvariants {
public:
    // The first rule that the program's state breaks, in words; empty when it keeps them all.
    static std::string check(const FrmMain& f);
    // Whether any control shows a card: a hand, the table, the flipped card or a pile.
    static bool dealStands(const FrmMain& f);
};

}  // namespace petal::sim
