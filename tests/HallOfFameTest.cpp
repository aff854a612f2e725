// The Hall of Fame store: first start, the ten-row limit, the order of rows, the averages,
// lost tables, files made elsewhere and locked files.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <optional>

#include "GameFixture.h"
#include "records/HallOfFame.h"

namespace petal::test {
namespace {

class HallOfFameTest : public ::testing::Test {
protected:
    HallOfFameTest() : host(dir.path()), hof(host) { hof.OpenHallOfFame(); }

    std::vector<std::string> rows(int type) {
        std::vector<std::string> out;
        const std::string text = hof.GetHallOfFame(type);
        for (std::size_t at = 0;;) {
            const std::size_t colon = text.find(':', at);
            out.push_back(text.substr(at, colon - at));
            if (colon == std::string::npos) return out;
            at = colon + 1;
        }
    }
    // Runs statements that must succeed through a connection of the test's own; the first
    // column of the first row, if there is one.
    std::string sql(const std::string& statements) {
        sqlite3* db = nullptr;
        sqlite3_open(hof.path().c_str(), &db);
        std::optional<std::string> first;
        const auto keep = [](void* out, int, char** values, char**) {
            auto& kept = *static_cast<std::optional<std::string>*>(out);
            if (!kept) kept = values[0] ? values[0] : "";
            return 0;
        };
        EXPECT_EQ(sqlite3_exec(db, statements.c_str(), keep, &first, nullptr), SQLITE_OK) << statements;
        sqlite3_close(db);
        return first.value_or("<none>");
    }
    // Every box from here on is kept in `told` and answered so.
    void keepBoxes() {
        host.onMsgBox = [this](const MsgBox& box) {
            told.push_back(box);
            return MsgResult::OK;
        };
    }

