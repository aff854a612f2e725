#include "SettingsSampler.h"

#include "ByteMutator.h"

namespace petal::fuzz {

namespace {

// The values at the edges of what the game plays with, and of 16 bits.
constexpr int kTelling[] = {0, 1, 2, -1, 7, 10, 19, 20, 21, 99, 255, 256, 32767, -32768, 3, 5};

}  // namespace

std::string SettingsSampler::written(int gameType, int rounds, int useYaku, int playMode) {
    std::string text;
    for (int value : {gameType, rounds, useYaku, playMode}) text += std::to_string(value) + "\r\n";
    return text;
}

std::string SettingsSampler::value() {
    switch (random_.below(4)) {
        case 0:
            return std::to_string(kTelling[random_.below(sizeof kTelling / sizeof *kTelling)]);
        case 1:
            return std::to_string(static_cast<int>(random_.below(65536)) - 32768);
        case 2:
            return std::to_string(random_.below(3));
        default:
            return std::to_string(random_.below(25));
    }
}

// A number as a hand might write it, or something that is no number.
std::string SettingsSampler::token() {
    static const std::string kOdd[] = {"",      "x",    "1e3",    "0x10", "&H10",       "--1",
                                       "+5",    "1.5",  " 7 ",    "\t3",  "32768",      "-32769",
                                       "99999", "-0",   "00012",  "1 2",  "2147483648", "12345678901234567890",
                                       "-",     "TRUE", "0 junk", "\xff", "\xd9\xa3",   std::string("1\0", 2)};
    if (random_.chance(75)) return value();
    return kOdd[random_.below(sizeof kOdd / sizeof *kOdd)];
}

std::string SettingsSampler::separator() {
    static const char* const kSeparators[] = {"\r\n", "\r\n", "\r\n",     "\n",    "\r",
                                              ",",    ", ",   "\r\n\r\n", " \r\n", "\n\r"};
    return kSeparators[random_.below(sizeof kSeparators / sizeof *kSeparators)];
}

std::string SettingsSampler::handWritten() {
    std::string text;
    if (random_.chance(5)) text += "\xEF\xBB\xBF";
    if (random_.chance(10)) text += random_.chance(50) ? "  " : "\r\n";
    const unsigned numbers = random_.chance(70) ? 4 : random_.below(8);
    for (unsigned i = 0; i < numbers; ++i) {
        text += token();
        if (i + 1 < numbers || random_.chance(80)) text += separator();
    }
    if (random_.chance(5)) text += std::string(random_.chance(50) ? 4100 : 4000, random_.chance(50) ? ' ' : '\n');
    return text;
}

std::vector<std::uint8_t> SettingsSampler::input() {
    std::string text;
    const unsigned kind = random_.below(100);
    if (kind < 30)
        text = written(random_.chance(70) ? static_cast<int>(random_.below(2)) : std::stoi(value()),
                       random_.chance(50) ? static_cast<int>(random_.below(21)) : std::stoi(value()),
                       random_.chance(50) ? -1 : std::stoi(value()), std::stoi(value()));
    else if (kind < 75)
        text = handWritten();
    else if (kind < 97)
        text = random_.chance(50) ? written(random_.below(2), random_.below(21), -1, 0) : handWritten();
    else
        for (unsigned n = random_.below(24); n > 0; --n) text += static_cast<char>(random_.below(256));
    if (kind >= 75 && kind < 97) {
        ByteMutator mutator(random_);
        if (random_.chance(20))
            mutator.truncate(text);
        else
            mutator.mutate(text, 4);
    }
    if (random_.chance(4)) {
        // Saved by an editor as UTF-16, with its byte-order mark.
        const bool little = random_.chance(50);
        std::string wide = little ? "\xFF\xFE" : "\xFE\xFF";
        for (const char c : text) wide += little ? std::string{c, '\0'} : std::string{'\0', c};
        text = wide;
    }
    return {text.begin(), text.end()};
}

}  // namespace petal::fuzz
