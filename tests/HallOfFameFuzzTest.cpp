// The Hall of Fame file under the seeded fuzzer and its kept inputs, and the harness's two
// judges: the snapshot that tells the game's own tables from others, and the check of the pages.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "FileRig.h"
#include "FuzzRuns.h"
#include "HallOfFameTarget.h"
#include "HofPages.h"
#include "HofSnapshot.h"
#include "records/HallOfFame.h"

namespace petal::fuzz {
namespace {

constexpr long kSeededRuns = 3'000;

TEST(HallOfFameFuzz, ASeededRunOfThreeThousandFilesBreaksNoRule) {
    HallOfFameTarget target(fuzzScratch());
    expectSeededRunClean(target, kSeededRuns);
    // Most files read as databases, and most tables are the game's own, so that the rows, the
    // order and the entries are judged, not only the refusals.
    EXPECT_GT(target.databases(), kSeededRuns / 2);
    EXPECT_GT(target.ownTables(), kSeededRuns / 2);
    EXPECT_GT(target.highScores(), kSeededRuns / 2);
    EXPECT_GT(target.given(), kSeededRuns / 3);
}

TEST(HallOfFameFuzz, TheKeptInputsRunClean) {
    EXPECT_GE(expectKeptInputsClean<HallOfFameTarget>("halloffame"), 12);
}

void exec(const std::filesystem::path& file, const char* sql) {
    sqlite3* db = nullptr;
    sqlite3_open(file.c_str(), &db);
    EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql;
    sqlite3_close(db);
}

// A file that the program made is the game's own, its rows in the designed order, a row that
// no game wrote counted apart; with anything on a table that the game does not make, it is not.
TEST(HallOfFameFuzz, TheSnapshotKnowsTheGamesOwnTables) {
    FileRig rig(fuzzScratch());
    const std::filesystem::path file = rig.file(HallOfFame::kFileName);
    {
        SimHost host(rig.folder());
        HallOfFame hof(host);
        hof.OpenHallOfFame();
        host.setDate(2000, 1, 1);
        hof.AddHallOfFameEntry("Zed", 50, 1, 0, 0);
        hof.AddHallOfFameEntry("Amy", 50, 2, 0, 0);
        host.setDate(1999, 12, 31);
        hof.AddHallOfFameEntry("Bea", 50, 3, 0, 0);
        hof.AddHallOfFameEntry("Top", 90, 0, 0, 0);
        hof.AddHallOfFameEntry("Tour", 70, 4, 2, 3);
    }
    const HofSnapshot::Schema schema = HofSnapshot::schemaOf(file);
    ASSERT_EQ(schema.size(), 4u) << "two tables and their indexes";
    HofSnapshot made = HofSnapshot::read(file, schema);
    ASSERT_TRUE(made.database && made.whole && made.tables[0].ours && made.tables[1].ours);
    std::string order;
    for (const HofSnapshot::Row& row : made.tables[0].rows) order += row.name + " ";
    EXPECT_EQ(order, "Top Bea Amy Zed ") << "score down, date text down, name up";
    EXPECT_EQ(made.tables[1].rows[0].numbers, (std::array<long long, 6>{70, 4, 2, 3, 23, 1}));

    exec(file, "INSERT INTO SingleStats VALUES ('Odd', '01/01/2020', 40000, 0)");
    HofSnapshot odd = HofSnapshot::read(file, schema);
    EXPECT_TRUE(odd.tables[0].ours);
    EXPECT_EQ(odd.tables[0].count, 5);
    EXPECT_EQ(odd.tables[0].rows.size(), 4u);
    EXPECT_EQ(odd.tables[0].foreign, 1);

    exec(file, "CREATE TRIGGER Watch AFTER INSERT ON TournamentStats BEGIN SELECT 1; END");
    EXPECT_FALSE(HofSnapshot::read(file, schema).tables[1].ours);
}

// Pages of the single table: rows given as (name, date, score), the rest blank.
HofPages singlePage(std::initializer_list<std::array<const char*, 3>> rows) {
    HofPages pages;
    for (auto& page : pages.pages)
        for (auto& column : page) column.fill(" ");
    int r = 1;
    for (const auto& row : rows) {
        auto& c = pages.pages[0];
        c[0][r] = row[0];
        c[1][r] = row[1];
        c[2][r] = row[2];
        c[3][r] = "0";
        c[4][r] = c[5][r] = c[6][r] = "N/A";
        ++r;
    }
    return pages;
}

TEST(HallOfFameFuzz, ThePagesCheckSeesWhatAPlayerShouldNotSee) {
    const HofSnapshot::Table foreign{true, 2, false, {}};
    struct Case {
        HofPages pages;
        const char* broken;
    };
    const Case cases[] = {
        {singlePage({{"A", "01/01/2020", "10"}, {"B", "01/01/2020", "20"}}), "row 2: a record above its place"},
        {singlePage({{"A", "01/01/2020", "abc"}}), "row 1: a value that is no whole number"},
        {singlePage({{"A", "01/01/2020", "40000"}}), "row 1: a value that is no whole number"},
        {singlePage({{"Twenty-one letters!!!", "01/01/2020", "1"}}), "row 1: a name of 21 characters"},
        {singlePage({{"A", "01/01/20201", "1"}}), "row 1: a date of 11 characters"},
        {singlePage({}), "0 rows of a table of 2, and no word of why"},
    };
    for (const Case& c : cases)
        EXPECT_NE(c.pages.check(0, 1, foreign, false).find(c.broken), std::string::npos) << c.broken;
    EXPECT_EQ(singlePage({}).check(0, 1, foreign, true), "") << "a table that could not be read, and said so";
    EXPECT_EQ(singlePage({{"A", "01/01/2020", "20"}, {"B", "01/01/2020", "20"}}).check(0, 1, foreign, false), "");

    HofSnapshot::Table own{true, 2, true, {{"A", "01/01/2020", {20, 0}}, {"B", "01/01/2020", {10, 0}}}};
    EXPECT_EQ(singlePage({{"A", "01/01/2020", "20"}, {"B", "01/01/2020", "10"}}).check(0, 1, own, false), "");
    EXPECT_NE(
        singlePage({{"A", "01/01/2020", "20"}}).check(0, 1, own, true).find("1 rows of the game's own table of 2"),
        std::string::npos);
    EXPECT_NE(singlePage({{"A", "01/01/2020", "20"}, {"C", "01/01/2020", "10"}})
                  .check(0, 1, own, false)
                  .find("row 2: not the table's record"),
              std::string::npos);
    own.foreign = 1;
    EXPECT_NE(singlePage({{"A", "01/01/2020", "20"}, {"B", "01/01/2020", "10"}}).check(0, 1, own, false).find(
                  "1 rows that are no records left out without a word"),
              std::string::npos);
}

}  // namespace
}  // namespace petal::fuzz
