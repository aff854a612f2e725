#include "records/Gardenia.h"

#include <climits>

#include "cards/Globals.h"
#include "cards/Val.h"
#include "platform/FatalError.h"
#include "platform/Host.h"
#include "records/AtomicFile.h"
#include "records/SetAside.h"
#include "platform/Words.h"

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

// Whether a token begins with a number, as Val reads it: blanks, a sign, then a digit.
bool holdsNumber(std::string_view token) {
    const std::size_t at = token.find_first_not_of(" \t");
    if (at == std::string_view::npos) return false;
    const std::size_t digit = token[at] == '-' || token[at] == '+' ? at + 1 : at;
    return digit < token.size() && token[digit] >= '0' && token[digit] <= '9';
}

// The file's text as single bytes: a byte-order mark of UTF-8 is dropped, and UTF-16 is read by
// its code units, those beyond ASCII (which no number holds) standing as '?'.
std::string singleByteText(const std::string& bytes) {
    if (bytes.rfind("\xEF\xBB\xBF", 0) == 0) return bytes.substr(3);
    const bool little = bytes.rfind("\xFF\xFE", 0) == 0;
    if (!little && bytes.rfind("\xFE\xFF", 0) != 0) return bytes;
    std::string text;
    for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {
        const auto low = static_cast<unsigned char>(bytes[little ? i : i + 1]);
        const auto high = static_cast<unsigned char>(bytes[little ? i + 1 : i]);
        text += high == 0 && low < 0x80 ? static_cast<char>(low) : '?';
    }
    return text;
}

}  // namespace

SettingsText parseSettings(const std::string& bytes, const std::filesystem::path& file) {
    const std::string text = singleByteText(bytes);
    SettingsText read;
    bool anyNumber = false;
    std::size_t at = 0;
    for (std::size_t index = 0;; ++index) {
        if (index >= read.values.size()) fail(file, "cannot be read: it holds more than four numbers.");
        while (at < text.size() && isBlank(text[at])) ++at;
        if (at >= text.size()) fail(file, "cannot be read: it is empty, with no number to read.");
        const std::size_t end = text.find_first_of(",\r\n", at);
        const std::string_view token = std::string_view(text).substr(at, end - at);
        const long value = Val(token);
        if (value < SHRT_MIN || value > SHRT_MAX) fail(file, "cannot be read: it holds a number out of range.");
        read.values[index] = static_cast<int>(value);
        read.noNumber[index] = !holdsNumber(token);
        anyNumber = anyNumber || !read.noNumber[index];
        at = end == std::string::npos ? text.size() : end + 1;
        if (end != std::string::npos && text[end] == '\r' && at < text.size() && text[at] == '\n') ++at;
        if (!onlyBlanksFrom(text, at)) continue;
        // A file of NUL bytes, as a crash can leave, is no settings file: none of its values is the player's.
        if (!anyNumber) fail(file, "cannot be read: no line of it holds a number.");
        return read;
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
    SettingsText text;
    try {
        text = read();
    } catch (const FatalError& failure) {
        restoreDefaultsOrClose(failure);
        return;
    }
    g_.gGameType = text.values[0];
    g_.gRounds = text.values[1];
    g_.gUseYaku = text.values[2] != 0;
    g_.gPlayMode = 0;
    replaceUnplayable(text.noNumber);
}

// A file that cannot be read used to end the program at every start until it was mended by
// hand. Beside Close, which ends as before, the player may put it aside under a name of its own
// and play on with the defaults.
void Gardenia::restoreDefaultsOrClose(const FatalError& failure) {
    const std::string aside = asideName(path()).filename().string();
    const std::string text = said(host_,
                                  PETAL_TR("core", "%1\n\nRestore Defaults keeps it as \"%2\" beside it and goes on with the "
                                                   "usual options; Close ends the program."),
                                  {failure.what(), aside});
    if (host_.msgBox({text, failure.title(), MsgIcon::Exclamation, MsgButtons::RestoreDefaultsClose}) !=
        MsgResult::RestoreDefaults) {
        host_.endProgramAfterFailure();
        throw failure;  // unwinds the start; the program ends without a second box
    }
    std::string why;
    if (setAside(path(), why).empty()) fail(path(), "cannot be set aside: " + why + ".");
    WriteSettings(0, 10, -1, 0);
}

// Values stand as read wherever the game can play with them. A line that holds no number, a
// game type other than 0 or 1, and rounds that cannot be counted (below 1 in a tournament,
// below 0 at all) take their default; the player is told once, and the file keeps its lines
// until the setup dialog saves.
void Gardenia::replaceUnplayable(const std::array<bool, 4>& noNumber) {
    std::string told;
    const auto holds = [&](int line, int value, const char* instead) {
        static const char* const kLines[] = {PETAL_TR("core", "\n  line 1, the game type, %1: %2"),
                                             PETAL_TR("core", "\n  line 2, the rounds, %1: %2"),
                                             PETAL_TR("core", "\n  line 3, the yaku flag, %1: %2")};
        const std::string held = noNumber[line - 1] ? said(host_, PETAL_TR("core", "holds no number"))
                                                    : said(host_, PETAL_TR("core", "holds %1"), {std::to_string(value)});
        return said(host_, kLines[line - 1], {held, said(host_, instead)});
    };
    if (noNumber[0] || (g_.gGameType != 0 && g_.gGameType != 1)) {
        told += holds(1, g_.gGameType, PETAL_TR("core", "a single game (0) is taken instead"));
        g_.gGameType = 0;
    }
    if (noNumber[1] || g_.gRounds < (g_.gGameType == 1 ? 1 : 0)) {
        told += holds(2, g_.gRounds, PETAL_TR("core", "10 is taken instead"));
        g_.gRounds = 10;
    }
    if (noNumber[2]) {
        told += holds(3, 0, PETAL_TR("core", "yaku count (-1) is taken instead"));
        g_.gUseYaku = true;
    }
    if (told.empty()) return;
    host_.msgBox({said(host_,
                       PETAL_TR("core", "The settings file \"%1\" holds values that the game cannot play with:%2.\n\n"
                                        "The file stays as it is until you press OK in Setup."),
                       {path().string(), told}),
                  "Petalgarden", MsgIcon::Exclamation, MsgButtons::OK});
}

std::array<int, 4> Gardenia::ReadSettings() const { return read().values; }

SettingsText Gardenia::read() const {
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
    if (PlayMode == 1) mainCaption_ = PETAL_TR("core", "Petalgarden (Server)");
    else if (PlayMode == 2) mainCaption_ = PETAL_TR("core", "Petalgarden (Client)");
    else if (PlayMode == 0) mainCaption_ = "Petalgarden";
}

}  // namespace petal
