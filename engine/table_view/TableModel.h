#pragma once
// The controls of the game table, at their fixed positions (twips, 15 to the pixel).
#include <array>
#include <vector>

#include "engine/table_view/Controls.h"

namespace petal {

// One side's score panel: Picture1 for the local player, Picture2 for the opposite side.
struct ScorePanel {
    PictureBox box;
    // Pile rows by value: 0 the 20-point cards, 1 the 10s, 2 the 5s, 3 the 0s.
    std::array<std::vector<Image>, 4> piles;
    std::array<Label, 4> lblPoints;       // row captions; (3) "Total"
    std::array<Label, 4> lblPointsTotal;  // row points; (3) the round's score
    Image imgTurn;
    Image imgGagi;
};

struct TableModel {
    // Wide and tall enough for the yaku panel, which reaches 11850 and ends at 8265.
    static constexpr int kClientWidth = 11850;
    static constexpr int kClientHeight = 8280;
    static constexpr int kCardWidth = 750;
    static constexpr int kCardHeight = 1200;
    static constexpr int kPanelLeft = 6720;  // both score panels' left edge

    TableModel();

    PictureId Picture = NoPicture;  // the form's background
    std::array<Image, 8> imgCCard, imgPCard;
    std::array<Image, 2> imgWinLose;  // (0) over the local hand, (1) over the opposite hand
    std::array<Image, 24> imgCYaku, imgPYaku;
    std::array<Label, 8> lblCYaku, lblPYaku;
    Image imgTable;
    std::vector<Image> imgTCard;
    std::vector<Shape> shpTHilite;
    Image imgDeck, imgFlipCard;
    Shape shpFlipCard, shpPHilite;
    std::array<ScorePanel, 2> panel;  // by side: 0 Picture1, 1 Picture2
    PictureBox picYakuShow;
    std::array<Image, 3> imgYakuShow;
    Button cmdYakuClose;

    void bringToFront(Control& control) { control.ZOrder = ++zTop_; }

    // Loads imgTCard(n) and shpTHilite(n) beside the others by the table's growth rule.
    int loadTableSlot();
    // Unloads the table slots above 7 with their frames.
    void unloadExtraTableSlots();
    // Loads pile element n of a panel row, a copy of element 0 placed by the caller.
    Image& loadPileImage(int side, int row);

private:
    int zTop_ = 0;
    void layOutHands();
    void layOutYakuRows();
    void layOutTable();
    void layOutPanels();
    void layOutYakuShow();
};

}  // namespace petal
