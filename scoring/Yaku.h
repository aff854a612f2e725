#pragma once
#include <array>
#include <vector>

#include "scoring/YakuImageLists.h"

namespace petal {

class FrmMain;

// The eight yaku: the count of cards by side and group, the two rows of thumbnails, dead and
// complete groups, the sounds, and the panel that shows a group's three cards at full size.
class Yaku {
public:
    explicit Yaku(FrmMain& f) : f_(f) {}

    void ShowYaku(int CardPos);
    void CountYakus();
    void imgPYaku_Click(int Index);
    void imgPYaku_MouseMove(int Index);
    void cmdYakuClose_Click();
    void imgYakuShow_MouseMove();
    void picYakuShow_MouseMove();

    // Refreshes the open panel's three pictures from the thumbnails' Tags.
    void reloadPanel();

private:
    void backThumbnails(int group, bool player, bool opposite);
    // The thumbnail slots whose code stands in a card's yaku codes, in the order of the codes'
    // list: found once for each card, as neither the card's codes nor the list change.
    const std::vector<int>& slotsOf(int cardIndex);
    // The colour thumbnail of a slot, looked up once for the same reason.
    const ListImage& colourThumbnail(int slot);

    FrmMain& f_;
    std::array<std::vector<int>, 48> slots_;
    std::array<bool, 48> slotsKnown_{};
    std::array<ListImage, 24> colour_;
    std::array<bool, 24> colourKnown_{};
};

}  // namespace petal
