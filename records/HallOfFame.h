#pragma once
// The Hall of Fame: the ten best single games and the ten best tournaments, in HOF.mdb beside
// the executable, kept in SQLite. Open from start-up to shutdown.
#include <filesystem>
#include <functional>
#include <set>
#include <string>

#include "records/HighScoreBar.h"

struct sqlite3;

namespace petal {

class Host;
class SqliteStatement;

class HallOfFame {
public:
    static constexpr const char* kFileName = "HOF.mdb";
    static constexpr int kRows = 10;
    static constexpr std::size_t kNameLength = 20;  // characters, as a person counts them
    // A file locked by another program is waited for this long before the user is asked.
    static constexpr int kLockWaitMs = 3000;

    explicit HallOfFame(Host& host);
    ~HallOfFame();
    HallOfFame(const HallOfFame&) = delete;
    HallOfFame& operator=(const HallOfFame&) = delete;

    void OpenHallOfFame();
    void CloseHallOfFame();
    bool isOpen() const { return gHOFDatabase_ != nullptr; }

    // A failure of these never costs a game: it is told once, and the game goes on without the
    // record (no high score, blank rows, nothing stored). A lock asks Retry or Cancel.
    bool IsHighScore(int GameType, int Score);
    std::string GetHallOfFame(int GameType);
    void AddHallOfFameEntry(const std::string& PlayerName, int Score, int YakuCount, int RoundsWon, int Rounds);

    std::filesystem::path path() const;
    void setLockWait(int ms);

    // A value as it stands in the text of GetHallOfFame, and back: "%", "," and ":" are written
    // as %25, %2C and %3A, so that a name holding them keeps its row and its columns.
    static std::string fieldText(const std::string& value);
    static std::string fieldValue(const std::string& text);

    // An average as the tournament's table stores it: the quotient to one decimal, then to the
    // nearest whole number, an exact half to the even one.
    static int storedAverage(int total, int rounds);

    // One table's statements, kept beside the code that sends them.
    struct TableDef;

private:
    struct Failure;

    void OpenExistingDatabase();
    void EnsureTable(const std::string& TableName);

    // Runs an operation; a failure inside is told (once) or, for a lock, offered again.
    bool guarded(const std::string& operation, const std::function<void()>& body);
    void tellOnce(const std::string& text);
    [[noreturn]] void fail(int code) const;
    sqlite3* database() const;
    void prepared(const SqliteStatement& statement) const;
    void exec(const std::string& sql);
    int rowCount(const TableDef& table);
    int recordCount(const TableDef& table);
    void tellLeftOut();
    void transaction(const std::function<void()>& writes);
    void insertRow(const TableDef& table, const std::string& PlayerName, int Score, int YakuCount, int RoundsWon,
                   int Rounds);

    Host& host_;
    sqlite3* gHOFDatabase_ = nullptr;
    std::string unreachable_;  // why the file could not be opened
    std::string leftOut_;      // rows that the last operation left out, to be told
    std::set<std::string> told_;
    int lockWaitMs_ = kLockWaitMs;
    HighScoreBar bar_;
};

}  // namespace petal
