#include "opponent/StandardRule.h"

namespace petal {

HandMove standardHand(const DealState& s) {
    const auto& hand = s.hand[s.turn];
    const DealState::Matches matches = s.bestMatches();
    int bestValue = 0, bestSlot = 0;
    // Pass 1: the most valuable capture, the lowest slot among equals.
    for (int i = 0; i < 8; ++i) {
        const int card = hand[i];
        if (card < 0) continue;
        const int t = matches.forCard(card);
        if (t < 0) continue;
        const int value = CardFacts::of(card).points + CardFacts::of(s.table[t]).points;
        if (bestValue < value) {
            bestValue = value;
            bestSlot = i;
        }
    }
    // Pass 2, when no capture is worth anything: the cheapest card, the highest slot of equals.
    if (bestValue == 0) {
        bestValue = 20;
        for (int i = 0; i < 8; ++i) {
            const int card = hand[i];
            if (card >= 0 && CardFacts::of(card).points <= bestValue) {
                bestValue = CardFacts::of(card).points;
                bestSlot = i;
            }
        }
    }
    return {bestSlot, matches.forCard(hand[bestSlot])};
}

void playOutStandard(DealState& s) {
    while (!s.over()) {
        const HandMove move = standardHand(s);
        s.playHand(move.handSlot, move.tableSlot);
        const int card = s.turnCard();
        s.placeTurned(card, s.bestMatch(card));
    }
    s.claim();
}

}  // namespace petal
