#include "records/FrmHOFWinner.h"

#include "cards/Globals.h"
#include "records/Characters.h"
#include "records/HallOfFame.h"

namespace petal {

void FrmHOFWinner::Form_Load() {
    Caption = mFormCaption;
    setTxtHOFName(g_.gHighScoreName);
}

void FrmHOFWinner::setTxtHOFName(const std::string& text) {
    // Counted as characters are seen, so an emoji with its modifiers is one and is never cut.
    const std::string limited = firstCharacters(wellFormedUtf8(text), kMaxName);
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
