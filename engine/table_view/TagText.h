#pragma once
// A control's Tag: text, as the game writes and reads it ("-1" for empty, a position in decimal).
// A text that is a number in plain decimal, as nearly every Tag is, is kept as that number, so
// that setting and testing a Tag costs no string work; any other text is kept as it is.
#include <iosfwd>
#include <string>
#include <string_view>

namespace petal {

class TagText {
public:
    TagText() = default;
    TagText(std::string_view text) { *this = text; }  // NOLINT: a Tag is set from text as often as not
    TagText(const char* text) { *this = std::string_view(text); }
    TagText(const std::string& text) { *this = std::string_view(text); }

    TagText& operator=(std::string_view text);
    TagText& operator=(const char* text) { return *this = std::string_view(text); }
    TagText& operator=(const std::string& text) { return *this = std::string_view(text); }
    // A number, written as plain decimal text.
    TagText& operator=(int value) {
        value_ = value;
        plain_ = true;
        return *this;
    }

    std::string text() const;
    operator std::string() const { return text(); }  // NOLINT: read as text where text is meant
    // Val of the text: the number at its head, 0 if there is none.
    long value() const { return value_; }
    // Whether the text is exactly `number` in plain decimal ("-1", never "-01" or " -1").
    bool is(long number) const { return plain_ && value_ == number; }

    friend bool operator==(const TagText& tag, std::string_view text);
    friend bool operator==(const TagText& tag, const char* text) { return tag == std::string_view(text); }
    friend bool operator==(const TagText& tag, const std::string& text) { return tag == std::string_view(text); }
    // Plain texts are equal exactly when their numbers are, and no other text equals a plain one.
    friend bool operator==(const TagText& a, const TagText& b) {
        return a.plain_ == b.plain_ && (a.plain_ ? a.value_ == b.value_ : a.other_ == b.other_);
    }
    friend std::string operator+(std::string text, const TagText& tag) { return text += tag.text(); }
    friend std::string operator+(const TagText& tag, std::string_view text) { return tag.text() += text; }
    friend std::ostream& operator<<(std::ostream& out, const TagText& tag);

private:
    long value_ = 0;
    bool plain_ = false;  // the text is value_ in plain decimal; other_ is then unused
    std::string other_;
};

}  // namespace petal
