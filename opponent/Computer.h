#pragma once
#include <string_view>

namespace petal {

class FrmMain;

// The opposite side's turn, stepped by tmrComputer through four phases, and the computer's
// own choices: which hand card to play and what to take with it.
class Computer {
public:
    explicit Computer(FrmMain& f) : f_(f) {}

    // Whether this build has the computer that the options name by kind ("standard").
    static bool plays(std::string_view kind) { return kind == "standard"; }

    void tmrComputer_Timer();
    void CompSelectCard();
    void CompDropCard();
    void CompFlipFromDeck();

private:
    // Runs the phase that mCompPhase names; returns whether the phase moves on.
    bool runPhase();
    void endTurn();
    void closingTick();
    void handMarkersToLocal();
    void commitSelection(int slot, bool highlight);

    FrmMain& f_;
};

}  // namespace petal
