#pragma once

namespace petal {

class FrmMain;

// The remote player's turn, replayed from the CARD messages left in the receive buffer.
class RemoteReplay {
public:
    explicit RemoteReplay(FrmMain& f) : f_(f) {}

    // True once a CARD was taken; false to ask again at the next tick.
    bool MultiPlayerSelectCard();
    bool MultiPlayerDropCard(int phase);

private:
    FrmMain& f_;
};

}  // namespace petal
