#pragma once
// What the table says to a screen reader: every thing on it that a player can find, named from
// the game's state as a person would say it, with its role, its state and what a click on it
// does. The Qt side only carries these to the accessibility bus.
#include <optional>
#include <string>
#include <vector>

#include "cards/CardRecord.h"
#include "engine/table_view/TableFocus.h"

namespace petal {

class FrmMain;

struct SpokenThing {
    // What the thing is; with index, it stays the same thing while the game goes on.
    enum class Kind { Hand, TableTop, Table, Deck, Turned, Opponent, Score, Banner, Yaku, YakuCard, YakuClose, Status };
    enum class Role { Card, Place, Button, Panel, Text, Status };
    Kind kind = Kind::Deck;
    int index = 0;
    Role role = Role::Card;
    std::string name;
    std::string description;  // what a click does, or the detail of a panel
    const Control* control = nullptr;  // where it stands on the form
    std::optional<TableFocus::Place> place;  // the place of the keys it is, if any
    bool selected = false;  // the hand card chosen to play
    bool framed = false;    // a table card the chosen card can take, or the turned card that waits
    bool clickable = false;

    bool sameThing(const SpokenThing& other) const { return kind == other.kind && index == other.index; }
};

// "Matsu Ni Tsuru, January, 20 points", in the language spoken.
std::string spokenCard(const FrmMain& f, const CardRecord& card);
// The yaku of a group (0 to 7) by its three cards: "the yaku of A, B and C".
std::string spokenYaku(const FrmMain& f, int group);
// What the opposite side is called: the computer, or the other player.
std::string opponentName(const FrmMain& f);
// Every thing on the table now, in the order of reading: the hand, the table, the deck, the
// opposite hand, the scores, the banners, the yaku row and its panel.
std::vector<SpokenThing> spokenTable(const FrmMain& f);

}  // namespace petal
