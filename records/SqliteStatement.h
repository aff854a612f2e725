#pragma once
// One prepared SQLite statement, finalized when it goes out of scope.
#include <sqlite3.h>

#include <string>

namespace petal {

class SqliteStatement {
public:
    SqliteStatement(sqlite3* db, const std::string& sql) : rc_(sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt_, nullptr)) {}
    ~SqliteStatement() { sqlite3_finalize(stmt_); }
    SqliteStatement(const SqliteStatement&) = delete;
    SqliteStatement& operator=(const SqliteStatement&) = delete;

    bool prepared() const { return rc_ == SQLITE_OK && stmt_; }
    int prepareCode() const { return rc_; }
    // SQLITE_ROW while rows come, SQLITE_DONE at the end, an error code otherwise.
    int step() { return stmt_ ? sqlite3_step(stmt_) : rc_; }
    void bind(int index, int value) { sqlite3_bind_int(stmt_, index, value); }
    void bind(int index, const std::string& text) { sqlite3_bind_text(stmt_, index, text.c_str(), static_cast<int>(text.size()), SQLITE_TRANSIENT); }
    int columns() const { return sqlite3_column_count(stmt_); }
    int integer(int column) const { return sqlite3_column_int(stmt_, column); }
    std::string text(int column) const {
        const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, column));
        return t ? std::string(t, static_cast<std::size_t>(sqlite3_column_bytes(stmt_, column))) : std::string();
    }

private:
    sqlite3_stmt* stmt_ = nullptr;
    int rc_;
};

}  // namespace petal
