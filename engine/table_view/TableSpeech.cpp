#include "engine/table_view/TableSpeech.h"

#include <algorithm>
#include <array>

#include "cards/FrmCards.h"
#include "scoring/YakuImageLists.h"
#include "shell/FrmMain.h"

namespace petal {

namespace {

using Kind = SpokenThing::Kind;
using Role = SpokenThing::Role;

constexpr std::array<const char*, 12> kMonths = {"January", "February", "March",     "April",   "May",      "June",
                                                  "July",    "August",   "September", "October", "November", "December"};

// The name of the card that a yaku code stands for.
std::string yakuCardName(const std::string& code) {
    for (int n = 1; n <= FrmCards::kCards && !code.empty(); ++n)
        if (FrmCards::card(n).YakuCodes.find(code) != std::string_view::npos) return std::string(FrmCards::card(n).Name);
    return {};
}

const CardRecord& cardAt(const FrmMain& f, const Image& image) { return f.m.mCards.at(image.Tag.value()); }

std::string joined(const std::vector<std::string>& parts, const char* last) {
    std::string text;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) text += i + 1 == parts.size() ? last : ", ";
        text += parts[i];
    }
    return text;
}

SpokenThing thing(Kind kind, int index, Role role, const Control& control, std::string name) {
    SpokenThing t;
    t.kind = kind;
    t.index = index;
    t.role = role;
    t.control = &control;
    t.name = std::move(name);
    return t;
}

// A place of the keys is clickable exactly when the keys would stop on it.
void placed(SpokenThing& t, const TableFocus& focus, TableFocus::Place place, std::string click) {
    t.place = place;
    t.clickable = focus.usable(place);
    if (t.clickable) t.description = std::move(click);
}

void addHand(const FrmMain& f, const TableFocus& focus, std::vector<SpokenThing>& out) {
    const TableModel& c = f.ctl;
    for (int i = 0; i < 8; ++i) {
        const Image& card = c.imgPCard[i];
        if (!card.Visible || !card.hasPicture()) continue;
        SpokenThing t = thing(Kind::Hand, i, Role::Card, card, spokenCard(cardAt(f, card)));
        t.selected = c.shpPHilite.Visible && c.shpPHilite.Tag.value() == i;
        placed(t, focus, {TableFocus::Kind::Hand, i}, "Choose this card to play");
        out.push_back(std::move(t));
    }
}

void addTable(const FrmMain& f, const TableFocus& focus, std::vector<SpokenThing>& out) {
    const TableModel& c = f.ctl;
    if (focus.usable({TableFocus::Kind::TableTop, 0})) {
        SpokenThing top = thing(Kind::TableTop, 0, Role::Place, c.imgTable, "The table");
        placed(top, focus, {TableFocus::Kind::TableTop, 0}, "Lay the chosen card down");
        out.push_back(std::move(top));
    }
    for (int i = 0; i < static_cast<int>(c.imgTCard.size()); ++i) {
        const Image& card = c.imgTCard[i];
        if (!card.Visible || !card.hasPicture()) continue;
        SpokenThing t = thing(Kind::Table, i, Role::Card, card, spokenCard(cardAt(f, card)));
        t.framed = c.shpTHilite[i].Visible;
        if (t.framed) t.name += ", can be taken";
        placed(t, focus, {TableFocus::Kind::Table, i}, "Take this card");
        out.push_back(std::move(t));
    }
    const int left = f.m.mDeckPos == 0 ? FrmCards::kCards : FrmCards::kCards - 1 - f.m.mDeckPos;
    SpokenThing deck = thing(Kind::Deck, 0, Role::Card, c.imgDeck, "Deck, " + std::to_string(left) + " cards left");
    const bool deals = !f.dealer.deckToolTip().empty();
    if (deals) deck.name += ", click to deal";
    placed(deck, focus, {TableFocus::Kind::Deck, 0}, "Deal");
    deck.clickable = deck.clickable && deals;
    if (!deals) deck.description.clear();
    if (c.imgDeck.Visible) out.push_back(std::move(deck));
    if (c.imgFlipCard.Visible && c.imgFlipCard.hasPicture()) {
        SpokenThing t = thing(Kind::Turned, 0, Role::Card, c.imgFlipCard, "Turned from the deck: " + spokenCard(cardAt(f, c.imgFlipCard)));
        t.framed = c.shpFlipCard.Visible;
        if (t.framed) t.name += ", waits to be placed";
        out.push_back(std::move(t));
    }
}

