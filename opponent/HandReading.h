#pragma once
// What the other side's plays say of the hand the side cannot see. Each play is read as the
// standard rule's choice: a capture says no card in that hand had a richer one (nor one as rich
// in a lower slot); a card played for no gain says no card had a capture worth anything, and
// none was cheaper (nor as cheap in a higher slot). A person does not always play so: a card
// that disagrees with a play is only made `doubt` times as likely, never ruled out.
#include <span>

#include "opponent/SeenPlays.h"
#include "opponent/Sight.h"

namespace petal {

// The chance the sight's hidden cards lie in each place of the other hand, up to a factor
// (Sight::odds), from the other side's plays in `plays`.
void readHand(Sight& sight, std::span<const SeenPlays::Play> plays, double doubt);

}  // namespace petal
