#include "records/HallOfFame.h"

#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "platform/Host.h"
#include "records/Characters.h"
#include "records/RecordRows.h"
#include "records/SqliteStatement.h"
#include "platform/Words.h"

namespace petal {

struct HallOfFame::TableDef {
    const char* name;
    const char* create;
    const char* index;
    const char* order;
    const char* insert;
    const char* columns;  // the columns that a row shows, in their order
};

namespace {

using TableDef = HallOfFame::TableDef;

const TableDef kSingle = {
    "SingleStats",
    "CREATE TABLE [SingleStats] ([PlayerName] TEXT(20),[DateWon] TEXT(10),[Score] INTEGER,[YakuCount] INTEGER)",
    "CREATE INDEX Score On [SingleStats] (Score DESC, DateWon DESC, PlayerName)",
    "Score DESC, DateWon DESC, PlayerName",
    "INSERT INTO [SingleStats] (PlayerName, DateWon, Score, YakuCount) VALUES (?1, ?2, ?3, ?4)",
    "PlayerName, DateWon, Score, YakuCount",
};
// SQLite keeps every index name of a file in one namespace, so a second index named "Score"
// is refused; this one alone takes another name, its columns and order as they stand.
const TableDef kTournament = {
    "TournamentStats",
    "CREATE TABLE [TournamentStats] ([PlayerName] TEXT(20),[DateWon] TEXT(10),[Score] INTEGER,[YakuCount] "
    "INTEGER,[RoundsWon] INTEGER,[Rounds] INTEGER,[ScoreAverage] INTEGER,[YakuAverage] INTEGER)",
    "CREATE INDEX TournamentScore On [TournamentStats] (ScoreAverage DESC, Score DESC, DateWon Desc, PlayerName)",
    "ScoreAverage DESC, Score DESC, DateWon DESC, PlayerName",
    "INSERT INTO [TournamentStats] (PlayerName, DateWon, Score, YakuCount, RoundsWon, Rounds, ScoreAverage, "
    "YakuAverage) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)",
    "PlayerName, DateWon, Score, YakuCount, RoundsWon, Rounds, ScoreAverage, YakuAverage",
};

const TableDef& tableFor(bool tournament) { return tournament ? kTournament : kSingle; }

// The condition that keeps a table's records and leaves out every other row.
std::string records(const TableDef& table) { return recordsOnly(table.columns); }

// The rollback journal keeps the records in one file between runs, and a hot journal left by a
// crash is rolled back at the next open; FULL syncs make each commit durable before it returns.
constexpr const char* kDurability = "PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL";

struct Opening {
    sqlite3* db = nullptr;  // set only when the file opened and reads as a database
    int rc = SQLITE_OK;
    int systemErrno = 0;
    std::string reason;
};

// SQLite reads nothing at open, so a lock or a foreign file shows only at the first statement.
// A file that is missing is made.
Opening openFile(const std::filesystem::path& file, int lockWaitMs) {
    Opening o;
    sqlite3* db = nullptr;
    o.rc = sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    if (o.rc == SQLITE_OK) {
        sqlite3_busy_timeout(db, lockWaitMs);
        // The game's file holds two tables and their indexes. A view or a trigger of a file made
        // elsewhere could run without end, or change rows behind the game's back: none runs.
        sqlite3_db_config(db, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
        sqlite3_db_config(db, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
        addRecordFunctions(db);
        o.rc = sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
        // A write-protected file opens read-only without a word; refuse it here, not at a write.
        // So does a file whose header marks a format newer than SQLite may write, which no
        // retry mends: the records are out of reach, as with any file that cannot be used.
        if (o.rc == SQLITE_OK && sqlite3_db_readonly(db, "main") == 1) {
            const bool writeProtected = ::access(file.c_str(), W_OK) != 0;
            o.rc = writeProtected ? SQLITE_READONLY : SQLITE_CANTOPEN;
            o.reason = writeProtected ? std::string(sqlite3_errstr(o.rc)) + " (the file is write-protected)"
                                      : "it is of a newer format, which this program may read but not write";
            sqlite3_close(db);
            return o;
        }
    }
    if (o.rc == SQLITE_OK) o.rc = sqlite3_exec(db, kDurability, nullptr, nullptr, nullptr);
    // A damaged file may read without an error and still mislead: an index that no longer
    // matches its table orders and counts rows that are not there. Its first fault is told.
    std::string fault;
    if (o.rc == SQLITE_OK) {
        SqliteStatement check(db, "PRAGMA integrity_check(1)");
        o.rc = check.step();
        if (o.rc == SQLITE_ROW) {
            fault = check.text(0);
            o.rc = fault == "ok" ? SQLITE_OK : SQLITE_CORRUPT;
        }
    }
    if (o.rc == SQLITE_OK) {
        o.db = db;
        return o;
    }
    if (o.rc == SQLITE_CORRUPT && !fault.empty()) {
        // A fault in a page comes under a header line that names only the database.
        const std::string header = "*** in database main ***\n";
        if (fault.rfind(header, 0) == 0) fault.erase(0, header.size());
        o.reason = "the file is damaged (" + fault.substr(0, std::min(fault.find('\n'), std::size_t{200})) + ")";
        sqlite3_close(db);
        return o;
    }
    o.systemErrno = db ? sqlite3_system_errno(db) : 0;
    // A file that cannot be made fails last on a read-only retry; the folder's refusal is the cause.
    std::error_code ec;
    if ((o.rc & 0xFF) == SQLITE_CANTOPEN && !std::filesystem::exists(file, ec) &&
        ::access(file.parent_path().c_str(), W_OK) != 0)
        o.systemErrno = errno;
    o.reason = db && sqlite3_errcode(db) != SQLITE_OK ? sqlite3_errmsg(db) : sqlite3_errstr(o.rc);
    if (o.systemErrno != 0) o.reason += std::string(" (") + std::strerror(o.systemErrno) + ")";
    sqlite3_close(db);
    return o;
}

// Refusals of the file itself (its permissions, another program's lock), not of its content.
bool accessDenied(const Opening& o) {
    switch (o.rc & 0xFF) {
    case SQLITE_PERM:
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_READONLY:
        return true;
    case SQLITE_CANTOPEN:
        return o.systemErrno == EACCES || o.systemErrno == EPERM || o.systemErrno == EROFS;
    default:
        return false;
    }
}

}  // namespace

// A failed statement inside an operation, with SQLite's code and its own words for it.
struct HallOfFame::Failure {
    int code;
    std::string reason;
    bool toldAtOpening = false;  // the records are out of reach, and the opening said why
    bool locked() const { return (code & 0xFF) == SQLITE_BUSY || (code & 0xFF) == SQLITE_LOCKED; }
};

HallOfFame::HallOfFame(Host& host) : host_(host) {}

HallOfFame::~HallOfFame() { CloseHallOfFame(); }

std::filesystem::path HallOfFame::path() const { return host_.programFolder() / kFileName; }

void HallOfFame::setLockWait(int ms) {
    lockWaitMs_ = ms;
    if (gHOFDatabase_) sqlite3_busy_timeout(gHOFDatabase_, ms);
}

void HallOfFame::OpenHallOfFame() {
    CloseHallOfFame();
    OpenExistingDatabase();
    EnsureTable(kSingle.name);
    EnsureTable(kTournament.name);
}

// Opens the file, making it when it is missing. A file refused to this user or locked by another
// program asks Retry or Cancel; a file that is no database, is damaged or cannot be written is
// told at once with the store's reason. Either way the program goes on without the records, and
// the operations that find them out of reach say nothing more.
void HallOfFame::OpenExistingDatabase() {
    while (!host_.ending()) {
        const Opening o = openFile(path(), lockWaitMs_);
        if (o.db) {
            gHOFDatabase_ = o.db;
            unreachable_.clear();
            return;
        }
        unreachable_ = o.reason;
        const std::string cause =
            said(host_, PETAL_TR("core", "The Hall of Fame file \"%1\" cannot be opened: %2."), {path().string(), o.reason});
        if (!accessDenied(o)) {
            tellOnce(said(host_, PETAL_TR("core", "%1\n\nThe game goes on without it."), {cause}));
            return;
        }
        const std::string text = said(host_, PETAL_TR("core", "%1\n\nRetry, or Cancel to play on without the Hall of Fame."), {cause});
        if (host_.msgBox({text, PETAL_TR("core", "Access Denied"), MsgIcon::Exclamation, MsgButtons::RetryCancel}) != MsgResult::Retry)
            return;
    }
}

// A lost table comes back empty; any other failure leaves the table as it is, in silence.
void HallOfFame::EnsureTable(const std::string& TableName) {
    if (!gHOFDatabase_) return;
    {
        SqliteStatement query(gHOFDatabase_, "Select * from [" + TableName + "]");
        if (query.prepared()) return;
        if (std::string(sqlite3_errmsg(gHOFDatabase_)).rfind("no such table", 0) != 0) return;
    }
    const TableDef& table = tableFor(TableName == kTournament.name);
    if (sqlite3_exec(gHOFDatabase_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK) return;
    if (sqlite3_exec(gHOFDatabase_, table.create, nullptr, nullptr, nullptr) == SQLITE_OK &&
        sqlite3_exec(gHOFDatabase_, table.index, nullptr, nullptr, nullptr) == SQLITE_OK &&
        sqlite3_exec(gHOFDatabase_, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK)
        return;
    sqlite3_exec(gHOFDatabase_, "ROLLBACK", nullptr, nullptr, nullptr);
}

void HallOfFame::CloseHallOfFame() {
    bar_.forget();
    if (!gHOFDatabase_) return;
    sqlite3_close_v2(gHOFDatabase_);
    gHOFDatabase_ = nullptr;
}

bool HallOfFame::guarded(const std::string& operation, const std::function<void()>& body) {
    while (!host_.ending()) {
        try {
            body();
            return true;
        } catch (const Failure& failure) {
            if (failure.toldAtOpening) return false;
            const std::string cause = said(host_, PETAL_TR("core", "The Hall of Fame file \"%1\" cannot be %2: %3."),
                                           {path().string(), operation, failure.reason});
            if (!failure.locked()) {
                tellOnce(said(host_, PETAL_TR("core", "%1\n\nThe game goes on without it."), {cause}));
                return false;
            }
            const std::string text = said(host_,
                                          PETAL_TR("core", "%1\n\nAnother program holds the file. Retry once it has let go, "
                                                           "or Cancel to go on without it."),
                                          {cause});
            if (host_.msgBox({text, PETAL_TR("core", "Hall of Fame"), MsgIcon::Exclamation, MsgButtons::RetryCancel}) != MsgResult::Retry)
                return false;
        }
    }
    return false;
}

// The same failure again (records out of reach, a damaged file) is not told at every game.
void HallOfFame::tellOnce(const std::string& text) {
    if (!told_.insert(text).second) return;
    host_.msgBox({text, PETAL_TR("core", "Hall of Fame"), MsgIcon::Exclamation, MsgButtons::OK});
}

void HallOfFame::fail(int code) const { throw Failure{code, sqlite3_errmsg(gHOFDatabase_)}; }

sqlite3* HallOfFame::database() const {
    if (!gHOFDatabase_) throw Failure{SQLITE_CANTOPEN, "it is not open", !unreachable_.empty()};
    return gHOFDatabase_;
}

void HallOfFame::prepared(const SqliteStatement& statement) const {
    if (!statement.prepared()) fail(statement.prepareCode());
}

void HallOfFame::exec(const std::string& sql) {
    const int rc = sqlite3_exec(database(), sql.c_str(), nullptr, nullptr, nullptr);
    if (rc != SQLITE_OK) fail(rc);
}

// The records of a table, rows that no game wrote being left out.
int HallOfFame::rowCount(const TableDef& table) {
    SqliteStatement count(database(),
                          std::string("SELECT count(*) FROM [") + table.name + "] WHERE " + records(table));
    prepared(count);
    const int rc = count.step();
    if (rc != SQLITE_ROW) fail(rc);
    return count.integer(0);
}

// A file made or changed elsewhere may hold a view in a table's place, whose rows may never
// end: such a table is not read at all, the operation failing with why. Rows that the game
// never writes (text or nothing where a number belongs, a fraction, a number beyond 16 bits, a
// name far too long) would show, sort and compare as no record does: they are left out of every
// operation and told, and the file keeps them as they are.
int HallOfFame::recordCount(const TableDef& table) {
    {
        SqliteStatement kind(database(), "SELECT type FROM sqlite_master WHERE name = ?1 COLLATE NOCASE");
        prepared(kind);
        kind.bind(1, table.name);
        if (kind.step() == SQLITE_ROW && kind.text(0) != "table")
            throw Failure{SQLITE_MISMATCH, std::string("its ") + table.name + " is " +
                                               (kind.text(0) == "index" ? "an " : "a ") + kind.text(0) +
                                               ", not a table"};
    }
    SqliteStatement rows(database(), "SELECT count(*) - count(odd), count(odd), min(odd) FROM (SELECT " +
                                         oddRowCase(table.columns) + " AS odd FROM [" + table.name + "])");
    prepared(rows);
    const int rc = rows.step();
    if (rc != SQLITE_ROW) fail(rc);
    if (const int odd = rows.integer(1); odd > 0) {
        const bool one = odd == 1;
        leftOut_ = "The Hall of Fame file \"" + path().string() + "\" holds " + std::to_string(odd) +
                   (one ? " row of " : " rows of ") + table.name + " that no game could have written (" +
                   (one ? "" : "one of them: ") + rows.text(2) + ").\n\n" +
                   (one ? "It is left out of the table, and the file keeps it as it is."
                        : "They are left out of the table, and the file keeps them as they are.");
    }
    return rows.integer(0);
}

// Rows left out by the operation that has just run are told once it is over, so that no box
// stands while the file is held.
void HallOfFame::tellLeftOut() {
    if (leftOut_.empty()) return;
    tellOnce(leftOut_);
    leftOut_.clear();
}

// One write, whole or not at all: a failure inside rolls back.
void HallOfFame::transaction(const std::function<void()>& writes) {
    exec("BEGIN IMMEDIATE");
    try {
        writes();
        exec("COMMIT");
    } catch (...) {
        sqlite3_exec(gHOFDatabase_, "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

bool HallOfFame::IsHighScore(int GameType, int Score) {
    const bool tournament = GameType != 0;
    const auto stamp = bar_.stampOf(path());
    if (const auto bar = bar_.known(tournament, stamp)) return bar->rows < kRows || Score > bar->lowest;
    const TableDef& table = tableFor(tournament);
    bool high = false;
    guarded("read to test the score", [&] {
        HighScoreBar::Bar bar{recordCount(table), 0};
        if (bar.rows < kRows) {
            high = true;
            bar_.remember(tournament, stamp, bar);
            return;
        }
        // Compared on Score even where the order is by ScoreAverage, as the tables always have been.
        SqliteStatement last(gHOFDatabase_, std::string("SELECT Score FROM [") + table.name + "] WHERE " +
                                                records(table) + " ORDER BY " + table.order + " LIMIT 1 OFFSET " +
                                                std::to_string(bar.rows - 1));
        prepared(last);
        const int rc = last.step();
        if (rc != SQLITE_ROW) fail(rc);
        bar.lowest = last.integer(0);
        high = Score > bar.lowest;
        bar_.remember(tournament, stamp, bar);
    });
    tellLeftOut();
    return high;
}

// Ten rows of fields; where the table has run out, and where it cannot be read, a row is blank.
// The columns are asked for by name, so that a table made elsewhere with its columns in
// another order, or with more of them, still shows each value under its heading.
std::string HallOfFame::GetHallOfFame(int GameType) {
    const bool tournament = GameType != 0;
    const TableDef& table = tableFor(tournament);
    const int fields = tournament ? 8 : 7;
    std::vector<std::vector<std::string>> rows;
    guarded("read", [&] {
        rows.clear();
        recordCount(table);
        SqliteStatement query(database(), std::string("SELECT ") + table.columns + " FROM [" + table.name +
                                              "] WHERE " + records(table) + " ORDER BY " + table.order + " LIMIT " +
                                              std::to_string(kRows));
        prepared(query);
        int rc;
        while ((rc = query.step()) == SQLITE_ROW) {
            std::vector<std::string>& row = rows.emplace_back();
            for (int field = 0; field < fields; ++field)
                row.push_back(field < query.columns() ? fieldText(query.text(field)) : "N/A");
        }
        if (rc != SQLITE_DONE) fail(rc);
    });
    tellLeftOut();
    std::string text;
    for (int row = 0; row < kRows; ++row) {
        for (int field = 0; field < fields; ++field) {
            text += row < static_cast<int>(rows.size()) ? rows[row][field] : " ";
            if (field + 1 < fields) text += ",";
        }
        if (row + 1 < kRows) text += ":";
    }
    return text;
}

void HallOfFame::AddHallOfFameEntry(const std::string& PlayerName, int Score, int YakuCount, int RoundsWon, int Rounds) {
    const TableDef& table = tableFor(Rounds != 0);
    bar_.forget();
    guarded("written", [&] {
        transaction([&] {
            recordCount(table);
            insertRow(table, PlayerName, Score, YakuCount, RoundsWon, Rounds);
            // The count is exact: the entry that makes more than ten rows takes the last in the
            // order away, wherever it stands.
            const int rows = rowCount(table);
            if (rows > kRows)
                exec(std::string("DELETE FROM [") + table.name + "] WHERE rowid = (SELECT rowid FROM [" + table.name +
                     "] WHERE " + records(table) + " ORDER BY " + table.order + " LIMIT 1 OFFSET " +
                     std::to_string(rows - 1) + ")");
        });
    });
    tellLeftOut();
}

void HallOfFame::insertRow(const TableDef& table, const std::string& PlayerName, int Score, int YakuCount,
                           int RoundsWon, int Rounds) {
    SqliteStatement insert(database(), table.insert);
    prepared(insert);
    // What is stored is always a record: a whole name, and numbers of 16 bits, which only a
    // tournament of far more rounds than Setup allows could pass.
    const auto held = [](int value) { return std::clamp(value, -32768, 32767); };
    insert.bind(1, firstCharacters(wellFormedUtf8(PlayerName), kNameLength));
    insert.bind(2, host_.dateText());
    insert.bind(3, held(Score));
    insert.bind(4, held(YakuCount));
    if (Rounds != 0) {
        insert.bind(5, held(RoundsWon));
        insert.bind(6, held(Rounds));
        insert.bind(7, storedAverage(held(Score), held(Rounds)));
        insert.bind(8, storedAverage(held(YakuCount), held(Rounds)));
    }
    const int rc = insert.step();
    if (rc != SQLITE_DONE) fail(rc);
}

// An average as the table stores it: the quotient written with one decimal (half away from
// zero), then taken to the nearest integer with an exact half going to the even neighbour.
// Integer arithmetic, so that 1.45 is not the binary 1.4499... and written as "1.4".
int HallOfFame::storedAverage(int total, int rounds) {
    const long long n = 10LL * std::llabs(total), d = std::llabs(rounds);
    const bool negative = (total < 0) != (rounds < 0);
    const long long tenths = (2 * n + d) / (2 * d);
    long long whole = tenths / 10;
    const long long rest = tenths % 10;
    if (rest > 5 || (rest == 5 && whole % 2 == 1)) ++whole;
    return static_cast<int>(negative ? -whole : whole);
}

std::string HallOfFame::fieldText(const std::string& value) {
    std::string text;
    for (const char c : value) {
        if (c == '%') text += "%25";
        else if (c == ',') text += "%2C";
        else if (c == ':') text += "%3A";
        else text += c;
    }
    return text;
}

std::string HallOfFame::fieldValue(const std::string& text) {
    std::string value;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string code = text.substr(i, 3);
        if (code == "%25" || code == "%2C" || code == "%3A") {
            value += code == "%25" ? '%' : code == "%2C" ? ',' : ':';
            i += 2;
        } else {
            value += text[i];
        }
    }
    return value;
}

}  // namespace petal
