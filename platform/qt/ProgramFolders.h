#pragma once
// Where a run keeps its files and finds its help. A copy run from its build or an unpacked
// folder keeps GARDENIA.ini and HOF.mdb beside itself; an installed copy, whose folder belongs
// to the system, keeps them in the user's data folder and reads its help from the shared one.
#include <filesystem>
#include <functional>
#include <string>

namespace petal {

struct ProgramFolders {
    std::filesystem::path files;  // the game's own files: settings and Hall of Fame
    std::filesystem::path help;   // the help page and its pictures
};

// What the choice reads of the system, so that tests can set it.
struct FolderEnvironment {
    std::string xdgDataHome;  // $XDG_DATA_HOME, empty when unset
    std::string home;         // $HOME
    std::function<bool(const std::filesystem::path&)> writable;

    static FolderEnvironment current();
};

// The data folder is made here when it is chosen and missing.
ProgramFolders chooseProgramFolders(const std::filesystem::path& executableFolder, const FolderEnvironment& env);

}  // namespace petal
