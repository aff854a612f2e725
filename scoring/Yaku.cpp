#include "scoring/Yaku.h"

#include "cards/FrmCards.h"
#include "cards/Val.h"
#include "scoring/YakuImageLists.h"
#include "shell/FrmMain.h"
#include "platform/Host.h"

namespace petal {

const std::vector<int>& Yaku::slotsOf(int cardIndex) {
    if (!slotsKnown_.at(cardIndex)) {
        const std::string_view codes = FrmCards::card(cardIndex + 1).YakuCodes;
        for (int i = 0; i < 24; ++i) {
            const std::string& code = f_.g.gYakuCodes[i];
            if (!code.empty() && codes.find(code) != std::string_view::npos) slots_[cardIndex].push_back(i);
        }
        slotsKnown_[cardIndex] = true;
    }
    return slots_[cardIndex];
}

const ListImage& Yaku::colourThumbnail(int slot) {
    if (!colourKnown_.at(slot)) {
        colour_[slot] = ilsYakuColor(yakuKey(f_.g.gYakuCodes[slot]));
        colourKnown_[slot] = true;
    }
    return colour_[slot];
}

void Yaku::ShowYaku(int CardPos) {
    const CardRecord& card = f_.m.mCards.at(CardPos);
    if (card.YakuCodes.empty()) return;
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    const int t = m.mTurn;
    for (const int i : slotsOf(card.Index)) {
        const std::string& code = f_.g.gYakuCodes[i];
        const int k = code[0] - '1';
        const ListImage& colour = colourThumbnail(i);
        if (t == 0) {
            c.imgPYaku[i].Picture = colour.Picture;
            c.imgPYaku[i].Tag = colour.Tag;
            const int first = c.picYakuShow.Tag.value();
            if (c.picYakuShow.Visible && i >= first && i <= first + 2)
                c.imgYakuShow[i - first].Picture = FrmCards::imgCard(c.imgPYaku[i].Tag.value()).Picture;
        } else {
            c.imgCYaku[i].Picture = colour.Picture;
        }
        const int held = ++m.mYakuCards.at(t).at(k);
        if (held == 3) {
            (t == 0 ? c.lblPYaku : c.lblCYaku)[k].Visible = true;
            backThumbnails(k, t != 0, t == 0);
        } else if (m.mYakuCards[0][k] > 0 && m.mYakuCards[1][k] > 0) {
            backThumbnails(k, true, true);
        }
    }
}

// Turns a group's thumbnails to card backs; the player's go dead to the mouse as well.
void Yaku::backThumbnails(int group, bool player, bool opposite) {
    TableModel& c = f_.ctl;
    const PictureId back = ilsYakuColor("Back").Picture;
    for (int j = group * 3; j < group * 3 + 3; ++j) {
        if (opposite) c.imgCYaku[j].Picture = back;
        if (player) {
            c.imgPYaku[j].Picture = back;
            c.imgPYaku[j].Enabled = false;
        }
    }
    f_.host.refresh();
}

void Yaku::CountYakus() {
    MainVars& m = f_.m;
    const int t = m.mTurn;
    int complete = 0;
    for (int k = 0; k < 8; ++k) complete += m.mYakuCards.at(t)[k] == 3 ? 1 : 0;
    if (complete == m.mYakuCount.at(t)) return;
    if (complete >= 1 && complete <= 4)
        f_.PlaySound(f_.programFile((t == 0 ? "pyaku" : "cyaku") + std::to_string(complete) + ".wav"));
    m.mYakuCount[t] = complete;
}

void Yaku::imgPYaku_Click(int Index) {
    if (!f_.g.gUseYaku) return;
    TableModel& c = f_.ctl;
    const int s = Index / 3 * 3;
    for (int i = s; i <= s + 2; ++i)
        c.imgYakuShow[i - s].Picture = FrmCards::imgCard(c.imgPYaku.at(i).Tag.value()).Picture;
    f_.restoreArrow();
    c.picYakuShow.Visible = true;
    c.picYakuShow.Tag = s;
}

void Yaku::reloadPanel() {
    TableModel& c = f_.ctl;
    const int k = c.picYakuShow.Tag.value();
    for (int i = 0; i < 3; ++i) c.imgYakuShow[i].Picture = FrmCards::imgCard(c.imgPYaku.at(k + i).Tag.value()).Picture;
}

void Yaku::imgPYaku_MouseMove(int Index) {
    const Image& thumb = f_.ctl.imgPYaku.at(Index);
    if (f_.MousePointer() == FrmMain::kPointerDefault && thumb.hasPicture() && thumb.Enabled)
        f_.setMousePointer(FrmMain::kPointerHand);
}

void Yaku::cmdYakuClose_Click() { f_.ctl.picYakuShow.Visible = false; }

void Yaku::imgYakuShow_MouseMove() { f_.restoreArrow(); }

void Yaku::picYakuShow_MouseMove() { f_.restoreArrow(); }

}  // namespace petal
