#pragma once
// Every finished game, in a SQLite file of our own beside the Hall of Fame. It never costs a
// game: a file that is damaged, foreign or of a newer version is told once and set aside, and
// a new record begins; one that cannot be reached (locked, refused) is told once, and the game
// goes on without recording.
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "records/GameResult.h"

struct sqlite3;

namespace petal {

class Host;

class Statistics {
public:
    static constexpr const char* kFileName = "petalgarden-stats.db";
    static constexpr int kVersion = 1;
    // Marks the file as ours in its header ("PGST").
    static constexpr int kApplicationId = 0x50475354;

    explicit Statistics(Host& host) : host_(host) {}
    ~Statistics() { close(); }
    Statistics(const Statistics&) = delete;
    Statistics& operator=(const Statistics&) = delete;

    // Opens the file, making it when missing. Called at start; the other calls open it too.
    void open();
    void close();
    std::filesystem::path path() const;

    // One transaction; a game whose id is already there is not counted again.
    void record(const GameResult& game);
    // The games in the order they ended.
    std::vector<GameResult> games();
    // Forgets every game; false if the file could not be changed (that is told).
    bool reset();

private:
    enum class Fault { None, Unusable, Unreachable };
    Fault tryOpen(std::string& reason);
    bool ensureOpen();
    void setAsideAndTell(const std::string& reason);
    void tellOnce(const std::string& text);
    // A statement that failed: an unusable file is set aside, anything else is told.
    void failed(const std::string& operation, int code);

    Host& host_;
    sqlite3* db_ = nullptr;
    std::set<std::string> told_;
};

}  // namespace petal
