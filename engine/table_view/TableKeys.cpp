#include "engine/table_view/TableKeys.h"

#include "shell/FrmMain.h"

namespace petal {

using Kind = TableFocus::Kind;
using Place = TableFocus::Place;

TableKeys::TableKeys(FrmMain& game) : game_(game), focus_(game.ctl) {}

// A hand card's key counts only where a click could reach the card. Close counts only while
// the yaku panel stands, so that elsewhere Escape goes where it went before.
bool TableKeys::takes(Key key, int slot) const {
    const TableModel& c = game_.ctl;
    switch (key) {
        case Key::Card: return slot >= 0 && slot < 8 && c.imgPCard[slot].Visible && c.imgPCard[slot].Enabled;
        case Key::Close: return c.picYakuShow.Visible && c.cmdYakuClose.Visible && c.cmdYakuClose.Enabled;
        default: return true;
    }
}

void TableKeys::press(Key key, int slot) {
    if (!takes(key, slot)) return;
    const bool shown = shown_;
    shown_ = true;
    if (key == Key::Card) {
        focus_.choose({Kind::Hand, slot});
        use({Kind::Hand, slot});
    } else if (key == Key::Close) {
        game_.yaku.cmdYakuClose_Click();
    } else if (!shown) {
        return;
    } else if (key == Key::Use) {
        const Place place = focus_.place();
        focus_.choose(place);
        use(place);
    } else {
        focus_.move(moveOf(key));
    }
}

void TableKeys::click(Place place) {
    shown_ = false;
    focus_.choose(place);
    use(place);
}

// The one road of keys and clicks: the handler of the place's control, then the mark goes on
// to where the game waits for the player next. It stays where the handler refuses the place:
// a hand or table place while the other side moves (or the hourglass shows), a table card with
// nothing chosen and no flipped card waiting; so the player sees that nothing happened, and the
// mark does not wander to the other side's frames. A yaku picture, whose panel is no move,
// keeps it too.
void TableKeys::use(Place place) {
    const TableModel& c = game_.ctl;
    const bool onTable = place.kind == Kind::Table || place.kind == Kind::TableTop;
    const bool othersMove = game_.m.mTurn != 0 || game_.MousePointer() == FrmMain::kPointerHourglass;
    const bool refused = ((onTable || place.kind == Kind::Hand) && othersMove) ||
                         (place.kind == Kind::Table && !c.shpPHilite.Visible && !c.shpFlipCard.Visible);
    switch (place.kind) {
        case Kind::TableTop: game_.play.imgTable_Click(); break;
        case Kind::Table: game_.play.imgTCard_Click(place.index); break;
        case Kind::Deck: game_.dealer.imgDeck_Click(); break;
        case Kind::Hand: game_.play.imgPCard_Click(place.index); break;
        case Kind::Yaku: game_.yaku.imgPYaku_Click(place.index); break;
    }
    if (place.kind != Kind::Yaku && !refused) focus_.follow(game_.m.mTurn == 0);
}

TableFocus::Move TableKeys::moveOf(Key key) {
    switch (key) {
        case Key::Left: return TableFocus::Move::Left;
        case Key::Right: return TableFocus::Move::Right;
        case Key::Up: return TableFocus::Move::Up;
        case Key::Down: return TableFocus::Move::Down;
        case Key::First: return TableFocus::Move::First;
        default: return TableFocus::Move::Last;
    }
}

}  // namespace petal
