#pragma once

namespace petal {

class FrmMain;

// The capture piles of both sides: four rows of cards by value, their counters and labels,
// the wild card's marker, and a side's total.
class Piles {
public:
    explicit Piles(FrmMain& f) : f_(f) {}

    // Moves the card at CardPos into the piles of panel `side`; the counters follow mTurn.
    void SendToPoints(int side, int CardPos, bool ByGCard, int PairIndex);
    void SendToPlayerPoints(int CardPos, bool ByGCard, int PairIndex) { SendToPoints(0, CardPos, ByGCard, PairIndex); }
    void SendToCompPoints(int CardPos, bool ByGCard, int PairIndex) { SendToPoints(1, CardPos, ByGCard, PairIndex); }
    // A capture: the table card in `slot`, then the card played, go to the side's piles (and
    // yaku), and the slot is emptied. Every side's capture runs through here.
    void captureFromTable(int side, int slot, int played, bool fromDeck);
    void CalcPlayerPoints();
    int CompCardCount() const;

private:
    FrmMain& f_;
};

}  // namespace petal
