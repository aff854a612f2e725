#include "HofSnapshot.h"

#include <sqlite3.h>
#include <strings.h>

#include <algorithm>
#include <climits>
#include <fstream>
#include <memory>

#include "records/Characters.h"

namespace petal::fuzz {

namespace {

constexpr const char* kTables[2] = {"SingleStats", "TournamentStats"};
constexpr const char* kColumns = "PlayerName, DateWon, Score, YakuCount, RoundsWon, Rounds, ScoreAverage, YakuAverage";
// A hostile schema can make a statement run for ever; no read of a file of records needs more.
constexpr int kProgressLimit = 20'000;  // calls of the handler, each 1000 steps of the engine

struct Db {
    sqlite3* db = nullptr;
    int progress = 0;
    ~Db() { sqlite3_close_v2(db); }
};

struct Statement {
    Statement(sqlite3* db, const std::string& sql) { rc = sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt, nullptr); }
    ~Statement() { sqlite3_finalize(stmt); }
    bool ok() const { return rc == SQLITE_OK && stmt; }
    std::string text(int column) const {
        const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(stmt, column));
        return t ? std::string(t, static_cast<std::size_t>(sqlite3_column_bytes(stmt, column))) : std::string();
    }
    sqlite3_stmt* stmt = nullptr;
    int rc;
};

std::string quoted(const std::string& name) {
    std::string out = "\"";
    for (const char c : name) out += c == '"' ? std::string("\"\"") : std::string(1, c);
    return out + "\"";
}

// The file as it lies, while no program has it open: read-only, without locks and without the
// files of a journal or a write-ahead log beside it, which are not made.
bool open(const std::filesystem::path& file, Db& d) {
    std::string uri = "file:";
    for (const char c : file.string()) {
        if (c == '%' || c == '?' || c == '#') {
            static const char digits[] = "0123456789ABCDEF";
            uri += {'%', digits[c >> 4], digits[c & 15]};
        } else {
            uri += c;
        }
    }
    return sqlite3_open_v2((uri + "?immutable=1").c_str(), &d.db, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr) ==
           SQLITE_OK;
}

bool sameName(const std::string& a, const char* b) { return ::strcasecmp(a.c_str(), b) == 0; }

// A text as a record holds it: well-formed, of at most `most` characters as the entry box
// counts them.
bool recordText(const std::string& text, std::size_t most) {
    return isWellFormedUtf8(text) && characterCount(text) <= most;
}

// The records of one of the game's tables, and the count of its other rows; false if the rows
// cannot be read.
bool readRecords(sqlite3* db, int t, std::vector<HofSnapshot::Row>& rows, long& foreign) {
    const int numbers = t ? 6 : 2;
    std::string columns = kColumns;
    if (!t) columns = "PlayerName, DateWon, Score, YakuCount";
    Statement query(db, "SELECT " + columns + " FROM " + quoted(kTables[t]));
    if (!query.ok()) return false;
    int rc;
    while ((rc = sqlite3_step(query.stmt)) == SQLITE_ROW) {
        // The types first: reading a value as text or number may change its type.
        bool record = true;
        for (int c = 0; c < 2 + numbers; ++c)
            record = record && sqlite3_column_type(query.stmt, c) == (c < 2 ? SQLITE_TEXT : SQLITE_INTEGER);
        HofSnapshot::Row row;
        row.name = query.text(0);
        row.date = query.text(1);
        record = record && recordText(row.name, 20) && recordText(row.date, 10);
        for (int n = 0; n < numbers; ++n) {
            row.numbers[n] = sqlite3_column_int64(query.stmt, 2 + n);
            record = record && row.numbers[n] >= SHRT_MIN && row.numbers[n] <= SHRT_MAX;
        }
        if (record) rows.push_back(std::move(row));
        else ++foreign;
    }
    return rc == SQLITE_DONE;
}

}  // namespace

bool HofSnapshot::ahead(const Row& a, const Row& b, bool tournament) {
    if (tournament && a.numbers[4] != b.numbers[4]) return a.numbers[4] > b.numbers[4];
    if (a.numbers[0] != b.numbers[0]) return a.numbers[0] > b.numbers[0];
    if (a.date != b.date) return a.date > b.date;
    return a.name < b.name;
}

HofSnapshot::Schema HofSnapshot::schemaOf(const std::filesystem::path& file) {
    Schema schema;
    Db d;
    if (!open(file, d)) return schema;
    Statement master(d.db, "SELECT type, name, tbl_name, sql FROM sqlite_master");
    while (master.ok() && sqlite3_step(master.stmt) == SQLITE_ROW)
        schema.push_back({master.text(0), master.text(1), master.text(2), master.text(3)});
    return schema;
}

