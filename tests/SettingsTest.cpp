// The settings file: its bytes, how it is read, and how its failures end the program.
#include <fstream>
#include <sstream>

#include "GameFixture.h"

namespace petal::test {
namespace {

class Settings : public GameFixture {
protected:
    std::filesystem::path file() const { return dir.path() / "GARDENIA.ini"; }
    void writeFile(const std::string& bytes) { std::ofstream(file(), std::ios::binary) << bytes; }
    std::string readFile() const {
        std::ifstream in(file(), std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }
    // Starts the program as its entry point would, failures ending in a message box.
    void startGuarded() {
        host->onMsgBox = [this](const MsgBox& box) {
            failure = box;
            return MsgResult::OK;
        };
        runHandler(*host, [this] { start(); });
    }
    MsgBox failure;
};

TEST_F(Settings, FirstStartWritesTheFourteenDefaultBytes) {
    start();
    EXPECT_EQ(readFile(), std::string("0\r\n10\r\n-1\r\n0\r\n"));
    EXPECT_EQ(readFile().size(), 14u);
    EXPECT_EQ(program->g.gRounds, 10);
    EXPECT_TRUE(program->g.gUseYaku);
    EXPECT_EQ(f->Caption, "Petalgarden");
    EXPECT_FALSE(std::filesystem::exists(file().string() + ".tmp"));
}

TEST_F(Settings, AStoredNetworkModeIsReadButTheProgramStartsAlone) {
    writeFile("1\r\n5\r\n1\r\n1\r\n");
    start();
    EXPECT_EQ(program->g.gPlayMode, 0);
    EXPECT_EQ(program->g.gGameType, 1);
    EXPECT_EQ(program->g.gRounds, 5);
    EXPECT_TRUE(program->g.gUseYaku);  // the fallback's 1 reads as on
    EXPECT_EQ(f->Caption, "Petalgarden");
    EXPECT_FALSE(f->menu.mnuVChat.Enabled);
    EXPECT_TRUE(f->menu.mnuVScore.Enabled);  // a tournament: the score card can be opened
}

TEST_F(Settings, MissingNumbersReadAsZeroAndOddTokensAsZero) {
    struct Case {
        std::string text;
        std::array<int, 4> values;
    };
    const Case cases[] = {
        {"1\r\n", {1, 0, 0, 0}},
        {"1,20\r\n", {1, 20, 0, 0}},
        {"x\r\n99\r\n0\r\n2\r\n", {0, 99, 0, 2}},
        {"0\n0\n-1\n0\n\n\n", {0, 0, -1, 0}},
        {"0\r\n7abc\r\n5\r\n0", {0, 7, 5, 0}},
    };
    for (const Case& c : cases) EXPECT_EQ(parseSettings(c.text, file()), c.values) << c.text;
}

TEST_F(Settings, WriteSettingsWritesAsGivenAndSetsTheCaptionByPlayMode) {
    start();
    struct Case {
        int mode;
        std::string caption;
    };
    for (const Case& c : {Case{1, "Petalgarden (Server)"}, Case{2, "Petalgarden (Client)"}, Case{7, "Petalgarden (Client)"},
                          Case{0, "Petalgarden"}}) {
        f->settings.WriteSettings(1, 20, 1, c.mode);
        EXPECT_EQ(f->Caption, c.caption);
        EXPECT_EQ(readFile(), "1\r\n20\r\n1\r\n" + std::to_string(c.mode) + "\r\n");
    }
    EXPECT_TRUE(program->g.gUseYaku);
}

TEST_F(Settings, BrokenFilesEndTheProgramWithAMessageNamingTheFile) {
    const std::string cases[] = {"", "\r\n", "0\r\n10\r\n-1\r\n0\r\n5\r\n", "0\r\n99999\r\n"};
    for (const std::string& bytes : cases) {
        TempDir other;
        program.reset();
        host = std::make_unique<SimHost>(other.path());
        std::ofstream(other.path() / "GARDENIA.ini", std::ios::binary) << bytes;
        failure = {};
        startGuarded();
        EXPECT_TRUE(host->ending()) << bytes;
        EXPECT_NE(host->exitStatus(), 0) << "an end after a failure";
        EXPECT_NE(failure.text.find((other.path() / "GARDENIA.ini").string()), std::string::npos) << failure.text;
        EXPECT_EQ(failure.icon, MsgIcon::Exclamation);
    }
}

TEST_F(Settings, AFileThatCannotBeCreatedEndsTheProgramInOrder) {
    // A folder where the temporary file would go makes the creation fail, even for root.
    std::filesystem::create_directory(dir.path() / "GARDENIA.ini.tmp");
    startGuarded();
    EXPECT_TRUE(host->ending());
    EXPECT_NE(failure.text.find("cannot be created"), std::string::npos) << failure.text;
    EXPECT_FALSE(std::filesystem::exists(file()));
}

}  // namespace
}  // namespace petal::test
