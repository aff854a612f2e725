#include "records/Gardenia.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstring>
#include <fstream>
#include <sstream>

#include "cards/Globals.h"
#include "cards/Val.h"
#include "platform/FatalError.h"
#include "platform/Host.h"

namespace petal {

namespace {

[[noreturn]] void fail(const std::filesystem::path& file, const std::string& what) {
    throw FatalError("Petalgarden", "The settings file \"" + file.string() + "\" " + what);
}

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

bool onlyBlanksFrom(const std::string& text, std::size_t at) {
    for (; at < text.size(); ++at)
        if (!isBlank(text[at])) return false;
    return true;
}

// Writes beside the target and renames over it, so that a crash never leaves half a file.
void writeAtomically(const std::filesystem::path& file, const std::string& bytes) {
    const std::filesystem::path temp = file.string() + ".tmp";
    const int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) fail(file, std::string("cannot be created: ") + std::strerror(errno) + ".");
    const bool written = ::write(fd, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    const int writeErrno = errno;
    const bool synced = written && ::fsync(fd) == 0;
    ::close(fd);
    std::error_code ec;
    if (!synced) {
        std::filesystem::remove(temp, ec);
        fail(file, std::string("cannot be written: ") + std::strerror(written ? errno : writeErrno) + ".");
    }
    std::filesystem::rename(temp, file, ec);
    if (ec) {
        std::filesystem::remove(temp, ec);
        fail(file, "cannot be replaced: " + ec.message() + ".");
    }
}

}  // namespace

std::array<int, 4> parseSettings(const std::string& text, const std::filesystem::path& file) {
    std::array<int, 4> values{};
    std::size_t at = 0;
    for (std::size_t index = 0;; ++index) {
        if (index >= values.size()) fail(file, "holds more than four numbers.");
        while (at < text.size() && isBlank(text[at])) ++at;
        if (at >= text.size()) fail(file, "is empty: it holds no number to read.");
        const std::size_t end = text.find_first_of(",\r\n", at);
        const long value = Val(std::string_view(text).substr(at, end - at));
        if (value < SHRT_MIN || value > SHRT_MAX) fail(file, "holds a number out of range.");
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
}

std::array<int, 4> Gardenia::ReadSettings() const {
    const std::filesystem::path file = path();
    std::ifstream in(file, std::ios::binary);
    if (!in) fail(file, std::string("cannot be opened: ") + std::strerror(errno) + ".");
    std::ostringstream bytes;
    bytes << in.rdbuf();
    if (in.bad()) fail(file, "cannot be read.");
    return parseSettings(bytes.str(), file);
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
