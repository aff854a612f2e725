// The Hall of Fame store: first start, the ten-row limit, the order of rows, the averages,
// lost tables, foreign files, and a write killed half-way.
#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "GameFixture.h"
#include "records/HallOfFame.h"

namespace petal::test {
namespace {

class HallOfFameTest : public ::testing::Test {
protected:
    HallOfFameTest() : host(dir.path()), hof(host) { hof.OpenHallOfFame(); }

    void addSingles(std::initializer_list<int> scores) {
        int n = 0;
        for (int s : scores) hof.AddHallOfFameEntry("P" + std::to_string(n++), s, 0, 0, 0);
    }
    std::vector<std::string> rows(int type) {
        std::vector<std::string> out;
        std::string text = hof.GetHallOfFame(type);
        for (std::size_t at = 0;;) {
            const std::size_t colon = text.find(':', at);
            out.push_back(text.substr(at, colon - at));
            if (colon == std::string::npos) return out;
            at = colon + 1;
        }
    }
    int sqliteCount(const std::string& table) {
        sqlite3* db = nullptr;
        sqlite3_open(hof.path().c_str(), &db);
        sqlite3_stmt* st = nullptr;
        sqlite3_prepare_v2(db, ("SELECT count(*) FROM " + table).c_str(), -1, &st, nullptr);
        const int n = sqlite3_step(st) == SQLITE_ROW ? sqlite3_column_int(st, 0) : -1;
        sqlite3_finalize(st);
        sqlite3_close(db);
        return n;
    }

