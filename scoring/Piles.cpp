#include "scoring/Piles.h"

#include <charconv>
#include <string>
#include <string_view>

#include "cards/FrmCards.h"
#include "cards/Val.h"
#include "shell/FrmMain.h"
#include "platform/Host.h"
#include "platform/Words.h"

namespace petal {

namespace {

// The pile row of a card value: 0 the 20s, 1 the 10s, 2 the 5s, 3 the 0s; -1 for none.
int rowOf(int points) {
    switch (points) {
        case 20: return 0;
        case 10: return 1;
        case 5: return 2;
        case 0: return 3;
        default: return -1;
    }
}

constexpr std::string_view kRowCaption[3] = {"20 x ", "10 x ", "5 x "};

// Sets a caption to a prefix and a number in decimal, leaving it alone if it reads so already.
void setCaption(std::string& caption, std::string_view prefix, int number) {
    char text[32];
    prefix.copy(text, prefix.size());
    const char* end = std::to_chars(text + prefix.size(), text + sizeof text, number).ptr;
    const std::string_view wanted(text, static_cast<std::size_t>(end - text));
    if (caption == wanted) return;
    // Clear and append: cheaper than assign for texts this short, which fit in place.
    caption.clear();
    caption.append(wanted);
}

// Valued rows lay seven cards side by side, then a second layer shifted by half a card; the
// chaff row fans in half-card steps and wraps after fifteen.
void placePileCard(Image& card, const Image& base, int row, int n, TableModel& c) {
    bool toFront = true;
    if (row < 3) {
        if (n < 7) {
            card.Left = base.Left + n * (base.Width + 15);
            toFront = false;
        } else {
            card.Left = base.Left + (n - 7) * (base.Width + 15) + base.Width / 2;
        }
        card.Top = base.Top;
    } else if (n < 15) {
        card.Left = base.Left + n * (base.Width / 2);
        card.Top = base.Top;
    } else {
        card.Left = base.Left + (n - 15) * (base.Width / 2);
        card.Top = base.Top + base.Height / 2;
    }
    if (toFront) c.bringToFront(card);
}

}  // namespace

void Piles::SendToPoints(int side, int CardPos, bool ByGCard, int PairIndex) {
    const CardRecord& card = f_.m.mCards.at(CardPos);
    const int row = rowOf(card.Points);
    if (row < 0) return;
    TableModel& c = f_.ctl;
    ScorePanel& panel = c.panel[side];
    auto& pile = panel.piles[row];
    int n = 0;
    if (!pile[0].hasPicture()) {
        pile[0].Picture = card.Picture;
    } else {
        n = static_cast<int>(pile.size());
        Image& added = c.loadPileImage(side, row);
        added.Picture = card.Picture;
        placePileCard(added, pile[0], row, n, c);
        added.Visible = true;
    }
    pile[n].ToolTipText = cardToolTip(card);
    const int t = f_.m.mTurn;
    if (row < 3) {
        auto& points = f_.m.mPoints.at(t);
        points[0][row] += 1;
        points[1][row] += card.Points;
        setCaption(panel.lblPoints[row].Caption, kRowCaption[row], points[0][row]);
        setCaption(panel.lblPointsTotal[row].Caption, {}, points[1][row]);
    }
    if (ByGCard && PairIndex == 0) {
        Image& marker = c.panel.at(t).imgGagi;
        marker.Top = pile[n].Top;
        marker.Left = pile[n].Left;
        marker.Tag = CardPos;
        c.bringToFront(marker);
        marker.Visible = true;
    }
    f_.host.refresh();
}

void Piles::captureFromTable(int side, int slot, int played, bool fromDeck) {
    TableModel& c = f_.ctl;
    const int pair[2] = {static_cast<int>(c.imgTCard.at(slot).Tag.value()), played};
    const bool wild = f_.m.mCards.at(played).isWild();
    for (int k = 0; k < 2; ++k) {
        SendToPoints(side, pair[k], wild, k);
        if (f_.g.gUseYaku) f_.yaku.ShowYaku(pair[k]);
    }
    c.imgTCard[slot].clearCard();
    c.shpTHilite.at(slot).Visible = false;
    f_.playSoundFile("capture.wav");
    if (f_.events) f_.events->moved(side, fromDeck, played, pair[0], slot);
}

void Piles::CalcPlayerPoints() {
    const int t = f_.m.mTurn;
    const auto& points = f_.m.mPoints.at(t);
    int sum = points[1][0] + points[1][1] + points[1][2];
    if (f_.g.gUseYaku)
        for (int g = 0; g < 8; ++g)
            if (f_.m.mYakuCards[t][g] == 3) sum += 50;
    if (sum <= 0) return;
    ScorePanel& panel = f_.ctl.panel[t == 0 ? 0 : 1];
    if (panel.lblPoints[3].Caption != "Total") panel.lblPoints[3].Caption = PETAL_TR("core", "Total");
    setCaption(panel.lblPointsTotal[3].Caption, {}, sum);
}

int Piles::CompCardCount() const {
    int count = 0;
    for (const Image& card : f_.ctl.imgCCard) count += card.hasPicture() ? 1 : 0;
    return count;
}

}  // namespace petal
