#include "records/Statistics.h"

#include <sqlite3.h>

#include <optional>

#include "platform/Host.h"
#include "records/SetAside.h"
#include "records/SqliteStatement.h"
#include "platform/Words.h"

namespace petal {

namespace {

constexpr const char* kColumns = "id, ended, kind, opponent, rounds, score, against, yaku1, yaku2, yaku3, yaku4, "
                                 "yaku5, yaku6, yaku7, yaku8";

constexpr const char* kSchema =
    "CREATE TABLE games (id TEXT PRIMARY KEY, ended TEXT NOT NULL, kind INTEGER NOT NULL, opponent TEXT NOT NULL, "
    "rounds INTEGER NOT NULL, score INTEGER NOT NULL, against INTEGER NOT NULL, yaku1 INTEGER NOT NULL, "
    "yaku2 INTEGER NOT NULL, yaku3 INTEGER NOT NULL, yaku4 INTEGER NOT NULL, yaku5 INTEGER NOT NULL, "
    "yaku6 INTEGER NOT NULL, yaku7 INTEGER NOT NULL, yaku8 INTEGER NOT NULL)";

std::optional<int> pragma(sqlite3* db, const char* name) {
    SqliteStatement query(db, std::string("PRAGMA ") + name);
    if (query.step() != SQLITE_ROW) return std::nullopt;
    return query.integer(0);
}

// Codes that say the file is not a usable record, as against one that cannot be reached now.
bool unusable(int code) {
    const int primary = code & 0xFF;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB || primary == SQLITE_FORMAT ||
           primary == SQLITE_ERROR || primary == SQLITE_MISMATCH;
}

}  // namespace

std::filesystem::path Statistics::path() const { return host_.programFolder() / kFileName; }

void Statistics::close() {
    if (db_) sqlite3_close_v2(db_);
    db_ = nullptr;
}

void Statistics::open() { ensureOpen(); }

bool Statistics::ensureOpen() {
    if (db_) return true;
    std::string reason;
    switch (tryOpen(reason)) {
        case Fault::None:
            return true;
        case Fault::Unreachable:
            tellOnce(said(host_,
                          PETAL_TR("core", "The statistics file \"%1\" cannot be opened: %2.\n\n"
                                           "The game goes on; its results are not recorded."),
                          {path().string(), reason}));
            return false;
        case Fault::Unusable:
            setAsideAndTell(reason);
            return tryOpen(reason) == Fault::None;
    }
    return false;
}

// A missing file is made; a file of ours is checked whole. Views and triggers of a file made
// elsewhere never run.
Statistics::Fault Statistics::tryOpen(std::string& reason) {
    sqlite3* db = nullptr;
    int rc = sqlite3_open_v2(path().c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    const auto fault = [&](Fault kind, std::string why) {
        reason = std::move(why);
        sqlite3_close_v2(db);
        return kind;
    };
    if (rc != SQLITE_OK) return fault(Fault::Unreachable, sqlite3_errstr(rc));
    sqlite3_busy_timeout(db, 1000);
    sqlite3_db_config(db, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_db_config(db, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    rc = sqlite3_exec(db, "PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
    if (rc != SQLITE_OK)
        return fault(unusable(rc) ? Fault::Unusable : Fault::Unreachable, unusable(rc) ? "it is damaged, or no database" : sqlite3_errmsg(db));
    if (sqlite3_db_readonly(db, "main") == 1) return fault(Fault::Unreachable, "it is write-protected");
    const auto app = pragma(db, "application_id"), version = pragma(db, "user_version");
    SqliteStatement tables(db, "SELECT count(*) FROM sqlite_master");
    if (!app || !version || tables.step() != SQLITE_ROW) return fault(Fault::Unusable, "it is damaged");
    if (*app == 0 && tables.integer(0) == 0) {
        const std::string make = std::string("BEGIN IMMEDIATE; ") + kSchema + "; PRAGMA application_id=" +
                                 std::to_string(kApplicationId) + "; PRAGMA user_version=" + std::to_string(kVersion) +
                                 "; COMMIT";
        if (sqlite3_exec(db, make.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
            sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
            return fault(Fault::Unreachable, sqlite3_errmsg(db));
        }
    } else if (*app != kApplicationId) {
        return fault(Fault::Unusable, "it is not a statistics file of Petalgarden");
    } else if (*version > kVersion) {
        return fault(Fault::Unusable, "it was written by a newer version of Petalgarden");
    }
    SqliteStatement check(db, "PRAGMA integrity_check(1)");
    if (check.step() != SQLITE_ROW || check.text(0) != "ok") return fault(Fault::Unusable, "it is damaged");
    SqliteStatement shape(db, std::string("SELECT ") + kColumns + " FROM games LIMIT 0");
    if (!shape.prepared()) return fault(Fault::Unusable, "it is damaged (its table is not as ours)");
    db_ = db;
    return Fault::None;
}

void Statistics::setAsideAndTell(const std::string& reason) {
    std::string failure;
    const std::filesystem::path aside = setAside(path(), failure);
    // A journal left by a crash belongs to the old file, and must not be rolled into the new one.
    std::error_code ec;
    const std::filesystem::path journal = path().string() + "-journal";
    if (!aside.empty() && std::filesystem::exists(journal, ec))
        std::filesystem::rename(journal, aside.string() + "-journal", ec);
    const std::string where = aside.empty() ? said(host_, PETAL_TR("core", "It cannot be moved aside (%1)"), {failure})
                                            : said(host_, PETAL_TR("core", "It is kept as \"%1\""), {aside.string()});
    tellOnce(said(host_, PETAL_TR("core", "The statistics file \"%1\" cannot be used: %2.\n\n%3, and a new record begins."),
                  {path().string(), reason, where}));
}

void Statistics::tellOnce(const std::string& text) {
    if (told_.insert(text).second) host_.msgBox({text, PETAL_TR("core", "Statistics"), MsgIcon::Exclamation, MsgButtons::OK});
}

void Statistics::failed(const std::string& operation, int code) {
    const std::string reason = db_ ? sqlite3_errmsg(db_) : sqlite3_errstr(code);
    if (unusable(code)) {
        close();
        setAsideAndTell(reason);
        return;
    }
    tellOnce(said(host_, PETAL_TR("core", "The statistics file \"%1\" cannot be %2: %3.\n\nThe game goes on."),
                  {path().string(), operation, reason}));
}

void Statistics::record(const GameResult& game) {
    if (!ensureOpen()) return;
    SqliteStatement insert(db_, std::string("INSERT OR IGNORE INTO games (") + kColumns +
                                    ") VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15)");
    if (!insert.prepared()) return failed("written", insert.prepareCode());
    insert.bind(1, game.id);
    insert.bind(2, game.date);
    insert.bind(3, game.kind);
    insert.bind(4, game.opponent);
    insert.bind(5, game.rounds);
    insert.bind(6, game.score);
    insert.bind(7, game.against);
    for (int k = 0; k < 8; ++k) insert.bind(8 + k, game.yaku[k]);
    const int rc = insert.step();
    if (rc != SQLITE_DONE) failed("written", rc);
}

std::vector<GameResult> Statistics::games() {
    std::vector<GameResult> all;
    if (!ensureOpen()) return all;
    SqliteStatement query(db_, std::string("SELECT ") + kColumns + " FROM games ORDER BY rowid");
    int rc = query.prepared() ? SQLITE_ROW : query.prepareCode();
    while (rc == SQLITE_ROW && (rc = query.step()) == SQLITE_ROW) {
        GameResult& g = all.emplace_back();
        g.id = query.text(0);
        g.date = query.text(1);
        g.kind = query.integer(2) == 0 ? 0 : 1;
        g.opponent = query.text(3);
        g.rounds = query.integer(4);
        g.score = query.integer(5);
        g.against = query.integer(6);
        for (int k = 0; k < 8; ++k) g.yaku[k] = query.integer(7 + k);
    }
    if (rc != SQLITE_DONE) {
        failed("read", rc);
        all.clear();
    }
    return all;
}

bool Statistics::reset() {
    if (!ensureOpen()) return false;
    const int rc = sqlite3_exec(db_, "DELETE FROM games", nullptr, nullptr, nullptr);
    if (rc == SQLITE_OK) return true;
    failed("changed", rc);
    return false;
}

}  // namespace petal