HofSnapshot HofSnapshot::read(const std::filesystem::path& file, const Schema& schema) {
    HofSnapshot s;
    {
        std::ifstream in(file, std::ios::binary | std::ios::ate);
        s.bytes.resize(in ? static_cast<std::size_t>(in.tellg()) : 0);
        in.seekg(0);
        in.read(s.bytes.data(), static_cast<std::streamsize>(s.bytes.size()));
    }
    Db d;
    if (!open(file, d)) return s;
    sqlite3_progress_handler(
        d.db, 1000, [](void* p) { return ++static_cast<Db*>(p)->progress > kProgressLimit ? 1 : 0; }, &d);
    Schema entries;
    {
        Statement master(d.db, "SELECT type, name, tbl_name, sql FROM sqlite_master");
        if (!master.ok()) return s;
        int rc;
        while ((rc = sqlite3_step(master.stmt)) == SQLITE_ROW)
            entries.push_back({master.text(0), master.text(1), master.text(2), master.text(3)});
        if (rc != SQLITE_DONE) return s;
    }
    s.database = true;
    {
        Statement check(d.db, "PRAGMA integrity_check");
        s.whole = check.ok() && sqlite3_step(check.stmt) == SQLITE_ROW && check.text(0) == "ok";
    }
    // The game's own file is written (its header says so) in UTF-8, whose bytes order names as
    // the game orders them.
    bool own = s.whole && s.bytes.size() > 19 && static_cast<unsigned char>(s.bytes[18]) <= 2 &&
               static_cast<unsigned char>(s.bytes[19]) <= 2;
    {
        Statement encoding(d.db, "PRAGMA encoding");
        own = own && encoding.ok() && sqlite3_step(encoding.stmt) == SQLITE_ROW && encoding.text(0) == "UTF-8";
    }
    for (int t = 0; t < 2; ++t) {
        Table& table = s.tables[t];
        std::vector<Entry> on, designed;
        for (const Entry& e : entries)
            if (sameName(e.table, kTables[t])) on.push_back(e);
        for (const Entry& e : schema)
            if (e.table == kTables[t]) designed.push_back(e);
        table.present = std::any_of(on.begin(), on.end(),
                                    [&](const Entry& e) { return e.type == "table" && sameName(e.name, kTables[t]); });
        if (!table.present) continue;
        Statement count(d.db, "SELECT count(*) FROM " + quoted(kTables[t]));
        if (count.ok() && sqlite3_step(count.stmt) == SQLITE_ROW) table.count = sqlite3_column_int(count.stmt, 0);
        // The designed table, with its index or without it, and nothing more.
        const bool made = own && !designed.empty() && on.size() <= designed.size() &&
                          std::all_of(on.begin(), on.end(),
                                      [&](const Entry& e) {
                                          return std::find(designed.begin(), designed.end(), e) != designed.end();
                                      }) &&
                          std::find(on.begin(), on.end(), designed.front()) != on.end();
        if (!made || table.count < 0) continue;
        table.ours = readRecords(d.db, t, table.rows, table.foreign);
        if (!table.ours) {
            table.rows.clear();
            table.foreign = 0;
            continue;
        }
        std::stable_sort(table.rows.begin(), table.rows.end(),
                         [t](const Row& a, const Row& b) { return ahead(a, b, t == 1); });
    }
    s.othersRead = true;
    for (const Entry& e : entries) {
        if (e.type != "table" || e.name.rfind("sqlite_", 0) == 0 || sameName(e.name, kTables[0]) ||
            sameName(e.name, kTables[1]) || e.sql.rfind("CREATE VIRTUAL", 0) == 0)
            continue;
        Statement all(d.db, "SELECT * FROM " + quoted(e.name));
        s.others += "\n" + e.name + ":";
        if (!all.ok()) {
            s.othersRead = false;
            continue;
        }
        int rc;
        while ((rc = sqlite3_step(all.stmt)) == SQLITE_ROW)
            for (int c = 0; c < sqlite3_column_count(all.stmt); ++c)
                s.others += std::to_string(sqlite3_column_type(all.stmt, c)) + "=" + all.text(c) + "|";
        if (rc != SQLITE_DONE) s.othersRead = false;
    }
    return s;
}

}  // namespace petal::fuzz
