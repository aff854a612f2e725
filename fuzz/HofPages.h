#pragma once
// The two pages of the Hall of Fame form as a player sees them, opened from the menu as F7
// opens them, and what they must show: at most ten rows, filled from the top; in each a name of
// at most 20 characters, a date of at most 10 and whole numbers of 16 bits ("N/A" where a
// single game has none); rows in the designed order; and for a table that is the game's own,
// exactly the first ten of its records.
#include <array>
#include <string>

#include "HofSnapshot.h"

namespace petal::fuzz {

class FileRig;

class HofPages {
public:
    using Cells = std::array<std::array<std::string, 11>, 7>;  // [column][row], row 0 the heading

    // Opens the form from the menu, reads the single page, the tournament page and the single
    // page again, and closes it; false if the program failed.
    bool show(FileRig& rig);
    // The first broken rule of page t (0 single, 1 tournament) as a game of gameType shows it.
    // `told` says whether the program has told that the table could not be read, or that it
    // left rows out.
    std::string check(int t, int gameType, const HofSnapshot::Table& table, bool told) const;
    // Rows that show a record.
    int rows(int t) const;

    std::array<Cells, 2> pages;
};

}  // namespace petal::fuzz
