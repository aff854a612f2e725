#pragma once
// The Hall of Fame: the ten best single games and the ten best tournaments, in HOF.mdb beside
// the executable, kept in SQLite. Open from start-up to shutdown.
#include <filesystem>
#include <functional>
#include <string>

struct sqlite3;

namespace petal {

class Host;
class SqliteStatement;

class HallOfFame {
public:
    static constexpr const char* kFileName = "HOF.mdb";
    static constexpr int kRows = 10;

    explicit HallOfFame(Host& host);
    ~HallOfFame();
    HallOfFame(const HallOfFame&) = delete;
    HallOfFame& operator=(const HallOfFame&) = delete;

    void OpenHallOfFame();
    void CloseHallOfFame();
    bool isOpen() const { return gHOFDatabase_ != nullptr; }

    bool IsHighScore(int GameType, int Score);
    std::string GetHallOfFame(int GameType);
    void AddHallOfFameEntry(const std::string& PlayerName, int Score, int YakuCount, int RoundsWon, int Rounds);

    std::filesystem::path path() const;

    // One table's statements, kept beside the code that sends them.
    struct TableDef;

private:
    void createDatabase();
    void OpenExistingDatabase();
    void EnsureTable(const std::string& TableName);

    // The records out of reach, or a failed statement, end the program in good order.
    [[noreturn]] void fail(const std::string& routine, const std::string& reason) const;
    sqlite3* database(const std::string& routine) const;
    void prepared(const SqliteStatement& statement, const std::string& routine) const;
    void exec(const std::string& sql, const std::string& routine);
    int rowCount(const TableDef& table, const std::string& routine);
    void transaction(const std::string& routine, const std::function<void()>& writes);
    void insertRow(const TableDef& table, const std::string& PlayerName, int Score, int YakuCount, int RoundsWon,
                   int Rounds);

    Host& host_;
    sqlite3* gHOFDatabase_ = nullptr;
};

}  // namespace petal
