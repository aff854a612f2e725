#pragma once
// The Hall of Fame: the ten best single games and the ten best tournaments, in HOF.mdb beside
// the executable, kept in SQLite. Open from start-up to shutdown.
#include <filesystem>
#include <string>

struct sqlite3;

namespace petal {

class Host;

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

private:
    void OpenExistingDatabase();
    void EnsureTable(const std::string& TableName);
    bool createDatabase();
    // The records out of reach, or a failed statement, end the program in good order.
    [[noreturn]] void fail(const std::string& operation, const std::string& reason) const;
    sqlite3* database(const std::string& operation) const;
    int rowCount(const std::string& table);
    void exec(const std::string& sql, const std::string& operation);

    Host& host_;
    sqlite3* gHOFDatabase_ = nullptr;
};

// An average as the table stores it: the quotient written with one decimal (half away from
// zero), then taken to the nearest integer with an exact half going to the even neighbour.
int storedAverage(int total, int rounds);

}  // namespace petal
