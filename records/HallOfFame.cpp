#include "records/HallOfFame.h"

#include <sqlite3.h>

#include <cerrno>
#include <cstdlib>

#include "records/SqliteStatement.h"
#include "platform/FatalError.h"
#include "platform/Host.h"

namespace petal {

struct HallOfFame::TableDef {
    const char* name;
    const char* create;
    const char* index;
    const char* order;
    const char* insert;
};

namespace {

using TableDef = HallOfFame::TableDef;

const TableDef kSingle = {
    "SingleStats",
    "CREATE TABLE [SingleStats] ([PlayerName] TEXT(20),[DateWon] TEXT(10),[Score] INTEGER,[YakuCount] INTEGER)",
    "CREATE INDEX Score On [SingleStats] (Score DESC, DateWon DESC, PlayerName)",
    "Score DESC, DateWon DESC, PlayerName",
    "INSERT INTO [SingleStats] (PlayerName, DateWon, Score, YakuCount) VALUES (?1, ?2, ?3, ?4)",
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
};

const TableDef& tableFor(bool tournament) { return tournament ? kTournament : kSingle; }

// Long enough to outlast another program's short read of the file, short enough that a lasting
// lock soon reaches the user as "Access Denied".
constexpr int kBusyTimeoutMs = 1000;

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
Opening openFile(const std::filesystem::path& file) {
    Opening o;
    sqlite3* db = nullptr;
    o.rc = sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    if (o.rc == SQLITE_OK) {
        sqlite3_busy_timeout(db, kBusyTimeoutMs);
        o.rc = sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
        // A write-protected file opens read-only without a word; refuse it here, not at a write.
        if (o.rc == SQLITE_OK && sqlite3_db_readonly(db, "main") == 1) o.rc = SQLITE_READONLY;
    }
    if (o.rc == SQLITE_OK) o.rc = sqlite3_exec(db, kDurability, nullptr, nullptr, nullptr);
    if (o.rc == SQLITE_OK) {
        o.db = db;
        return o;
    }
    o.systemErrno = db ? sqlite3_system_errno(db) : 0;
    o.reason = db && sqlite3_errcode(db) != SQLITE_OK ? sqlite3_errmsg(db) : sqlite3_errstr(o.rc);
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

// An average as the table stores it: the quotient written with one decimal (half away from
// zero), then taken to the nearest integer with an exact half going to the even neighbour.
// Integer arithmetic, so that 1.45 is not the binary 1.4499... and written as "1.4".
int storedAverage(int total, int rounds) {
    const long long n = 10LL * std::llabs(total), d = std::llabs(rounds);
    const bool negative = (total < 0) != (rounds < 0);
    const long long tenths = (2 * n + d) / (2 * d);
    long long whole = tenths / 10;
    const long long rest = tenths % 10;
    if (rest > 5 || (rest == 5 && whole % 2 == 1)) ++whole;
    return static_cast<int>(negative ? -whole : whole);
}

}  // namespace

HallOfFame::HallOfFame(Host& host) : host_(host) {}

HallOfFame::~HallOfFame() { CloseHallOfFame(); }

std::filesystem::path HallOfFame::path() const { return host_.programFolder() / kFileName; }

void HallOfFame::OpenHallOfFame() {
    CloseHallOfFame();
    std::error_code ec;
    if (std::filesystem::exists(path(), ec))
        OpenExistingDatabase();
    else
        createDatabase();
    EnsureTable(kSingle.name);
    EnsureTable(kTournament.name);
}

// Making the file has no trap: a folder that refuses it ends the program.
void HallOfFame::createDatabase() {
    const Opening o = openFile(path());
    if (!o.db) fail("OpenHallOfFame", o.reason);
    gHOFDatabase_ = o.db;
}

void HallOfFame::OpenExistingDatabase() {
    while (!host_.ending()) {
        const Opening o = openFile(path());
        if (o.db) {
            gHOFDatabase_ = o.db;
            return;
        }
        if ((o.rc & 0xFF) == SQLITE_NOTADB) {
            host_.msgBox({"System Password Error", "Invalid Password", MsgIcon::Exclamation, MsgButtons::OK});
            return;
        }
        if (!accessDenied(o)) return;
        host_.msgBox({"The Hall of Fame file \"" + path().string() + "\" cannot be opened: " + o.reason + ".",
                      "Access Denied", MsgIcon::Exclamation, MsgButtons::OK});
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
    if (!gHOFDatabase_) return;
    sqlite3_close_v2(gHOFDatabase_);
    gHOFDatabase_ = nullptr;
}

void HallOfFame::fail(const std::string& routine, const std::string& reason) const {
    throw FatalError("Hall of Fame",
                     routine + " failed on the Hall of Fame file \"" + path().string() + "\": " + reason + ".");
}

sqlite3* HallOfFame::database(const std::string& routine) const {
    if (!gHOFDatabase_) fail(routine, "the file could not be opened, so the records are out of reach");
    return gHOFDatabase_;
}

void HallOfFame::prepared(const SqliteStatement& statement, const std::string& routine) const {
    if (!statement.prepared()) fail(routine, sqlite3_errmsg(gHOFDatabase_));
}

void HallOfFame::exec(const std::string& sql, const std::string& routine) {
    if (sqlite3_exec(database(routine), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(routine, sqlite3_errmsg(gHOFDatabase_));
}

int HallOfFame::rowCount(const TableDef& table, const std::string& routine) {
    SqliteStatement count(database(routine), std::string("SELECT count(*) FROM [") + table.name + "]");
    if (count.step() != SQLITE_ROW) fail(routine, sqlite3_errmsg(gHOFDatabase_));
    return count.integer(0);
}

// One write, whole or not at all: a failure inside rolls back before the program ends.
void HallOfFame::transaction(const std::string& routine, const std::function<void()>& writes) {
    exec("BEGIN IMMEDIATE", routine);
    try {
        writes();
        exec("COMMIT", routine);
    } catch (...) {
        sqlite3_exec(gHOFDatabase_, "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

bool HallOfFame::IsHighScore(int GameType, int Score) {
    const std::string routine = "IsHighScore";
    const TableDef& table = tableFor(GameType != 0);
    const int rows = rowCount(table, routine);
    if (rows < kRows) return true;
    // Compared on Score even where the order is by ScoreAverage, as the tables always have been.
    SqliteStatement last(gHOFDatabase_, std::string("SELECT Score FROM [") + table.name + "] ORDER BY " + table.order +
                                            " LIMIT 1 OFFSET " + std::to_string(rows - 1));
    if (last.step() != SQLITE_ROW) fail(routine, sqlite3_errmsg(gHOFDatabase_));
    return Score > last.integer(0);
}

std::string HallOfFame::GetHallOfFame(int GameType) {
    const std::string routine = "GetHallOfFame";
    const bool tournament = GameType != 0;
    const TableDef& table = tableFor(tournament);
    SqliteStatement rows(database(routine), std::string("SELECT * FROM [") + table.name + "] ORDER BY " + table.order +
                                                " LIMIT " + std::to_string(kRows));
    prepared(rows, routine);
    const int fields = tournament ? 8 : 7;
    std::string text;
    bool pastEnd = false;
    for (int row = 0; row < kRows; ++row) {
        if (!pastEnd) {
            const int rc = rows.step();
            if (rc != SQLITE_ROW && rc != SQLITE_DONE) fail(routine, sqlite3_errmsg(gHOFDatabase_));
            pastEnd = rc == SQLITE_DONE;
        }
        for (int field = 0; field < fields; ++field) {
            if (pastEnd) text += " ";
            else if (field < rows.columns()) text += rows.text(field);
            else text += "N/A";
            if (field + 1 < fields) text += ",";
        }
        if (row + 1 < kRows) text += ":";
    }
    return text;
}

void HallOfFame::AddHallOfFameEntry(const std::string& PlayerName, int Score, int YakuCount, int RoundsWon, int Rounds) {
    const std::string routine = "AddHallOfFameEntry";
    const TableDef& table = tableFor(Rounds != 0);
    transaction(routine, [&] {
        insertRow(table, PlayerName, Score, YakuCount, RoundsWon, Rounds);
        // The count is exact, so the entry that makes eleven rows takes the last in the order away.
        if (rowCount(table, routine) > kRows)
            exec(std::string("DELETE FROM [") + table.name + "] WHERE rowid = (SELECT rowid FROM [" + table.name +
                     "] ORDER BY " + table.order + " LIMIT 1 OFFSET " + std::to_string(kRows) + ")",
                 routine);
    });
}

void HallOfFame::insertRow(const TableDef& table, const std::string& PlayerName, int Score, int YakuCount,
                           int RoundsWon, int Rounds) {
    const std::string routine = "AddHallOfFameEntry";
    SqliteStatement insert(gHOFDatabase_, table.insert);
    prepared(insert, routine);
    insert.bind(1, PlayerName);
    insert.bind(2, host_.dateText());
    insert.bind(3, Score);
    insert.bind(4, YakuCount);
    if (Rounds != 0) {
        insert.bind(5, RoundsWon);
        insert.bind(6, Rounds);
        insert.bind(7, storedAverage(Score, Rounds));
        insert.bind(8, storedAverage(YakuCount, Rounds));
    }
    if (insert.step() != SQLITE_DONE) fail(routine, sqlite3_errmsg(gHOFDatabase_));
}

}  // namespace petal
