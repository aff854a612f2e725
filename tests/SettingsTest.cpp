// The settings file: its bytes, how it is read, and how its failures end the program.
#include <fstream>

#include "GameFixture.h"
#include "shell/FrmSetup.h"

namespace petal::test {
namespace {

class Settings : public GameFixture {
protected:
    void SetUp() override {}  // each test starts the program itself, on the file it wrote
    std::filesystem::path file() const { return dir.path() / "GARDENIA.ini"; }
    void writeFile(const std::string& bytes) { std::ofstream(file(), std::ios::binary) << bytes; }
    std::string readFile() const { return fileText(file()); }
    // A fresh program on this file; the box about unplayable values is answered.
    void restartWith(const std::string& bytes) {
        writeFile(bytes);
        restart([](const MsgBox&) { return MsgResult::OK; });
    }
};

TEST_F(Settings, FirstStartWritesTheFourteenDefaultBytes) {
    start();
    EXPECT_EQ(readFile(), std::string("0\r\n10\r\n-1\r\n0\r\n"));
    EXPECT_EQ(program->g.gRounds, 10);
    EXPECT_TRUE(program->g.gUseYaku);
    EXPECT_EQ(f->Caption, "Petalgarden");
    EXPECT_FALSE(std::filesystem::exists(file().string() + ".tmp"));
}

// A file saved as UTF-16 used to be refused as holding more than four numbers, and a UTF-8
// byte-order mark turned a tournament into a single game; lines that hold no number are marked.
TEST_F(Settings, MissingNumbersReadAsZeroAndByteOrderMarksAreRead) {
    struct Case {
        std::string text;
        std::array<int, 4> values;
        std::string noNumber;
    };
    const auto utf16 = [](bool little, const std::string& ascii) {
        std::string bytes = little ? "\xFF\xFE" : "\xFE\xFF";
        for (const char c : ascii) bytes += little ? std::string{c, '\0'} : std::string{'\0', c};
        return bytes;
    };
    const Case cases[] = {
        {"1,20\r\n", {1, 20, 0, 0}, "----"},
        {"x\r\n99\r\n0\r\n2\r\n", {0, 99, 0, 2}, "x---"},
        {"0\n0\n-1\n0\n\n\n", {0, 0, -1, 0}, "----"},
        {"0\r\n7abc\r\n5\r\n0", {0, 7, 5, 0}, "----"},
        {"1,,-\r\n", {1, 0, 0, 0}, "-xx-"},
        {"\xEF\xBB\xBF" "1\r\n5\r\n-1\r\n0\r\n", {1, 5, -1, 0}, "----"},
        {utf16(true, "1\r\n5\r\n-1\r\n0\r\n"), {1, 5, -1, 0}, "----"},
        {utf16(false, "1\r\n12\r\n0\r\n0\r\n"), {1, 12, 0, 0}, "----"},
    };
    for (const Case& c : cases) {
        const SettingsText read = parseSettings(c.text, file());
        std::string noNumber;
        for (const bool no : read.noNumber) noNumber += no ? 'x' : '-';
        EXPECT_EQ(read.values, c.values) << c.text;
        EXPECT_EQ(noNumber, c.noNumber) << c.text;
    }
}

// A file that cannot be read used to end the program after one OK, at every start, until it was
// mended by hand. Close still ends it so; Restore Defaults keeps the file aside, never over an
// earlier one, and the game goes on with the defaults.
TEST_F(Settings, AFileThatCannotBeReadOffersRestoreDefaultsOrClose) {
    // A file of NUL bytes used to read as 0/0/0 without a word.
    const std::string cases[] = {"", "\r\n", "0\r\n10\r\n-1\r\n0\r\n5\r\n", "0\r\n99999\r\n",
                                 std::string(5000, '1'), std::string(14, '\0')};
    for (const MsgResult answer : {MsgResult::Close, MsgResult::RestoreDefaults}) {
        TempDir other;
        const auto file = other.path() / "GARDENIA.ini";
        for (std::size_t i = 0; i < std::size(cases); ++i) {
            program.reset();
            host = std::make_unique<SimHost>(other.path());
            std::ofstream(file, std::ios::binary) << cases[i];
            std::vector<MsgBox> told;
            host->onMsgBox = [&](const MsgBox& box) {
                told.push_back(box);
                return answer;
            };
            runHandler(*host, [this] { start(); });
            ASSERT_EQ(told.size(), 1u) << cases[i];
            EXPECT_EQ(told[0].buttons, MsgButtons::RestoreDefaultsClose);
            EXPECT_EQ(told[0].icon, MsgIcon::Exclamation);
            EXPECT_THAT(told[0].text, HasSubstr("\"" + file.string() + "\" cannot be read: "));
            EXPECT_EQ(host->ending(), answer == MsgResult::Close);
            if (answer == MsgResult::Close) {
                EXPECT_NE(host->exitStatus(), 0) << "an end after a failure";
                EXPECT_EQ(fileText(file), cases[i]);
                continue;
            }
            const std::string aside = "GARDENIA.ini.bad" + (i ? std::to_string(i + 1) : std::string());
            EXPECT_THAT(told[0].text, HasSubstr("Restore Defaults keeps it as \"" + aside + "\""));
            EXPECT_EQ(fileText(other.path() / aside), cases[i]);
            EXPECT_EQ(fileText(file), "0\r\n10\r\n-1\r\n0\r\n");
            EXPECT_EQ(program->g.gRounds, 10);
        }
    }
}

// A folder in the file's place used to be reported as "cannot be replaced: Success.".
TEST_F(Settings, AFolderInTheFilesPlaceIsToldWithTheRealReason) {
    std::filesystem::create_directory(file());
    host->onMsgBox = [](const MsgBox&) { return MsgResult::OK; };
    runHandler(*host, [this] { start(); });  // as the entry point starts it, a failure ending in a box
    EXPECT_TRUE(host->ending());
    EXPECT_THAT(host->shownBoxes().at(0).text, HasSubstr("\"" + file().string() + "\" cannot be written: Is a directory."));
    EXPECT_FALSE(std::filesystem::exists(file().string() + ".tmp"));
}

// The atomic write replaced whatever stood at the name; a read-only file is now refused and
// stays as it is, a link is written through, and a file keeps its permissions.
TEST_F(Settings, TheWriteRespectsReadOnlyFilesLinksAndPermissions) {
    using std::filesystem::perms;
    start();
    writeFile("1\r\n5\r\n-1\r\n0\r\n");
    std::filesystem::permissions(file(), perms::owner_read | perms::group_read);
    try {
        f->settings.WriteSettings(0, 10, -1, 0);
        ADD_FAILURE() << "a read-only file was written";
    } catch (const FatalError& e) {
        EXPECT_THAT(std::string(e.what()), HasSubstr("cannot be written: Permission denied."));
    }
    EXPECT_EQ(readFile(), "1\r\n5\r\n-1\r\n0\r\n");
    EXPECT_EQ(std::filesystem::status(file()).permissions(), perms::owner_read | perms::group_read);

    std::filesystem::permissions(file(), perms::owner_read | perms::owner_write | perms::group_read);
    f->settings.WriteSettings(0, 12, -1, 0);
    EXPECT_EQ(std::filesystem::status(file()).permissions(), perms::owner_read | perms::owner_write | perms::group_read);

    std::filesystem::create_directory(dir.path() / "kept");
    std::filesystem::rename(file(), dir.path() / "kept" / "real.ini");
    std::filesystem::create_symlink("kept/real.ini", file());
    f->settings.WriteSettings(1, 20, 0, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(file()));
    EXPECT_EQ(readFile(), "1\r\n20\r\n0\r\n0\r\n");
}

// Where the game cannot play with a value, its default stands in, the player is told once
// which line held what, and the file keeps its lines; playable odd values stay as they are.
TEST_F(Settings, UnplayableValuesTakeTheirDefaultAndAreTold) {
    struct Case {
        std::string text;
        int gameType, rounds;
        bool yaku;
        std::vector<std::string> told;
    };
    const Case cases[] = {
        {"0\r\n0\r\n-1\r\n0\r\n", 0, 0, true, {}},
        {"1\r\n1\r\n-1\r\n0\r\n", 1, 1, true, {}},
        {"1\r\n5\r\n1\r\n1\r\n", 1, 5, true, {}},  // a yaku flag of 1 is on; a stored network mode is no fault
        {"7\r\n5\r\n-1\r\n0\r\n", 0, 5, true, {"line 1, the game type, holds 7"}},
        {"1\r\n0\r\n-1\r\n0\r\n", 1, 10, true, {"line 2, the rounds, holds 0"}},
        {"-1\r\n-2\r\n0\r\n0\r\n", 0, 10, false, {"line 1, the game type, holds -1", "line 2, the rounds, holds -2"}},
        // Lines that hold no number used to read as 0 without a word: a yaku flag of "x" as off.
        {"?\r\n3\r\n-1\r\n0\r\n", 0, 3, true, {"line 1, the game type, holds no number: a single game (0)"}},
        {"1\r\n8\r\nx\r\n0\r\n", 1, 8, true, {"line 3, the yaku flag, holds no number: yaku count (-1)"}},
    };
    for (const Case& c : cases) {
        restartWith(c.text);
        EXPECT_EQ(program->g.gGameType, c.gameType) << c.text;
        EXPECT_EQ(program->g.gRounds, c.rounds) << c.text;
        EXPECT_EQ(program->g.gUseYaku, c.yaku) << c.text;
        ASSERT_EQ(host->shownBoxes().size(), c.told.empty() ? 0u : 1u) << c.text;
        for (const std::string& line : c.told) {
            EXPECT_THAT(host->shownBoxes()[0].text, HasSubstr(line));
            EXPECT_THAT(host->shownBoxes()[0].text, HasSubstr(file().string()));
        }
        EXPECT_EQ(readFile(), c.text) << "rewritten only by the setup dialog";
    }
}

// The setup dialog, the one place to repair the file, used to end the program on a game type
// of 7; a tournament of 0 rounds ended at its first round.
TEST_F(Settings, AFileWithUnplayableValuesCanBePlayedAndRepairedInSetup) {
    restartWith("1\r\n0\r\n-1\r\n0\r\n");
    host->onForm = [](Form& form) { form.Unload(); };  // the score card
    f->dealer.imgDeck_Click();
    f->EndMatch();
    EXPECT_FALSE(host->ending());
    EXPECT_EQ(f->m.mRoundNo, 1);

    restartWith("7\r\n5\r\n-1\r\n0\r\n");
    host->onForm = [](Form& form) { dynamic_cast<FrmSetup&>(form).cmdOK_Click(); };
    runHandler(*host, [this] { f->mnuSetup_Click(); });
    EXPECT_FALSE(host->ending());
    EXPECT_EQ(readFile(), "0\r\n5\r\n-1\r\n0\r\n");
}

// Our own options beside the settings file: lines it cannot use keep their defaults, keys of a
// newer build survive a write, and a file that cannot be read is told without ending the game.
TEST_F(Settings, OwnOptionsKeepWhatTheyDoNotKnowAndNeverEndTheGame) {
    const auto options = dir.path() / OwnOptions::kFileName;
    std::ofstream(options, std::ios::binary) << "sound=off\nnonsense\n=x\nfuture-key = 3 \nsound=on\r\nsound2=maybe\n";
    std::vector<MsgBox> told;
    host->onMsgBox = [&](const MsgBox& box) { told.push_back(box); return MsgResult::OK; };
    start();
    EXPECT_TRUE(told.empty());
    EXPECT_TRUE(f->options.flag("sound", false));
    EXPECT_FALSE(f->options.flag("sound2", false));
    EXPECT_EQ(f->options.set("animations", "off\nsound=off"), "");
    EXPECT_EQ(fileText(options), "sound=on\nfuture-key=3\nsound2=maybe\nanimations=off sound=off\n");

    std::filesystem::remove(options);
    std::filesystem::create_directory(options);
    restart([&](const MsgBox& box) { told.push_back(box); return MsgResult::OK; });
    ASSERT_EQ(told.size(), 1u);
    EXPECT_THAT(told[0].text, HasSubstr("cannot be read"));
    EXPECT_FALSE(host->ending());
    EXPECT_THAT(f->options.setFlag("sound", false), HasSubstr("cannot be written"));
}

}  // namespace
}  // namespace petal::test
