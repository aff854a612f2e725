#pragma once
// Where the keys act on the table. A place is a control that a click reaches: the table top,
// a table card, the deck, a hand card or a picture of the local yaku row. The places stand in
// three rows as on the screen (the table with the deck at its right, the hand, the yaku row);
// the arrow keys move within a row and between rows. Using a place is a click on its control:
// this model only reads the controls and chooses; the click handlers decide.
#include <vector>

#include "engine/table_view/TableModel.h"

namespace petal {

class TableFocus {
public:
    enum class Kind { TableTop, Table, Deck, Hand, Yaku };
    struct Place {
        Kind kind = Kind::Deck;
        int index = 0;
        bool operator==(const Place&) const = default;
    };
    enum class Move { Left, Right, Up, Down, First, Last };

    explicit TableFocus(const TableModel& table);

    // The place the keys act on: the one chosen while it can be used, else the nearest that can.
    Place place() const;
    void choose(Place place);
    void move(Move move);
    // After a place was used: on to where the game waits for the player next. localTurn: the
    // turn is the local player's, so a flipped card that waits is theirs to place.
    void follow(bool localTurn);
    // Whether the place is worth a stop: a click would reach its control and could do something.
    bool usable(Place place) const;
    // The control of a place, on the form.
    const Control& control(Place place) const;

private:
    enum Row { TableRow, HandRow, YakuRow, RowCount };
    static int rowOf(Kind kind);
    std::vector<Place> row(int r) const;
    std::vector<Place> tableRow() const;
    Place nearest(const std::vector<Place>& places, int x, int y) const;
    int centreX(Place place) const;
    int centreY(Place place) const;
    bool anyFramed() const;
    static bool reachable(const Control& c) { return c.Visible && c.Enabled; }

    const TableModel& c_;
    Place chosen_;
    int chosenX_, chosenY_;  // where the chosen place stood, for when its card has gone
    int handX_;    // where the last hand card chosen stood, for the return to the hand
};

}  // namespace petal
