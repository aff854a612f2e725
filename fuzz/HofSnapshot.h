#pragma once
// What a Hall of Fame file holds, read on a connection of its own and with none of the
// program's code: whether it reads as a database and is whole, each record table's rows, and
// the content of every other table. A record table is the game's own when it was made by the
// statements that the program itself sends (`schema`), with nothing else on it, in a whole
// file in UTF-8 that SQLite may write. Its rows are the records that the game could have
// written (a well-formed name of at most 20 characters, a date text of at most 10, numbers of
// 16 bits), and the count of the others, which the program leaves out.
#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace petal::fuzz {

class HofSnapshot {
public:
    struct Row {
        std::string name, date;
        // Score, YakuCount, and in a tournament RoundsWon, Rounds, ScoreAverage, YakuAverage.
        std::array<long long, 6> numbers{};
        bool operator==(const Row&) const = default;
    };
    struct Table {
        bool present = false;  // a table of that name, whatever its columns
        long count = -1;       // its rows; -1 when they cannot be counted
        bool ours = false;
        std::vector<Row> rows;  // when ours, its records in the designed order
        long foreign = 0;       // when ours, its rows that are no records
    };
    // The schema's entries of the program's own file.
    struct Entry {
        std::string type, name, table, sql;
        bool operator==(const Entry&) const = default;
    };
    using Schema = std::vector<Entry>;

    static HofSnapshot read(const std::filesystem::path& file, const Schema& schema);
    // The statements of a file made by the program.
    static Schema schemaOf(const std::filesystem::path& file);

    // The designed order: a single game's by Score down, DateWon down, PlayerName up; a
    // tournament's by ScoreAverage down first. Texts compare byte by byte.
    static bool ahead(const Row& a, const Row& b, bool tournament);
    static bool sameKey(const Row& a, const Row& b, bool tournament) {
        return !ahead(a, b, tournament) && !ahead(b, a, tournament);
    }

    std::string bytes;
    bool database = false;        // opens and its schema reads
    bool whole = false;           // and its integrity check passes
    std::array<Table, 2> tables;  // SingleStats, TournamentStats
    std::string others;           // every other plain table, row by row; empty if unreadable
    bool othersRead = false;
};

}  // namespace petal::fuzz
