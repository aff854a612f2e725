#pragma once

namespace petal {

class FrmMain;

// Clearing the table, shuffling, dealing, and the deck as the new-game button.
class Dealer {
public:
    explicit Dealer(FrmMain& f) : f_(f) {}

    void imgDeck_Click();
    void NewGame(bool ClearOnly);
    void ShuffleCards();
    void DealCards();
    // Counts the deals: a wait that sees it change knows a deal came meanwhile.
    unsigned serial() const { return serial_; }

private:
    void clearHandsAndTable();
    void clearPiles();
    void resetYakuRows(bool ClearOnly);
    void layOutDeal();
    void showLeader();

    FrmMain& f_;
    unsigned serial_ = 0;
};

}  // namespace petal
