#pragma once
#include <string_view>

namespace petal {

class FrmMain;

// The opposite side's turn, stepped by tmrComputer through four phases, and the computer's
// own choices: which hand card to play and what to take with it. The standard computer is
// the greedy rule of the game; the strong one, chosen in Setup, searches (StrongSearch).
class Computer {
public:
    static constexpr const char* kOption = "computer";  // "standard" or "strong"

    explicit Computer(FrmMain& f) : f_(f) {}

    // Whether this build has the computer that the options name by kind.
    static bool plays(std::string_view kind) { return kind == "standard" || kind == "strong"; }
    // Whether the strong computer plays: chosen in Setup, and in single play only.
    bool strong() const;

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
    bool selectStrong();
    // The table card that the strong computer takes with the card being dropped; best is the
    // one the standard computer would take.
    int strongTake(int best);

    FrmMain& f_;
    // The table card chosen with the hand card, for the drop a tick later.
    int plannedCard_ = -1;
    int plannedSlot_ = -1;
};

}  // namespace petal
