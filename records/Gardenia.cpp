#include "records/Gardenia.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstring>

#include "cards/Globals.h"
#include "cards/Val.h"
#include "platform/FatalError.h"
#include "platform/Host.h"

namespace petal {

namespace {

constexpr std::size_t kLongestFile = 4096;  // far beyond four numbers: no settings file

[[noreturn]] void fail(const std::filesystem::path& file, const std::string& what) {
    throw FatalError("Petalgarden", "The settings file \"" + file.string() + "\" " + what);
}

[[noreturn]] void failWith(const std::filesystem::path& file, const std::string& operation, int error) {
    fail(file, "cannot be " + operation + ": " + std::strerror(error) + ".");
}

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

bool onlyBlanksFrom(const std::string& text, std::size_t at) {
    for (; at < text.size(); ++at)
        if (!isBlank(text[at])) return false;
    return true;
}

// Where a write lands: a symbolic link is written through to the file it names.
std::filesystem::path linkTarget(const std::filesystem::path& file) {
    std::filesystem::path at = file;
    for (int hop = 0; hop < 40; ++hop) {
        std::error_code ec;
        if (!std::filesystem::is_symlink(at, ec)) break;
        const std::filesystem::path next = std::filesystem::read_symlink(at, ec);
        if (ec) break;
        at = next.is_absolute() ? next : at.parent_path() / next;
    }
    return at;
}

// The mode a new file takes. An existing one keeps its own, and one that is not a plain file,
// or that its user has made read-only, is refused rather than replaced.
mode_t modeForWriting(const std::filesystem::path& file, const std::filesystem::path& target) {
    struct stat st {};
    if (::stat(target.c_str(), &st) != 0) return 0644;
    if (S_ISDIR(st.st_mode)) failWith(file, "written", EISDIR);
    if (!S_ISREG(st.st_mode)) fail(file, "cannot be written: it is not a plain file.");
    if ((st.st_mode & 0222) == 0) failWith(file, "written", EACCES);
    if (::access(target.c_str(), W_OK) != 0) failWith(file, "written", errno);
    return st.st_mode & 07777;
}

// Writes beside the target and renames over it, so that a crash never leaves half a file.
void writeAtomically(const std::filesystem::path& file, const std::string& bytes) {
    const std::filesystem::path target = linkTarget(file);
    const mode_t mode = modeForWriting(file, target);
    const std::filesystem::path temp = target.string() + ".tmp";
    const int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (fd < 0) failWith(file, "created", errno);
    int error = 0;
    if (::fchmod(fd, mode) != 0) error = errno;
    errno = 0;
    if (!error && ::write(fd, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) error = errno ? errno : EIO;
    if (!error && ::fsync(fd) != 0) error = errno;
    if (::close(fd) != 0 && !error) error = errno;
    const char* operation = "written";
    if (!error && ::rename(temp.c_str(), target.c_str()) != 0) {
        error = errno;
        operation = "replaced";
    }
    if (!error) return;
    ::unlink(temp.c_str());
    failWith(file, operation, error);
}

}  // namespace

std::array<int, 4> parseSettings(const std::string& text, const std::filesystem::path& file) {
    std::array<int, 4> values{};
    std::size_t at = 0;
    for (std::size_t index = 0;; ++index) {
        if (index >= values.size()) fail(file, "cannot be read: it holds more than four numbers.");
        while (at < text.size() && isBlank(text[at])) ++at;
        if (at >= text.size()) fail(file, "cannot be read: it is empty, with no number to read.");
        const std::size_t end = text.find_first_of(",\r\n", at);
        const long value = Val(std::string_view(text).substr(at, end - at));
        if (value < SHRT_MIN || value > SHRT_MAX) fail(file, "cannot be read: it holds a number out of range.");
        values[index] = static_cast<int>(value);
        at = end == std::string::npos ? text.size() : end + 1;
        if (end != std::string::npos && text[end] == '\r' && at < text.size() && text[at] == '\n') ++at;
        if (onlyBlanksFrom(text, at)) return values;
    }
}

Gardenia::Gardenia(Host& host, Globals& g, std::string& mainCaption)
    : host_(host), g_(g), mainCaption_(mainCaption) {}

std::filesystem::path Gardenia::path() const { return host_.programFolder() / kFileName; }

void Gardenia::LoadSettings() {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path(), ec)) {
        WriteSettings(0, 10, -1, 0);
        return;
    }
    const std::array<int, 4> values = ReadSettings();
    g_.gGameType = values[0];
    g_.gRounds = values[1];
    g_.gUseYaku = values[2] != 0;
    g_.gPlayMode = 0;
    replaceUnplayable();
}

// Values stand as read wherever the game can play with them. A game type other than 0 or 1,
// and rounds that cannot be counted (below 1 in a tournament, below 0 at all), take their
// default; the player is told once, and the file keeps its lines until the setup dialog saves.
void Gardenia::replaceUnplayable() {
    std::string told;
    if (g_.gGameType != 0 && g_.gGameType != 1) {
        told += "\n  line 1, the game type, holds " + std::to_string(g_.gGameType) + ": a single game (0) is taken instead";
        g_.gGameType = 0;
    }
    if (g_.gRounds < (g_.gGameType == 1 ? 1 : 0)) {
        told += "\n  line 2, the rounds, holds " + std::to_string(g_.gRounds) + ": 10 is taken instead";
        g_.gRounds = 10;
    }
    if (told.empty()) return;
    host_.msgBox({"The settings file \"" + path().string() + "\" holds values that the game cannot play with:" + told +
                      ".\n\nThe file stays as it is until you press OK in Setup.",
                  "Petalgarden", MsgIcon::Exclamation, MsgButtons::OK});
}

std::array<int, 4> Gardenia::ReadSettings() const {
    const std::filesystem::path file = path();
    const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) failWith(file, "opened", errno);
    std::string bytes;
    char buffer[512];
    ssize_t got = 0;
    while (bytes.size() <= kLongestFile && (got = ::read(fd, buffer, sizeof buffer)) > 0) bytes.append(buffer, got);
    const int error = errno;
    ::close(fd);
    if (got < 0) failWith(file, "read", error);
    if (bytes.size() > kLongestFile) fail(file, "cannot be read: it is far too long for four numbers.");
    return parseSettings(bytes, file);
}

void Gardenia::WriteSettings(int GameType, int Rounds, int UseYaku, int PlayMode) {
    std::string bytes;
    for (int value : {GameType, Rounds, UseYaku, PlayMode}) bytes += std::to_string(value) + "\r\n";
    writeAtomically(path(), bytes);
    g_.gGameType = GameType;
    g_.gRounds = Rounds;
    g_.gPlayMode = PlayMode;
    g_.gUseYaku = UseYaku != 0;
    if (PlayMode == 1) mainCaption_ = "Petalgarden (Server)";
    else if (PlayMode == 2) mainCaption_ = "Petalgarden (Client)";
    else if (PlayMode == 0) mainCaption_ = "Petalgarden";
}

}  // namespace petal
