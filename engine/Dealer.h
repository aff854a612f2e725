#pragma once
#include <array>
#include <string>

#include "assets/Pictures.h"

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
    // The deals dealt so far, for those who watch the game (tools, tests).
    unsigned serial() const { return serial_; }
    // The deck's tool tip: while no game runs, it tells a newcomer how to start one.
    std::string deckToolTip() const;

private:
    void clearHandsAndTable();
    void clearPiles();
    void resetYakuRows(bool ClearOnly);
    // The grey thumbnail of a yaku slot, looked up once: the slots' codes are set at the start.
    PictureId greyThumbnail(int slot);
    void layOutDeal();
    void showLeader();

    FrmMain& f_;
    unsigned serial_ = 0;
    std::array<PictureId, 24> grey_{};
    std::array<bool, 24> greyKnown_{};
};

}  // namespace petal
