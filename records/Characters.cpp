#include "records/Characters.h"

#include <unicode/ubrk.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <memory>

namespace petal {

namespace {

struct Walked {
    std::size_t characters = 0;
    std::size_t bytes = 0;
};

// Steps over at most limit characters of the text: how many it found, and their length in bytes.
Walked walk(std::string_view utf8, std::size_t limit) {
    // Plain ASCII without a carriage return (which joins the line feed after it) is a character
    // a byte, as nearly every name and date is.
    if (std::all_of(utf8.begin(), utf8.end(), [](char c) { return c >= 0 && c != '\r'; })) {
        const std::size_t n = std::min(utf8.size(), limit);
        return {n, n};
    }
    if (utf8.size() > INT32_MAX) utf8 = utf8.substr(0, INT32_MAX);
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<UText, decltype(&utext_close)> text(
        utext_openUTF8(nullptr, utf8.data(), static_cast<int64_t>(utf8.size()), &status), utext_close);
    // Opening an iterator costs far more than a short text's walk: each thread keeps one, which
    // holds a shallow copy of the text only until the next walk gives it another.
    thread_local std::unique_ptr<UBreakIterator, decltype(&ubrk_close)> breaks(
        ubrk_open(UBRK_CHARACTER, "", nullptr, 0, &status), ubrk_close);
    if (U_SUCCESS(status) && breaks) ubrk_setUText(breaks.get(), text.get(), &status);
    if (U_FAILURE(status) || !breaks) return {std::min(utf8.size(), limit), std::min(utf8.size(), limit)};
    Walked walked;
    ubrk_first(breaks.get());
    for (int32_t next; walked.characters < limit && (next = ubrk_next(breaks.get())) != UBRK_DONE;) {
        ++walked.characters;
        walked.bytes = static_cast<std::size_t>(next);
    }
    return walked;
}

}  // namespace

std::size_t characterCount(std::string_view utf8) { return walk(utf8, SIZE_MAX).characters; }

std::string firstCharacters(std::string_view utf8, std::size_t count) {
    return std::string(utf8.substr(0, walk(utf8, count).bytes));
}

std::string wellFormedUtf8(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    const auto* s = reinterpret_cast<const uint8_t*>(bytes.data());
    const int32_t length = static_cast<int32_t>(std::min<std::size_t>(bytes.size(), INT32_MAX));
    for (int32_t i = 0; i < length;) {
        const int32_t start = i;
        UChar32 c;
        U8_NEXT(s, i, length, c);
        if (c < 0) out += "\xEF\xBF\xBD";
        else out.append(bytes.data() + start, static_cast<std::size_t>(i - start));
    }
    return out;
}

bool isWellFormedUtf8(std::string_view bytes) { return wellFormedUtf8(bytes) == bytes; }

}  // namespace petal
