#include "TableSnapshot.h"

#include "shell/FrmMain.h"

namespace petal::sim {

namespace {

// A place: its picture (or "-"), with "h" when hidden and its Tag where it holds one.
void put(std::string& out, const Image& image, bool tag = true) {
    out += image.hasPicture() ? std::to_string(image.Picture) : "-";
    if (!image.Visible) out += 'h';
    if (tag && !image.Tag.is(-1)) out += "#" + image.Tag.text();
    out += ' ';
}

void put(std::string& out, const Control& control) { out += control.Visible ? "+ " : "- "; }

}  // namespace

std::string tableSnapshot(const FrmMain& f) {
    const TableModel& c = f.ctl;
    std::string out = "hand ";
    for (const Image& card : c.imgPCard) put(out, card);
    out += "| opp ";
    for (const Image& card : c.imgCCard) put(out, card);
    out += "| table ";
    for (std::size_t i = 0; i < c.imgTCard.size(); ++i) {
        put(out, c.imgTCard[i]);
        put(out, c.shpTHilite[i]);
    }
    out += "| flip ";
    put(out, c.imgFlipCard);
    put(out, c.shpFlipCard);
    put(out, c.shpPHilite);
    for (const ScorePanel& p : c.panel) {
        out += "| side ";
        for (const auto& row : p.piles) {
            for (const Image& card : row) put(out, card, false);
            out += "/ ";
        }
        for (int k = 0; k < 4; ++k) out += "[" + p.lblPoints[k].Caption + "][" + p.lblPointsTotal[k].Caption + "] ";
        put(out, p.imgTurn, false);
        put(out, p.imgGagi);
    }
    out += "| yaku ";
    for (int i = 0; i < 24; ++i) {
        put(out, c.imgPYaku[i], false);
        put(out, c.imgCYaku[i], false);
    }
    for (int k = 0; k < 8; ++k) {
        put(out, c.lblPYaku[k]);
        put(out, c.lblCYaku[k]);
    }
    out += "| banners ";
    for (const Image& banner : c.imgWinLose) put(out, banner, false);
    out += "| turn " + std::to_string(f.m.mTurn) + " round " + std::to_string(f.m.mRoundNo) + " scores";
    for (const auto& side : f.g.gRoundScores)
        for (const int score : side) out += " " + std::to_string(score);
    return out;
}

}  // namespace petal::sim
