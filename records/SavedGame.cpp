#include "records/SavedGame.h"

#include <charconv>
#include <cstdio>

namespace petal {

namespace {

std::uint32_t fnv1a(std::string_view bytes) {
    std::uint32_t h = 2166136261u;
    for (const unsigned char c : bytes) h = (h ^ c) * 16777619u;
    return h;
}

std::string hex(std::uint64_t value, int digits) {
    char buf[17];
    std::snprintf(buf, sizeof buf, "%0*llx", digits, static_cast<unsigned long long>(value));
    return buf;
}

// The words of a line, split at single spaces; the last may be asked for whole (a seed, an id).
class Line {
public:
    explicit Line(std::string_view text) : text_(text) {}

    std::string_view word() {
        const std::size_t end = std::min(text_.find(' ', at_), text_.size());
        const std::string_view w = text_.substr(at_, end - at_);
        at_ = end < text_.size() ? end + 1 : end;
        if (w.empty()) ok_ = false;
        return w;
    }
    std::string_view rest() {
        const std::string_view r = text_.substr(at_);
        at_ = text_.size();
        if (r.empty()) ok_ = false;
        for (const unsigned char c : r)
            if (c < 0x20 || c == 0x7F) ok_ = false;
        return r;
    }
    long number(long lowest, long highest) {
        const std::string_view w = word();
        long value = 0;
        const auto [end, ec] = std::from_chars(w.data(), w.data() + w.size(), value);
        if (ec != std::errc() || end != w.data() + w.size() || value < lowest || value > highest) ok_ = false;
        return value;
    }
    std::uint64_t hexNumber(std::size_t digits) {
        const std::string_view w = word();
        std::uint64_t value = 0;
        const auto [end, ec] = std::from_chars(w.data(), w.data() + w.size(), value, 16);
        if (w.size() != digits || ec != std::errc() || end != w.data() + w.size()) ok_ = false;
        return value;
    }
    // Every word read, and nothing left over.
    bool whole() const { return ok_ && at_ == text_.size(); }

private:
    std::string_view text_;
    std::size_t at_ = 0;
    bool ok_ = true;
};

bool readEntry(std::string_view text, SavedGame::Entry& e) {
    Line line(text);
    const std::string_view kind = line.word();
    if (kind.size() != 1) return false;
    e.kind = kind[0];
    switch (e.kind) {
        case 'D':
            e.check = static_cast<std::uint32_t>(line.hexNumber(8));
            e.seed = line.rest();
            break;
        case 'P':
            e.slot = static_cast<int>(line.number(0, 7));
            e.target = static_cast<int>(line.number(-1, 99));
            e.check = static_cast<std::uint32_t>(line.hexNumber(8));
            break;
        case 'F':
            e.target = static_cast<int>(line.number(0, 99));
            e.check = static_cast<std::uint32_t>(line.hexNumber(8));
            break;
        case 'C':
        case 'E':
            e.check = static_cast<std::uint32_t>(line.hexNumber(8));
            break;
        default:
            return false;
    }
    return line.whole();
}

std::string entryText(const SavedGame::Entry& e) {
    std::string text(1, e.kind);
    if (e.kind == 'P') text += " " + std::to_string(e.slot);
    if (e.kind == 'P' || e.kind == 'F') text += " " + std::to_string(e.target);
    text += " " + hex(e.check, 8);
    if (e.kind == 'D') text += " " + e.seed;
    return text;
}

// The header's lines after the heading and the version: options, start, summary.
bool readHeader(const std::vector<std::string_view>& lines, SavedGame& game) {
    Line options(lines[2]), start(lines[3]), summary(lines[4]);
    if (options.word() != "options" || start.word() != "start" || summary.word() != "summary") return false;
    game.options.gameType = static_cast<int>(options.number(0, 1));
    game.options.rounds = static_cast<int>(options.number(0, 32767));
    game.options.useYaku = options.number(0, 1) == 1;
    game.options.computer = options.word();
    game.firstTurn = static_cast<int>(start.number(0, 1));
    game.rndState = start.hexNumber(16);
    game.id = start.rest();
    game.round = static_cast<int>(summary.number(0, 32767));
    game.playerTotal = static_cast<int>(summary.number(-1000000, 1000000));
    game.opponentTotal = static_cast<int>(summary.number(-1000000, 1000000));
    for (const char c : game.options.computer)
        if (c < 'a' || c > 'z') return false;
    return options.whole() && start.whole() && summary.whole();
}

}  // namespace

std::string SavedGame::text() const {
    std::string body = std::string(kHeading) + "\nversion " + std::to_string(kVersion) + "\n";
    body += "options " + std::to_string(options.gameType) + " " + std::to_string(options.rounds) + " " +
            (options.useYaku ? "1" : "0") + " " + options.computer + "\n";
    body += "start " + std::to_string(firstTurn) + " " + hex(rndState, 16) + " " + id + "\n";
    body += "summary " + std::to_string(round) + " " + std::to_string(playerTotal) + " " + std::to_string(opponentTotal) + "\n";
    for (const Entry& e : entries) body += entryText(e) + "\n";
    return body + "end " + std::to_string(entries.size()) + " " + hex(fnv1a(body), 8) + "\n";
}

std::optional<SavedGame> SavedGame::parse(std::string_view bytes, std::string& reason) {
    std::vector<std::string_view> lines;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = bytes.find('\n', at);
        if (end == std::string_view::npos) {
            lines.push_back(bytes.substr(at));
            break;
        }
        lines.push_back(bytes.substr(at, end - at));
        at = end + 1;
    }
    if (lines.empty() || lines[0] != kHeading) {
        reason = "it is not a saved game of Petalgarden";
        return std::nullopt;
    }
    Line version(lines.size() > 1 ? lines[1] : std::string_view{});
    const bool versionLine = version.word() == "version";
    const long number = version.number(1, 1000000);
    if (!versionLine || !version.whole()) {
        reason = "it is damaged (its version cannot be read)";
        return std::nullopt;
    }
    if (number > kVersion) {
        reason = "it was saved by a newer version of Petalgarden (saved game version " + std::to_string(number) + ")";
        return std::nullopt;
    }
    // The last line closes the file: without it the file was cut short.
    const bool closed = !bytes.empty() && bytes.back() == '\n' && lines.back().rfind("end ", 0) == 0;
    if (!closed || lines.size() < 6) {
        reason = "it is cut short";
        return std::nullopt;
    }
    SavedGame game;
    const std::size_t count = lines.size() - 6;
    Line end(lines.back());
    end.word();
    const long listed = end.number(0, 1000000);
    const std::uint32_t sum = static_cast<std::uint32_t>(end.hexNumber(8));
    const std::size_t bodySize = bytes.size() - lines.back().size() - 1;
    if (!end.whole() || listed != static_cast<long>(count) || sum != fnv1a(bytes.substr(0, bodySize))) {
        reason = listed > static_cast<long>(count) ? "it is cut short" : "it is damaged (its check does not match)";
        return std::nullopt;
    }
    if (count == 0) {
        reason = "it is damaged (it holds no deal)";
        return std::nullopt;
    }
    if (!readHeader(lines, game)) {
        reason = "it is damaged (its options cannot be read)";
        return std::nullopt;
    }
    for (std::size_t i = 0; i < count; ++i) {
        Entry& e = game.entries.emplace_back();
        if (!readEntry(lines[5 + i], e) || (i == 0 && e.kind != 'D')) {
            reason = "it is damaged (line " + std::to_string(6 + i) + " cannot be read)";
            return std::nullopt;
        }
    }
    return game;
}

}  // namespace petal
