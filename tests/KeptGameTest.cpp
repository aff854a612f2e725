// The files of a kept game at the next start: a save that cannot be resumed, and a statistics
// file that cannot be used, are each told once, set aside, and play goes on; the statistics of
// games played count as the games ended.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>
#include <functional>

#include "GameFixture.h"
#include "Policy.h"
#include "SimPlay.h"
#include "records/FrmHOFWinner.h"
#include "records/SavedGame.h"
#include "records/Statistics.h"
#include "records/StatsFigures.h"
#include "scoring/FrmScoreCard.h"

namespace petal::test {
namespace {

class KeptGame : public ::testing::Test {
protected:
    // The program, keeping its games, started in folder; boxes are kept in told.
    void start(const std::filesystem::path& folder) {
        program.reset();
        told.clear();
        host = std::make_unique<SimHost>(folder);
        host->onMsgBox = [this](const MsgBox& box) {
            told.push_back(box);
            if (box.text == "Do you want to play again?") {
                ended.push_back({program->frmMain.matchEnd.scoreOf(0), program->frmMain.matchEnd.scoreOf(1)});
                return --gamesLeft > 0 ? MsgResult::Yes : MsgResult::No;
            }
            return resume;
        };
        host->onForm = [](Form& form) {
            if (auto* card = dynamic_cast<FrmScoreCard*>(&form)) card->cmdOK_Click();
            else if (auto* winner = dynamic_cast<FrmHOFWinner*>(&form)) winner->cmdCancel_Click();
            else form.Unload(true);
        };
        program = std::make_unique<Program>(*host);
        program->keepGames();
        f = &program->frmMain;
        runHandler(*host, [this] { program->Main(); });
        while (!host->idle()) host->step();
    }
    // The player's moves and the computer's turns, for `moves` moves of the player or until the
    // program ends.
    void play(int moves) {
        sim::Policy policy(true, 7);
        runHandler(*host, [this] { if (f->g.gGameInProgress == 0) f->dealer.imgDeck_Click(); });
        for (int made = 0; made < moves && !host->ending();) {
            bool acted = false;
            runHandler(*host, [&] { acted = sim::localMove(*f, policy); });
            made += acted ? 1 : 0;
            if (!acted && !host->step()) break;
        }
    }
    bool tableEmpty() const { return f->g.gGameInProgress == 0 && !f->ctl.imgTCard[0].hasPicture(); }

