#include "records/HallOfFame.h"

#include <sqlite3.h>

#include <cstdlib>

#include "records/SqliteStatement.h"
#include "shell/FatalError.h"
#include "shell/Host.h"

namespace petal {

namespace {

struct TableDef {
    const char* name;
    const char* create;
    const char* index;
    const char* order;
};

// The two tables as the program has always made them. SQLite keeps index names in one
// namespace per file, so the two indexes that are both "Score" elsewhere carry the table's
// name here; their columns and order are unchanged.
const TableDef kSingle = {
    "SingleStats",
    "CREATE TABLE [SingleStats] ([PlayerName] TEXT(20),[DateWon] TEXT(10),[Score] INTEGER,[YakuCount] INTEGER)",
    "CREATE INDEX SingleStatsScore On [SingleStats] (Score DESC, DateWon DESC, PlayerName)",
    "Score DESC, DateWon DESC, PlayerName",
};
const TableDef kTournament = {
    "TournamentStats",
    "CREATE TABLE [TournamentStats] ([PlayerName] TEXT(20),[DateWon] TEXT(10),[Score] INTEGER,[YakuCount] "
    "INTEGER,[RoundsWon] INTEGER,[Rounds] INTEGER,[ScoreAverage] INTEGER,[YakuAverage] INTEGER)",
    "CREATE INDEX TournamentStatsScore On [TournamentStats] (ScoreAverage DESC, Score DESC, DateWon Desc, PlayerName)",
    "ScoreAverage DESC, Score DESC, DateWon DESC, PlayerName",
};

const TableDef& tableFor(bool tournament) { return tournament ? kTournament : kSingle; }

// Refusals of the file itself (permissions, another process's lock) rather than of its content.
bool accessDenied(int rc) {
    const int primary = rc & 0xFF;
    return primary == SQLITE_PERM || primary == SQLITE_CANTOPEN || primary == SQLITE_BUSY || primary == SQLITE_LOCKED ||
           primary == SQLITE_READONLY || primary == SQLITE_AUTH;
}

}  // namespace

int storedAverage(int total, int rounds) {
    if (rounds == 0) return 0;
    // Tenths, rounded half away from zero, in integers so that no binary fraction interferes.
    const long long n = 10LL * std::llabs(total), d = std::llabs(rounds);
    const bool negative = (total < 0) != (rounds < 0);
    const long long tenths = (2 * n + d) / (2 * d);
    long long whole = tenths / 10;
    const long long rest = tenths % 10;
    if (rest > 5 || (rest == 5 && whole % 2 == 1)) ++whole;
    return static_cast<int>(negative ? -whole : whole);
}

HallOfFame::HallOfFame(Host& host) : host_(host) {}

HallOfFame::~HallOfFame() { CloseHallOfFame(); }

std::filesystem::path HallOfFame::path() const { return host_.programFolder() / kFileName; }

void HallOfFame::OpenHallOfFame() {
    CloseHallOfFame();
    std::error_code ec;
    if (!std::filesystem::exists(path(), ec)) {
        if (!createDatabase()) return;
    } else {
        OpenExistingDatabase();
    }
    EnsureTable(kSingle.name);
    EnsureTable(kTournament.name);
}

bool HallOfFame::createDatabase() {
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(path().c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    if (rc != SQLITE_OK) {
        sqlite3_close(db);
        return false;
    }
    gHOFDatabase_ = db;
    sqlite3_busy_timeout(db, 2000);
    sqlite3_exec(db, "PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
    return true;
}

void HallOfFame::OpenExistingDatabase() {
    while (!host_.ending()) {
        sqlite3* db = nullptr;
        int rc = sqlite3_open_v2(path().c_str(), &db, SQLITE_OPEN_READWRITE, nullptr);
        // The file is read only at its first statement: a lock or a foreign file shows there.
        if (rc == SQLITE_OK) {
            sqlite3_busy_timeout(db, 2000);
            rc = sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
            if (rc == SQLITE_OK && sqlite3_db_readonly(db, "main") == 1) rc = SQLITE_READONLY;
        }
        if (rc == SQLITE_OK) {
            sqlite3_exec(db, "PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
            gHOFDatabase_ = db;
            return;
        }
        const std::string reason = db ? sqlite3_errmsg(db) : sqlite3_errstr(rc);
        sqlite3_close(db);
        if ((rc & 0xFF) == SQLITE_NOTADB) {
            host_.msgBox({"System Password Error", "Invalid Password", MsgIcon::Exclamation, MsgButtons::OK});
            return;
        }
        if (!accessDenied(rc)) return;
        host_.msgBox({"The Hall of Fame file \"" + path().string() + "\" cannot be opened: " + reason + ".", "Access Denied",
                      MsgIcon::Exclamation, MsgButtons::OK});
    }
}

// A lost table comes back empty; any other failure leaves the table as it is, in silence.
void HallOfFame::EnsureTable(const std::string& TableName) {
    if (!gHOFDatabase_) return;
    SqliteStatement query(gHOFDatabase_, "Select * from [" + TableName + "]");
    if (query.prepared()) return;
    const std::string message = sqlite3_errmsg(gHOFDatabase_);
    if (message.rfind("no such table", 0) != 0) return;
    const TableDef& table = TableName == kTournament.name ? kTournament : kSingle;
    sqlite3_exec(gHOFDatabase_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    if (sqlite3_exec(gHOFDatabase_, table.create, nullptr, nullptr, nullptr) == SQLITE_OK &&
        sqlite3_exec(gHOFDatabase_, table.index, nullptr, nullptr, nullptr) == SQLITE_OK)
        sqlite3_exec(gHOFDatabase_, "COMMIT", nullptr, nullptr, nullptr);
    else
        sqlite3_exec(gHOFDatabase_, "ROLLBACK", nullptr, nullptr, nullptr);
}

void HallOfFame::CloseHallOfFame() {
    if (!gHOFDatabase_) return;
    sqlite3_close_v2(gHOFDatabase_);
    gHOFDatabase_ = nullptr;
}

void HallOfFame::fail(const std::string& operation, const std::string& reason) const {
    throw FatalError("Hall of Fame", "The Hall of Fame file \"" + path().string() + "\" could not be " + operation + ": " +
                                         reason + ".");
}

sqlite3* HallOfFame::database(const std::string& operation) const {
    if (!gHOFDatabase_) fail(operation, "the records are out of reach");
    return gHOFDatabase_;
}

void HallOfFame::exec(const std::string& sql, const std::string& operation) {
    if (sqlite3_exec(database(operation), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(operation, sqlite3_errmsg(gHOFDatabase_));
}

int HallOfFame::rowCount(const std::string& table) {
    SqliteStatement count(database("read"), "SELECT count(*) FROM [" + table + "]");
    if (count.step() != SQLITE_ROW) fail("read", sqlite3_errmsg(gHOFDatabase_));
    return count.integer(0);
}

bool HallOfFame::IsHighScore(int GameType, int Score) {
    const TableDef& table = tableFor(GameType != 0);
    const int rows = rowCount(table.name);
    if (rows < kRows) return true;
    SqliteStatement last(gHOFDatabase_, std::string("SELECT Score FROM [") + table.name + "] ORDER BY " + table.order +
                                            " LIMIT 1 OFFSET " + std::to_string(rows - 1));
    if (last.step() != SQLITE_ROW) fail("read", sqlite3_errmsg(gHOFDatabase_));
    return Score > last.integer(0);
}

std::string HallOfFame::GetHallOfFame(int GameType) {
    const bool tournament = GameType != 0;
    const TableDef& table = tableFor(tournament);
    SqliteStatement rows(database("read"), std::string("SELECT * FROM [") + table.name + "] ORDER BY " + table.order +
                                               " LIMIT " + std::to_string(kRows));
    if (!rows.prepared()) fail("read", sqlite3_errmsg(gHOFDatabase_));
    const int fields = tournament ? 8 : 7;
    std::string text;
    bool pastEnd = false;
    for (int row = 0; row < kRows; ++row) {
        if (!pastEnd) {
            const int rc = rows.step();
            if (rc != SQLITE_ROW && rc != SQLITE_DONE) fail("read", sqlite3_errmsg(gHOFDatabase_));
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
    const bool tournament = Rounds != 0;
    const TableDef& table = tableFor(tournament);
    exec("BEGIN IMMEDIATE", "written");
    {
        SqliteStatement insert(gHOFDatabase_,
                               tournament ? "INSERT INTO [TournamentStats] (PlayerName, DateWon, Score, YakuCount, RoundsWon, "
                                            "Rounds, ScoreAverage, YakuAverage) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)"
                                          : "INSERT INTO [SingleStats] (PlayerName, DateWon, Score, YakuCount) VALUES (?1, ?2, ?3, ?4)");
        insert.bind(1, PlayerName);
        insert.bind(2, host_.dateText());
        insert.bind(3, Score);
        insert.bind(4, YakuCount);
        if (tournament) {
            insert.bind(5, RoundsWon);
            insert.bind(6, Rounds);
            insert.bind(7, storedAverage(Score, Rounds));
            insert.bind(8, storedAverage(YakuCount, Rounds));
        }
        if (insert.step() != SQLITE_DONE) {
            const std::string reason = sqlite3_errmsg(gHOFDatabase_);
            sqlite3_exec(gHOFDatabase_, "ROLLBACK", nullptr, nullptr, nullptr);
            fail("written", reason);
        }
    }
    // The count is exact, so a table holds at ten rows: the last in the order goes.
    if (rowCount(table.name) > kRows)
        exec(std::string("DELETE FROM [") + table.name + "] WHERE rowid = (SELECT rowid FROM [" + table.name + "] ORDER BY " +
                 table.order + " LIMIT 1 OFFSET " + std::to_string(kRows) + ")",
             "written");
    exec("COMMIT", "written");
}

}  // namespace petal
