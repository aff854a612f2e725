#include "engine/table_view/TagText.h"

#include <charconv>
#include <ostream>

#include "cards/Val.h"

namespace petal {

namespace {

struct Decimal {
    char digits[24];
    std::size_t size;
    std::string_view view() const { return {digits, size}; }
};

Decimal decimal(long value) {
    Decimal d{};
    d.size = static_cast<std::size_t>(std::to_chars(d.digits, d.digits + sizeof d.digits, value).ptr - d.digits);
    return d;
}

}  // namespace

TagText& TagText::operator=(std::string_view text) {
    value_ = Val(text);
    plain_ = decimal(value_).view() == text;
    if (plain_)
        other_.clear();
    else
        other_.assign(text);
    return *this;
}

std::string TagText::text() const { return plain_ ? std::string(decimal(value_).view()) : other_; }

bool operator==(const TagText& tag, std::string_view text) {
    return (tag.plain_ ? decimal(tag.value_).view() : std::string_view(tag.other_)) == text;
}

std::ostream& operator<<(std::ostream& out, const TagText& tag) {
    return out << (tag.plain_ ? decimal(tag.value_).view() : std::string_view(tag.other_));
}

}  // namespace petal
