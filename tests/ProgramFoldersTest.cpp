// Where a run keeps GARDENIA.ini and HOF.mdb: beside the program when that folder is its own
// and writable, else in the user's data folder, made at the first start.
#include <gtest/gtest.h>

#include "GameFixture.h"
#include "platform/qt/ProgramFolders.h"

namespace petal::test {
namespace {

namespace fs = std::filesystem;

class Folders : public ::testing::Test {
protected:
    FolderEnvironment env(bool writable, std::string xdg = {}) const {
        return {std::move(xdg), (dir.path() / "home").string(), [writable](const fs::path&) { return writable; }};
    }
    TempDir dir;
};

TEST_F(Folders, ARunFromItsOwnWritableFolderKeepsEverythingThere) {
    const fs::path unpacked = dir.path() / "petalgarden-1.0.0";
    fs::create_directories(unpacked);
    const ProgramFolders folders = chooseProgramFolders(unpacked, env(true, (dir.path() / "data").string()));
    EXPECT_EQ(folders.files, unpacked);
    EXPECT_EQ(folders.help, unpacked);
    EXPECT_FALSE(fs::exists(dir.path() / "data")) << "nothing is made in the user's folders";
}

TEST_F(Folders, AnUnwritableFolderSendsTheFilesToTheUsersDataFolderMadeAtFirstStart) {
    const fs::path program = dir.path() / "opt";
    fs::create_directories(program);
    const fs::path xdg = dir.path() / "xdg" / "data";  // neither it nor its parent exists yet
    const ProgramFolders folders = chooseProgramFolders(program, env(false, xdg.string()));
    EXPECT_EQ(folders.files, xdg / "petalgarden");
    EXPECT_TRUE(fs::is_directory(folders.files));
    EXPECT_EQ(folders.help, program);
}

TEST_F(Folders, WithoutAnAbsoluteXdgDataHomeTheDataFolderIsUnderHome) {
    const fs::path program = dir.path() / "opt";
    for (const std::string xdg : {"", "relative/data"}) {
        const ProgramFolders folders = chooseProgramFolders(program, env(false, xdg));
        EXPECT_EQ(folders.files, dir.path() / "home" / ".local" / "share" / "petalgarden") << "XDG_DATA_HOME=" << xdg;
    }
}

TEST_F(Folders, AnInstalledCopyReadsItsHelpFromShareAndKeepsItsFilesWithTheUser) {
    const fs::path prefix = dir.path() / "usr";
    fs::create_directories(prefix / "bin");
    fs::create_directories(prefix / "share" / "petalgarden");
    // Even where the user could write into bin (root, or a prefix of one's own).
    const ProgramFolders folders = chooseProgramFolders(prefix / "bin", env(true, (dir.path() / "data").string()));
    EXPECT_EQ(folders.help, prefix / "share" / "petalgarden");
    EXPECT_EQ(folders.files, dir.path() / "data" / "petalgarden");
    EXPECT_TRUE(fs::is_directory(folders.files));
}

}  // namespace
}  // namespace petal::test
