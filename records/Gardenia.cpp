#include "records/Gardenia.h"

#include <climits>

#include "cards/Globals.h"
#include "cards/Val.h"
#include "platform/FatalError.h"
#include "platform/Host.h"
#include "records/AtomicFile.h"

namespace petal {

namespace {

constexpr std::size_t kLongestFile = 4096;  // far beyond four numbers: no settings file

[[noreturn]] void fail(const std::filesystem::path& file, const std::string& what) {
    throw FatalError("Petalgarden", "The settings file \"" + file.string() + "\" " + what);
}

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

bool onlyBlanksFrom(const std::string& text, std::size_t at) {
    for (; at < text.size(); ++at)
        if (!isBlank(text[at])) return false;
    return true;
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
    std::string bytes;
    FileFailure failure;
    if (!readFileBounded(file, kLongestFile, bytes, failure)) fail(file, "cannot be " + failure.operation + ": " + failure.reason + ".");
    if (bytes.size() > kLongestFile) fail(file, "cannot be read: it is far too long for four numbers.");
    return parseSettings(bytes, file);
}

void Gardenia::WriteSettings(int GameType, int Rounds, int UseYaku, int PlayMode) {
    std::string bytes;
    for (int value : {GameType, Rounds, UseYaku, PlayMode}) bytes += std::to_string(value) + "\r\n";
    if (const FileFailure failure = writeFileAtomically(path(), bytes))
        fail(path(), "cannot be " + failure.operation + ": " + failure.reason + ".");
    g_.gGameType = GameType;
    g_.gRounds = Rounds;
    g_.gPlayMode = PlayMode;
    g_.gUseYaku = UseYaku != 0;
    if (PlayMode == 1) mainCaption_ = "Petalgarden (Server)";
    else if (PlayMode == 2) mainCaption_ = "Petalgarden (Client)";
    else if (PlayMode == 0) mainCaption_ = "Petalgarden";
}

}  // namespace petal
