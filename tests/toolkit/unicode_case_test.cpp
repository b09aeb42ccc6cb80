#include "toolkit/unicode_case.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

TEST(UnicodeCase, Code_points_move_as_Unicode_tells)
{
    struct Row {
        char32_t Code;
        char32_t Upper;
        char32_t Lower;
        char32_t Fold;
    };
    const Row rows[] = {
        {'@', '@', '@', '@'},
        {'A', 'A', 'a', 'a'},
        {'z', 'Z', 'z', 'z'},
        {'[', '[', '[', '['},
        {0xB5, 0x39C, 0xB5, 0x3BC},
        {0xC0, 0xC0, 0xE0, 0xE0},
        {0xD7, 0xD7, 0xD7, 0xD7},
        {0xDF, 0xDF, 0xDF, 0xDF},
        {0xF7, 0xF7, 0xF7, 0xF7},
        {0xFE, 0xDE, 0xFE, 0xFE},
        {0xFF, 0x178, 0xFF, 0xFF},
        {0x130, 0x130, 'i', 0x130},
        {0x131, 'I', 0x131, 0x131},
        {0x17F, 'S', 0x17F, 's'},
        {0x1C5, 0x1C4, 0x1C6, 0x1C6},
        {0x3A3, 0x3A3, 0x3C3, 0x3C3},
        {0x3C2, 0x3A3, 0x3C2, 0x3C3},
        {0x416, 0x416, 0x436, 0x436},
        {0x10D0, 0x1C90, 0x10D0, 0x10D0},
        {0x13A0, 0x13A0, 0xAB70, 0x13A0},
        {0x1E9E, 0x1E9E, 0xDF, 0xDF},
        {0x212A, 0x212A, 'k', 'k'},
        {0x4E2D, 0x4E2D, 0x4E2D, 0x4E2D},
        {0xAB70, 0x13A0, 0xAB70, 0x13A0},
        {0xFF21, 0xFF21, 0xFF41, 0xFF41},
        {0x10400, 0x10400, 0x10428, 0x10428},
        {0x1E943, 0x1E921, 0x1E943, 0x1E943},
        {0x10FFFF, 0x10FFFF, 0x10FFFF, 0x10FFFF},
        {0x110041, 0x110041, 0x110041, 0x110041},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(SimpleUpper(row.Code), row.Upper) << std::hex << static_cast<unsigned>(row.Code);
        EXPECT_EQ(SimpleLower(row.Code), row.Lower) << std::hex << static_cast<unsigned>(row.Code);
        EXPECT_EQ(SimpleFold(row.Code), row.Fold) << std::hex << static_cast<unsigned>(row.Code);
    }
}

// The short ways for Latin letters must tell what the tables tell; the sums
// over all code points would show a row that is lost or shifted.
TEST(UnicodeCase, All_code_points_together_match_Unicode_14)
{
    std::size_t uppers = 0;
    std::size_t lowers = 0;
    std::size_t folds = 0;
    for (char32_t code = 0; code < 0x110000; ++code) {
        uppers += SimpleUpper(code) != code ? 1 : 0;
        lowers += SimpleLower(code) != code ? 1 : 0;
        folds += SimpleFold(code) != code ? 1 : 0;
    }
    EXPECT_EQ(uppers, 1450u);
    EXPECT_EQ(lowers, 1433u);
    EXPECT_EQ(folds, 1454u);
}

TEST(UnicodeCase, Folding_is_done_once_for_all)
{
    for (char32_t code = 0; code < 0x110000; ++code) {
        const char32_t folded = SimpleFold(code);
        ASSERT_EQ(SimpleFold(folded), folded) << std::hex << static_cast<unsigned>(code);
    }
}

} // namespace
} // namespace tavo
