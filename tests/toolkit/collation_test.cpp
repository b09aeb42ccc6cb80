#include "toolkit/collation.h"

#include "toolkit/code_page.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace tavo {
namespace {

std::string KeyOf(std::string_view text, Collation collation)
{
    std::string key;
    Sort_Key_Append(key, text, collation);
    return key;
}

std::string WordKeyOf(std::string_view bytes)
{
    return KeyOf(Cp1252ToUtf8(bytes), Collation::WordSort);
}

// Texts of code page 1252, each before all that follow it.
using Chain = std::vector<std::string_view>;

TEST(Collation, Word_sort_puts_texts_in_their_order)
{
    const Chain chains[] = {
        {"con", "coop", "co-op", "e"},
        {"con", "co-op"},
        {"1", "1-", "-1", "10"},
        {"a", "-a", "a b"},
        {"_a", "1", "a"},
        {"a 1.txt", "a(1).txt", "a.txt", "a_1.txt", "a1.txt", "a-1.txt"},
        {"001", "01", "1", "10", "2"},
        {"e", "\xE9", "f"},
        {"a", "\xE4", "a b"},
        {"\xE4", "az"},
        {"e", "\xE9", "\xE8", "\xEA", "\xEB", "f"},
        {"a", "\xE1", "\xE0", "\xE2", "\xE4", "\xE3", "\xE5", "b"},
        {"C:\\a b\\", "C:\\a.b\\", "C:\\a\\", "C:\\a\\b\\", "C:\\a_b\\", "C:\\ab\\", "C:\\a-b\\"},
        {"", "a"},
        {"ab", "a-b", "-ab", "-a-b", "--ab", "ac"},
        {"a-b", "a'b",
         "a\x96"
         "b",
         "a\x97"
         "b"},
        {"aa", "a\xE4",
         "\xE4"
         "a"},
        {"co-op", "c\xF6op"},
    };
    for (const Chain& chain : chains) {
        for (std::size_t i = 1; i < chain.size(); ++i)
            EXPECT_LT(WordKeyOf(chain[i - 1]), WordKeyOf(chain[i]))
                << chain[i - 1] << " < " << chain[i];
    }
}

TEST(Collation, Word_sort_orders_the_characters_of_the_page)
{
    const std::string_view order =
        " \xA0!\"#$%&()*,./:;?@[\\]^_`{|}~"
        "\xA1\xA6\xA8\xAF\xB4\xB8\xBF\x98\x91\x92\x82\x93\x94\x84\x8B\x9B"
        "\xA2\xA3\xA4\xA5\x80+<=>\xB1\xAB\xBB\xD7\xF7"
        "\xA7\xA9\xAC\xAE\xB0\xB5\xB6\xB7\x85\x86\x87\x95\x89\x81\x8D\x8F\x90\x9D"
        "0\xBC\xBD\xBE"
        "1\xB9"
        "2\xB2"
        "3\xB3"
        "456789abcdefghijklmnopqrstuvwxyz";
    for (std::size_t i = 1; i < order.size(); ++i) {
        const std::string before(1, order[i - 1]);
        const std::string behind(1, order[i]);
        EXPECT_LT(WordKeyOf(before + "z"), WordKeyOf(behind)) << before << " < " << behind;
    }
}

TEST(Collation, Word_sort_takes_these_as_equal)
{
    const std::string_view pairs[][2] = {
        {"AbC", "aBc"},
        {"\xDF", "ss"},
        {"stra\xDF"
         "e",
         "STRASSE"},
        {"\xE6", "ae"},
        {"\xC6", "AE"},
        {"^", "\x88"},
        {"\xC4", "\xE4"},
        {"\x9F", "\xFF"},
        {"\x8A", "\x9A"},
    };
    for (const auto& pair : pairs)
        EXPECT_EQ(WordKeyOf(pair[0]), WordKeyOf(pair[1])) << pair[0] << " = " << pair[1];
}

TEST(Collation, Word_sort_gives_every_byte_a_place)
{
    const std::string_view ties = "-'\x96\x97\xAD\x7F";
    for (int byte = 0; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        const std::string key = WordKeyOf(one);
        ASSERT_FALSE(key.empty()) << byte;
        const bool onlyBreaksTies = ties.find(one) != std::string_view::npos;
        EXPECT_EQ(key < WordKeyOf(std::string_view("\0", 1)), onlyBreaksTies) << byte;
        EXPECT_LE(key, WordKeyOf("z\x9E\x9E")) << byte;
        EXPECT_EQ(key, WordKeyOf(std::string(
                           1, static_cast<char>(Cp1252Upper(static_cast<unsigned char>(byte))))))
            << byte;
    }
}

TEST(Collation, Word_sort_puts_other_characters_behind_the_letters)
{
    const std::string_view order[] = {"zz", "\xCE\xB1", "\xCE\xB2", "\xE4\xB8\xAD", "\x80", "\xFF"};
    for (std::size_t i = 1; i < std::size(order); ++i)
        EXPECT_LT(KeyOf(order[i - 1], Collation::WordSort), KeyOf(order[i], Collation::WordSort))
            << i;
    EXPECT_EQ(KeyOf("\xCE\x91", Collation::WordSort), KeyOf("\xCE\xB1", Collation::WordSort));
}

TEST(Collation, Code_points_go_by_number_without_case_stray_bytes_last)
{
    const std::string_view order[] = {
        "",
        " ",
        "-",
        "1",
        "[",
        "_",
        "`",
        "A",
        "a b",
        "ab",
        "AC",
        "b",
        "{",
        "\xC2\xA0",
        "\xC3\x84",
        "\xC3\xA4"
        "a",
        "\xCE\xB1",
        "\xE2\x82\xAC",
        "\xF0\x9F\x98\x80",
        "\xF4\x8F\xBF\xBF",
        "\x80",
        "\xC3",
        "\xC3"
        "a",
        "\xFF",
    };
    for (std::size_t i = 1; i < std::size(order); ++i)
        EXPECT_LT(KeyOf(order[i - 1], Collation::CodePoint), KeyOf(order[i], Collation::CodePoint))
            << order[i - 1] << " < " << order[i];
}

std::string RandomText(std::mt19937& random)
{
    static constexpr std::string_view Pieces[] = {
        "a",        "A",        "b",        "-",        " ",
        "\xC3\xA4", "\xC3\x84", "\xC3\xA9", "k",        "\xE2\x84\xAA",
        "\xFF",     "\xC3",     "\xA9",     "\xC3\x9F", "s",
        "\xCE\xB1", "_",        "1",
    };
    std::string text;
    for (unsigned left = random() % 7; left > 0; --left)
        text += Pieces[random() % std::size(Pieces)];
    return text;
}

// Compares character by character; stray bytes have the largest numbers.
int FoldedOrder(std::string_view left, std::string_view right)
{
    const std::string leftFold = FoldCase(left);
    const std::string rightFold = FoldCase(right);
    std::size_t leftPos = 0;
    std::size_t rightPos = 0;
    while (leftPos < leftFold.size() && rightPos < rightFold.size()) {
        const char32_t l = NextChar(leftFold, leftPos).Code;
        const char32_t r = NextChar(rightFold, rightPos).Code;
        if (l != r)
            return l < r ? -1 : 1;
    }
    const bool leftRest = leftPos < leftFold.size();
    const bool rightRest = rightPos < rightFold.size();
    return leftRest == rightRest ? 0 : rightRest ? -1 : 1;
}

TEST(Collation, Code_point_keys_compare_as_the_folded_characters_do)
{
    std::mt19937 random(86);
    for (int round = 0; round < 50000; ++round) {
        const std::string left = RandomText(random);
        const std::string right = RandomText(random);
        const int order =
            KeyOf(left, Collation::CodePoint).compare(KeyOf(right, Collation::CodePoint));
        const int wanted = FoldedOrder(left, right);
        ASSERT_EQ(order < 0, wanted < 0) << left << ", " << right;
        ASSERT_EQ(order == 0, SameText(left, right)) << left << ", " << right;
    }
}

TEST(Collation, Keys_of_texts_without_NUL_hold_none_and_are_appended)
{
    std::mt19937 random(87);
    for (int round = 0; round < 5000; ++round) {
        const std::string text = RandomText(random);
        for (const Collation collation : {Collation::CodePoint, Collation::WordSort}) {
            std::string joined = "before";
            Sort_Key_Append(joined, text, collation);
            ASSERT_EQ(joined, "before" + KeyOf(text, collation));
            ASSERT_EQ(joined.find('\0'), std::string::npos) << text;
        }
    }
}

} // namespace
} // namespace tavo
