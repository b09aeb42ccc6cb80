#include "toolkit/code_page.h"

#include "toolkit/utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace tavo {
namespace {

TEST(CodePage, Every_byte_goes_there_and_back)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        const std::string text = Cp1252ToUtf8(one);
        std::size_t pos = 0;
        EXPECT_FALSE(NextChar(text, pos).IsStray()) << byte;
        EXPECT_EQ(pos, text.size()) << byte;
        EXPECT_EQ(Utf8ToCp1252(text), one) << byte;
    }
}

TEST(CodePage, Bytes_80_to_9F_have_characters_of_their_own)
{
    const char32_t codes[32] = {
        0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178,
    };
    for (unsigned i = 0; i < 256; ++i) {
        const char32_t wanted = i >= 0x80 && i < 0xA0 ? codes[i - 0x80] : i;
        EXPECT_EQ(Cp1252ToCode(static_cast<unsigned char>(i)), wanted) << i;
    }
}

TEST(CodePage, Characters_outside_become_question_marks)
{
    struct Row {
        const char* What;
        std::string_view Text;
        std::string_view Bytes;
    };
    const Row rows[] = {
        {"plain", "abc?", "abc?"},
        {"e acute", "\xC3\xA9", "\xE9"},
        {"euro", "\xE2\x82\xAC", "\x80"},
        {"c caron", "\xC4\x8D", "?"},
        {"l stroke", "\xC5\x82", "?"},
        {"dotted capital I", "\xC4\xB0", "?"},
        {"alpha", "\xCE\xB1", "?"},
        {"minus sign", "\xE2\x88\x92", "?"},
        {"full-width star", "\xEF\xBC\x8A", "?"},
        {"beyond the first plane",
         "a\xF0\x9F\x98\x80"
         "b",
         "a?b"},
        {"combining grave", "e\xCC\x80", "e?"},
        {"control 80", "\xC2\x80", "?"},
        {"control 81", "\xC2\x81", "\x81"},
        {"control 85", "\xC2\x85", "?"},
        {"control 9F", "\xC2\x9F", "?"},
        {"stray byte", "\xC3\xA9\xE9", "\xE9\xE9"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Utf8ToCp1252(row.Text), row.Bytes) << row.What;
}

TEST(CodePage, Case_pairs_are_those_of_the_page)
{
    const auto lowerOf = [](int byte) {
        const bool plain = byte >= 'A' && byte <= 'Z';
        const bool latin = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
        if (plain || latin)
            return byte + 32;
        if (byte == 0x8A || byte == 0x8C || byte == 0x8E)
            return byte + 16;
        return byte == 0x9F ? 0xFF : byte;
    };
    for (int byte = 0; byte < 256; ++byte) {
        const int lower = lowerOf(byte);
        EXPECT_EQ(Cp1252Lower(static_cast<unsigned char>(byte)), lower) << byte;
        if (lower != byte) {
            EXPECT_EQ(Cp1252Upper(static_cast<unsigned char>(lower)), byte) << byte;
            EXPECT_EQ(Cp1252Upper(static_cast<unsigned char>(byte)), byte) << byte;
        }
    }
    for (const int byte : {0xDF, 0x83, 0xAA, 0xB5, 0xBA, 0xD7, 0xF7, int{'@'}, int{'{'}})
        EXPECT_EQ(Cp1252Upper(static_cast<unsigned char>(byte)), byte) << byte;
}

} // namespace
} // namespace tavo
