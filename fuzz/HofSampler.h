#pragma once
// Hall of Fame files for the seeded fuzzer, made in memory by SQLite from statements: the
// game's own file with rows that tie, overflow the ten and hold the text's separators; the
// same with a table or the index lost, other tables beside it; wrong schemas (a column's type
// changed, added, dropped or moved, rows without ids, constraints, a view or a trigger in a
// table's place, the name in other letters); records that the game never wrote (text where
// numbers belong, NULLs, fractions, numbers beyond 32 bits, names and dates far too long);
// other page sizes and encodings; files that are no database, and an empty one. A quarter of
// them are then spoilt: fields of the header changed, bytes of the pages, the end cut off.
#include <cstdint>
#include <string>
#include <vector>

#include "HofSnapshot.h"
#include "SplitMix.h"

struct sqlite3;

namespace petal::fuzz {

class HofSampler {
public:
    HofSampler(SplitMix& random, const HofSnapshot::Schema& schema) : random_(random), schema_(schema) {}

    std::vector<std::uint8_t> input();
    // The file of the statements and rows; "" if SQLite refused them.
    static std::string build(const std::vector<std::string>& statements, int pageSize);

private:
    std::string file();
    void addDesigned(std::vector<std::string>& sql, int t, bool index);
    static std::vector<std::string> designedColumns(int t);
    std::vector<std::string> wrongTable(std::vector<std::string>& sql, int t);
    void addRows(std::vector<std::string>& sql, int t, const std::vector<std::string>& columns, int rows,
                 bool wrongValues);
    std::string name();
    std::string date();
    std::string score();
    std::string wrongValue(bool number);
    void spoil(std::string& bytes, int pageSize);

    SplitMix& random_;
    const HofSnapshot::Schema& schema_;
};

}  // namespace petal::fuzz
