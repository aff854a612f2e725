#include "records/FrmHOFWinner.h"

#include "cards/Globals.h"
#include "records/HallOfFame.h"

namespace petal {

void FrmHOFWinner::Form_Load() {
    Caption = mFormCaption;
    setTxtHOFName(g_.gHighScoreName);
}

void FrmHOFWinner::setTxtHOFName(const std::string& text) {
    // Counted in characters, not bytes, so a UTF-8 name of 20 letters fits.
    std::string limited;
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool startsCharacter = (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
        if (startsCharacter && ++characters > kMaxName) break;
        limited += text[i];
    }
    if (limited == name_) return;
    name_ = limited;
    txtHOFName_Change();
}

void FrmHOFWinner::cmdOK_Click() {
    g_.gHighScoreName = name_;
    hof_.AddHallOfFameEntry(name_, mScore, mYakuCount, mRoundsWon, mRounds);
    Unload();
}

}  // namespace petal
