#include "toolkit/utf8.h"

#include <gtest/gtest.h>

#include <vector>

namespace tavo {
namespace {

std::vector<char32_t> CodesOf(std::string_view text)
{
    std::vector<char32_t> codes;
    for (std::size_t pos = 0; pos < text.size();)
        codes.push_back(NextChar(text, pos).Code);
    return codes;
}

std::vector<char32_t> CodesBackOf(std::string_view text)
{
    std::vector<char32_t> codes;
    for (std::size_t pos = text.size(); pos > 0;)
        codes.insert(codes.begin(), PrevChar(text, pos).Code);
    return codes;
}

constexpr char32_t Stray(unsigned char byte)
{
    return Character::StrayBase + byte;
}

struct DecodeCase {
    const char* What;
    std::string_view Text;
    std::vector<char32_t> Codes;
};

const DecodeCase DecodeCases[] = {
    {"ascii", "aZ", {'a', 'Z'}},
    {"two bytes", "\xC3\xA9", {0xE9}},
    {"three bytes", "\xE2\x82\xAC", {0x20AC}},
    {"four bytes", "\xF0\x9F\x98\x80", {0x1F600}},
    {"last code point", "\xF4\x8F\xBF\xBF", {0x10FFFF}},
    {"beyond the last", "\xF4\x90\x80\x80", {Stray(0xF4), Stray(0x90), Stray(0x80), Stray(0x80)}},
    {"lone continuation", "\x80", {Stray(0x80)}},
    {"lone lead", "\xC3", {Stray(0xC3)}},
    {"lead and letter",
     "\xC3"
     "a",
     {Stray(0xC3), 'a'}},
    {"cut sequence", "\xE2\x82", {Stray(0xE2), Stray(0x82)}},
    {"cut and going on",
     "\xE2\x82"
     "a",
     {Stray(0xE2), Stray(0x82), 'a'}},
    {"overlong in two", "\xC0\xAF", {Stray(0xC0), Stray(0xAF)}},
    {"overlong in two, high", "\xC1\xBF", {Stray(0xC1), Stray(0xBF)}},
    {"overlong in three", "\xE0\x80\xAF", {Stray(0xE0), Stray(0x80), Stray(0xAF)}},
    {"first in three", "\xE0\xA0\x80", {0x800}},
    {"overlong in four", "\xF0\x8F\xBF\xBF", {Stray(0xF0), Stray(0x8F), Stray(0xBF), Stray(0xBF)}},
    {"first in four", "\xF0\x90\x80\x80", {0x10000}},
    {"low surrogate", "\xED\xB2\x80", {Stray(0xED), Stray(0xB2), Stray(0x80)}},
    {"high surrogate", "\xED\xA0\x80", {Stray(0xED), Stray(0xA0), Stray(0x80)}},
    {"before the surrogates", "\xED\x9F\xBF", {0xD7FF}},
    {"FE and FF", "\xFE\xFF", {Stray(0xFE), Stray(0xFF)}},
    {"lead too high", "\xF5\x80\x80\x80", {Stray(0xF5), Stray(0x80), Stray(0x80), Stray(0x80)}},
    {"stray before a character", "\xC3\xC3\xA9", {Stray(0xC3), 0xE9}},
    {"one continuation too many", "\xC3\xA9\xA9", {0xE9, Stray(0xA9)}},
    {"five continuations",
     "\x80\x81\x82\x83\x84",
     {Stray(0x80), Stray(0x81), Stray(0x82), Stray(0x83), Stray(0x84)}},
};

TEST(Utf8, Text_is_read_forward_by_characters_and_stray_bytes)
{
    for (const DecodeCase& row : DecodeCases)
        EXPECT_EQ(CodesOf(row.Text), row.Codes) << row.What;
}

TEST(Utf8, Text_read_backward_is_the_same)
{
    for (const DecodeCase& row : DecodeCases)
        EXPECT_EQ(CodesBackOf(row.Text), row.Codes) << row.What;
}

TEST(Utf8, Characters_written_one_by_one_give_the_text)
{
    for (const DecodeCase& row : DecodeCases) {
        std::string text;
        for (const char32_t code : row.Codes)
            AppendChar(text, code);
        EXPECT_EQ(text, row.Text) << row.What;
    }
}

TEST(Utf8, Every_code_point_goes_there_and_back)
{
    std::size_t characters = 0;
    for (char32_t code = 0; code < 0x110000; ++code) {
        std::string text;
        AppendChar(text, code);
        if (text.empty())
            continue;
        ++characters;
        std::size_t pos = 0;
        ASSERT_EQ(NextChar(text, pos).Code, code);
        ASSERT_EQ(pos, text.size()) << static_cast<unsigned>(code);
    }
    EXPECT_EQ(characters, 0x110000u - 0x800u);
}

TEST(Utf8, A_number_that_is_no_character_writes_nothing)
{
    for (const unsigned code : {0xD800u, 0xDFFFu, 0x110000u, 0x11007Fu, 0x110100u, 0xFFFFFFFFu}) {
        std::string text;
        AppendChar(text, static_cast<char32_t>(code));
        EXPECT_EQ(text, "") << code;
    }
}

TEST(Utf8, Boundaries_lie_where_characters_begin)
{
    for (const DecodeCase& row : DecodeCases) {
        std::vector<bool> begins(row.Text.size() + 1, false);
        begins[row.Text.size()] = true;
        for (std::size_t pos = 0; pos < row.Text.size(); NextChar(row.Text, pos))
            begins[pos] = true;
        for (std::size_t pos = 0; pos <= row.Text.size(); ++pos)
            EXPECT_EQ(IsCharBoundary(row.Text, pos), begins[pos]) << row.What << " at " << pos;
    }
}

TEST(Utf8, Ascii_prefix_ends_at_the_first_high_byte)
{
    for (std::size_t length = 0; length < 40; ++length) {
        std::string text(length, 'x');
        EXPECT_EQ(AsciiPrefix(text), length);
        EXPECT_EQ(AsciiPrefix(text + "\x80zzzzzzzzzzzz"), length);
    }
    EXPECT_TRUE(IsAscii(""));
    EXPECT_FALSE(IsAscii("\xFF"));
}

TEST(Utf8, Ascii_case_changes_letters_and_no_other_byte)
{
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    for (std::size_t start = 0; start < 9; ++start) {
        std::string lower = all.substr(start);
        std::string upper = lower;
        AsciiLower(lower.data(), lower.size());
        AsciiUpper(upper.data(), upper.size());
        for (std::size_t i = 0; i < lower.size(); ++i) {
            const int byte = static_cast<unsigned char>(all[start + i]);
            const bool isCapital = byte >= 'A' && byte <= 'Z';
            const bool isSmall = byte >= 'a' && byte <= 'z';
            EXPECT_EQ(static_cast<unsigned char>(lower[i]), isCapital ? byte + 32 : byte);
            EXPECT_EQ(static_cast<unsigned char>(upper[i]), isSmall ? byte - 32 : byte);
        }
    }
}

} // namespace
} // namespace tavo
