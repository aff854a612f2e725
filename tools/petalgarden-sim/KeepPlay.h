#pragma once
// One game against the computer played headless as the program plays it: saved after every
// completed move, a saved game resumed at the start, the result kept in the statistics. A
// process that is killed and started again in the same folder goes on from its last move:
// the tests of resuming kill it at random moments.
#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <string>

namespace petal::sim {

struct KeepOptions {
    std::filesystem::path folder;
    int tournamentRounds = 0;  // 0: a single game
    bool yaku = true;
    std::uint64_t policySeed = 0;
    std::string start = "09:00:00";  // the first deal's seed; each deal after it seven seconds on
    int dwellMs = 0;  // each box and form stands this long before it is answered, as for a reader
};

// Prints a line for each event: "move N TABLE" after each save, "resumed N TABLE" when a resumed
// game has caught up, "ask", "form" and "told" for boxes and forms, "end P C TABLE" at the end.
int keep(const KeepOptions& options, std::ostream& out, std::ostream& err);

}  // namespace petal::sim
