#include "net/MessageFramer.h"

#include <algorithm>
#include <array>

namespace petal {

namespace {

enum class Parse { Complete, NeedMore, Malformed };

struct Outcome {
    Parse parse;
    std::size_t length = 0;
};

constexpr std::array<std::string_view, 8> kTags = {"SEUP", "DEAL", "CARD", "QUIT", "SCOP", "SCCL", "NEWG", "CHAT"};
constexpr std::size_t kMaxSeed = 64;
constexpr std::size_t kMaxDigits = 5;  // 16-bit values
constexpr std::size_t kTagLength = 4;
// Put after the first letter of a tag word in a chat line, and doubled where the line holds it.
constexpr char kEscape = '\x10';

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Whether a tag stands at `at`: Complete with its name, NeedMore if the bytes end inside one.
Parse tagAt(std::string_view data, std::size_t at, std::string_view& tag) {
    const std::string_view rest = data.substr(at);
    for (std::string_view t : kTags) {
        if (rest.size() >= 4 && rest.substr(0, 4) == t) {
            tag = t;
            return Parse::Complete;
        }
    }
    for (std::string_view t : kTags)
        if (rest.size() < 4 && t.substr(0, rest.size()) == rest) return Parse::NeedMore;
    return Parse::Malformed;
}

// A comma at `at`.
Parse comma(std::string_view data, std::size_t at) {
    if (at >= data.size()) return Parse::NeedMore;
    return data[at] == ',' ? Parse::Complete : Parse::Malformed;
}

// A decimal number, "-" allowed, ending at the first byte that is no digit. One that runs to
// the end of the bytes may still grow, unless the stream has settled.
Parse number(std::string_view data, std::size_t at, bool settled, std::size_t& end) {
    std::size_t p = at;
    if (p < data.size() && data[p] == '-') ++p;
    const std::size_t first = p;
    while (p < data.size() && isDigit(data[p]) && p - first <= kMaxDigits) ++p;
    if (p - first > kMaxDigits) return Parse::Malformed;
    end = p;
    if (p == data.size()) return p > first && settled ? Parse::Complete : Parse::NeedMore;
    return p > first ? Parse::Complete : Parse::Malformed;
}

// Numbers joined by commas after the tag, the shape of SEUP and CARD.
Outcome numbers(std::string_view data, std::size_t at, int count, bool settled) {
    std::size_t p = at + 4;
    for (int i = 0; i < count; ++i) {
        if (const Parse c = comma(data, p); c != Parse::Complete) return {c};
        if (const Parse n = number(data, p + 1, settled, p); n != Parse::Complete) return {n};
    }
    return {Parse::Complete, p - at};
}

// A flag of one digit, 0 or 1, after a comma at `at`: the end of NEWG and of DEAL.
Outcome flagAt(std::string_view data, std::size_t start, std::size_t at) {
    if (const Parse c = comma(data, at); c != Parse::Complete) return {c};
    if (at + 1 >= data.size()) return {Parse::NeedMore};
    if (data[at + 1] != '0' && data[at + 1] != '1') return {Parse::Malformed};
    return {Parse::Complete, at + 2 - start};
}

Outcome deal(std::string_view data, std::size_t at) {
    if (const Parse c = comma(data, at + 4); c != Parse::Complete) return {c};
    const std::size_t seed = at + 5;
    const std::size_t end = data.find(',', seed);
    if (end == std::string_view::npos) return {data.size() - seed > kMaxSeed ? Parse::Malformed : Parse::NeedMore};
    if (end - seed > kMaxSeed) return {Parse::Malformed};
    return flagAt(data, at, end);
}

// A chat line runs to the next tag word, or to the end of the bytes: the sender escapes every
// tag word inside a line (chatText), so the first one begins the next message. Places before
// `from` are known to hold none.
Outcome chat(std::string_view data, std::size_t at, bool settled, std::size_t from) {
    if (const Parse c = comma(data, at + 4); c != Parse::Complete) return {c};
    std::string_view tag;
    for (std::size_t i = std::max(at + 5, from); i < data.size(); ++i)
        if (tagAt(data, i, tag) == Parse::Complete) return {Parse::Complete, i - at};
    return settled ? Outcome{Parse::Complete, data.size() - at} : Outcome{Parse::NeedMore};
}

Outcome message(std::string_view data, std::size_t at, std::string_view tag, bool settled, std::size_t from) {
    if (tag == "QUIT" || tag == "SCOP" || tag == "SCCL") return {Parse::Complete, 4};
    if (tag == "NEWG") return flagAt(data, at, at + 4);
    if (tag == "DEAL") return deal(data, at);
    if (tag == "CARD") return numbers(data, at, 2, settled);
    if (tag == "SEUP") return numbers(data, at, 3, settled);
    return chat(data, at, settled, from);
}

// A short, printable quotation of bytes that broke the grammar.
std::string quote(std::string_view bytes) {
    std::string shown;
    for (char c : bytes.substr(0, 24)) shown += (c >= 0x20 && c < 0x7F) ? c : '?';
    return "\"" + shown + (bytes.size() > 24 ? "...\"" : "\"");
}

}  // namespace

std::string chatText(std::string_view line) {
    std::string out;
    out.reserve(line.size());
    std::string_view tag;
    for (std::size_t i = 0; i < line.size(); ++i) {
        out += line[i];
        if (line[i] == kEscape || tagAt(line, i, tag) == Parse::Complete) out += kEscape;
    }
    return out;
}

std::string typedLine(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == kEscape && ++i == text.size()) break;
        out += text[i];
    }
    return out;
}

