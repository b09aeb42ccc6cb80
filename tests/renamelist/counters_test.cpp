#include "renamelist/counters.h"

#include <gtest/gtest.h>

using namespace tavo;

TEST(Counters, Numbers_are_padded_to_their_width_and_never_cut)
{
    const struct {
        const char* Value;
        int Digits;
        const char* Wanted;
    } rows[] = {
        {"1", 3, "001"}, {"999", 3, "999"},      {"1000", 3, "1000"},    {"1", 9, "000000001"},
        {"1", 1, "1"},   {"12", 1, "12"},        {"1", 0, "1"},          {"1", -4, "1"},
        {"", 3, "000"},  {"1", 10, "000000001"}, {"1", 99, "000000001"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Cnt_PadDigits(row.Value, row.Digits), row.Wanted)
            << row.Value << " to " << row.Digits;
}

TEST(Counters, Letters_are_padded_in_the_case_of_their_first)
{
    const struct {
        const char* Value;
        int Digits;
        const char* Wanted;
    } rows[] = {
        {"b", 3, "aab"}, {"B", 3, "AAB"}, {"ba", 1, "ba"}, {"z", 9, "aaaaaaaaz"}, {"1", 3, "aa1"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Cnt_PadLetters(row.Value, row.Digits), row.Wanted) << row.Value;
}

TEST(Counters, Letters_count_in_base_26_with_a_as_zero)
{
    const struct {
        std::int64_t Number;
        const char* Letters;
    } rows[] = {
        {0, "a"},    {1, "b"},     {25, "z"},    {26, "ba"},
        {675, "zz"}, {676, "baa"}, {701, "baz"}, {999999, "cexhn"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Cnt_ToLetters(row.Number), row.Letters);
        EXPECT_EQ(Cnt_FromLetters(row.Letters), static_cast<double>(row.Number)) << row.Letters;
    }
    EXPECT_EQ(Cnt_FromLetters("BAZ"), 701);
    EXPECT_EQ(Cnt_FromLetters("aab"), 1);
    EXPECT_EQ(Cnt_FromLetters(""), 0);
    EXPECT_EQ(Cnt_FromLetters(std::string(400, 'a') + "b"), 1);
    EXPECT_GT(Cnt_FromLetters(std::string(400, 'z') + std::string(400, '1')), 1e300);
}

TEST(Counters, Text_follows_style_and_digits)
{
    const struct {
        std::int64_t Counter;
        int Style, Digits;
        const char* Wanted;
    } rows[] = {
        {1, cntNumber, 3, "001"}, {1200, cntNumber, 3, "1200"}, {1, cntSmall, 3, "aab"},
        {25, cntSmall, 3, "aaz"}, {26, cntSmall, 3, "aba"},     {26, cntCapital, 3, "ABA"},
        {0, cntCapital, 1, "A"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Cnt_Text(row.Counter, row.Style, row.Digits), row.Wanted) << row.Counter;
}

TEST(Counters, Start_is_the_numeric_prefix_or_the_letters)
{
    const struct {
        const char* Text;
        int Style;
        std::int64_t Wanted;
    } rows[] = {
        {"1", cntNumber, 1}, {"12abc", cntNumber, 12},
        {"", cntNumber, 0},  {"abc", cntNumber, 0},
        {"b", cntSmall, 1},  {"BA", cntCapital, 26},
        {"", cntSmall, 0},   {"1e300", cntNumber, 2147483647},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Cnt_Start(row.Text, row.Style), row.Wanted) << row.Text;
}
