#include "toolkit/text_hash.h"

#include "toolkit/text.h"

#include <gtest/gtest.h>

#include <string>

namespace tavo {
namespace {

struct PairRow {
    const char* Left;
    const char* Right;
    bool Same;
};

const PairRow pairs[] = {
    {"", "", true},
    {"a", "A", true},
    {"IMG_0001.JPG", "img_0001.jpg", true},
    {"exactly8", "EXACTLY8", true},
    {"nine byte", "NINE BYTE", true},
    {"@[`{", "@[`{", true},
    {"@", "`", false},
    {"[", "{", false},
    {"\xC3\x84pfel", "\xC3\xA4PFEL", true},
    {"\xC3\x84", "a", false},
    {"a\xFF", "A\xFF", true},
    {"a\xFF", "a\xFE", false},
    {"abc", "abd", false},
    {"ab", "abc", false},
};

TEST(TextHash, Fold_hashes_go_with_equality_without_case)
{
    for (const PairRow& row : pairs) {
        SCOPED_TRACE(std::string(row.Left) + " | " + row.Right);
        EXPECT_EQ(SameText(row.Left, row.Right), row.Same);
        EXPECT_EQ(Text_FoldHash(row.Left) == Text_FoldHash(row.Right), row.Same);
    }
}

TEST(TextHash, Characters_that_fold_to_ASCII_letters_hash_as_those)
{
    const std::string kelvin = "\xE2\x84\xAA"; // KELVIN SIGN
    ASSERT_EQ(SameText(kelvin, "k"), FoldCase(kelvin) == FoldCase("k"));
    EXPECT_EQ(Text_FoldHash(kelvin) == Text_FoldHash("K"), SameText(kelvin, "k"));
}

TEST(TextHash, Bytes_count_one_by_one_with_NUL_and_case)
{
    EXPECT_EQ(Text_Hash("abc"), Text_Hash(std::string("abc")));
    EXPECT_NE(Text_Hash("abc"), Text_Hash("abC"));
    EXPECT_NE(Text_Hash("abc"), Text_Hash(std::string_view("abc\0", 4)));
    EXPECT_NE(Text_FoldHash(""), Text_FoldHash(std::string_view("\0", 1)));
}

} // namespace
} // namespace tavo
