#include "opponent/HandReading.h"

namespace petal {

namespace {

// A card's worth to the standard rule on a table: its points and those of the best card it
// takes, or -1 when it takes none.
int captureWorth(const DealState& table, int card) {
    const int t = table.bestMatch(card);
    return t < 0 ? -1 : CardFacts::of(card).points + CardFacts::of(table.table[t]).points;
}

// Whether the standard rule, holding `card` in `slot` besides the one it played, would still
// have played that one.
bool agrees(const DealState& table, const SeenPlays::Play& play, int card, int slot) {
    const int chosen = captureWorth(table, play.card);
    const int worth = captureWorth(table, card);
    if (chosen > 0) return worth < chosen || (worth == chosen && slot > play.handSlot);
    const int points = CardFacts::of(card).points, played = CardFacts::of(play.card).points;
    return worth <= 0 && (points > played || (points == played && slot < play.handSlot));
}

}  // namespace

void readHand(Sight& sight, std::span<const SeenPlays::Play> plays, double doubt) {
    const int other = 1 - sight.side;
    for (const SeenPlays::Play& play : plays) {
        if (play.side != other) continue;
        DealState table;
        table.table = play.table;
        table.tableSlots = play.tableSlots;
        for (int i = 0; i < sight.hiddenCount; ++i) {
            const int card = sight.hidden[i];
            for (int slot = 0; slot < 8; ++slot)
                if (sight.seen.hand[other][slot] == Sight::kUnseen && !agrees(table, play, card, slot))
                    sight.odds[card][slot] *= doubt;
        }
    }
}

}  // namespace petal
