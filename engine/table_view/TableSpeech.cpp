#include "engine/table_view/TableSpeech.h"

#include <algorithm>
#include <array>

#include "cards/FrmCards.h"
#include "scoring/YakuImageLists.h"
#include "platform/Words.h"
#include "shell/FrmMain.h"

namespace petal {

namespace {

using Kind = SpokenThing::Kind;
using Role = SpokenThing::Role;

constexpr std::array<const char*, 12> kMonths = {
    PETAL_TR("core", "January"), PETAL_TR("core", "February"), PETAL_TR("core", "March"),     PETAL_TR("core", "April"),
    PETAL_TR("core", "May"),     PETAL_TR("core", "June"),     PETAL_TR("core", "July"),      PETAL_TR("core", "August"),
    PETAL_TR("core", "September"), PETAL_TR("core", "October"), PETAL_TR("core", "November"), PETAL_TR("core", "December")};

// The name a player of the language spoken gives a card: its catalogue tag is the key.
std::string cardName(Host& host, int index) {
    const std::string name = host.translate("card", std::string(FrmCards::imgCard(index).Tag).c_str());
    return name.substr(0, name.find('/'));
}

// The name of the card that a yaku code stands for.
std::string yakuCardName(Host& host, const std::string& code) {
    for (int n = 1; n <= FrmCards::kCards && !code.empty(); ++n)
        if (FrmCards::card(n).YakuCodes.find(code) != std::string_view::npos) return cardName(host, n - 1);
    return {};
}

const CardRecord& cardAt(const FrmMain& f, const Image& image) { return f.m.mCards.at(image.Tag.value()); }

std::string joined(Host& host, const std::vector<std::string>& parts, const char* last) {
    const std::string lastWord = said(host, last), comma = said(host, PETAL_TR("core", ", "));
    std::string text;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) text += i + 1 == parts.size() ? lastWord : comma;
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
        SpokenThing t = thing(Kind::Hand, i, Role::Card, card, spokenCard(f, cardAt(f, card)));
        t.selected = c.shpPHilite.Visible && c.shpPHilite.Tag.value() == i;
        placed(t, focus, {TableFocus::Kind::Hand, i}, said(f.host, PETAL_TR("core", "Choose this card to play")));
        out.push_back(std::move(t));
    }
}

void addTable(const FrmMain& f, const TableFocus& focus, std::vector<SpokenThing>& out) {
    const TableModel& c = f.ctl;
    if (focus.usable({TableFocus::Kind::TableTop, 0})) {
        SpokenThing top = thing(Kind::TableTop, 0, Role::Place, c.imgTable, said(f.host, PETAL_TR("core", "The table")));
        placed(top, focus, {TableFocus::Kind::TableTop, 0}, said(f.host, PETAL_TR("core", "Lay the chosen card down")));
        out.push_back(std::move(top));
    }
    for (int i = 0; i < static_cast<int>(c.imgTCard.size()); ++i) {
        const Image& card = c.imgTCard[i];
        if (!card.Visible || !card.hasPicture()) continue;
        SpokenThing t = thing(Kind::Table, i, Role::Card, card, spokenCard(f, cardAt(f, card)));
        t.framed = c.shpTHilite[i].Visible;
        if (t.framed) t.name += said(f.host, PETAL_TR("core", ", can be taken"));
        placed(t, focus, {TableFocus::Kind::Table, i}, said(f.host, PETAL_TR("core", "Take this card")));
        out.push_back(std::move(t));
    }
    const int left = f.m.mDeckPos == 0 ? FrmCards::kCards : FrmCards::kCards - 1 - f.m.mDeckPos;
    SpokenThing deck = thing(Kind::Deck, 0, Role::Card, c.imgDeck,
                             said(f.host, PETAL_TR("core", "Deck, %1 cards left"), {std::to_string(left)}));
    const bool deals = !f.dealer.deckToolTip().empty();
    if (deals) deck.name += said(f.host, PETAL_TR("core", ", click to deal"));
    placed(deck, focus, {TableFocus::Kind::Deck, 0}, said(f.host, PETAL_TR("core", "Deal")));
    deck.clickable = deck.clickable && deals;
    if (!deals) deck.description.clear();
    if (c.imgDeck.Visible) out.push_back(std::move(deck));
    if (c.imgFlipCard.Visible && c.imgFlipCard.hasPicture()) {
        SpokenThing t = thing(Kind::Turned, 0, Role::Card, c.imgFlipCard,
                              said(f.host, PETAL_TR("core", "Turned from the deck: %1"), {spokenCard(f, cardAt(f, c.imgFlipCard))}));
        t.framed = c.shpFlipCard.Visible;
        if (t.framed) t.name += said(f.host, PETAL_TR("core", ", waits to be placed"));
        out.push_back(std::move(t));
    }
}

std::string scoreDetail(const FrmMain& f, int side) {
    const ScorePanel& p = f.ctl.panel[side];
    std::vector<std::string> parts;
    for (int row = 0; row < 3; ++row)
        if (!p.lblPoints[row].Caption.empty()) parts.push_back(said(f.host, PETAL_TR("core", "%1 for %2"), {p.lblPoints[row].Caption, p.lblPointsTotal[row].Caption}));
    const std::array<int, 8>& own = f.m.mYakuCards[side];
    const std::array<int, 8>& other = f.m.mYakuCards[1 - side];
    std::vector<std::string> held, near;
    for (int k = 0; k < 8; ++k) {
        if (own[k] == 3) held.push_back(spokenYaku(f, k));
        else if (own[k] == 2 && other[k] == 0) near.push_back(spokenYaku(f, k));
    }
    const char* const kAnd = PETAL_TR("core", " and ");
    if (!held.empty()) parts.push_back(said(f.host, PETAL_TR("core", "holds %1"), {joined(f.host, held, kAnd)}));
    if (!near.empty()) parts.push_back(said(f.host, PETAL_TR("core", "one card from %1"), {joined(f.host, near, kAnd)}));
    return parts.empty() ? said(f.host, PETAL_TR("core", "no cards taken")) : joined(f.host, parts, PETAL_TR("core", "; "));
}

