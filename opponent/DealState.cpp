#include "opponent/DealState.h"

#include <bit>
#include <string_view>

#include "cards/FrmCards.h"

namespace petal {

namespace {

// The yaku codes as the game lists them; a card counts in a group when one of the group's
// codes stands in its codes, read as the game reads them.
constexpr std::string_view kCodes[24] = {"11", "12", "13", "21", "22", "23", "31", "32", "33", "41", "42", "43",
                                         "51", "52", "53", "61", "62", "63", "71", "72", "73", "81", "82", "83"};

std::array<CardFacts, 48> makeFacts() {
    std::array<CardFacts, 48> all{};
    for (int i = 0; i < 48; ++i) {
        const CardRecord& card = FrmCards::card(i + 1);
        CardFacts& f = all[i];
        f.month = static_cast<std::int8_t>(card.month);
        f.points = static_cast<std::int8_t>(card.Points);
        f.wild = card.isWild();
        for (int c = 0; c < 24; ++c)
            if (card.YakuCodes.find(kCodes[c]) != std::string_view::npos) f.groups |= static_cast<std::uint8_t>(1u << (c / 3));
    }
    return all;
}

}  // namespace

const std::array<CardFacts, 48> kCardFacts = makeFacts();

DealState DealState::dealt(const std::array<int, 48>& cards, int lead, bool useYaku) {
    DealState s;
    for (int i = 0; i < 8; ++i) {
        s.hand[0][i] = static_cast<std::int8_t>(cards[i]);
        s.hand[1][i] = static_cast<std::int8_t>(cards[8 + i]);
    }
    s.table.fill(-1);
    for (int i = 0; i < 8; ++i) s.table[i] = static_cast<std::int8_t>(cards[16 + i]);
    for (int i = 0; i < kTurned; ++i) s.deck[i] = static_cast<std::int8_t>(cards[24 + i]);
    s.turn = static_cast<std::int8_t>(lead);
    s.useYaku = useYaku;
    return s;
}

bool DealState::matches(int card, int slot) const {
    const int other = table[slot];
    return other >= 0 && (CardFacts::of(card).wild || CardFacts::of(other).month == CardFacts::of(card).month);
}

int DealState::bestMatch(int card) const {
    const CardFacts& played = CardFacts::of(card);
    int best = -1, bestPoints = 0;
    for (int i = 0; i < tableSlots; ++i) {
        const int other = table[i];
        if (other < 0) continue;
        const CardFacts& o = CardFacts::of(other);
        if (!played.wild && o.month != played.month) continue;
        if (best < 0 || o.points > bestPoints) {
            best = i;
            bestPoints = o.points;
        }
    }
    return best;
}

DealState::Matches DealState::bestMatches() const {
    Matches best;
    best.byMonth.fill(-1);
    best.any = -1;
    std::array<std::int8_t, 13> points{};
    std::int8_t anyPoints = 0;
    for (int i = 0; i < tableSlots; ++i) {
        const int other = table[i];
        if (other < 0) continue;
        const CardFacts& o = CardFacts::of(other);
        if (best.any < 0 || o.points > anyPoints) {
            best.any = static_cast<std::int8_t>(i);
            anyPoints = o.points;
        }
        if (best.byMonth[o.month] < 0 || o.points > points[o.month]) {
            best.byMonth[o.month] = static_cast<std::int8_t>(i);
            points[o.month] = o.points;
        }
    }
    return best;
}

int DealState::playHand(int handSlot, int slot) {
    auto& held = hand[turn][handSlot];
    const int card = held;
    held = -1;
    return place(card, slot);
}

int DealState::placeTurned(int card, int slot) {
    const int at = place(card, slot);
    endTurn();
    return at;
}

int DealState::place(int card, int slot) {
    if (slot < 0) return layDown(card);
    capture(card, slot);
    return slot;
}

// The table card goes to the pile first, then the card played; the wild card marks what it took.
void DealState::capture(int card, int slot) {
    const int taken = table[slot];
    table[slot] = -1;
    take(turn, taken);
    take(turn, card);
    if (CardFacts::of(card).wild) {
        markSide = turn;
        markMonth = CardFacts::of(taken).month;
    }
}

int DealState::layDown(int card) {
    int slot = 0;
    while (slot < tableSlots && table[slot] >= 0) ++slot;
    if (slot == tableSlots) ++tableSlots;
    table[slot] = static_cast<std::int8_t>(card);
    return slot;
}

void DealState::take(int side, int card) {
    const CardFacts& f = CardFacts::of(card);
    points[side] = static_cast<std::int16_t>(points[side] + f.points);
    if (!useYaku) return;
    for (unsigned groups = f.groups; groups; groups &= groups - 1) ++yakuCards[side][std::countr_zero(groups)];
}

// Turns alternate; a side whose hand is empty is passed over.
void DealState::endTurn() {
    ++plays[turn];
    const int other = 1 - turn;
    if (plays[other] < 8) turn = static_cast<std::int8_t>(other);
}

int DealState::claim() {
    if (markSide < 0) return 0;
    int taken = 0;
    for (int i = 0; i < tableSlots; ++i) {
        const int card = table[i];
        if (card < 0) continue;
        const int month = CardFacts::of(card).month;
        if (month != markMonth && month != kWillow) continue;
        // Willows of another month than the marked one bring no yaku; none of them has a code.
        take(markSide, card);
        table[i] = -1;
        ++taken;
    }
    return taken;
}

int DealState::score(int side) const {
    int total = points[side];
    if (useYaku)
        for (int g = 0; g < 8; ++g) total += yakuCards[side][g] == 3 ? 50 : 0;
    return total;
}

}  // namespace petal
