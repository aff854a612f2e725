#pragma once
// The Hall of Fame file HOF.mdb as a fuzz target. An input is the file's bytes, laid in a fresh
// program folder before the program starts (beside a settings file of a tournament, or of a
// single game). The program then does what it does with its records: it opens them at start,
// shows both pages from the menu, asks IsHighScore of a single game's score and of a
// tournament's, takes the winner's name in the form and stores the row, shows the pages again
// and closes the file; a second start reads what the first left. A plan drawn from the bytes
// chooses the scores, names and rounds.
//
// A failure is any of: a box that a player would never see or an exception out of the
// program; an end of the program (the records never end it); a box of the records that does
// not name the file, the operation and the reason, one told twice, or "System Password Error"
// for a file that reads as a database; a page broken as HofPages tells; for a table that is the
// game's own (HofSnapshot), a wrong answer of IsHighScore, a refusal to read it, or after the
// run other rows than its rows with the new record put in its place (and the last of eleven
// taken away), or its rows unchanged when nothing was stored; any other table changed; a file
// that is no database written to.
#include <filesystem>
#include <string>

#include "FuzzTarget.h"
#include "HofSnapshot.h"

namespace petal::fuzz {

class FileRig;
class HofPages;

class HallOfFameTarget : public FuzzTarget {
public:
    explicit HallOfFameTarget(std::filesystem::path scratch);

    const char* name() const override { return "halloffame"; }
    std::string run(const std::uint8_t* data, std::size_t size) override;
    std::vector<std::uint8_t> sample(SplitMix& random) override;
    std::string stats() const override;

    // Inputs whose file read as a database, tables of the game's own, high scores, and names
    // that winners gave.
    long databases() const { return databases_; }
    long ownTables() const { return ownTables_; }
    long highScores() const { return highScores_; }
    long given() const { return given_; }

private:
    struct Entry;
    std::string checkBoxes(FileRig& rig, const HofSnapshot& before) const;
    std::string checkPages(FileRig& rig, const HofPages& pages, int gameType, const HofSnapshot& file) const;
    std::string enter(FileRig& rig, int t, SplitMix& plan, const HofSnapshot& before, Entry& entry);
    std::string checkKept(int t, const HofSnapshot& before, const HofSnapshot& after, const Entry& entry) const;

    std::filesystem::path scratch_;
    HofSnapshot::Schema schema_;  // the statements of the program's own file
    long inputs_ = 0, databases_ = 0, ownTables_ = 0, highScores_ = 0, given_ = 0, toldBoxes_ = 0;
};

}  // namespace petal::fuzz
