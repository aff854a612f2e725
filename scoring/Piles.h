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
    void CalcPlayerPoints();
    int CompCardCount() const;

private:
    FrmMain& f_;
};

}  // namespace petal
