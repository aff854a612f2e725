#pragma once

namespace petal {

class FrmMain;

// The second move of every turn: the next card of the deck is turned over.
class DeckFlip {
public:
    explicit DeckFlip(FrmMain& f) : f_(f) {}

    void FlipCard();
    void tmrFlipTimer_Timer();

private:
    FrmMain& f_;
};

}  // namespace petal
