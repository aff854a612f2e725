// Where a run keeps GARDENIA.ini and HOF.mdb: beside the program when that folder is its own
// and writable, else in the user's data folder, made at the first start, with the files that
// stood beside the program copied there.
#include <gtest/gtest.h>

#include <fstream>

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
    EXPECT_EQ(folders.moved, "");
}

// An unwritable folder sends the files to the user's data folder, made at the first start. Such a
// copy used to leave the files beside it behind without a word: the Hall of Fame looked empty and
// the options were back to their defaults. They are copied, never over a file in the data folder
// (here one made by hand before), the originals stay, and the move is told once.
TEST_F(Folders, FilesBesideAnUnwritableProgramAreCopiedAndTheMoveToldOnce) {
    const fs::path program = dir.path() / "opt", xdg = dir.path() / "xdg" / "data", data = xdg / "petalgarden";
    fs::create_directories(program);
    const ProgramFolders made = chooseProgramFolders(program, env(false, xdg.string()));
    EXPECT_EQ(made.files, data);
    EXPECT_TRUE(fs::is_directory(data)) << "neither it nor its parent existed";
    EXPECT_EQ(made.help, program);
    EXPECT_THAT(made.moved, HasSubstr("keeps its settings and its Hall of Fame in \"" + data.string()));
    const auto write = [](const fs::path& file, const std::string& bytes) { std::ofstream(file) << bytes; };
    write(program / "GARDENIA.ini", "1\r\n5\r\n-1\r\n0\r\n");
    write(program / "HOF.mdb", "records");
    write(program / "petalgarden-options.ini", "sound=off\n");
    write(data / "petalgarden-options.ini", "sound=on\n");
    fs::permissions(program / "HOF.mdb", fs::perms::owner_read | fs::perms::group_read);
    const ProgramFolders first = chooseProgramFolders(program, env(false, xdg.string()));
    EXPECT_EQ(first.files, data);
    EXPECT_EQ(fileText(data / "GARDENIA.ini"), "1\r\n5\r\n-1\r\n0\r\n");
    EXPECT_EQ(fileText(data / "HOF.mdb"), "records");
    EXPECT_NE(fs::status(data / "HOF.mdb").permissions() & fs::perms::owner_write, fs::perms::none);
    EXPECT_EQ(fileText(data / "petalgarden-options.ini"), "sound=on\n") << "a file of the data folder stays";
    EXPECT_EQ(fileText(program / "HOF.mdb"), "records") << "the originals stay";
    EXPECT_THAT(first.moved, HasSubstr("may not write in its folder \"" + program.string() + "\""));
    EXPECT_THAT(first.moved, HasSubstr("(GARDENIA.ini, HOF.mdb) were copied"));
    EXPECT_EQ(chooseProgramFolders(program, env(false, xdg.string())).moved, "");
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
    EXPECT_EQ(folders.moved, "") << "an installed copy's files were never beside it";
}

}  // namespace
}  // namespace petal::test
