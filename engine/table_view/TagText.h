#pragma once
// A control's Tag: text, as the game writes and reads it ("-1" for empty, a position in decimal),
// with its number read once, when it is set, rather than at every reading.
#include <charconv>
#include <iosfwd>
#include <string>
#include <string_view>

#include "cards/Val.h"

namespace petal {

class TagText {
public:
    TagText() = default;
    TagText(std::string_view text) { *this = text; }  // NOLINT: a Tag is set from text as often as not
    TagText(const char* text) { *this = std::string_view(text); }
    TagText(const std::string& text) { *this = std::string_view(text); }

    TagText& operator=(std::string_view text) {
        text_.assign(text);
        value_ = Val(text_);
        return *this;
    }
    TagText& operator=(const char* text) { return *this = std::string_view(text); }
    TagText& operator=(const std::string& text) { return *this = std::string_view(text); }
    // A number, written as plain decimal text.
    TagText& operator=(int value) {
        char digits[12];
        const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
        text_.assign(digits, end);
        value_ = value;
        return *this;
    }

    const std::string& text() const { return text_; }
    operator const std::string&() const { return text_; }  // NOLINT: read as text where text is meant
    // Val of the text: the number at its head, 0 if there is none.
    long value() const { return value_; }

    friend bool operator==(const TagText& tag, std::string_view text) {
        return tag.text_.size() == text.size() && std::char_traits<char>::compare(tag.text_.data(), text.data(), text.size()) == 0;
    }
    friend bool operator==(const TagText& tag, const char* text) { return tag == std::string_view(text); }
    friend bool operator==(const TagText& tag, const std::string& text) { return tag == std::string_view(text); }
    friend bool operator==(const TagText& a, const TagText& b) { return a.text_ == b.text_; }
    friend std::string operator+(std::string text, const TagText& tag) { return text += tag.text_; }
    friend std::string operator+(const TagText& tag, std::string_view text) { return tag.text_ + std::string(text); }
    friend std::ostream& operator<<(std::ostream& out, const TagText& tag);

private:
    std::string text_;
    long value_ = 0;
};

}  // namespace petal
