#include "engine/table_view/TableFocus.h"

#include <algorithm>
#include <cstdlib>

namespace petal {

TableFocus::TableFocus(const TableModel& table)
    : c_(table), chosenX_(centreX(chosen_)), chosenY_(centreY(chosen_)), handX_(table.imgPCard[0].Left) {}

int TableFocus::rowOf(Kind kind) {
    switch (kind) {
        case Kind::Hand: return HandRow;
        case Kind::Yaku: return YakuRow;
        default: return TableRow;
    }
}

const Control& TableFocus::control(Place place) const {
    switch (place.kind) {
        case Kind::TableTop: return c_.imgTable;
        case Kind::Table: return c_.imgTCard.at(place.index);
        case Kind::Deck: return c_.imgDeck;
        case Kind::Hand: return c_.imgPCard.at(place.index);
        case Kind::Yaku: return c_.imgPYaku.at(place.index);
    }
    return c_.imgDeck;
}

bool TableFocus::anyFramed() const {
    return std::any_of(c_.shpTHilite.begin(), c_.shpTHilite.end(), [](const Shape& s) { return s.Visible; });
}

// The table top is a stop only while a hand card is chosen: it is where that card is laid down.
// While frames show, only the framed table cards are stops: those are the ones to take.
bool TableFocus::usable(Place place) const {
    const int i = place.index;
    switch (place.kind) {
        case Kind::TableTop: return reachable(c_.imgTable) && c_.shpPHilite.Visible;
        case Kind::Table:
            return i >= 0 && i < static_cast<int>(c_.imgTCard.size()) && reachable(c_.imgTCard[i]) &&
                   c_.imgTCard[i].hasPicture() && (c_.shpTHilite[i].Visible || !anyFramed());
        case Kind::Deck: return reachable(c_.imgDeck);
        case Kind::Hand: return i >= 0 && i < 8 && reachable(c_.imgPCard[i]) && c_.imgPCard[i].hasPicture();
        case Kind::Yaku: return i >= 0 && i < 24 && reachable(c_.imgPYaku[i]) && c_.imgPYaku[i].hasPicture();
    }
    return false;
}

// The table top counts as standing at the table's left edge: it comes first in its row.
int TableFocus::centreX(Place place) const {
    if (place.kind == Kind::TableTop) return c_.imgTable.Left;
    if (place.kind == Kind::Table && (place.index < 0 || place.index >= static_cast<int>(c_.imgTCard.size())))
        return c_.imgTCard[0].Left;
    const Control& c = control(place);
    return c.Left + c.Width / 2;
}

// The table's cards from left to right, each column from top to bottom, then the deck.
std::vector<TableFocus::Place> TableFocus::tableRow() const {
    std::vector<Place> places;
    if (usable({Kind::TableTop, 0})) places.push_back({Kind::TableTop, 0});
    std::vector<Place> cards;
    for (int i = 0; i < static_cast<int>(c_.imgTCard.size()); ++i)
        if (usable({Kind::Table, i})) cards.push_back({Kind::Table, i});
    std::stable_sort(cards.begin(), cards.end(), [this](Place a, Place b) {
        const Control &p = control(a), &q = control(b);
        return p.Left != q.Left ? p.Left < q.Left : p.Top < q.Top;
    });
    places.insert(places.end(), cards.begin(), cards.end());
    if (usable({Kind::Deck, 0})) places.push_back({Kind::Deck, 0});
    return places;
}

std::vector<TableFocus::Place> TableFocus::row(int r) const {
    if (r == TableRow) return tableRow();
    std::vector<Place> places;
    const Kind kind = r == HandRow ? Kind::Hand : Kind::Yaku;
    const int count = r == HandRow ? 8 : 24;
    for (int i = 0; i < count; ++i)
        if (usable({kind, i})) places.push_back({kind, i});
    return places;
}

int TableFocus::centreY(Place place) const {
    if (place.kind == Kind::Table && (place.index < 0 || place.index >= static_cast<int>(c_.imgTCard.size())))
        return c_.imgTCard[0].Top;
    const Control& c = control(place);
    return c.Top + c.Height / 2;
}

// Nearest across first, then up or down: from the hand, the lower of two table cards.
TableFocus::Place TableFocus::nearest(const std::vector<Place>& places, int x, int y) const {
    return *std::min_element(places.begin(), places.end(), [this, x, y](Place a, Place b) {
        const int ax = std::abs(centreX(a) - x), bx = std::abs(centreX(b) - x);
        return ax != bx ? ax < bx : std::abs(centreY(a) - y) < std::abs(centreY(b) - y);
    });
}

TableFocus::Place TableFocus::place() const {
    if (usable(chosen_)) return chosen_;
    for (int r : {rowOf(chosen_.kind), int(HandRow), int(TableRow), int(YakuRow)}) {
        const std::vector<Place> places = row(r);
        if (!places.empty()) return nearest(places, chosenX_, chosenY_);
    }
    return {Kind::Deck, 0};
}

void TableFocus::choose(Place place) {
    chosen_ = place;
    chosenX_ = centreX(place);
    chosenY_ = centreY(place);
    if (place.kind == Kind::Hand) handX_ = chosenX_;
}

void TableFocus::move(Move move) {
    const Place here = place();
    if (move == Move::Up || move == Move::Down) {
        const int step = move == Move::Up ? -1 : 1;
        for (int r = rowOf(here.kind) + step; r >= 0 && r < RowCount; r += step) {
            const std::vector<Place> places = row(r);
            if (places.empty()) continue;
            choose(nearest(places, centreX(here), centreY(here)));
            return;
        }
        return;
    }
    const std::vector<Place> places = row(rowOf(here.kind));
    if (places.empty()) return;
    const auto at = std::find(places.begin(), places.end(), here) - places.begin();
    const auto last = static_cast<long>(places.size()) - 1;
    long next = at;
    switch (move) {
        case Move::Left: next = std::max(0L, at - 1); break;
        case Move::Right: next = std::min(last, at + 1); break;
        case Move::First: next = 0; break;
        default: next = last; break;
    }
    choose(places[next]);
}

// A chosen hand card or the player's flipped card that waits goes to the first framed table
// card, or, with nothing framed, to the table top where the card is laid down. A move that is
// over goes back to the hand, near the card played last. The opposite side's flipped card, with
// its frames, is none of the player's business.
void TableFocus::follow(bool localTurn) {
    const std::vector<Place> table = tableRow();
    if ((localTurn && c_.shpFlipCard.Visible) || c_.shpPHilite.Visible) {
        const bool framed = anyFramed();
        for (Place p : table)
            if ((framed && p.kind == Kind::Table) || (!framed && p.kind == Kind::TableTop)) {
                choose(p);
                return;
            }
        return;
    }
    if (rowOf(place().kind) != TableRow) return;
    const std::vector<Place> hand = row(HandRow);
    if (!hand.empty()) choose(nearest(hand, handX_, c_.imgPCard[0].Top));
}

}  // namespace petal