void addSides(const FrmMain& f, std::vector<SpokenThing>& out) {
    const TableModel& c = f.ctl;
    const auto held = std::count_if(c.imgCCard.begin(), c.imgCCard.end(), [](const Image& i) { return i.Visible && i.hasPicture(); });
    const std::string other = opponentName(f);
    out.push_back(thing(Kind::Opponent, 0, Role::Text, c.imgCCard[0],
                        said(f.host, PETAL_TR("core", "%1's hand, %2 cards"), {other, std::to_string(held)})));
    for (int side = 0; side < 2; ++side) {
        const ScorePanel& p = c.panel[side];
        const std::string& total = p.lblPointsTotal[3].Caption;
        const std::string points = total.empty() ? "0" : total;
        SpokenThing t = thing(Kind::Score, side, Role::Panel, p.box,
                              side == 0 ? said(f.host, PETAL_TR("core", "Your score, %1"), {points})
                                        : said(f.host, PETAL_TR("core", "%1's score, %2"), {other, points}));
        if (p.imgTurn.Visible)
            t.name += side == 0 ? said(f.host, PETAL_TR("core", ", your turn")) : said(f.host, PETAL_TR("core", ", %1's turn"), {other});
        t.description = scoreDetail(f, side);
        out.push_back(std::move(t));
    }
    static constexpr std::array<const char*, 3> kYours = {PETAL_TR("core", "You win"), PETAL_TR("core", "You lose"),
                                                          PETAL_TR("core", "You tie")};
    static constexpr std::array<const char*, 3> kTheirs = {PETAL_TR("core", "%1 wins"), PETAL_TR("core", "%1 loses"),
                                                           PETAL_TR("core", "%1 ties")};
    for (int side = 0; side < 2; ++side) {
        const Image& banner = c.imgWinLose[side];
        if (!banner.Visible || !banner.hasPicture()) continue;
        for (int r = 0; r < 3; ++r)
            if (banner.Picture == FrmCards::imgWinLose(r))
                out.push_back(thing(Kind::Banner, side, Role::Text, banner,
                                    said(f.host, side == 0 ? kYours[r] : kTheirs[r], {other})));
    }
}

void addYaku(const FrmMain& f, const TableFocus& focus, std::vector<SpokenThing>& out) {
    const TableModel& c = f.ctl;
    for (int i = 0; i < 24; ++i) {
        const Image& thumb = c.imgPYaku[i];
        const std::string& code = f.g.gYakuCodes[i];
        if (!thumb.Visible || !thumb.hasPicture() || !thumb.Enabled || code.empty()) continue;
        const bool taken = thumb.Picture == ilsYakuColor(yakuKey(code)).Picture;
        SpokenThing t = thing(Kind::Yaku, i, Role::Card, thumb,
                              said(f.host, taken ? PETAL_TR("core", "Yaku row: %1, taken") : PETAL_TR("core", "Yaku row: %1, not taken"),
                                   {yakuCardName(f.host, code)}));
        placed(t, focus, {TableFocus::Kind::Yaku, i}, said(f.host, PETAL_TR("core", "Show the cards of %1"), {spokenYaku(f, i / 3)}));
        t.clickable = t.clickable && f.g.gUseYaku;
        if (!t.clickable) t.description = said(f.host, PETAL_TR("core", "One of the cards of %1"), {spokenYaku(f, i / 3)});
        out.push_back(std::move(t));
    }
    if (!c.picYakuShow.Visible) return;
    for (int i = 0; i < 3; ++i) {
        const long tag = c.imgPYaku.at(c.picYakuShow.Tag.value() + i).Tag.value();
        if (tag >= 0 && tag < FrmCards::kCards)
            out.push_back(thing(Kind::YakuCard, i, Role::Card, c.imgYakuShow[i], spokenCard(f, FrmCards::card(static_cast<int>(tag) + 1))));
    }
    SpokenThing close = thing(Kind::YakuClose, 0, Role::Button, c.cmdYakuClose, said(f.host, PETAL_TR("core", "Close the yaku's cards")));
    close.clickable = true;
    out.push_back(std::move(close));
}

}  // namespace

std::string spokenCard(const FrmMain& f, const CardRecord& card) {
    return said(f.host, PETAL_TR("core", "%1, %2, %3 points"),
                {cardName(f.host, card.Index), said(f.host, kMonths.at(card.month - 1)), std::to_string(card.Points)});
}

std::string spokenYaku(const FrmMain& f, int group) {
    std::vector<std::string> names;
    for (int slot = group * 3; slot < group * 3 + 3; ++slot) names.push_back(yakuCardName(f.host, f.g.gYakuCodes.at(slot)));
    return said(f.host, PETAL_TR("core", "the yaku of %1"), {joined(f.host, names, PETAL_TR("core", " and "))});
}

std::string opponentName(const FrmMain& f) {
    return said(f.host, f.g.gPlayMode == 0 ? PETAL_TR("core", "The computer") : PETAL_TR("core", "The other player"));
}

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
