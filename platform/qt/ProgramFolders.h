#pragma once
// Where a run keeps its files and finds its help. A copy run from its build or an unpacked
// folder keeps GARDENIA.ini and HOF.mdb beside itself; an installed copy, whose folder belongs
// to the system, keeps them in the user's data folder and reads its help from the shared one.
// A copy whose own folder it may not write keeps them in the user's data folder too, and copies
// there the files it finds beside itself, so that nothing the player had is lost from view.
#include <filesystem>
#include <functional>
#include <string>

namespace petal {

struct ProgramFolders {
    std::filesystem::path files;  // the game's own files: settings and Hall of Fame
    std::filesystem::path help;   // the help page and its pictures
    // Where the files went and what was copied there, for the player; empty when the files
    // stand where they stood at the last start.
    std::string moved;
};

// What the choice reads of the system, so that tests can set it.
struct FolderEnvironment {
    std::string xdgDataHome;  // $XDG_DATA_HOME, empty when unset
    std::string home;         // $HOME
    std::function<bool(const std::filesystem::path&)> writable;

    static FolderEnvironment current();
};

// The data folder is made here when it is chosen and missing. Files beside the program are
// copied into it, never moved or replaced.
ProgramFolders chooseProgramFolders(const std::filesystem::path& executableFolder, const FolderEnvironment& env);

}  // namespace petal
