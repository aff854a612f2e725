#pragma once
// Game → Hint: on the local player's turn in single play, the strong computer's choice for the
// player is marked on the table, the hand card (or the turned card's place) and the table card
// where there is a choice, until the player moves.
namespace petal {

class FrmMain;

class Hint {
public:
    explicit Hint(FrmMain& f) : f_(f) {}

    // Whether a hint can be given now: single play, and a move of the player's waits.
    bool offered() const;
    void mnuHint_Click();

    // The slots that the marks stand on while the hint holds: a card of the hand (imgPCard)
    // and one of the table (imgTCard); -1 for a mark not shown.
    struct Marks {
        int hand = -1;
        int table = -1;
    };
    Marks marks() const;

private:
    FrmMain& f_;
    // The moment the hint was given for, and what it named then: the hint holds while these
    // stand as they were, so any move of the player's ends it.
    int deal_ = -1, plays_ = -1, flipped_ = -1;
    int handSlot_ = -1, handCard_ = -1;
    int turnedCard_ = -1;
    int tableSlot_ = -1, tableCard_ = -1;
};

}  // namespace petal
