#include "NetSampler.h"

#include <algorithm>

namespace petal::fuzz {

namespace {
constexpr std::uint8_t kLocalMove = 0x20, kLegalFirst = 0x40, kRepeat = 0x80;
const char* const kBareWords[] = {"QUIT", "SCOP", "SCCL"};
const char* const kChatPieces[] = {"hi",    ",",          " ", "CARD,", "QUIT",     "NEWG,1", "DEAL,",
                                   "CHAT,", "SEUP,1,3,0", "1", "-1",    "\xC3\xA9", "\r\n"};
}  // namespace

std::vector<std::uint8_t> NetSampler::input() {
    std::vector<std::uint8_t> out;
    out.push_back(static_cast<std::uint8_t>(r_.next()));
    out.push_back(static_cast<std::uint8_t>(r_.next()));
    const unsigned pieces = 1 + r_.below(8);
    for (unsigned i = 0; i < pieces; ++i) {
        const unsigned kind = r_.below(100);
        std::string bytes;
        if (kind < 40) {
            bytes = message();
            if (r_.chance(30)) bytes += message();
        } else if (kind < 55) {
            bytes = spoilt(message());
        } else if (kind < 62) {
            for (unsigned n = 1 + r_.below(12); n > 0; --n) bytes += static_cast<char>(r_.next());
        }
        std::uint8_t c = control();
        if (bytes.empty() && r_.chance(80)) c |= kLegalFirst;
        // A message cut in two, the second part after a pause of its own.
        if (bytes.size() > 1 && r_.chance(30)) {
            const std::size_t cut = 1 + r_.below(static_cast<unsigned>(bytes.size() - 1));
            piece(out, bytes.substr(0, cut), c);
            piece(out, bytes.substr(cut), static_cast<std::uint8_t>(r_.below(r_.chance(50) ? 8 : 32)));
        } else {
            piece(out, bytes, c);
        }
    }
    return out;
}

std::uint8_t NetSampler::control() {
    std::uint8_t c = static_cast<std::uint8_t>(r_.chance(50) ? r_.below(8) : r_.below(32));
    if (r_.chance(30)) c |= kLocalMove;
    if (r_.chance(20)) c |= kLegalFirst;
    if (r_.chance(1)) c |= kRepeat;
    return c;
}

void NetSampler::piece(std::vector<std::uint8_t>& out, const std::string& bytes, std::uint8_t control) {
    const std::size_t length = std::min<std::size_t>(bytes.size(), 255);
    out.push_back(static_cast<std::uint8_t>(length));
    out.push_back(control);
    out.insert(out.end(), bytes.begin(), bytes.begin() + static_cast<long>(length));
}

std::string NetSampler::number() {
    const unsigned kind = r_.below(100);
    if (kind < 50) return std::to_string(static_cast<int>(r_.below(10)) - 1);
    if (kind < 70) return std::to_string(r_.below(24));
    if (kind < 85) return std::to_string(r_.below(48));
    if (kind < 90) return std::to_string(static_cast<int>(r_.below(65536)) - 32768);
    if (kind < 95) return std::to_string(r_.next() % 10000000);
    return r_.chance(50) ? "-" : "";
}

std::string NetSampler::seedText() {
    if (r_.chance(80)) {
        char text[16];
        std::snprintf(text, sizeof text, "%02u:%02u:%02u", r_.below(24), r_.below(60), r_.below(60));
        return text;
    }
    std::string text;
    for (unsigned n = r_.below(70); n > 0; --n) text += static_cast<char>(' ' + r_.below(95));
    text.erase(std::remove(text.begin(), text.end(), ','), text.end());
    return text;
}

std::string NetSampler::chatText() {
    std::string text;
    for (unsigned n = r_.below(6); n > 0; --n) text += kChatPieces[r_.below(std::size(kChatPieces))];
    return text;
}

std::string NetSampler::message() {
    const unsigned kind = r_.below(100);
    if (kind < 45) return "CARD," + number() + "," + number();
    if (kind < 60) return std::string("CHAT,") + chatText();
    if (kind < 68) return std::string("NEWG,") + (r_.chance(90) ? std::to_string(r_.below(2)) : number());
    if (kind < 78) return kBareWords[r_.below(3)];
    if (kind < 88) return "DEAL," + seedText() + "," + (r_.chance(90) ? std::to_string(r_.below(2)) : number());
    return "SEUP," + (r_.chance(80) ? std::to_string(r_.below(2)) : number()) + "," +
           (r_.chance(80) ? std::to_string(1 + r_.below(10)) : number()) + "," + (r_.chance(50) ? "-1" : number());
}

// One byte changed, dropped or put in.
std::string NetSampler::spoilt(std::string text) {
    if (text.empty()) return text;
    const std::size_t at = r_.below(static_cast<unsigned>(text.size()));
    switch (r_.below(3)) {
        case 0:
            text[at] = static_cast<char>(r_.next());
            break;
        case 1:
            text.erase(at, 1);
            break;
        default:
            text.insert(at, 1, ",0-"[r_.below(3)]);
            break;
    }
    return text;
}

}  // namespace petal::fuzz
