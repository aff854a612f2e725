#include "HofSampler.h"

#include <sqlite3.h>

#include <cctype>
#include <cstdio>

#include "ByteMutator.h"

namespace petal::fuzz {

namespace {

constexpr const char* kTables[2] = {"SingleStats", "TournamentStats"};
constexpr const char* kColumns[8] = {"PlayerName", "DateWon", "Score",        "YakuCount",
                                     "RoundsWon",  "Rounds",  "ScoreAverage", "YakuAverage"};

std::string literal(const std::string& text) {
    std::string out = "'";
    for (const char c : text) out += c == '\'' ? std::string("''") : std::string(1, c);
    return out + "'";
}

template <std::size_t N>
const char* pick(SplitMix& random, const char* const (&list)[N]) {
    return list[random.below(N)];
}

}  // namespace

std::string HofSampler::build(const std::vector<std::string>& statements, int pageSize) {
    sqlite3* db = nullptr;
    std::string bytes;
    if (sqlite3_open(":memory:", &db) == SQLITE_OK &&
        sqlite3_exec(db, ("PRAGMA page_size = " + std::to_string(pageSize)).c_str(), nullptr, nullptr, nullptr) ==
            SQLITE_OK) {
        bool built = true;
        for (const std::string& sql : statements)
            built = built && sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
        sqlite3_int64 size = 0;
        unsigned char* data = built ? sqlite3_serialize(db, "main", &size, 0) : nullptr;
        if (data) bytes.assign(reinterpret_cast<const char*>(data), static_cast<std::size_t>(size));
        sqlite3_free(data);
    }
    sqlite3_close(db);
    return bytes;
}

std::vector<std::uint8_t> HofSampler::input() {
    std::string bytes = file();
    return {bytes.begin(), bytes.end()};
}

std::string HofSampler::file() {
    const unsigned kind = random_.below(100);
    if (kind < 3) return "";
    if (kind < 7) {
        // No database: the settings text, words, an SQLite header over nothing, chance bytes.
        static const std::string kForeign[] = {"0\r\n10\r\n-1\r\n0\r\n", "Standard Jet DB", "SQLite format 3",
                                               std::string("SQLite format 3\0\x02\x00\x01\x01\x00\x40\x20\x20", 24)};
        std::string bytes = kForeign[random_.below(4)];
        if (random_.chance(50)) bytes.append(std::string("\0\x02\x01\x01", 4));
        for (unsigned n = random_.below(600); n > 0; --n) bytes += static_cast<char>(random_.below(256));
        return bytes;
    }
    static const int kPageSizes[] = {512, 512, 512, 512, 512, 512, 1024, 1024, 4096, 4096, 4096, 65536};
    const int pageSize = kPageSizes[random_.below(12)];
    std::vector<std::string> sql;
    if (random_.chance(8))
        sql.push_back(random_.chance(50) ? "PRAGMA encoding = 'UTF-16le'" : "PRAGMA encoding = 'UTF-16be'");
    if (random_.chance(5)) sql.push_back("PRAGMA auto_vacuum = FULL");
    for (int t = 0; t < 2; ++t) {
        const bool index = random_.chance(90);
        if (kind < 40) {
            addDesigned(sql, t, index);
            addRows(sql, t, designedColumns(t), static_cast<int>(random_.below(15)), false);
        } else if (kind < 50) {
            if (random_.chance(40)) continue;  // the table lost
            addDesigned(sql, t, index);
            addRows(sql, t, designedColumns(t), static_cast<int>(random_.below(12)), false);
        } else if (kind < 75 && random_.chance(65)) {
            const std::vector<std::string> columns = wrongTable(sql, t);
            addRows(sql, t, columns, static_cast<int>(random_.below(12)), random_.chance(20));
        } else if (kind < 90) {
            addDesigned(sql, t, index);
            addRows(sql, t, designedColumns(t), static_cast<int>(random_.below(13)), true);
        } else {
            addDesigned(sql, t, index);
            addRows(sql, t, designedColumns(t), 11 + static_cast<int>(random_.below(random_.chance(80) ? 20 : 400)),
                    false);
        }
    }
    if (random_.chance(10)) {
        sql.push_back("CREATE TABLE Notes (Line TEXT, Kept INTEGER)");
        sql.push_back("INSERT INTO Notes VALUES ('kept', 1), (NULL, 2.5), (X'00FF', 'x')");
    }
    if (random_.chance(10)) sql.push_back("PRAGMA user_version = " + std::to_string(random_.below(1000)));
    std::string bytes = build(sql, pageSize);
    if (bytes.empty()) bytes = build({}, 512);  // SQLite refused a statement: an empty database
    if (random_.chance(25)) spoil(bytes, pageSize);
    return bytes;
}

void HofSampler::addDesigned(std::vector<std::string>& sql, int t, bool index) {
    for (const HofSnapshot::Entry& e : schema_)
        if (e.table == kTables[t] && (e.type == "table" || index)) sql.push_back(e.sql);
}

std::vector<std::string> HofSampler::designedColumns(int t) { return {kColumns, kColumns + (t ? 8 : 4)}; }

// The designed columns with one or two of them changed, added, dropped or moved; or the
// designed table with a trigger on it; or another kind of object in the table's place. The
// columns that rows can be given.
std::vector<std::string> HofSampler::wrongTable(std::vector<std::string>& sql, int t) {
    const std::string table = kTables[t];
    switch (random_.below(14)) {
        case 0:
            sql.push_back("CREATE VIEW " + table +
                          " AS SELECT 'Viewed' AS PlayerName, '01/01/2020' AS DateWon, 70 AS "
                          "Score, 1 AS YakuCount, 1 AS RoundsWon, 2 AS Rounds, 35 AS ScoreAverage, 0 AS YakuAverage");
            return {};
        case 1:  // a view without end
            sql.push_back("CREATE VIEW " + table + " (" +
                          (t ? "PlayerName, DateWon, Score, YakuCount, RoundsWon, "
                               "Rounds, ScoreAverage, YakuAverage"
                             : "PlayerName, DateWon, Score, YakuCount") +
                          ") AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT 'R' || i, "
                          "'01/01/2020', i, 0" +
                          (t ? ", 1, 2, i, 0" : "") + " FROM n");
            return {};
        case 2: {
            static const char* const kBodies[] = {
                "DELETE FROM {t};",
                "INSERT INTO {t} (PlayerName, DateWon, Score, YakuCount) VALUES ('Echo', '01/01/2020', 1, 1);",
                "SELECT RAISE(ABORT, 'database or disk is full');",
                "UPDATE {t} SET Score = Score + 1;",
            };
            std::string body = pick(random_, kBodies);
            for (std::size_t at; (at = body.find("{t}")) != std::string::npos;) body.replace(at, 3, table);
            addDesigned(sql, t, true);
            sql.push_back("CREATE TRIGGER Watch" + std::to_string(t) + (random_.chance(50) ? " AFTER" : " BEFORE") +
                          (random_.chance(70) ? " INSERT" : " DELETE") + " ON " + table + " BEGIN " + body + " END");
            return designedColumns(t);
        }
        case 3:  // no table, and the name of its index taken
            sql.push_back(random_.chance(50) ? "CREATE TABLE Score (x)" : "CREATE TABLE TournamentScore (x)");
            return {};
        default:
            break;
    }
    struct Column {
        std::string name, type;
    };
    std::vector<Column> columns;
    for (int c = 0; c < (t ? 8 : 4); ++c)
        columns.push_back({kColumns[c], c == 0 ? "TEXT(20)" : c == 1 ? "TEXT(10)" : "INTEGER"});
    bool withoutRowid = false;
    std::string constraint;
    for (unsigned changes = 1 + random_.below(2); changes > 0; --changes) {
        const std::size_t at = random_.below(static_cast<unsigned>(columns.size()));
        static const char* const kOtherTypes[] = {"TEXT",
                                                  "INTEGER",
                                                  "REAL",
                                                  "BLOB",
                                                  "NUMERIC",
                                                  "",
                                                  "VARCHAR(5)",
                                                  "TEXT COLLATE NOCASE",
                                                  "INT",
                                                  "INTEGER NOT NULL",
                                                  "INTEGER UNIQUE",
                                                  "TEXT DEFAULT 'x'"};
        static const char* const kExtras[] = {"TEXT NOT NULL", "INTEGER DEFAULT 7", "BLOB", "TEXT"};
        switch (random_.below(7)) {
            case 0:
            case 1:
                columns[at].type = pick(random_, kOtherTypes);
                break;
            case 2:
                columns.insert(
                    columns.begin() + static_cast<long>(random_.below(static_cast<unsigned>(columns.size()) + 1)),
                    {"Extra", pick(random_, kExtras)});
                break;
            case 3:
                if (columns.size() > 1) columns.erase(columns.begin() + static_cast<long>(at));
                break;
            case 4:
                std::swap(columns[at], columns[random_.below(static_cast<unsigned>(columns.size()))]);
                break;
            case 5:
                withoutRowid = true;
                break;
            default:
                constraint = random_.chance(50) ? ", UNIQUE (" + columns[at].name + ")"
                                                : ", CHECK (length(" + columns[at].name + ") < 3)";
                break;
        }
    }
    std::string name = table;
    if (random_.chance(10))
        for (char& c : name) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    std::string create = "CREATE TABLE [" + name + "] (";
    std::vector<std::string> given;
    for (std::size_t c = 0; c < columns.size(); ++c) {
        create += (c ? ", [" : "[") + columns[c].name + "] " + columns[c].type;
        if (columns[c].name != "Extra") given.push_back(columns[c].name);
    }
    if (withoutRowid) create += ", PRIMARY KEY ([" + columns.front().name + "])";
    sql.push_back(create + constraint + ")" + (withoutRowid ? " WITHOUT ROWID" : ""));
    return given;
}

// Rows of the given columns: records as the game writes them, with ties, names that hold the
// text's separators and names of 20 letters; or, with wrongValues, one value in each row that
// the game never writes.
void HofSampler::addRows(std::vector<std::string>& sql, int t, const std::vector<std::string>& columns, int rows,
                         bool wrongValues) {
    if (columns.empty() || rows == 0) return;
    std::string insert = std::string("INSERT OR IGNORE INTO ") + kTables[t] + " (";
    for (std::size_t c = 0; c < columns.size(); ++c) insert += (c ? ", " : "") + columns[c];
    insert += ") VALUES ";
    for (int r = 0; r < rows; ++r) {
        const std::size_t wrong = wrongValues ? random_.below(static_cast<unsigned>(columns.size())) : columns.size();
        insert += r ? ", (" : "(";
        for (std::size_t c = 0; c < columns.size(); ++c) {
            const bool text = columns[c] == "PlayerName" || columns[c] == "DateWon";
            std::string value = columns[c] == "PlayerName" ? name() : columns[c] == "DateWon" ? date() : score();
            if (c == wrong) value = wrongValue(!text);
            insert += (c ? ", " : "") + value;
        }
        insert += ")";
    }
    sql.push_back(insert);
}

std::string HofSampler::name() {
    static const char* const kNames[] = {"Amy",
                                         "Bea",
                                         "Zed",
                                         "Smith, John",
                                         "a:b,c:%d",
                                         "%2C%3A",
                                         "",
                                         " ",
                                         "Twenty Letters Name!",
                                         "\xC3\xA9t\xC3\xA9",
                                         "\xE5\x90\x8D\xE5\x89\x8D",
                                         "O'Hara"};
    if (random_.chance(70)) return literal(pick(random_, kNames));
    std::string text;
    for (unsigned n = random_.below(21); n > 0; --n) text += static_cast<char>('A' + random_.below(58));
    return literal(text);
}

std::string HofSampler::date() {
    static const char* const kDates[] = {"11/22/2026", "12/31/1999", "01/01/2000", "1/2/2020", "", "2020-01-01"};
    if (random_.chance(60)) return literal(pick(random_, kDates));
    char text[16];
    std::snprintf(text, sizeof text, "%02u/%02u/%04u", 1 + random_.below(12), 1 + random_.below(31),
                  1990 + random_.below(50));
    return literal(text);
}

// Scores that tie, and the edges of 16 and 32 bits.
std::string HofSampler::score() {
    static const char* const kScores[] = {"40", "50",    "50",     "90",         "0",
                                          "-5", "32767", "-32768", "2147483647", "-2147483648"};
    if (random_.chance(40)) return pick(random_, kScores);
    return std::to_string(static_cast<int>(random_.below(300)) - 20);
}

std::string HofSampler::wrongValue(bool number) {
    static const char* const kForNumbers[] = {"'abc'",   "'12'",       "NULL",       "1.5",
                                              "1e300",   "4294967301", "2147483648", "-9223372036854775808",
                                              "X'00FF'", "''",         "' 7'",       "12.0"};
    static const char* const kForTexts[] = {"NULL",
                                            "42",
                                            "1.5",
                                            "X'41'",
                                            "'Twenty-one letters!!!'",
                                            "'01/01/20000'",
                                            "CAST(X'C3' AS TEXT)",
                                            "replace(hex(zeroblob(3000)), '00', 'x')",
                                            "replace(hex(zeroblob(70000)), '00', 'y')"};
    return number ? pick(random_, kForNumbers) : pick(random_, kForTexts);
}

// Fields of the header (page size, versions, reserved bytes, page count, schema cookie and
// format, encoding), bytes of the pages, or the end.
void HofSampler::spoil(std::string& bytes, int pageSize) {
    ByteMutator mutator(random_);
    static const unsigned kFields[] = {16, 17, 18, 19, 20, 21, 28, 31, 40, 43, 44, 47, 56, 59, 96};
    switch (random_.below(4)) {
        case 0:
            for (unsigned n = 1 + random_.below(3); n > 0 && bytes.size() > 100; --n)
                bytes[kFields[random_.below(sizeof kFields / sizeof *kFields)]] = static_cast<char>(random_.below(256));
            break;
        case 1:
            mutator.truncate(bytes, static_cast<std::size_t>(pageSize));
            break;
        default:
            mutator.mutate(bytes, 8, bytes.size() > 100 ? 100 : 0);
            break;
    }
}

}  // namespace petal::fuzz
