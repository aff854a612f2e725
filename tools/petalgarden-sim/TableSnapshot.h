#pragma once
// What the table shows, as one line of text: every card place with its picture, the frames,
// the piles, the captions, the yaku rows, the markers and banners, whose turn and the round's
// scores. Two tables that show the same have the same line.
#include <string>

namespace petal {
class FrmMain;
}

namespace petal::sim {

std::string tableSnapshot(const FrmMain& f);

}  // namespace petal::sim
