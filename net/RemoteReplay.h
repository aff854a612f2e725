#pragma once

namespace petal {

class FrmMain;

// The remote player's turn, replayed from its moves (CARD) in the order they came. A move that
// does not fit this side's table means the two copies have parted: it is never applied.
class RemoteReplay {
public:
    explicit RemoteReplay(FrmMain& f) : f_(f) {}

    // True once a move was taken; false to ask again at the next tick.
    bool MultiPlayerSelectCard();
    bool MultiPlayerDropCard(int phase);

private:
    bool canTake(int position, int slot) const;
    bool fits(int position, int where) const;

    FrmMain& f_;
};

}  // namespace petal