    TempDir dir;
    SimHost host;
    HallOfFame hof;
};

TEST_F(HallOfFameTest, AFirstStartMakesTheFileWithTwoEmptyTables) {
    EXPECT_TRUE(std::filesystem::exists(dir.path() / "HOF.mdb"));
    for (int score : {0, -5, 300}) {
        EXPECT_TRUE(hof.IsHighScore(0, score));
        EXPECT_TRUE(hof.IsHighScore(1, score));
    }
    const auto single = rows(0);
    ASSERT_EQ(single.size(), 10u);
    EXPECT_EQ(single[0], " , , , , , , ");
    EXPECT_EQ(rows(1)[9], " , , , , , , , ");
}

TEST_F(HallOfFameTest, NineRowsTakeAnyScoreAndTenRowsOnlyABetterOne) {
    addSingles({90, 80, 70, 60, 55, 50, 48, 45, 42});
    EXPECT_TRUE(hof.IsHighScore(0, 1));
    addSingles({40});
    EXPECT_FALSE(hof.IsHighScore(0, 40)) << "an equal score is no high score";
    EXPECT_TRUE(hof.IsHighScore(0, 41));
    hof.AddHallOfFameEntry("New", 41, 2, 0, 0);
    EXPECT_EQ(sqliteCount("SingleStats"), 10) << "the table holds at ten rows";
    const auto table = rows(0);
    EXPECT_EQ(table[9], "New,11/22/2026,41,2,N/A,N/A,N/A");
    EXPECT_EQ(hof.GetHallOfFame(0).find(",40,"), std::string::npos) << "the old lowest is gone";
}

TEST_F(HallOfFameTest, RowsOrderByScoreThenDateTextThenName) {
    host.setDate(2000, 1, 1);
    hof.AddHallOfFameEntry("Zed", 50, 0, 0, 0);
    host.setDate(1999, 12, 31);
    hof.AddHallOfFameEntry("Bea", 50, 0, 0, 0);
    hof.AddHallOfFameEntry("Amy", 50, 0, 0, 0);
    hof.AddHallOfFameEntry("Top", 60, 0, 0, 0);
    const auto table = rows(0);
    EXPECT_EQ(table[0].substr(0, 4), "Top,");
    EXPECT_EQ(table[1], "Amy,12/31/1999,50,0,N/A,N/A,N/A") << "December's text sorts above January's";
    EXPECT_EQ(table[2].substr(0, 4), "Bea,");
    EXPECT_EQ(table[3].substr(0, 4), "Zed,");
    EXPECT_EQ(table[4], " , , , , , , ");
}

TEST_F(HallOfFameTest, TournamentsStoreAveragesRoundedTwice) {
    struct Case {
        int total, rounds, stored;
    };
    for (const Case& c : {Case{100, 8, 12}, Case{105, 8, 13}, Case{15, 2, 8}, Case{7, 2, 4}, Case{25, 10, 2}, Case{0, 5, 0}})
        EXPECT_EQ(storedAverage(c.total, c.rounds), c.stored) << c.total << "/" << c.rounds;
    hof.AddHallOfFameEntry("Ren", 100, 9, 5, 8);
    EXPECT_EQ(rows(1)[0], "Ren,11/22/2026,100,9,5,8,12,1");
}

TEST_F(HallOfFameTest, TheTournamentTableIsOrderedByAverageButTestedOnScore) {
    for (int i = 0; i < 10; ++i) hof.AddHallOfFameEntry("T" + std::to_string(i), 100 - i, 0, 1, 2);
    // 500 beats the last row's score, so it is a high score; its average of 25 puts it last
    // in the order, and the entry that makes eleven rows removes it again.
    EXPECT_TRUE(hof.IsHighScore(1, 500));
    hof.AddHallOfFameEntry("Long", 500, 0, 10, 20);
    EXPECT_EQ(sqliteCount("TournamentStats"), 10);
    EXPECT_EQ(hof.GetHallOfFame(1).find("Long"), std::string::npos);
    EXPECT_EQ(rows(1)[9].substr(0, 3), "T9,");
    EXPECT_TRUE(hof.IsHighScore(1, 92)) << "compared with the last row's score, 91";
    EXPECT_FALSE(hof.IsHighScore(1, 91));
}

TEST_F(HallOfFameTest, ALostTableComesBackEmptyAndTheOtherKeepsItsRows) {
    addSingles({70, 60});
    hof.AddHallOfFameEntry("Tour", 90, 1, 2, 3);
    hof.CloseHallOfFame();
    sqlite3* db = nullptr;
    sqlite3_open(hof.path().c_str(), &db);
    ASSERT_EQ(sqlite3_exec(db, "DROP TABLE SingleStats", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(db);
    hof.OpenHallOfFame();
    EXPECT_EQ(rows(0)[0], " , , , , , , ");
    EXPECT_EQ(rows(1)[0].substr(0, 5), "Tour,");
}

TEST_F(HallOfFameTest, AFileThatIsNoDatabaseLeavesTheRecordsOutOfReach) {
    hof.CloseHallOfFame();
    std::ofstream(hof.path(), std::ios::binary | std::ios::trunc) << std::string(4096, 'x');
    host.expectMsgBox("System Password Error", "Invalid Password", MsgResult::OK);
    hof.OpenHallOfFame();
    EXPECT_FALSE(hof.isOpen());
    try {
        hof.IsHighScore(0, 10);
        FAIL() << "no error";
    } catch (const FatalError& e) {
        EXPECT_NE(std::string(e.what()).find(hof.path().string()), std::string::npos) << e.what();
    }
    EXPECT_THROW(hof.AddHallOfFameEntry("X", 1, 0, 0, 0), FatalError);
}

TEST_F(HallOfFameTest, ALockedFileIsDeniedAndTriedAgainAfterEachOK) {
    addSingles({70});
    hof.CloseHallOfFame();
    sqlite3* locker = nullptr;
    sqlite3_open(hof.path().c_str(), &locker);
    sqlite3_exec(locker, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    int denied = 0;
    host.onMsgBox = [&](const MsgBox& box) {
        EXPECT_EQ(box.title, "Access Denied");
        if (++denied == 2) {  // the other program lets go while the second box stands
            sqlite3_exec(locker, "COMMIT", nullptr, nullptr, nullptr);
            sqlite3_close(locker);
        }
        return MsgResult::OK;
    };
    hof.OpenHallOfFame();
    EXPECT_EQ(denied, 2);
    EXPECT_TRUE(hof.isOpen());
    EXPECT_EQ(rows(0)[0].substr(0, 3), "P0,");
}

TEST_F(HallOfFameTest, AWriteKilledHalfWayLeavesAReadableFileWithEveryCommittedRow) {
    hof.CloseHallOfFame();
    const pid_t child = fork();
    if (child == 0) {
        SimHost childHost(dir.path());
        HallOfFame writer(childHost);
        writer.OpenHallOfFame();
        for (int i = 0;; ++i) writer.AddHallOfFameEntry("K" + std::to_string(i % 100), i % 500, i % 7, 1, 4);
    }
    ASSERT_GT(child, 0);
    usleep(300'000);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(hof.path().c_str(), &db), SQLITE_OK);
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(db, "PRAGMA integrity_check", -1, &st, nullptr);
    ASSERT_EQ(sqlite3_step(st), SQLITE_ROW);
    EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)), "ok");
    sqlite3_finalize(st);
    sqlite3_close(db);
    hof.OpenHallOfFame();
    const int count = sqliteCount("TournamentStats");
    EXPECT_GE(count, 1);
    EXPECT_LE(count, 10);
    for (const std::string& row : rows(1)) {
        if (row[0] != ' ') {
            EXPECT_EQ(std::count(row.begin(), row.end(), ','), 7) << row;
        }
    }
}

}  // namespace
}  // namespace petal::test
