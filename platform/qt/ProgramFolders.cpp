#include "platform/qt/ProgramFolders.h"

#include <unistd.h>

#include <cstdlib>

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
    ProgramFolders folders{executableFolder, installed ? shared : executableFolder};
    if (!installed && env.writable(executableFolder)) return folders;
    const std::filesystem::path data = userDataFolder(env);
    if (data.empty()) return folders;  // no home to fall back on: the program's folder it is
    std::filesystem::create_directories(data, ec);
    folders.files = data;
    return folders;
}

}  // namespace petal
