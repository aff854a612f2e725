#pragma once
// A deal as the search plays it out, thousands of times a choice: cards by catalogue index
// (0..47) in the places the table gives them (hand slots; table slots, a card laid down taking
// the first free one), each side's points, yaku counts and the mark of the wild card's capture.
// A plain value, copied freely. Its rules are the game's own, move for move: a test plays
// seeded deals in both and compares them.
#include <array>
#include <cstdint>

namespace petal {

// What the rules read of a card, from the catalogue, in a form that is quick to read.
struct CardFacts {
    std::int8_t month = 0;  // 1..12
    std::int8_t points = 0;
    bool wild = false;
    std::uint8_t groups = 0;  // bit g: the card counts in yaku group g + 1

    static const CardFacts& of(int index);
};

// The facts of the 48 cards by catalogue index, read from the catalogue once at start.
extern const std::array<CardFacts, 48> kCardFacts;

inline const CardFacts& CardFacts::of(int index) { return kCardFacts[static_cast<std::size_t>(index)]; }

struct DealState {
    static constexpr int kSlots = 40;    // more than can ever lie on the table at once
    static constexpr int kTurned = 16;   // the cards turned in a deal: positions 24 to 39
    static constexpr int kWillow = 11;   // the month the claim sweeps up with the marked one

    std::array<std::array<std::int8_t, 8>, 2> hand{};  // by side and slot; -1 played
    std::array<std::int8_t, kSlots> table{};           // -1 free
    std::int8_t tableSlots = 8;                        // the table's slots so far
    std::array<std::int8_t, kTurned> deck{};           // the cards to be turned, in order
    std::int8_t flips = 0;                             // cards turned so far
    std::int8_t turn = 0;                              // the side to move: 0 local, 1 opposite
    std::array<std::int8_t, 2> plays{};                // turns finished by each side
    std::array<std::int16_t, 2> points{};
    std::array<std::array<std::int8_t, 8>, 2> yakuCards{};
    std::int8_t markSide = -1;   // whose wild card took a table card
    std::int8_t markMonth = -1;  // the month of that card
    bool useYaku = true;

    // The deal as dealt: positions 0..7 the local hand, 8..15 the opposite, 16..23 the table,
    // 24..39 the cards to be turned. cards[p] is the catalogue index at position p.
    static DealState dealt(const std::array<int, 48>& cards, int lead, bool useYaku);

    bool over() const { return plays[0] == 8 && plays[1] == 8; }
    // The slot of the most valuable table card that `card` may take, the lower slot of equals;
    // -1 when it takes none.
    int bestMatch(int card) const;
    bool matches(int card, int slot) const;
    // bestMatch for every month at once, and for the wild card: one pass over the table, for a
    // rule that weighs a whole hand against it.
    struct Matches {
        std::array<std::int8_t, 13> byMonth;
        std::int8_t any;
        int forCard(int card) const { return CardFacts::of(card).wild ? any : byMonth[CardFacts::of(card).month]; }
    };
    Matches bestMatches() const;
    // The side on turn plays a hand card onto a table slot (a capture) or, with slot -1, lays
    // it down. Returns the slot it was laid into, or `slot`.
    int playHand(int handSlot, int slot);
    // Turns the next card of the deck; it is placed by placeTurned.
    int turnCard() { return deck[flips++]; }
    // Places the turned card as playHand does and ends the turn.
    int placeTurned(int card, int slot);
    // The wild card's claim at the end of the deal: the marked month and the willows on the
    // table go to the side of the mark. Returns how many cards it took.
    int claim();
    int score(int side) const;

private:
    int place(int card, int slot);
    void capture(int card, int slot);
    int layDown(int card);
    void take(int side, int card);
    void endTurn();
};

}  // namespace petal
