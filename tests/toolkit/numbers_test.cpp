#include "toolkit/numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace tavo {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(Numbers, Val_reads_the_numeric_prefix)
{
    struct Row {
        std::string_view Text;
        double Value;
    };
    const Row rows[] = {
        {"", 0},
        {"abc", 0},
        {"12", 12},
        {"12abc", 12},
        {"  12", 12},
        {"1 2 3", 123},
        {"1615 198th Street", 1615198},
        {"\t1\n2", 12},
        {"-5", -5},
        {"- 5", -5},
        {"+5", 5},
        {"--5", 0},
        {"5-", 5},
        {".5", 0.5},
        {"5.", 5},
        {".", 0},
        {"1.2.3", 1.2},
        {"1,234", 1},
        {"1e3", 1000},
        {"1E-2x", 0.01},
        {"1d3", 1000},
        {"1D+3", 1000},
        {"1e", 1},
        {"1e+", 1},
        {"e3", 0},
        {"$5", 0},
        {"(5)", 0},
        {"007", 7},
        {"&H10", 16},
        {"&hFFFF", -1},
        {"&HFFFF&", 65535},
        {"&H10000", 65536},
        {"&HFFFFFFFF", -1},
        {"&H7FFFFFFFG", 2147483647},
        {"&O17", 15},
        {"&17", 15},
        {"&H", 0},
        {"&", 0},
        {"-&H10", -16},
        {"0x10", 0},
        {"\xC2\xA0"
         "5",
         0},
        {"5\xFF", 5},
        {"1e400", Infinity},
        {"-1e400", -Infinity},
        {"0e400", 0},
        {"1e-400", 0},
        {"123456789012345678", 123456789012345678.0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Val(row.Text), row.Value) << '"' << row.Text << '"';
    EXPECT_EQ(Val(std::string(400, '9')), Infinity);
    EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
}

TEST(Numbers, A_whole_text_is_a_number_or_none)
{
    constexpr auto None = std::nullopt;
    struct Row {
        std::string_view Text;
        std::optional<double> Value;
    };
    const Row rows[] = {
        {"12abc", None},
        {"", None},
        {" ", None},
        {"1 2", None},
        {"0x10", None},
        {"1/2", None},
        {"5%", None},
        {"True", None},
        {" 5 ", 5},
        {"\t5\r\n", 5},
        {"\xC2\xA0"
         "5\xC2\xA0",
         5},
        {"+1", 1},
        {"5-", -5},
        {"- 5", -5},
        {"(5)", -5},
        {"$5", 5},
        {"5$", 5},
        {"1,234", 1234},
        {"1,2,3,4", 1234},
        {"1e3", 1000},
        {".5", 0.5},
        {"5.", 5},
        {"&H10", 16},
        {"&O17", 15},
        {"&HFFFF", 65535},
        {"1d3", 1000},
        {"&10", 8},
        {"-5", -5},
        {"5+", 5},
        {"-5-", None},
        {"--5", None},
        {"(5", None},
        {"5)", None},
        {"(-5)", None},
        {"-(5)", None},
        {"( 5 )", -5},
        {"$$5", None},
        {"$5$", None},
        {"$-5", -5},
        {"-$5", -5},
        {"($5)", -5},
        {"1e", None},
        {"1e+", None},
        {"1e-3", 0.001},
        {"e3", None},
        {".", None},
        {"-", None},
        {",5", None},
        {"1.5,0", None},
        {"1.2.3", None},
        {"&", None},
        {"&H", None},
        {"&HG", None},
        {"&O8", None},
        {"1e400", None},
        {"inf", None},
        {"nan", None},
        {"1e-400", 0},
        {"-&H10", -16},
        {"5\xFF", None},
        {"5\xA0", None},
        {"\xD9\xA5", None},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ParseDouble(row.Text), row.Value) << '"' << row.Text << '"';
    EXPECT_EQ(ParseDouble(std::string("5\0", 2)), None);
    EXPECT_EQ(ParseSingle("0.1"), 0.1f);
    EXPECT_EQ(ParseSingle("1e39"), None);
    EXPECT_EQ(ParseSingle("x"), None);
}

struct WholeRow {
    std::string_view Text;
    std::optional<int> Byte;
    std::optional<int> I16;
    std::optional<int> I32;
};

TEST(Numbers, Whole_numbers_have_a_width_and_round_half_to_even)
{
    constexpr auto None = std::nullopt;
    const WholeRow rows[] = {
        {"0", 0, 0, 0},
        {"0.5", 0, 0, 0},
        {"1.5", 2, 2, 2},
        {"2.5", 2, 2, 2},
        {"3.5", 4, 4, 4},
        {"254.5", 254, 254, 254},
        {"255", 255, 255, 255},
        {"255.5", None, 256, 256},
        {"256", None, 256, 256},
        {"-0.5", 0, 0, 0},
        {"-0.51", None, -1, -1},
        {"-1", None, -1, -1},
        {"-1.5", None, -2, -2},
        {"32767", None, 32767, 32767},
        {"32767.5", None, None, 32768},
        {"32768", None, None, 32768},
        {"-32768", None, -32768, -32768},
        {"-32768.5", None, -32768, -32768},
        {"-32769", None, None, -32769},
        {"70000", None, None, 70000},
        {"2147483647", None, None, 2147483647},
        {"2147483647.5", None, None, None},
        {"2147483648", None, None, None},
        {"-2147483648", None, None, -2147483647 - 1},
        {"-2147483643", None, None, -2147483643},
        {"&HFF", 255, 255, 255},
        {"&HFFFF", None, -1, 65535},
        {"&H8000", None, -32768, 32768},
        {"&H10000", None, None, 65536},
        {"&HFFFFFFFF", None, None, -1},
        {"&H80000005", None, None, -2147483643},
        {"&H100000000", None, None, None},
        {"-&H10", None, -16, -16},
        {"&O17", 15, 15, 15},
        {"1e2", 100, 100, 100},
        {"1e300", None, None, None},
        {"  7\t", 7, 7, 7},
        {"(5)", None, -5, -5},
        {"1,234", None, 1234, 1234},
        {"12abc", None, None, None},
        {"", None, None, None},
        {"True", None, None, None},
    };
    for (const WholeRow& row : rows) {
        EXPECT_EQ(ParseByte(row.Text), row.Byte) << '"' << row.Text << '"';
        EXPECT_EQ(ParseI16(row.Text), row.I16) << '"' << row.Text << '"';
        EXPECT_EQ(ParseI32(row.Text), row.I32) << '"' << row.Text << '"';
    }
}

TEST(Numbers, Booleans_are_words_or_numbers)
{
    struct Row {
        std::string_view Text;
        std::optional<bool> Value;
    };
    const Row rows[] = {
        {"True", true},          {"true", true},        {"FALSE", false},     {"#TRUE#", true},
        {"#FALSE#", false},      {"0", false},          {"1", true},          {"-1", true},
        {"0.5", true},           {"Yes", std::nullopt}, {"On", std::nullopt}, {"", std::nullopt},
        {"#TRUE", std::nullopt},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ParseBool(row.Text), row.Value) << row.Text;
}

TEST(Numbers, Halves_go_to_the_even_neighbour)
{
    const double rows[][2] = {
        {0.5, 0},
        {1.5, 2},
        {2.5, 2},
        {-0.5, 0},
        {-1.5, -2},
        {-2.5, -2},
        {0.49999999999999994, 0},
        {2.5000000001, 3},
        {1e300, 1e300},
        {4503599627370495.5, 4503599627370496},
    };
    for (const auto& row : rows)
        EXPECT_EQ(RoundHalfEven(row[0]), row[1]) << row[0];
}

TEST(Numbers, An_assignment_that_does_not_fit_keeps_the_old_value)
{
    CheckedByte byte(7);
    EXPECT_FALSE(byte.Assign(256));
    EXPECT_FALSE(byte.Assign(-1));
    EXPECT_FALSE(byte.Assign(255.5));
    EXPECT_FALSE(byte.Assign(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(byte.Get(), 7);
    EXPECT_TRUE(byte.Assign(254.5));
    EXPECT_EQ(byte.Get(), 254);

    Checked16 word(7);
    EXPECT_FALSE(word.Assign(32767.5));
    EXPECT_FALSE(word.Assign(Infinity));
    EXPECT_EQ(word, 7);
    EXPECT_TRUE(word.Assign(-32768.5));
    EXPECT_EQ(word, -32768);

    std::int32_t whole = 7;
    EXPECT_FALSE(AssignChecked(whole, 2147483648.0));
    EXPECT_EQ(whole, 7);
    EXPECT_TRUE(AssignChecked(whole, -2147483648.0));
    EXPECT_EQ(whole, std::numeric_limits<std::int32_t>::min());
}

TEST(Numbers, Text_of_single_precision_has_seven_digits)
{
    struct Row {
        float Value;
        std::string_view Text;
    };
    const Row rows[] = {
        {12000.0f, "12000"},
        {12000.5f, "12000.5"},
        {1000000.0f, "1000000"},
        {1e7f, "1E+07"},
        {123456789.0f, "1.234568E+08"},
        {0.00001f, "1E-05"},
        {0.0001f, "0.0001"},
        {0.1f, "0.1"},
        {-0.5f, "-0.5"},
        {0.0f, "0"},
        {-0.0f, "0"},
        {9999999.0f, "9999999"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(SingleToText(row.Value), row.Text);
}

TEST(Numbers, Text_of_double_precision_has_fifteen_digits)
{
    struct Row {
        double Value;
        std::string_view Text;
    };
    const Row rows[] = {
        {0, "0"},
        {-0.0, "0"},
        {0.1, "0.1"},
        {1.0 / 3, "0.333333333333333"},
        {-2.0 / 3, "-0.666666666666667"},
        {999999999999999.0, "999999999999999"},
        {1e14, "100000000000000"},
        {1e15, "1E+15"},
        {1234567890123456.0, "1.23456789012346E+15"},
        {1e-5, "1E-05"},
        {1e100, "1E+100"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(DoubleToText(row.Value), row.Text);
    EXPECT_EQ(IntToText(-2147483648LL), "-2147483648");
    EXPECT_EQ(BoolToText(true), "True");
    EXPECT_EQ(BoolToText(false), "False");
}

} // namespace
} // namespace tavo
