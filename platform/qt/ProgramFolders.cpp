#include "platform/qt/ProgramFolders.h"

#include <unistd.h>

#include <cstdlib>

#include "records/Gardenia.h"
#include "records/HallOfFame.h"
#include "records/OwnOptions.h"
#include "records/SavedGame.h"
#include "records/Statistics.h"

namespace petal {

namespace {

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

// $XDG_DATA_HOME/petalgarden; a relative or empty value is ignored, as the XDG rules say.
std::filesystem::path userDataFolder(const FolderEnvironment& env) {
    std::filesystem::path base = env.xdgDataHome;
    if (base.empty() || base.is_relative()) {
        if (env.home.empty()) return {};
        base = std::filesystem::path(env.home) / ".local" / "share";
    }
    return base / "petalgarden";
}

// Copies a file whole or not at all: a copy cut short is never taken for the player's file.
// The copy is the user's to write, whatever the original's mode.
bool copyWhole(const std::filesystem::path& from, const std::filesystem::path& to, std::error_code& ec) {
    const std::filesystem::path part = to.string() + ".tmp";
    namespace fs = std::filesystem;
    if (fs::copy_file(from, part, fs::copy_options::overwrite_existing, ec))
        fs::permissions(part, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add, ec);
    if (!ec) fs::rename(part, to, ec);
    if (!ec) return true;
    std::error_code ignored;
    fs::remove(part, ignored);
    return false;
}

// Copies the game's files that lie beside the program and not yet in the data folder; what the
// player is told of it, or nothing if the folder was known and nothing was copied.
std::string copyIntoDataFolder(const std::filesystem::path& program, const std::filesystem::path& data, bool made) {
    std::string copied, failed;
    for (const char* name : {Gardenia::kFileName, HallOfFame::kFileName, OwnOptions::kFileName, SavedGame::kFileName,
                             Statistics::kFileName}) {
        std::error_code ec;
        if (!std::filesystem::is_regular_file(program / name, ec) || std::filesystem::exists(data / name, ec)) continue;
        if (copyWhole(program / name, data / name, ec)) copied += std::string(copied.empty() ? "" : ", ") + name;
        else failed += "\n  " + std::string(name) + ": " + ec.message();
    }
    if (!made && copied.empty() && failed.empty()) return {};
    std::string text = "Petalgarden may not write in its folder \"" + program.string() +
                       "\", so it keeps its settings and its Hall of Fame in \"" + data.string() + "\" from now on.";
    if (!copied.empty())
        text += "\n\nThe files it had there (" + copied + ") were copied into that folder; the old ones stay as they "
                "are and are no longer read.";
    if (!failed.empty()) text += "\n\nThese could not be copied and are not read:" + failed;
    return text;
}

}  // namespace

FolderEnvironment FolderEnvironment::current() {
    return {variable("XDG_DATA_HOME"), variable("HOME"),
            [](const std::filesystem::path& folder) { return ::access(folder.c_str(), W_OK) == 0; }};
}

ProgramFolders chooseProgramFolders(const std::filesystem::path& executableFolder, const FolderEnvironment& env) {
    // An installed copy: the program in <prefix>/bin, what comes with it in <prefix>/share.
    const std::filesystem::path shared = executableFolder.parent_path() / "share" / "petalgarden";
    std::error_code ec;
    const bool installed = std::filesystem::is_directory(shared, ec);
    ProgramFolders folders{executableFolder, installed ? shared : executableFolder, {}};
    if (!installed && env.writable(executableFolder)) return folders;
    const std::filesystem::path data = userDataFolder(env);
    if (data.empty()) return folders;  // no home to fall back on: the program's folder it is
    const bool made = std::filesystem::create_directories(data, ec);
    folders.files = data;
    if (!installed) folders.moved = copyIntoDataFolder(executableFolder, data, made);
    return folders;
}

}  // namespace petal
