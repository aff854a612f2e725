#pragma once
#include <cstdint>
#include <string_view>

#include "engine/CaptureChoice.h"

namespace petal {

class FrmMain;

// The local player's half of a turn and the matching rules that every side uses.
class HandPlay {
public:
    explicit HandPlay(FrmMain& f) : f_(f) {}

    // Zone "P" frames a hand slot, "T" a table slot; "C" is accepted and does nothing.
    void HiliteCards(std::string_view Zone, int Slot, bool Show);
    // Frames (when Show) the table slots that the card at Position may take; the result is
    // the slot of the most valuable match, the lower slot on equal points, or -1.
    int RelativeCheck(int Position, bool Show);
    // RelativeCheck without frames for every card at once.
    CaptureChoice captureChoice() const;
    void imgPCard_Click(int Slot);
    void imgTCard_Click(int Slot);
    void imgTable_Click();
    // Returns the slot that the card went to.
    int AddCardToTable(int Position);

    void hideTableFrames();

private:
    // HiliteCards("T", Slot, Show) with the turn's colour already read.
    void frameTableSlot(int Slot, bool Show, std::uint32_t colour);
    int selectedHandSlot() const;
    void passTurnIfFlipped();

    FrmMain& f_;
};

}  // namespace petal
