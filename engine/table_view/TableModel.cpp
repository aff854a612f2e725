#include "engine/table_view/TableModel.h"

namespace petal {

namespace {

constexpr std::array<int, 8> kHandLeft = {150, 945, 1740, 2535, 3345, 4140, 4935, 5730};
constexpr std::array<int, 8> kTableLeft = {210, 990, 210, 990, 1770, 2550, 1770, 2550};
constexpr std::array<int, 8> kTableTop = {2850, 2850, 4080, 4080, 2850, 2850, 4080, 4080};
constexpr std::array<int, 3> kCYakuTop = {1290, 1560, 1860};
constexpr std::array<int, 3> kPYakuTop = {6960, 7230, 7530};
constexpr std::array<int, 4> kPileTop = {210, 1080, 1950, 2910};
constexpr std::array<int, 4> kPointsTop = {360, 1230, 2100, 3240};
constexpr std::array<int, 4> kTotalTop = {630, 1500, 2370, 3510};
constexpr std::uint32_t kPanelText = 0x8CD8EE;  // pale gold, blue-green-red

void place(Control& c, int left, int top, int width, int height) {
    c.Left = left;
    c.Top = top;
    c.Width = width;
    c.Height = height;
}

Shape frameFor(const Image& card) {
    Shape frame;
    frame.parent = card.parent;
    place(frame, card.Left + 30, card.Top + 30, 705, 1155);
    frame.Visible = false;
    return frame;
}

}  // namespace

TableModel::TableModel() {
    Picture = pic::Background;
    layOutHands();
    layOutYakuRows();
    layOutTable();
    layOutPanels();
    layOutYakuShow();
}

// The banners lie under the hands: they show once the hands are empty, and an empty image
// still takes the clicks that fall on it.
void TableModel::layOutHands() {
    place(imgWinLose[1], 90, 30, 6465, 1245);
    bringToFront(imgWinLose[1]);
    for (int i = 0; i < 8; ++i) {
        place(imgCCard[i], kHandLeft[i], 60, kCardWidth, kCardHeight);
        imgCCard[i].Picture = pic::CardBack;
        imgCCard[i].Tag = -1;
        bringToFront(imgCCard[i]);
    }
}

void TableModel::layOutYakuRows() {
    for (int i = 0; i < 24; ++i) {
        const int g = i / 3, m = i % 3;
        for (Image* thumb : {&imgCYaku[i], &imgPYaku[i]}) {
            place(*thumb, 240 + 780 * g + 180 * m, (thumb == &imgCYaku[i] ? kCYakuTop : kPYakuTop)[m],
                  375, 600);
            thumb->Picture = pic::thumbGrey(i);
        }
        imgPYaku[i].Tag = 48 + i;
    }
    for (int g = 0; g < 8; ++g) {
        for (Label* label : {&lblCYaku[g], &lblPYaku[g]}) {
            place(*label, 600 + 780 * g, label == &lblCYaku[g] ? 1290 : 6960, 435, 255);
            label->Caption = "50";
            label->font = {"Times New Roman", 12, true};
            label->ForeColor = kPanelText;
            label->alignment = Alignment::Center;
            label->Visible = false;
        }
    }
    // Top rows belong to the opposite side, bottom rows to the local player.
    for (auto& t : imgCYaku) bringToFront(t);
    for (auto& l : lblCYaku) bringToFront(l);
}

void TableModel::layOutTable() {
    place(imgTable, 90, 2520, 6480, 3135);
    imgTable.Picture = pic::TableTop;
    bringToFront(imgTable);
    imgTCard.resize(8);
    shpTHilite.resize(8);
    for (int i = 0; i < 8; ++i) {
        place(imgTCard[i], kTableLeft[i], kTableTop[i], kCardWidth, kCardHeight);
        imgTCard[i].Tag = -1;
        bringToFront(imgTCard[i]);
    }
    for (int i = 0; i < 8; ++i) {
        shpTHilite[i] = frameFor(imgTCard[i]);
        bringToFront(shpTHilite[i]);
    }
    place(imgDeck, 5670, 2850, kCardWidth, kCardHeight);
    imgDeck.Picture = pic::CardBack;
    bringToFront(imgDeck);
    place(imgFlipCard, 5670, 4080, kCardWidth, kCardHeight);
    imgFlipCard.Tag = -1;
    bringToFront(imgFlipCard);
    shpFlipCard = frameFor(imgFlipCard);
    bringToFront(shpFlipCard);
    place(imgWinLose[0], 90, 5670, 6465, 1245);
    bringToFront(imgWinLose[0]);
    for (int i = 0; i < 8; ++i) {
        place(imgPCard[i], kHandLeft[i], 5700, kCardWidth, kCardHeight);
        imgPCard[i].Tag = -1;
        bringToFront(imgPCard[i]);
    }
    shpPHilite = frameFor(imgPCard[0]);
    shpPHilite.Tag = -1;
    bringToFront(shpPHilite);
    for (auto& t : imgPYaku) bringToFront(t);
    for (auto& l : lblPYaku) bringToFront(l);
}

void TableModel::layOutPanels() {
    const std::array<int, 2> boxTop = {4170, 90};
    const std::array<int, 2> turnLeft = {3060, 3030};
    const std::array<int, 2> gagiTop = {840, 900};
    for (int side : {1, 0}) {
        ScorePanel& p = panel[side];
        const Container inside = side == 0 ? Container::Picture1 : Container::Picture2;
        place(p.box, kPanelLeft, boxTop[side], 4995, 3945);
        p.box.Picture = pic::ScorePanel;
        bringToFront(p.box);
        for (int row = 0; row < 4; ++row) {
            Image base;
            base.parent = inside;
            place(base, 810, kPileTop[row], 525, 840);
            bringToFront(base);
            p.piles[row].assign(1, base);
        }
        for (int k = 0; k < 4; ++k) {
            for (Label* label : {&p.lblPoints[k], &p.lblPointsTotal[k]}) {
                label->parent = inside;
                place(*label, 120, (label == &p.lblPoints[k] ? kPointsTop : kTotalTop)[k], 645, 255);
                label->ForeColor = kPanelText;
                label->font.bold = true;
                bringToFront(*label);
            }
        }
        p.imgTurn.parent = p.imgGagi.parent = inside;
        place(p.imgTurn, turnLeft[side], 210, 1800, 510);
        p.imgTurn.Picture = pic::turnMarker(side);
        p.imgTurn.Visible = false;
        bringToFront(p.imgTurn);
        place(p.imgGagi, 4620, gagiTop[side], 225, 360);
        p.imgGagi.Picture = pic::wildMarker(side);
        p.imgGagi.Visible = false;
        p.imgGagi.Tag = -1;
        bringToFront(p.imgGagi);
    }
}

void TableModel::layOutYakuShow() {
    place(picYakuShow, 9315, 6645, 2535, 1620);
    picYakuShow.Visible = false;
    bringToFront(picYakuShow);
    for (int i = 0; i < 3; ++i) {
        imgYakuShow[i].parent = Container::PicYakuShow;
        place(imgYakuShow[i], 90 + 810 * i, 345, kCardWidth, kCardHeight);
        bringToFront(imgYakuShow[i]);
    }
    cmdYakuClose.parent = Container::PicYakuShow;
    cmdYakuClose.Caption = "X";
    place(cmdYakuClose, 2535 - 330, 45, 270, 255);
    bringToFront(cmdYakuClose);
}

int TableModel::loadTableSlot() {
    const int n = static_cast<int>(imgTCard.size());
    Image card = imgTCard[0];
    card.Top = imgTCard[n % 2 == 0 ? 0 : 2].Top;
    card.Left = imgTCard[0].Left + 780 * (n / 2);
    card.clearCard();
    bringToFront(card);
    imgTCard.push_back(card);
    Shape frame = frameFor(card);
    bringToFront(frame);
    shpTHilite.push_back(frame);
    return n;
}

void TableModel::unloadExtraTableSlots() {
    if (imgTCard.size() > 8) imgTCard.resize(8);
    if (shpTHilite.size() > 8) shpTHilite.resize(8);
}

Image& TableModel::loadPileImage(int side, int row) {
    auto& pile = panel[side].piles[row];
    pile.push_back(pile[0]);
    return pile.back();
}

}  // namespace petal
