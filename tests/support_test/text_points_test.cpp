#include "support/text_points.h"

#include <gtest/gtest.h>

namespace tavo::points {

struct UpperCase {
    const char *What, *Text, *Wanted;
};

TEST(TextPoints, Upper_case_is_one_to_one)
{
    const UpperCase cases[] = {
        {"ascii", "azAZ09[_", "AZAZ09[_"},
        {"latin", "\u00e0\u00f6\u00f8\u00fe", "\u00c0\u00d6\u00d8\u00de"},
        {"times and divided stay", "\u00d7\u00f7", "\u00d7\u00f7"},
        {"y with two dots", "\u00ff", "\u0178"},
        {"sharp s stays", "\u00df", "\u00df"},
        {"pairs", "\u0161\u0153\u017e", "\u0160\u0152\u017d"},
        {"greek and cyrillic", "\u03b1\u0439\u0451", "\u0391\u0419\u0401"},
        {"stray bytes",
         "\xe4\xff"
         "a",
         "\xe4\xff"
         "A"},
        {"no case", "\u65e5", "\u65e5"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(Upper(row.Text), row.Wanted) << row.What;
}

struct CountCase {
    const char *What, *Text;
    std::size_t Wanted;
};

TEST(TextPoints, A_byte_that_is_no_utf8_is_a_character)
{
    const CountCase cases[] = {
        {"plain", "abc", 3},
        {"two bytes", "\u00e4b", 2},
        {"four bytes", "\U0001F600", 1},
        {"cut short", "\xe2\x82", 2},
        {"too long a form", "\xc0\x80", 2},
        {"half of a pair", "\xed\xa0\x80", 3},
        {"beyond the last", "\xf4\x90\x80\x80", 4},
        {"nothing", "", 0},
    };
    for (const auto& row : cases)
        EXPECT_EQ(Count(row.Text), row.Wanted) << row.What;
}

TEST(TextPoints, Right_counts_characters_or_bytes)
{
    EXPECT_EQ(Right("a\u00e4b", 2), "\u00e4b");
    EXPECT_EQ(Right("ab", 9), "ab");
    EXPECT_EQ(Right("ab", 0), "");
    EXPECT_EQ(RightBytes("a\u00e4b", 2), "b");
    EXPECT_EQ(RightBytes("a\u00e4b", 3), "\u00e4b");
    EXPECT_EQ(RightBytes("ab", 9), "ab");
}

} // namespace tavo::points