MessageFramer::Result MessageFramer::feed(std::string_view bytes, std::vector<WireMessage>& out) {
    pending_.append(bytes);
    return take(false, out);
}

MessageFramer::Result MessageFramer::settle(std::vector<WireMessage>& out) { return take(true, out); }

void MessageFramer::clear() {
    pending_.clear();
    scanned_ = 0;
    problem_.clear();
}

MessageFramer::Result MessageFramer::take(bool settled, std::vector<WireMessage>& out) {
    const std::string_view data = pending_;
    std::size_t at = 0;
    while (at < data.size()) {
        std::string_view tag;
        const Parse t = tagAt(data, at, tag);
        if (t == Parse::NeedMore) break;
        if (t == Parse::Malformed) {
            problem_ = "the bytes " + quote(data.substr(at)) + " are no message of the game";
            return Result::Malformed;
        }
        // A chat line held from earlier reads is not searched again where no tag word can begin;
        // only its tail, where one may have been cut short, is looked at anew.
        const std::size_t from = at == 0 && scanned_ >= kTagLength ? scanned_ - (kTagLength - 1) : 0;
        const Outcome next = message(data, at, tag, settled, from);
        if (next.parse == Parse::NeedMore) {
            scanned_ = data.size() - at;
            if (at > 0) scanned_ = 0;
            break;
        }
        if (next.parse == Parse::Malformed) {
            problem_ = "the message " + quote(data.substr(at)) + " is not of the shape of " + std::string(tag);
            return Result::Malformed;
        }
        out.push_back({std::string(data.substr(at, next.length))});
        at += next.length;
    }
    // A send arrives whole within moments: what is still cut short once the stream has settled
    // was never a message.
    if (settled && at < data.size()) {
        problem_ = "the message " + quote(data.substr(at)) + " is cut short";
        return Result::Malformed;
    }
    if (at > 0) scanned_ = 0;
    pending_.erase(0, at);
    if (pending_.size() > kMaxPending) {
        problem_ = "more than " + std::to_string(kMaxPending / 1024) + " KiB arrived without the end of a message";
        return Result::Overflow;
    }
    return Result::Ok;
}

}  // namespace petal
