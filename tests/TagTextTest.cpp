// A Tag keeps the very text it was given, though plain numbers are held as numbers.
#include <gtest/gtest.h>

#include <sstream>

#include "engine/table_view/TagText.h"

namespace petal {
namespace {

TEST(TagText, NumberAndItsPlainTextAreTheSameTag) {
    TagText byNumber;
    byNumber = -1;
    const TagText byText = "-1";
    EXPECT_EQ(byNumber, byText);
    EXPECT_TRUE(byText.is(-1));
    TagText zero;
    zero = 0;
    EXPECT_FALSE(zero == "");
}

// Texts that Val reads as a number but that are not its plain decimal stay as written: they
// are not equal to the number's text, nor is any of them the number.
TEST(TagText, TextsThatOnlyReadAsNumbersKeepTheirText) {
    for (const char* text : {"007", "-0", "+5", " 3", "12abc", "", "x", "12345678901"}) {
        const TagText tag = text;
        EXPECT_EQ(tag.text(), text);
        EXPECT_EQ(tag, text);
        TagText plain;
        plain = static_cast<int>(tag.value());
        EXPECT_FALSE(tag == plain) << text;
        EXPECT_FALSE(tag.is(tag.value())) << text;
        std::ostringstream out;
        out << tag;
        EXPECT_EQ(out.str(), text);
    }
    EXPECT_EQ(TagText("12abc").value(), 12);
    EXPECT_EQ(TagText(" -35").value(), -35);
    EXPECT_EQ(TagText("x").value(), 0);
}

}  // namespace
}  // namespace petal
