#pragma once
// The standard computer's rule on the model of a deal: the most valuable capture, else the
// cheapest card, and always the most valuable table card. The search's playouts play it for
// both sides; the computer of the table (Computer) plays it by its own code.
#include "opponent/DealState.h"

namespace petal {

struct HandMove {
    int handSlot = -1;
    int tableSlot = -1;  // -1: laid down
};

HandMove standardHand(const DealState& s);

// Plays the deal to its end with the standard rule for both sides, the claim included.
void playOutStandard(DealState& s);

}  // namespace petal
