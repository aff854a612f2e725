#pragma once
// Tells the moves of the game as sentences, for a screen reader to announce as they happen:
// each card that comes to rest (whose card, what it took), the yaku made, whose turn it is, a
// round's result and a chat line that arrives. It hears the moves as a watcher of the game and
// finds the rest by comparing the table with the last look, so the game runs as it always has.
#include <array>
#include <string>
#include <vector>

#include "shell/GameEvents.h"

namespace petal {

class FrmMain;

class TableNarrator : public GameEvents {
public:
    explicit TableNarrator(const FrmMain& f) : f_(f) {}

    void moved(int side, bool fromDeck, int pos, int took, int slot) override;
    void claimed(int side, int pos, int slot) override;

    // Looks at the table after a change and gives what is new to tell, oldest first.
    std::vector<std::string> take();

private:
    enum class Turn { None, Local, Opposite };
    Turn turnNow() const;
    std::string sentence(int side, const char* mine, const char* theirs, const std::string& card,
                         const std::string& taken) const;
    void lookForYaku();
    void lookForResult();
    void lookForChat();

    const FrmMain& f_;
    std::vector<std::string> said_;
    Turn turn_ = Turn::None;
    int deal_ = -1;
    std::array<std::array<int, 8>, 2> yaku_{};
    bool result_ = false;
    bool placing_ = false;  // the player's turned card waits to be placed
    int chatLines_ = 0;
    const void* chatForm_ = nullptr;
};

}  // namespace petal