    TempDir dir;
    SimHost host;
    HallOfFame hof;
    std::vector<MsgBox> told;
};

const std::string kBlankSingle = " , , , , , , ";

// A first start makes the file with two empty tables, which take any score; nine rows still do,
// ten only a better one. The answer is kept between won deals, but never past a change by
// another program: an update that leaves the file's size alone, a row deleted, a row added.
TEST_F(HallOfFameTest, NineRowsTakeAnyScoreAndTenRowsOnlyABetterOneAsTheFileNowHoldsThem) {
    EXPECT_TRUE(std::filesystem::exists(dir.path() / "HOF.mdb"));
    for (int type : {0, 1})
        for (int score : {0, -5}) EXPECT_TRUE(hof.IsHighScore(type, score)) << type << " " << score;
    EXPECT_EQ(sql("SELECT name FROM sqlite_master WHERE tbl_name = 'SingleStats' AND type = 'index'"), "Score");
    for (int score : {90, 80, 70, 60, 55, 50, 48, 45, 42}) hof.AddHallOfFameEntry("Old", score, 0, 0, 0);
    EXPECT_TRUE(hof.IsHighScore(0, 1));
    hof.AddHallOfFameEntry("Low", 40, 0, 0, 0);
    EXPECT_FALSE(hof.IsHighScore(0, 40)) << "an equal score is no high score";
    EXPECT_TRUE(hof.IsHighScore(0, 41));
    hof.AddHallOfFameEntry("New", 41, 2, 0, 0);
    EXPECT_EQ(sql("SELECT count(*) FROM SingleStats"), "10");
    EXPECT_EQ(rows(0)[9], "New,11/22/2026,41,2,N/A,N/A,N/A");
    EXPECT_EQ(hof.GetHallOfFame(0).find("Low"), std::string::npos) << "the old lowest is gone";
    EXPECT_FALSE(hof.IsHighScore(0, 30));
    sql("UPDATE SingleStats SET Score = 20 WHERE Score = 41");
    EXPECT_TRUE(hof.IsHighScore(0, 30)) << "the lowest score is now 20";
    EXPECT_FALSE(hof.IsHighScore(0, 20));
    sql("DELETE FROM SingleStats WHERE Score = 20");
    EXPECT_TRUE(hof.IsHighScore(0, 1)) << "nine rows take any score";
    sql("INSERT INTO SingleStats (PlayerName, DateWon, Score, YakuCount) VALUES ('Tenth', '11/22/2026', 35, 0)");
    EXPECT_FALSE(hof.IsHighScore(0, 35));
}

TEST_F(HallOfFameTest, EqualScoresOrderByDateTextThenNameAndBlanksFollow) {
    host.setDate(2000, 1, 1);
    hof.AddHallOfFameEntry("Zed", 50, 0, 0, 0);
    host.setDate(1999, 12, 31);
    hof.AddHallOfFameEntry("Bea", 50, 0, 0, 0);
    hof.AddHallOfFameEntry("Amy", 50, 0, 0, 0);
    const auto table = rows(0);
    EXPECT_EQ(table[0], "Amy,12/31/1999,50,0,N/A,N/A,N/A") << "December's text sorts above January's";
    EXPECT_EQ(table[1].substr(0, 4), "Bea,");
    EXPECT_EQ(table[2].substr(0, 4), "Zed,");
    for (std::size_t r = 3; r < table.size(); ++r) EXPECT_EQ(table[r], kBlankSingle);
}

// A file made elsewhere may hold more than ten rows: the entry takes the last of the order
// away, not whichever row stands eleventh.
TEST_F(HallOfFameTest, TheTrimOfALongTableRemovesItsLastRow) {
    hof.CloseHallOfFame();
    sql("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 12) "
         "INSERT INTO SingleStats SELECT 'S' || (i * 10), '01/01/2020', i * 10, 0 FROM n");
    hof.OpenHallOfFame();
    ASSERT_EQ(sql("SELECT count(*) FROM SingleStats"), "12");
    hof.AddHallOfFameEntry("New", 125, 0, 0, 0);
    EXPECT_EQ(sql("SELECT count(*) FROM SingleStats"), "12") << "one row goes, no more";
    EXPECT_EQ(sql("SELECT min(Score) FROM SingleStats"), "20") << "the lowest score went";
    EXPECT_EQ(sql("SELECT count(*) FROM SingleStats WHERE Score = 20"), "1") << "the eleventh stays";
}

TEST_F(HallOfFameTest, TournamentAveragesAreRoundedToOneDecimalThenToEven) {
    struct Case {
        int total, rounds;
        const char* stored;
    };
    const Case cases[] = {{100, 8, "12"}, {105, 8, "13"}, {15, 2, "8"}, {25, 10, "2"}, {29, 20, "2"}, {0, 5, "0"}};
    for (const Case& c : cases) {
        const std::string name = "R" + std::to_string(c.total) + "/" + std::to_string(c.rounds);
        hof.AddHallOfFameEntry(name, c.total, c.total, 1, c.rounds);
        EXPECT_EQ(sql("SELECT ScoreAverage || ',' || YakuAverage FROM TournamentStats WHERE PlayerName = '" + name + "'"),
                  std::string(c.stored) + "," + c.stored)
            << name;
    }
    EXPECT_EQ(rows(1)[0], "R105/8,11/22/2026,105,105,1,8,13,13") << "the highest average leads";
}

TEST_F(HallOfFameTest, TheTournamentTableIsOrderedByAverageButTestedOnScore) {
    for (int i = 0; i < 10; ++i) hof.AddHallOfFameEntry("T" + std::to_string(i), 100 - i, 0, 1, 2);
    // 500 beats the last row's score, so it is a high score; its average of 25 puts it last
    // in the order, and the entry that makes eleven rows removes it again.
    EXPECT_TRUE(hof.IsHighScore(1, 500));
    hof.AddHallOfFameEntry("Long", 500, 0, 10, 20);
    EXPECT_EQ(sql("SELECT count(*) FROM TournamentStats"), "10");
    EXPECT_EQ(hof.GetHallOfFame(1).find("Long"), std::string::npos);
    EXPECT_TRUE(hof.IsHighScore(1, 92)) << "compared with the last row's score, 91";
    EXPECT_FALSE(hof.IsHighScore(1, 91));
}

TEST_F(HallOfFameTest, ALostTableComesBackEmptyAndTheOtherKeepsItsRows) {
    for (int lost : {0, 1}) {
        hof.AddHallOfFameEntry("Solo", 70, 0, 0, 0);
        hof.AddHallOfFameEntry("Tour", 90, 1, 2, 3);
        hof.CloseHallOfFame();
        sql(lost ? "DROP TABLE TournamentStats" : "DROP TABLE SingleStats");
        ASSERT_EQ(sql("SELECT count(*) FROM sqlite_master WHERE type = 'table'"), "1");
        hof.OpenHallOfFame();
        EXPECT_EQ(rows(lost)[0].substr(0, 2), " ,") << lost;
        EXPECT_EQ(rows(1 - lost)[0].substr(0, 5), lost ? "Solo," : "Tour,") << lost;
        EXPECT_EQ(sql("SELECT count(*) FROM sqlite_master WHERE type = 'index'"), "2") << "the index came back too";
    }
}

// A file made elsewhere may keep the columns in another order, or more of them: each value
// used to show under the heading of its position, a date as the name and an extra column's
// value where a single game has "N/A".
TEST_F(HallOfFameTest, ColumnsInAnotherOrderOrMoreOfThemShowUnderTheirHeadings) {
    hof.CloseHallOfFame();
    sql("DROP TABLE SingleStats");
    sql("CREATE TABLE SingleStats (Note TEXT, Score INTEGER, DateWon TEXT(10), YakuCount INTEGER, "
          "PlayerName TEXT(20))");
    sql("INSERT INTO SingleStats VALUES ('extra', 60, '03/04/2025', 2, 'Ren')");
    hof.OpenHallOfFame();
    EXPECT_EQ(rows(0)[0], "Ren,03/04/2025,60,2,N/A,N/A,N/A");
    EXPECT_TRUE(hof.IsHighScore(0, 1));
    hof.AddHallOfFameEntry("Ko", 70, 1, 0, 0);
    EXPECT_EQ(rows(0)[0], "Ko,11/22/2026,70,1,N/A,N/A,N/A");
}

// Values that the game never writes (text or nothing where a number belongs, a fraction, a
// number beyond 16 bits, a name or a date too long or not well-formed) used to show as they
// stood, sort above every score, and compare as their low 32 bits; later one such row hid its
// whole table. Such a row is left out of every operation and told once; the other rows are
// shown, tested and trimmed as ever, and the file keeps the row as it is.
TEST_F(HallOfFameTest, RowsThatNoGameWroteAreLeftOutToldAndKept) {
    struct Case {
        const char* values;
        const char* told;
    };
    const Case cases[] = {
        {"'Ann', '01/02/2025', 'abc', 1", "its Score is no whole number of 16 bits"},
        {"'Ann', '01/02/2025', 2147483647, 1", "its Score is"},
        {"'Ann', '01/02/2025', 60, X'01'", "its YakuCount is"},
        {"'Twenty-one letters!!!', '01/02/2025', 60, 1", "its PlayerName is no text of at most 20 characters"},
        {"CAST(X'41FF' AS TEXT), '01/02/2025', 60, 1", "its PlayerName is"},
        {"'Ann', '01/02/20251', 60, 1", "its DateWon is no text of at most 10 characters"},
    };
    hof.CloseHallOfFame();
    for (const Case& c : cases) {
        std::string rows = std::string("DELETE FROM SingleStats; INSERT INTO SingleStats VALUES (") + c.values + ")";
        for (int score = 10; score <= 100; score += 10)
            rows += ", ('Kept', '01/01/2020', " + std::to_string(score) + ", 0)";
        sql(rows);
        HallOfFame records(host);  // a program of its own, which has told nothing yet
        records.OpenHallOfFame();
        told.clear();
        keepBoxes();
        EXPECT_EQ(records.GetHallOfFame(0).substr(0, 34), "Kept,01/01/2020,100,0,N/A,N/A,N/A:") << c.values;
        EXPECT_FALSE(records.IsHighScore(0, 10)) << "ten records, the lowest 10: " << c.values;
        records.AddHallOfFameEntry("New", 500, 0, 0, 0);
        EXPECT_EQ(records.GetHallOfFame(0).substr(0, 4), "New,");
        ASSERT_EQ(told.size(), 1u) << c.values;
        EXPECT_THAT(told[0].text, HasSubstr("\"" + hof.path().string() + "\" holds 1 row of SingleStats that no game "
                                            "could have written (" + c.told));
        EXPECT_EQ(sql("SELECT count(*) || '/' || count(*) FILTER (WHERE Score = 10) FROM SingleStats"), "11/0")
            << "the new record in, the lowest record out, the foreign row kept: " << c.values;
    }
}

// A file that cannot be used was told as a password error, or only at F7, or by the header line
// of the integrity check. It is told at the opening, once, as what it is, with the store's
// reason; the game goes on without the records (no high score, blank rows, nothing stored) and
// leaves the file as it is.
TEST_F(HallOfFameTest, AFileThatCannotBeUsedIsToldOnceAtTheOpeningWithTheStoresReason) {
    struct Case {
        std::function<void()> spoil;
        std::string reason;
    };
    const auto patch = [this](std::streamoff at, const std::string& bytes) {
        std::fstream file(hof.path(), std::ios::binary | std::ios::in | std::ios::out);
        file.seekp(at);
        file << bytes;
    };
    const Case cases[] = {
        {[&] { std::ofstream(hof.path(), std::ios::binary | std::ios::trunc) << std::string(4096, 'x'); },
         "file is not a database"},
        // An index that no longer matches its table used to order the page by itself.
        {[&] { sql("PRAGMA writable_schema = ON; UPDATE sqlite_master SET sql = replace(sql, 'Score DESC', "
                    "'Score ASC') WHERE name = 'Score'"); },
         "the file is damaged (row 1 missing from index Score)"},
        {[&] { patch((std::stoi(sql("SELECT rootpage FROM sqlite_master WHERE name = 'Filler'")) - 1) * 4096 + 12,
                     std::string(64, 'U')); },
         "the file is damaged (On tree page "},
        // It used to be taken for a write-protected file: "Access Denied", Retry for ever.
        {[&] { patch(18, "\x03"); }, "it is of a newer format, which this program may read but not write"},
    };
    for (const Case& c : cases) {
        hof.CloseHallOfFame();
        std::filesystem::remove(hof.path());
        hof.OpenHallOfFame();
        for (int score : {10, 30, 20}) hof.AddHallOfFameEntry("N" + std::to_string(score), score, 0, 0, 0);
        hof.CloseHallOfFame();
        sql("CREATE TABLE Filler (x); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 900) "
             "INSERT INTO Filler SELECT 'filler ' || i FROM n");
        c.spoil();
        const std::string before = fileText(hof.path());
        told.clear();
        keepBoxes();
        HallOfFame records(host);
        records.OpenHallOfFame();
        ASSERT_EQ(told.size(), 1u) << c.reason;
        EXPECT_EQ(told[0].title, "Hall of Fame");
        EXPECT_THAT(told[0].text, HasSubstr("\"" + hof.path().string() + "\" cannot be opened: " + c.reason));
        EXPECT_THAT(told[0].text, Not(HasSubstr("***")));
        EXPECT_FALSE(records.IsHighScore(0, 500));
        EXPECT_EQ(records.GetHallOfFame(0).substr(0, 13), kBlankSingle);
        records.AddHallOfFameEntry("New", 500, 0, 0, 0);
        EXPECT_EQ(told.size(), 1u) << "told once, not at every game";
        EXPECT_EQ(fileText(hof.path()), before) << c.reason;
    }
}

// The file refused or held by another program asks Retry or Cancel, never OK for ever: Retry
// opens it once the other program lets go, Cancel plays on without records.
TEST_F(HallOfFameTest, ALockedFileOffersRetryAndCancel) {
    hof.AddHallOfFameEntry("Kept", 70, 0, 0, 0);
    for (const MsgResult last : {MsgResult::Retry, MsgResult::Cancel}) {
        hof.CloseHallOfFame();
        hof.setLockWait(20);
        sqlite3* locker = nullptr;
        sqlite3_open(hof.path().c_str(), &locker);
        ASSERT_EQ(sqlite3_exec(locker, "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE", nullptr, nullptr, nullptr),
                  SQLITE_OK);
        int denied = 0;
        host.onMsgBox = [&](const MsgBox& box) {
            EXPECT_EQ(box.title, "Access Denied");
            EXPECT_EQ(box.buttons, MsgButtons::RetryCancel);
            EXPECT_THAT(box.text, HasSubstr(hof.path().string()));
            if (++denied == 1) return MsgResult::Retry;
            sqlite3_close(locker);  // the other program lets go while the second box stands
            locker = nullptr;
            return last;
        };
        hof.OpenHallOfFame();
        EXPECT_EQ(denied, 2);
        EXPECT_EQ(hof.isOpen(), last == MsgResult::Retry);
    }
}

// A lock taken while the player types a name is waited for, then offered again: the name is
// not lost at the first lock.
TEST_F(HallOfFameTest, AnEntryMeetingALockIsStoredOnRetry) {
    hof.setLockWait(20);
    sqlite3* locker = nullptr;
    sqlite3_open(hof.path().c_str(), &locker);
    ASSERT_EQ(sqlite3_exec(locker, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    int asked = 0;
    host.onMsgBox = [&](const MsgBox& box) {
        EXPECT_EQ(box.buttons, MsgButtons::RetryCancel);
        EXPECT_THAT(box.text, HasSubstr("database is locked"));
        if (++asked == 2) sqlite3_exec(locker, "COMMIT", nullptr, nullptr, nullptr);
        return MsgResult::Retry;
    };
    hof.AddHallOfFameEntry("Patient", 80, 0, 0, 0);
    sqlite3_close(locker);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(rows(0)[0].substr(0, 8), "Patient,");
}

// A view in a table's place that never ends its rows used to hang the program at its start; a
// trigger of a file made elsewhere could wipe the table at an entry. Neither runs: the view is
// told as unreadable, the trigger is left as it is.
TEST_F(HallOfFameTest, ViewsAndTriggersOfAFileMadeElsewhereDoNotRun) {
    hof.AddHallOfFameEntry("Kept", 70, 0, 0, 0);
    hof.CloseHallOfFame();
    sql("DROP TABLE TournamentStats");
    sql("CREATE VIEW TournamentStats (PlayerName, DateWon, Score, YakuCount, RoundsWon, Rounds, ScoreAverage, "
          "YakuAverage) AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT 'R' || i, "
          "'01/01/2020', i, 0, 1, 2, i, 0 FROM n");
    sql("CREATE TRIGGER Wipe AFTER INSERT ON SingleStats BEGIN DELETE FROM SingleStats; END");
    keepBoxes();
    hof.OpenHallOfFame();
    EXPECT_EQ(rows(1)[0], " , , , , , , , ");
    EXPECT_FALSE(hof.IsHighScore(1, 500));
    hof.AddHallOfFameEntry("New", 90, 0, 0, 0);
    EXPECT_EQ(sql("SELECT group_concat(PlayerName, ' ') FROM (SELECT PlayerName FROM SingleStats ORDER BY Score)"),
              "Kept New");
    ASSERT_EQ(told.size(), 2u);
    EXPECT_THAT(told[0].text, HasSubstr("cannot be read: its TournamentStats is a view, not a table."));
}

}  // namespace
}  // namespace petal::test
