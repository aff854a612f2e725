#include "engine/HandPlay.h"

#include <array>

#include "cards/FrmCards.h"
#include "cards/Val.h"
#include "shell/FrmMain.h"

namespace petal {

void HandPlay::HiliteCards(std::string_view Zone, int Slot, bool Show) {
    TableModel& c = f_.ctl;
    const std::uint32_t colour = f_.m.mHiliteColor.at(f_.m.mTurn);
    if (Zone == "P") {
        if (Show) {
            c.shpPHilite.BorderColor = colour;
            c.shpPHilite.Left = c.imgPCard.at(Slot).Left + 30;
            c.shpPHilite.Top = c.imgPCard.at(Slot).Top + 30;
            c.shpPHilite.Visible = true;
            c.shpPHilite.Tag = Slot;
        } else {
            c.shpPHilite.Visible = false;
            c.shpPHilite.Tag = -1;
        }
        c.bringToFront(c.shpPHilite);
    } else if (Zone == "T") {
        frameTableSlot(Slot, Show, colour);
    }
}

void HandPlay::frameTableSlot(int Slot, bool Show, std::uint32_t colour) {
    TableModel& c = f_.ctl;
    Shape& frame = c.shpTHilite.at(Slot);
    frame.BorderColor = colour;
    frame.Visible = Show;
    c.bringToFront(frame);
}

int HandPlay::RelativeCheck(int Position, bool Show) {
    int best = -1;
    if (Position < 0) return best;
    const auto& cards = f_.m.mCards;
    const CardRecord& card = cards.at(Position);
    const bool wild = card.isWild();
    const auto& table = f_.ctl.imgTCard;
    const int slots = static_cast<int>(table.size());
    // The frames' colour is the turn's, as HiliteCards gives it; read once for all the slots.
    const std::uint32_t colour = Show ? f_.m.mHiliteColor.at(f_.m.mTurn) : 0;
    int bestPoints = 0;
    for (int i = 0; i < slots; ++i) {
        const TagText& tag = table[i].Tag;
        if (tag.is(-1)) continue;
        const CardRecord& other = cards.at(tag.value());
        const bool matches = wild || other.sameMonth(card);
        if (Show) frameTableSlot(i, matches, colour);
        if (matches && (best < 0 || other.Points > bestPoints)) {
            best = i;
            bestPoints = other.Points;
        }
    }
    return best;
}

CaptureChoice HandPlay::captureChoice() const {
    CaptureChoice choice;
    const auto& cards = f_.m.mCards;
    const auto& table = f_.ctl.imgTCard;
    std::array<int, 13> bestPoints{};
    int anyPoints = 0;
    for (int i = 0; i < static_cast<int>(table.size()); ++i) {
        const TagText& tag = table[i].Tag;
        if (tag.is(-1)) continue;
        const CardRecord& other = cards.at(tag.value());
        if (choice.any < 0 || other.Points > anyPoints) {
            choice.any = i;
            anyPoints = other.Points;
        }
        if (other.month < 0 || other.month >= static_cast<int>(bestPoints.size())) continue;
        int& slot = choice.byMonth[other.month];
        if (slot < 0 || other.Points > bestPoints[other.month]) {
            slot = i;
            bestPoints[other.month] = other.Points;
        }
    }
    return choice;
}

int HandPlay::selectedHandSlot() const {
    const Shape& frame = f_.ctl.shpPHilite;
    const long slot = frame.Tag.value();
    return frame.Visible && slot >= 0 && slot < 8 ? static_cast<int>(slot) : -1;
}

void HandPlay::hideTableFrames() {
    for (std::size_t i = 0; i < f_.ctl.shpTHilite.size(); ++i) HiliteCards("T", static_cast<int>(i), false);
}

void HandPlay::imgPCard_Click(int Slot) {
    // Whatever the pointer shows, no hand card is played while a flipped card is pending.
    const TableModel& c = f_.ctl;
    if (f_.MousePointer() == FrmMain::kPointerHourglass || c.shpFlipCard.Visible || c.imgFlipCard.hasPicture()) return;
    const int selected = selectedHandSlot();
    if (selected >= 0) HiliteCards("P", selected, false);
    if (selected == Slot) {
        HiliteCards("P", Slot, false);
        hideTableFrames();
        return;
    }
    if (!f_.ctl.imgPCard.at(Slot).hasPicture()) {
        hideTableFrames();
        return;
    }
    HiliteCards("P", Slot, true);
    RelativeCheck(f_.ctl.imgPCard[Slot].Tag.value(), true);
}

void HandPlay::imgTCard_Click(int Slot) {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    if (m.mTurn > 0) return;
    if (!c.shpTHilite.at(Slot).Visible) {
        if (c.imgFlipCard.hasPicture() || !c.shpPHilite.Visible) return;
        const int position = c.imgPCard.at(c.shpPHilite.Tag.value()).Tag.value();
        if (RelativeCheck(position, false) == -1) imgTable_Click();
        return;
    }
    const bool fromHand = c.shpPHilite.Visible;
    const int handSlot = fromHand ? static_cast<int>(c.shpPHilite.Tag.value()) : -1;
    int played;
    if (fromHand)
        played = f_.g.gPlayMode == 2 ? static_cast<int>(c.imgPCard.at(handSlot).Tag.value()) : handSlot;
    else
        played = c.imgFlipCard.Tag.value();
    if (fromHand) {
        f_.journal.handPlayed(handSlot, Slot);
        f_.seenPlays.add(f_, 0, handSlot, static_cast<int>(c.imgPCard.at(handSlot).Tag.value()));
    }
    f_.piles.captureFromTable(0, Slot, played, !fromHand);
    f_.piles.CalcPlayerPoints();
    if (fromHand) {
        c.imgPCard.at(handSlot).clearCard();
        c.shpPHilite.Visible = false;
    } else {
        c.imgFlipCard.clearCard();
        c.shpFlipCard.Visible = false;
    }
    for (Shape& frame : c.shpTHilite) frame.Visible = false;
    f_.yaku.CountYakus();
    if (f_.g.gPlayMode > 0)
        f_.sendToPeer("CARD," + (fromHand ? c.shpPHilite.Tag.text() : std::to_string(played)) + "," + std::to_string(Slot));
    passTurnIfFlipped();
    if (!fromHand) f_.journal.flipPlaced(Slot);
    if (fromHand)
        f_.flip.FlipCard();
    else if (m.mPlayerPlays == 8 && m.mCompPlays == 8)
        f_.EndMatch();
    c.shpPHilite.Tag = -1;
}

void HandPlay::passTurnIfFlipped() {
    MainVars& m = f_.m;
    if (m.mPlayerFlipped == 1 && m.mCompPlays < 8) {
        m.mTurn = 1;
        f_.tmrComputer.setEnabled(true);
        m.mCompPhase = 0;
    }
}

void HandPlay::imgTable_Click() {
    MainVars& m = f_.m;
    TableModel& c = f_.ctl;
    if (m.mTurn == 0) {
        if (!c.shpPHilite.Visible) return;
        const int s = c.shpPHilite.Tag.value();
        const int p = c.imgPCard.at(s).Tag.value();
        if (RelativeCheck(p, true) != -1) return;
        f_.journal.handPlayed(s, -1);
        f_.seenPlays.add(f_, 0, s, p);
        const int slot = AddCardToTable(p);
        if (f_.events) f_.events->moved(0, false, p, -1, slot);
        if (f_.g.gPlayMode > 0) f_.sendToPeer("CARD," + std::to_string(s) + ",-1");
        c.imgPCard[s].clearCard();
        c.imgPCard[s].Visible = false;
        c.shpPHilite.Visible = false;
        f_.flip.FlipCard();
    } else if (m.mCompPhase == 1) {
        if (RelativeCheck(m.mCompDeckPos, true) != -1) return;
        const int slot = AddCardToTable(m.mCompDeckPos);
        if (f_.events) f_.events->moved(1, false, m.mCompDeckPos, -1, slot);
        Image& card = c.imgCCard.at(m.mCompCard);
        card.Picture = NoPicture;
        card.Visible = false;
        card.Tag = -1;
    }
}

int HandPlay::AddCardToTable(int Position) {
    TableModel& c = f_.ctl;
    int slot = -1;
    for (std::size_t i = 0; i < c.imgTCard.size() && slot < 0; ++i)
        if (!c.imgTCard[i].hasPicture()) slot = static_cast<int>(i);
    // A new slot comes with its frame, in front of it and hidden.
    if (slot < 0) slot = c.loadTableSlot();
    Image& card = c.imgTCard[slot];
    card.Picture = f_.m.mCards.at(Position).Picture;
    card.ToolTipText = cardToolTip(f_.m.mCards[Position]);
    card.Tag = Position;
    card.Visible = true;
    f_.playSoundFile("lay.wav");
    if (f_.m.mTurn == 0) passTurnIfFlipped();
    return slot;
}

}  // namespace petal