    TempDir dir;
    std::unique_ptr<SimHost> host;
    std::unique_ptr<Program> program;
    FrmMain* f = nullptr;
    std::vector<MsgBox> told;
    std::vector<std::pair<int, int>> ended;  // each game's scores, as its end showed them
    MsgResult resume = MsgResult::Yes;
    int gamesLeft = 1;
};

std::string changed(const std::string& bytes, const std::function<void(SavedGame&)>& change) {
    std::string reason;
    SavedGame game = *SavedGame::parse(bytes, reason);
    change(game);
    return game.text();
}

// A save that cannot be resumed, and records made by this build changed as a crash, another
// program or a newer build would: each is told, set aside, and new files keep the next game.
TEST_F(KeptGame, AFileThatCannotBeUsedIsToldSetAsideAndPlayGoesOn) {
    const std::filesystem::path model = dir.path() / "model";
    std::filesystem::create_directory(model);
    start(dir.path());
    play(3);
    const std::string saved = fileText(dir.path() / SavedGame::kFileName);
    ASSERT_NE(saved.find("\nP "), std::string::npos);
    {
        SimHost modelHost(model);
        Statistics stats(modelHost);
        for (int i = 0; i < 300; ++i) stats.record({"game " + std::to_string(i), "11/22/2026", 0, "standard", 1, i, 50});
    }
    const std::string records = fileText(model / Statistics::kFileName);
    const auto withSql = [&model](const char* sql) {
        std::filesystem::copy_file(model / Statistics::kFileName, model / "changed.db",
                                   std::filesystem::copy_options::overwrite_existing);
        sqlite3* db = nullptr;
        sqlite3_open((model / "changed.db").c_str(), &db);
        sqlite3_exec(db, sql, nullptr, nullptr, nullptr);
        sqlite3_close(db);
        return fileText(model / "changed.db");
    };
    const std::string game = SavedGame::kFileName, stats = Statistics::kFileName;
    struct Case {
        const char* name;
        std::string file, bytes;
        const char* reason;
    };
    const Case cases[] = {
        {"damaged", game, std::string(saved).replace(saved.size() / 2, 1, "#"),
         "cannot be resumed: it is damaged (its check does not match)"},
        {"cut short", game, saved.substr(0, saved.size() / 2), "cannot be resumed: it is cut short"},
        {"foreign", game, "0\r\n10\r\n-1\r\n0\r\n", "cannot be resumed: it is not a saved game of Petalgarden"},
        {"newer", game, std::string(saved).replace(saved.find("version 1"), 9, "version 2"),
         "cannot be resumed: it was saved by a newer version of Petalgarden"},
        {"played otherwise", game, changed(saved, [](SavedGame& g) { g.entries[2].check ^= 1; }),
         "cannot be resumed: this version of Petalgarden plays its move 3 otherwise"},
        {"another computer", game, changed(saved, [](SavedGame& g) { g.options.computer = "expert"; }),
         "cannot be resumed: it is a game against a computer (\"expert\") that this version does not have"},
        {"no database", stats, std::string(4096, 'x'), "cannot be used: it is damaged, or no database"},
        {"records cut short", stats, records.substr(0, records.size() / 2), "cannot be used: it is damaged"},
        {"foreign records", stats, withSql("PRAGMA application_id=0; PRAGMA user_version=0"),
         "cannot be used: it is not a statistics file of Petalgarden"},
        {"newer records", stats, withSql("PRAGMA user_version=2"),
         "cannot be used: it was written by a newer version of Petalgarden"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::filesystem::path folder = dir.path() / c.name;
        std::filesystem::create_directory(folder);
        std::ofstream(folder / c.file, std::ios::binary) << c.bytes;
        start(folder);
        ASSERT_FALSE(told.empty());
        EXPECT_EQ(told.back().icon, MsgIcon::Exclamation);
        EXPECT_THAT(told.back().text, HasSubstr((folder / c.file).string() + "\" " + c.reason));
        EXPECT_EQ(fileText(folder / (c.file + ".bad")), c.bytes);
        EXPECT_FALSE(std::filesystem::exists(folder / SavedGame::kFileName));
        EXPECT_TRUE(tableEmpty());
        play(1);
        EXPECT_TRUE(std::filesystem::exists(folder / SavedGame::kFileName)) << "the new game is saved";
        play(100);
        ASSERT_EQ(ended.size(), 1u);
        EXPECT_EQ(f->stats.games().size(), 1u);
        ended.clear();
        gamesLeft = 1;
    }
}

TEST_F(KeptGame, NoToTheQuestionDropsTheSavedGame) {
    start(dir.path());
    play(2);
    resume = MsgResult::No;
    start(dir.path());
    ASSERT_EQ(told.size(), 1u);
    EXPECT_THAT(told[0].text, HasSubstr("Resume your game? You "));
    EXPECT_FALSE(std::filesystem::exists(dir.path() / SavedGame::kFileName));
    EXPECT_TRUE(tableEmpty());
}

// A game against the strong computer is kept and resumes as one against the standard computer
// does (its choices depend on the table alone, so the replay meets them again); its result
// counts against that computer.
TEST_F(KeptGame, AGameAgainstTheStrongComputerResumes) {
    start(dir.path());
    f->options.set(Computer::kOption, "strong");
    play(5);
    start(dir.path());
    ASSERT_EQ(told.size(), 1u) << told.back().text;
    EXPECT_THAT(told[0].text, HasSubstr("Resume your game? You "));
    play(100);
    ASSERT_EQ(ended.size(), 1u);
    EXPECT_EQ(f->stats.games().back().opponent, "strong");
}

}  // namespace
}  // namespace petal::test
