#include "TableInvariants.h"

#include <array>
#include <optional>

#include "shell/FrmMain.h"

namespace petal::sim {

namespace {

constexpr int kCards = 48;
constexpr int kLastTurned = 39;  // eight turns a side, sixteen flips in all
constexpr const char* kRowCaption[3] = {"20 x ", "10 x ", "5 x "};

// A Tag that names a position: decimal digits only, 0 to 47.
std::optional<int> positionIn(const std::string& tag) {
    if (tag.empty() || tag.size() > 2) return std::nullopt;
    int value = 0;
    for (char c : tag) {
        if (c < '0' || c > '9') return std::nullopt;
        value = value * 10 + (c - '0');
    }
    if (value >= kCards) return std::nullopt;
    return value;
}

bool holdsCard(const Image& oppositeCard) {
    return oppositeCard.hasPicture() && (oppositeCard.Tag != "-1" || oppositeCard.Picture != pic::CardBack);
}

int rowOf(int points) {
    switch (points) {
        case 20:
            return 0;
        case 10:
            return 1;
        case 5:
            return 2;
        default:
            return 3;
    }
}

// Where each position was found, and the first fault met on the way.
struct Ledger {
    explicit Ledger(const FrmMain& frm) : f(frm) {}

    const FrmMain& f;
    std::array<std::string, kCards> place;
    std::string fault;