std::string scoreDetail(const FrmMain& f, int side) {
    const ScorePanel& p = f.ctl.panel[side];
    std::vector<std::string> parts;
    for (int row = 0; row < 3; ++row)
        if (!p.lblPoints[row].Caption.empty()) parts.push_back(p.lblPoints[row].Caption + " for " + p.lblPointsTotal[row].Caption);
    const std::array<int, 8>& own = f.m.mYakuCards[side];
    const std::array<int, 8>& other = f.m.mYakuCards[1 - side];
    std::vector<std::string> held, near;
    for (int k = 0; k < 8; ++k) {
        if (own[k] == 3) held.push_back(spokenYaku(f, k));
        else if (own[k] == 2 && other[k] == 0) near.push_back(spokenYaku(f, k));
    }
    if (!held.empty()) parts.push_back("holds " + joined(held, " and "));
    if (!near.empty()) parts.push_back("one card from " + joined(near, " and "));
    return parts.empty() ? "no cards taken" : joined(parts, "; ");
}

void addSides(const FrmMain& f, std::vector<SpokenThing>& out) {
    const TableModel& c = f.ctl;
    const auto held = std::count_if(c.imgCCard.begin(), c.imgCCard.end(), [](const Image& i) { return i.Visible && i.hasPicture(); });
    const std::string other = opponentName(f);
    out.push_back(thing(Kind::Opponent, 0, Role::Text, c.imgCCard[0], other + "'s hand, " + std::to_string(held) + " cards"));
    for (int side = 0; side < 2; ++side) {
        const ScorePanel& p = c.panel[side];
        const std::string& total = p.lblPointsTotal[3].Caption;
        SpokenThing t = thing(Kind::Score, side, Role::Panel, p.box,
                              (side == 0 ? std::string("Your score") : other + "'s score") + ", " + (total.empty() ? "0" : total));
        if (p.imgTurn.Visible) t.name += side == 0 ? ", your turn" : ", " + other + "'s turn";
        t.description = scoreDetail(f, side);
        out.push_back(std::move(t));
    }
    static constexpr std::array<const char*, 3> kResult = {"wins", "loses", "ties"};
    for (int side = 0; side < 2; ++side) {
        const Image& banner = c.imgWinLose[side];
        if (!banner.Visible || !banner.hasPicture()) continue;
        for (int r = 0; r < 3; ++r)
            if (banner.Picture == FrmCards::imgWinLose(r))
                out.push_back(thing(Kind::Banner, side, Role::Text, banner,
                                    side == 0 ? std::string("You ") + (r == 0 ? "win" : r == 1 ? "lose" : "tie") : other + " " + kResult[r]));
    }
}

void addYaku(const FrmMain& f, const TableFocus& focus, std::vector<SpokenThing>& out) {
    const TableModel& c = f.ctl;
    for (int i = 0; i < 24; ++i) {
        const Image& thumb = c.imgPYaku[i];
        const std::string& code = f.g.gYakuCodes[i];
        if (!thumb.Visible || !thumb.hasPicture() || !thumb.Enabled || code.empty()) continue;
        const bool taken = thumb.Picture == ilsYakuColor(yakuKey(code)).Picture;
        SpokenThing t = thing(Kind::Yaku, i, Role::Card, thumb, "Yaku row: " + yakuCardName(code) + (taken ? ", taken" : ", not taken"));
        placed(t, focus, {TableFocus::Kind::Yaku, i}, "Show the cards of " + spokenYaku(f, i / 3));
        t.clickable = t.clickable && f.g.gUseYaku;
        if (!t.clickable) t.description = "One of the cards of " + spokenYaku(f, i / 3);
        out.push_back(std::move(t));
    }
    if (!c.picYakuShow.Visible) return;
    for (int i = 0; i < 3; ++i) {
        const long tag = c.imgPYaku.at(c.picYakuShow.Tag.value() + i).Tag.value();
        if (tag >= 0 && tag < FrmCards::kCards)
            out.push_back(thing(Kind::YakuCard, i, Role::Card, c.imgYakuShow[i], spokenCard(FrmCards::card(static_cast<int>(tag) + 1))));
    }
    SpokenThing close = thing(Kind::YakuClose, 0, Role::Button, c.cmdYakuClose, "Close the yaku's cards");
    close.clickable = true;
    out.push_back(std::move(close));
}

}  // namespace

std::string spokenCard(const CardRecord& card) {
    return std::string(card.Name) + ", " + kMonths.at(card.month - 1) + ", " + std::to_string(card.Points) + " points";
}

std::string spokenYaku(const FrmMain& f, int group) {
    std::vector<std::string> names;
    for (int slot = group * 3; slot < group * 3 + 3; ++slot) names.push_back(yakuCardName(f.g.gYakuCodes.at(slot)));
    return "the yaku of " + joined(names, " and ");
}

std::string opponentName(const FrmMain& f) { return f.g.gPlayMode == 0 ? "The computer" : "The other player"; }

std::vector<SpokenThing> spokenTable(const FrmMain& f) {
    const TableFocus focus(f.ctl);
    std::vector<SpokenThing> out;
    addHand(f, focus, out);
    addTable(f, focus, out);
    addSides(f, out);
    addYaku(f, focus, out);
    return out;
}

}  // namespace petal
