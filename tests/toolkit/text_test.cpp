#include "toolkit/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace tavo {
namespace {

// e with acute, euro sign, grinning face, a byte that is no UTF-8.
constexpr std::string_view Mixed = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xFFz";

TEST(Text, Len_counts_characters)
{
    struct Row {
        std::string_view Text;
        int Length;
    };
    const Row rows[] = {
        {"", 0}, {"abc", 3}, {"\xC3\xA9", 1}, {"\xFF\xFE", 2}, {Mixed, 6}, {"e\xCC\x81", 2},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Len(row.Text), row.Length) << row.Text;
}

TEST(Text, Left_and_Right_take_whole_characters)
{
    struct Row {
        std::string_view Text;
        int Count;
        std::string_view LeftPart;
        std::string_view RightPart;
    };
    const Row rows[] = {
        {"abcde", 2, "ab", "de"},
        {"abcde", 0, "", ""},
        {"abcde", -1, "", ""},
        {"abcde", -2147483647 - 1, "", ""},
        {"abcde", 5, "abcde", "abcde"},
        {"abcde", 2147483647, "abcde", "abcde"},
        {"", 3, "", ""},
        {Mixed, 2, "a\xC3\xA9", "\xFFz"},
        {Mixed, 3, "a\xC3\xA9\xE2\x82\xAC", "\xF0\x9F\x98\x80\xFFz"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Left(row.Text, row.Count), row.LeftPart) << row.Text << ", " << row.Count;
        EXPECT_EQ(Right(row.Text, row.Count), row.RightPart) << row.Text << ", " << row.Count;
    }
}

TEST(Text, Mid_cuts_from_a_position)
{
    struct Row {
        std::string_view Text;
        int Start;
        int Count;
        std::string_view Part;
        std::string_view Rest;
    };
    const Row rows[] = {
        {"abcde", 1, 2, "ab", "abcde"},
        {"abcde", 3, 1, "c", "cde"},
        {"abcde", 5, 9, "e", "e"},
        {"abcde", 6, 1, "", ""},
        {"abcde", 2147483647, 2147483647, "", ""},
        {"abcde", 0, 2, "", ""},
        {"abcde", -3, 2, "", ""},
        {"abcde", 2, 0, "", "bcde"},
        {"abcde", 2, -1, "", "bcde"},
        {Mixed, 2, 2, "\xC3\xA9\xE2\x82\xAC", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xFFz"},
        {Mixed, 5, 1, "\xFF", "\xFFz"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Mid(row.Text, row.Start, row.Count), row.Part) << row.Text << row.Start;
        EXPECT_EQ(Mid(row.Text, row.Start), row.Rest) << row.Text << row.Start;
    }
    EXPECT_EQ(CharAt(Mixed, 3), "\xE2\x82\xAC");
    EXPECT_EQ(CharAt(Mixed, 7), "");
    EXPECT_EQ(CharAt(Mixed, 0), "");
    EXPECT_EQ(BytePosOf(Mixed, 1), 0u);
    EXPECT_EQ(BytePosOf(Mixed, 5), 10u);
    EXPECT_EQ(BytePosOf(Mixed, 99), Mixed.size());
}

struct FindRow {
    int Start;
    std::string_view Text;
    std::string_view Find;
    int Binary;
    int Blind;
};

TEST(Text, InStr_finds_the_first_from_a_start)
{
    const FindRow rows[] = {
        {1, "abcabc", "bc", 2, 2},
        {3, "abcabc", "bc", 5, 5},
        {6, "abcabc", "bc", 0, 0},
        {1, "abcabc", "BC", 0, 2},
        {1, "abc", "", 1, 1},
        {3, "abc", "", 3, 3},
        {4, "abc", "", 0, 0},
        {1, "", "", 0, 0},
        {1, "", "a", 0, 0},
        {0, "abc", "a", 0, 0},
        {-5, "abc", "a", 0, 0},
        {9, "abc", "a", 0, 0},
        {1, "abc", "abcd", 0, 0},
        {1, Mixed, "z", 6, 6},
        {3, Mixed, "\xE2\x82\xAC", 3, 3},
        {4, Mixed, "\xE2\x82\xAC", 0, 0},
        {1, "x\xC3\x89y", "\xC3\xA9", 0, 2},
        {1, "x\xFFy", "\xFF", 2, 2},
        {1, "\xC3\xA9", "\xA9", 0, 0},
        {1, "\xC3\xA9", "\xC3", 0, 0},
        {1, "\xC3\xA9\xA9", "\xA9", 2, 2},
        {1, "\xC3\xA9\xC3", "\xC3", 2, 2},
        {1, "a\xE2\x84\xAA", "K", 0, 2},
        {1, "ak", "\xE2\x84\xAA", 0, 2},
        {1, "aaab", "aab", 2, 2},
        {1, "AAAb", "aaB", 0, 2},
    };
    for (const FindRow& row : rows) {
        EXPECT_EQ(InStr(row.Start, row.Text, row.Find), row.Binary)
            << row.Text << ", " << row.Find << " from " << row.Start;
        EXPECT_EQ(InStr(row.Start, row.Text, row.Find, Compare::Text), row.Blind)
            << row.Text << ", " << row.Find << " from " << row.Start;
    }
    EXPECT_EQ(InStr("a.b.c", "."), 2);
}

TEST(Text, InStrRev_finds_the_last_that_ends_by_the_start)
{
    const FindRow rows[] = {
        {-1, "abcabc", "bc", 5, 5},
        {6, "abcabc", "bc", 5, 5},
        {5, "abcabc", "bc", 2, 2},
        {2, "abcabc", "bc", 0, 0},
        {-1, "abcabc", "BC", 0, 5},
        {7, "abcabc", "bc", 0, 0},
        {0, "abcabc", "bc", 0, 0},
        {-2, "abcabc", "bc", 0, 0},
        {-1, "abc", "", 3, 3},
        {2, "abc", "", 2, 2},
        {-1, "", "", 0, 0},
        {-1, "", "a", 0, 0},
        {-1, "\xC3\xA9.\xC3\xA9", ".", 2, 2},
        {-1, "\xC3\xA9.\xC3\xA9", "\xC3\x89", 0, 3},
        {-1, "\xC3\xA9", "\xA9", 0, 0},
        {-1, "\xA9\xC3\xA9", "\xA9", 1, 1},
        {-1, "k.\xE2\x84\xAA", "k", 1, 3},
    };
    for (const FindRow& row : rows) {
        EXPECT_EQ(InStrRev(row.Text, row.Find, row.Start), row.Binary)
            << row.Text << ", " << row.Find << " to " << row.Start;
        EXPECT_EQ(InStrRev(row.Text, row.Find, row.Start, Compare::Text), row.Blind)
            << row.Text << ", " << row.Find << " to " << row.Start;
    }
}

TEST(Text, Case_is_changed_one_to_one)
{
    struct Row {
        std::string_view Text;
        std::string_view Lower;
        std::string_view Upper;
    };
    const Row rows[] = {
        {"", "", ""},
        {"MiXed 123_[`{@", "mixed 123_[`{@", "MIXED 123_[`{@"},
        {"a long ASCII Name.JPG", "a long ascii name.jpg", "A LONG ASCII NAME.JPG"},
        {"\xC3\x84\xC3\xB6\xC3\x9F", "\xC3\xA4\xC3\xB6\xC3\x9F", "\xC3\x84\xC3\x96\xC3\x9F"},
        {"A\xFF"
         "a",
         "a\xFF"
         "a",
         "A\xFF"
         "A"},
        {"\xCE\xA3\xCF\x82", "\xCF\x83\xCF\x82", "\xCE\xA3\xCE\xA3"},
        {"\xC3\xBF", "\xC3\xBF", "\xC5\xB8"},
        {"\xD0\x96\xD0\xB6", "\xD0\xB6\xD0\xB6", "\xD0\x96\xD0\x96"},
        {"\xF0\x90\x90\x80", "\xF0\x90\x90\xA8", "\xF0\x90\x90\x80"},
        {"\xC3\x97\xC3\xB7", "\xC3\x97\xC3\xB7", "\xC3\x97\xC3\xB7"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(LCase(row.Text), row.Lower) << row.Text;
        EXPECT_EQ(UCase(row.Text), row.Upper) << row.Text;
    }
}

TEST(Text, SameText_knows_no_case)
{
    struct Row {
        std::string_view Left;
        std::string_view Right;
        bool IsSame;
    };
    const Row rows[] = {
        {"", "", true},
        {"", "a", false},
        {"abc", "ABC", true},
        {"abc", "abd", false},
        {"abc", "abcd", false},
        {"abcd", "abc", false},
        {"@", "`", false},
        {"[", "{", false},
        {"\xC3\xA4", "\xC3\x84", true},
        {"k", "\xE2\x84\xAA", true},
        {"\xE2\x84\xAA"
         "a",
         "KA", true},
        {"s", "\xC5\xBF", true},
        {"\xCF\x82", "\xCE\xA3", true},
        {"\xC3\x9F", "ss", false},
        {"\xFF", "\xFF", true},
        {"\xFF", "\xFE", false},
        {"\xE9", "\xC3\xA9", false},
        {"a\xFF"
         "B",
         "A\xFF"
         "b",
         true},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(SameText(row.Left, row.Right), row.IsSame) << row.Left << ", " << row.Right;
        EXPECT_EQ(SameText(row.Right, row.Left), row.IsSame) << row.Left << ", " << row.Right;
        EXPECT_EQ(FoldCase(row.Left) == FoldCase(row.Right), row.IsSame)
            << row.Left << ", " << row.Right;
    }
}

TEST(Text, Beginnings_and_ends_are_compared_without_case)
{
    EXPECT_TRUE(StartsWithText("Picture.JPG", "pic"));
    EXPECT_TRUE(StartsWithText("abc", ""));
    EXPECT_FALSE(StartsWithText("ab", "abc"));
    EXPECT_TRUE(EndsWithText("Picture.JPG", ".jpg"));
    EXPECT_TRUE(EndsWithText("x\xE2\x84\xAA", "k"));
    EXPECT_FALSE(EndsWithText("jpg", ".jpg"));
    EXPECT_FALSE(EndsWithText("\xC3\xA9", "\xA9"));
}

TEST(Text, Trims_take_blanks_only)
{
    struct Row {
        std::string_view Text;
        std::string_view Both;
        std::string_view Front;
        std::string_view Back;
    };
    const Row rows[] = {
        {"", "", "", ""},
        {"   ", "", "", ""},
        {"  a b ", "a b", "a b ", "  a b"},
        {"\ta\t", "\ta\t", "\ta\t", "\ta\t"},
        {"\xC2\xA0 a", "\xC2\xA0 a", "\xC2\xA0 a", "\xC2\xA0 a"},
        {" \xFF ", "\xFF", "\xFF ", " \xFF"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Trim(row.Text), row.Both) << '"' << row.Text << '"';
        EXPECT_EQ(LTrim(row.Text), row.Front) << '"' << row.Text << '"';
        EXPECT_EQ(RTrim(row.Text), row.Back) << '"' << row.Text << '"';
    }
}

TEST(Text, Asc_and_Chr_go_there_and_back)
{
    EXPECT_EQ(Asc(""), 0u);
    EXPECT_EQ(Asc("Abc"), static_cast<char32_t>('A'));
    EXPECT_EQ(Asc("\xE2\x82\xAC"), 0x20ACu);
    EXPECT_EQ(Chr(Asc("\xFFx")), "\xFF");
    EXPECT_EQ(Chr(0x20AC), "\xE2\x82\xAC");
    EXPECT_EQ(Chr(0xD800), "");
}

TEST(Text, Cuts_by_bytes_split_no_character)
{
    struct Row {
        std::string_view Text;
        std::size_t MaxBytes;
        std::string_view Front;
        std::string_view Back;
    };
    const Row rows[] = {
        {"abc", 2, "ab", "bc"},
        {"abc", 0, "", ""},
        {"abc", 9, "abc", "abc"},
        {"a\xC3\xA9", 2, "a", "\xC3\xA9"},
        {"\xC3\xA9"
         "a",
         2, "\xC3\xA9", "a"},
        {"\xF0\x9F\x98\x80", 3, "", ""},
        {"\xF0\x9F\x98\x80", 4, "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
        {"\x80\x80\x80", 2, "\x80\x80", "\x80\x80"},
        {"\xE2\x82\xE2\x82", 3, "\xE2\x82\xE2", "\x82\xE2\x82"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(CutBytes(row.Text, row.MaxBytes), row.Front) << row.Text << row.MaxBytes;
        EXPECT_EQ(RightWithinBytes(row.Text, row.MaxBytes), row.Back) << row.Text << row.MaxBytes;
    }
}

// Texts of pieces that are likely to meet wrongly: leads, continuations,
// letters of two to four bytes.
class RandomText {
public:
    std::string Next(int mostPieces)
    {
        static constexpr std::string_view Pieces[] = {
            "a",
            "K",
            "z",
            " ",
            "\xC3\xA9",
            "\xC3\x89",
            "\xE2\x82\xAC",
            "\xE2\x84\xAA",
            "\xF0\x9F\x98\x80",
            "\xC3",
            "\xA9",
            "\xE2",
            "\x82",
            "\xF0\x9F",
            "\xFF",
            "\xED\xA0\x80",
        };
        std::string text;
        for (int left = Number(0, mostPieces); left > 0; --left)
            text += Pieces[static_cast<std::size_t>(Number(0, 15))];
        return text;
    }

    int Number(int first, int last)
    {
        return std::uniform_int_distribution<int>(first, last)(Engine);
    }

private:
    std::mt19937 Engine{20010307};
};

std::vector<std::string> CharactersOf(std::string_view text)
{
    std::vector<std::string> all;
    for (std::size_t pos = 0; pos < text.size();) {
        const std::size_t start = pos;
        NextChar(text, pos);
        all.emplace_back(text.substr(start, pos - start));
    }
    return all;
}

std::string Joined(const std::vector<std::string>& all, std::size_t from, std::size_t count)
{
    std::string text;
    for (std::size_t i = from; i < all.size() && i < from + count; ++i)
        text += all[i];
    return text;
}

TEST(TextProperties, Parts_of_any_bytes_are_runs_of_its_characters)
{
    RandomText random;
    for (int round = 0; round < 20000; ++round) {
        const std::string text = random.Next(30);
        const auto all = CharactersOf(text);
        const int length = static_cast<int>(all.size());
        const int count = random.Number(0, length + 2);
        const auto taken = static_cast<std::size_t>(count);
        ASSERT_EQ(Len(text), length) << text;
        ASSERT_EQ(Left(text, count), Joined(all, 0, taken)) << text;
        ASSERT_EQ(Left(text, count) + Mid(text, count + 1), text) << text;
        ASSERT_EQ(Left(text, std::max(length - count, 0)) + Right(text, count), text) << text;
        const int start = random.Number(1, length + 1);
        ASSERT_EQ(Mid(text, start, count), Joined(all, static_cast<std::size_t>(start) - 1, taken));
    }
}

TEST(TextProperties, Searches_agree_with_a_search_character_by_character)
{
    RandomText random;
    for (int round = 0; round < 20000; ++round) {
        const std::string text = random.Next(20);
        const std::string find = random.Next(2);
        if (find.empty())
            continue;
        for (const Compare compare : {Compare::Binary, Compare::Text}) {
            int first = 0;
            int last = 0;
            for (int pos = 1; pos <= Len(text); ++pos) {
                const std::string part = Mid(text, pos, Len(find));
                if (compare == Compare::Text ? SameText(part, find) : part == find) {
                    first = first == 0 ? pos : first;
                    last = pos;
                }
            }
            ASSERT_EQ(InStr(1, text, find, compare), first) << text << ", " << find;
            ASSERT_EQ(InStrRev(text, find, -1, compare), last) << text << ", " << find;
        }
    }
}

TEST(TextProperties, Case_keeps_the_number_of_characters_and_stray_bytes)
{
    RandomText random;
    for (int round = 0; round < 5000; ++round) {
        const std::string text = random.Next(30);
        ASSERT_TRUE(SameText(UCase(text), text)) << text;
        ASSERT_TRUE(SameText(LCase(text), text)) << text;
        ASSERT_TRUE(SameText(FoldCase(text), text)) << text;
        ASSERT_EQ(FoldCase(FoldCase(text)), FoldCase(text)) << text;
        ASSERT_EQ(Len(UCase(text)), Len(text)) << text;
        ASSERT_EQ(Len(LCase(text)), Len(text)) << text;
    }
}

TEST(TextProperties, Cuts_by_bytes_are_the_longest_that_fit)
{
    RandomText random;
    for (int round = 0; round < 5000; ++round) {
        const std::string text = random.Next(12);
        const int most = random.Number(0, static_cast<int>(text.size()));
        const auto limit = static_cast<std::size_t>(most);
        std::string front;
        std::string back;
        for (int count = 0; count <= Len(text); ++count) {
            if (Left(text, count).size() <= limit)
                front = Left(text, count);
            if (Right(text, count).size() <= limit)
                back = Right(text, count);
        }
        ASSERT_EQ(CutBytes(text, limit), front) << text;
        ASSERT_EQ(RightWithinBytes(text, limit), back) << text;
    }
}

} // namespace
} // namespace tavo