    bool failed() const { return !fault.empty(); }
    void fail(const std::string& why) {
        if (fault.empty()) fault = why;
    }
    std::string name(int pos) const { return std::to_string(pos) + " (" + std::string(f.m.mCards[pos].Name) + ")"; }
    void put(int pos, const std::string& where) {
        if (!place[pos].empty()) fail("position " + name(pos) + " is in " + place[pos] + " and in " + where);
        place[pos] = where;
    }
    // A control that shows a card face: its Tag names the position whose face it shows.
    void faceCard(const Image& image, const std::string& where) {
        if (!image.hasPicture()) {
            if (image.Tag != "-1") fail(where + " is empty but its Tag is \"" + image.Tag.text() + "\"");
            return;
        }
        const std::optional<int> pos = positionIn(image.Tag);
        if (!pos) return fail(where + " shows a card but its Tag \"" + image.Tag.text() + "\" names no position");
        if (image.Picture != f.m.mCards[*pos].Picture)
            return fail(where + " shows another face than position " + name(*pos));
        put(*pos, where);
    }
};

// The deal itself: 48 different cards, each with its own face.
void checkDeck(Ledger& l) {
    std::array<bool, kCards> seen{};
    for (int p = 0; p < kCards; ++p) {
        const CardRecord& card = l.f.m.mCards[p];
        if (card.Index < 0 || card.Index >= kCards || seen[card.Index])
            return l.fail("the deal holds card " + std::to_string(card.Index) + " twice or out of range");
        seen[card.Index] = true;
        if (card.Picture != pic::card(card.Index)) return l.fail("position " + l.name(p) + " has another card's face");
    }
}

void checkHands(Ledger& l) {
    const TableModel& c = l.f.ctl;
    for (int i = 0; i < 8; ++i) l.faceCard(c.imgPCard[i], "the local hand slot " + std::to_string(i));
    // The opposite hand shows backs; the one card it is playing shows its face, Tag "-1". A
    // back with Tag "-1" holds nothing: the table's look before the first deal.
    for (int i = 0; i < 8; ++i) {
        const Image& card = c.imgCCard[i];
        const std::string where = "the opposite hand slot " + std::to_string(i);
        if (!holdsCard(card)) continue;
        if (card.Tag == "-1") {
            const int pos = l.f.m.mCompDeckPos;
            if (i != l.f.m.mCompCard || pos < 0 || pos >= kCards || card.Picture != l.f.m.mCards[pos].Picture)
                return l.fail(where + " shows a face that is not the card being played");
            l.put(pos, where + " (being played)");
            continue;
        }
        const std::optional<int> pos = positionIn(card.Tag);
        if (!pos) return l.fail(where + " holds a card but its Tag \"" + card.Tag.text() + "\" names no position");
        if (card.Picture != pic::CardBack) return l.fail(where + " shows a face before it is played");
        l.put(*pos, where);
    }
}

void checkTableAndFlip(Ledger& l) {
    const TableModel& c = l.f.ctl;
    if (c.shpTHilite.size() != c.imgTCard.size()) l.fail("the table has not one frame for each slot");
    for (std::size_t i = 0; i < c.imgTCard.size(); ++i)
        l.faceCard(c.imgTCard[i], "the table slot " + std::to_string(i));
    l.faceCard(c.imgFlipCard, "the flipped card");
    if (c.imgFlipCard.hasPicture() && positionIn(c.imgFlipCard.Tag) != l.f.m.mDeckPos)
        l.fail("the flipped card " + c.imgFlipCard.Tag + " is not the last card turned, " +
               std::to_string(l.f.m.mDeckPos));
}

// Each side's piles: the cards by their faces, in the row of their value; the counters, the
// row captions and the total agree with them and with the side's yaku.
void checkPiles(Ledger& l, int side, bool dealStands) {
    const FrmMain& f = l.f;
    const ScorePanel& panel = f.ctl.panel[side];
    const std::string who = side == 0 ? "the local player's" : "the opposite side's";
    std::array<int, 3> count{}, points{};
    std::array<int, 8> yaku{};
    for (int row = 0; row < 4; ++row) {
        const auto& pile = panel.piles[row];
        if (pile.empty() || (!pile[0].hasPicture() && pile.size() > 1))
            return l.fail(who + " pile row " + std::to_string(row) + " has cards behind an empty first place");
        for (std::size_t n = 0; n < pile.size(); ++n) {
            if (!pile[n].hasPicture()) continue;
            const std::string where = who + " pile row " + std::to_string(row) + " place " + std::to_string(n);
            int pos = -1;
            for (int p = 0; p < kCards && pos < 0; ++p)
                if (f.m.mCards[p].Picture == pile[n].Picture) pos = p;
            if (pos < 0) return l.fail(where + " shows no card of this deal");
            const CardRecord& card = f.m.mCards[pos];
            if (rowOf(card.Points) != row) return l.fail(where + " holds " + l.name(pos) + ", of another value");
            l.put(pos, where);
            if (row < 3) ++count[row], points[row] += card.Points;
            for (int k = 0; k < 8; ++k)
                for (int j = 1; j <= 3; ++j)
                    if (card.YakuCodes.find(std::to_string(k + 1) + std::to_string(j)) != std::string::npos) ++yaku[k];
        }
    }
    int sum = 0;
    for (int row = 0; row < 3; ++row) {
        const std::string rowName = who + " row of " + std::to_string(row == 0 ? 20 : row == 1 ? 10 : 5);
        if (f.m.mPoints[side][0][row] != count[row] || f.m.mPoints[side][1][row] != points[row])
            return l.fail(rowName + " counts " + std::to_string(f.m.mPoints[side][0][row]) + " cards and " +
                          std::to_string(f.m.mPoints[side][1][row]) + " points, its pile " +
                          std::to_string(count[row]) + " and " + std::to_string(points[row]));
        const std::string caption = count[row] ? kRowCaption[row] + std::to_string(count[row]) : "";
        const std::string total = count[row] ? std::to_string(points[row]) : "";
        if (panel.lblPoints[row].Caption != caption || panel.lblPointsTotal[row].Caption != total)
            return l.fail(rowName + " shows \"" + panel.lblPoints[row].Caption + "\" \"" +
                          panel.lblPointsTotal[row].Caption + "\", its pile \"" + caption + "\" \"" + total + "\"");
        sum += points[row];
    }
    // The yaku counts of a cleared table wait for the next deal to reset them.
    for (int k = 0; k < 8 && dealStands; ++k) {
        const int held = f.m.mYakuCards[side][k];
        const int expected = f.g.gUseYaku ? yaku[k] : 0;
        if (held != expected)
            return l.fail(who + " yaku group " + std::to_string(k + 1) + " counts " + std::to_string(held) +
                          " cards, its piles hold " + std::to_string(expected));
        if (f.g.gUseYaku && held == 3) sum += 50;
    }
    const std::string expected = sum > 0 ? std::to_string(sum) : "";
    if (panel.lblPointsTotal[3].Caption != expected)
        l.fail(who + " total shows \"" + panel.lblPointsTotal[3].Caption + "\", its piles and yaku make \"" + expected +
               "\"");
}

// While a deal stands, the deck beyond mDeckPos completes the partition of the 48 positions.
void checkPartition(Ledger& l) {
    const int deckPos = l.f.m.mDeckPos;
    if (deckPos < 23 || deckPos > kLastTurned)
        return l.fail("the deck has been turned to " + std::to_string(deckPos) + ", outside 23 to 39");
    for (int p = deckPos + 1; p < kCards; ++p) l.put(p, "the deck");
    for (int p = 0; p < kCards; ++p)
        if (l.place[p].empty()) return l.fail("position " + l.name(p) + " is nowhere: the card is lost");
}

}  // namespace

bool TableInvariants::dealStands(const FrmMain& f) {
    const TableModel& c = f.ctl;
    for (int i = 0; i < 8; ++i)
        if (c.imgPCard[i].hasPicture() || holdsCard(c.imgCCard[i])) return true;
    for (const Image& card : c.imgTCard)
        if (card.hasPicture()) return true;
    if (c.imgFlipCard.hasPicture()) return true;
    for (const ScorePanel& panel : c.panel)
        for (const auto& pile : panel.piles)
            for (const Image& card : pile)
                if (card.hasPicture()) return true;
    return false;
}

std::string TableInvariants::check(const FrmMain& f) {
    Ledger l(f);
    checkHands(l);
    checkTableAndFlip(l);
    // No card in any control: no deal stands (before the first, or after the table was cleared).
    const bool stands = dealStands(f);
    for (int side = 0; side < 2 && !l.failed(); ++side) checkPiles(l, side, stands);
    if (l.failed() || !stands) return l.fault;
    checkDeck(l);
    if (!l.failed()) checkPartition(l);
    return l.fault;
}

}  // namespace petal::sim
