#pragma once
// The table played by keys. The keys move a mark among the places that a click reaches
// (TableFocus) and use the place under it by calling the same handler as a click there, so the
// game's guards (the hourglass, a drop refused while a match lies on the table) hold for keys
// as for the mouse. The view only turns its key events into these keys, on its host's dispatch.
#include "engine/table_view/TableFocus.h"

namespace petal {

class FrmMain;

class TableKeys {
public:
    enum class Key {
        Left, Right, Up, Down, First, Last,  // move the mark
        Use,                                 // a click on the place under the mark
        Card,                                // a hand card by its slot, 0 to 7
        Close,                               // closes the yaku panel
    };

    explicit TableKeys(FrmMain& game);

    // Whether the table answers to the key now; any other key goes on to the window.
    bool takes(Key key, int slot = 0) const;
    // Runs one key. A first key only shows the mark, unless it names its place itself (a hand
    // card, Close), so that nothing is used unseen.
    void press(Key key, int slot = 0);
    // A click on the control of a place: the keys go on from there, and the mark hides until
    // the next key.
    void click(TableFocus::Place place);

    const TableFocus& focus() const { return focus_; }
    bool markShown() const { return shown_; }

private:
    void use(TableFocus::Place place);
    static TableFocus::Move moveOf(Key key);

    FrmMain& game_;
    TableFocus focus_;
    bool shown_ = false;
};

}  // namespace petal
