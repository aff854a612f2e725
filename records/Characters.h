#pragma once
// Text as a person reads it. A character is what stands as one on the screen (a letter with
// its accents, an emoji with its modifiers and joined parts), so a count never splits one.
#include <cstddef>
#include <string>
#include <string_view>

namespace petal {

// The characters of UTF-8 text; ill-formed bytes count as one character each.
std::size_t characterCount(std::string_view utf8);
// The first count characters of UTF-8 text, whole.
std::string firstCharacters(std::string_view utf8, std::size_t count);
// The text with each ill-formed sequence (a cut character, a stray byte) as U+FFFD.
std::string wellFormedUtf8(std::string_view bytes);
bool isWellFormedUtf8(std::string_view bytes);

}  // namespace petal
