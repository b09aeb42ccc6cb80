#include "controls/rgb.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

TEST(Rgb, A_colour_comes_apart)
{
    struct Row {
        std::uint32_t Color;
        int Red, Green, Blue;
    };
    for (const Row& row :
         {Row{0x000000, 0, 0, 0}, Row{0xFFFFFF, 255, 255, 255}, Row{0xC0E0FF, 255, 0xE0, 0xC0},
          Row{0x0000C0, 0xC0, 0, 0}, Row{0x80000005, 5, 0, 0}, Row{0x8000000F, 15, 0, 0}}) {
        RGB rgb;
        rgb.SetColor(static_cast<std::int32_t>(row.Color));
        EXPECT_EQ(rgb.Red(), row.Red) << row.Color;
        EXPECT_EQ(rgb.Green(), row.Green) << row.Color;
        EXPECT_EQ(rgb.Blue(), row.Blue) << row.Color;
    }
}

TEST(Rgb, Red_lies_in_the_low_byte)
{
    EXPECT_EQ(RGB::Pack(1, 2, 3), 0x030201);
    EXPECT_EQ(RGB::Pack(255, 255, 255), 0xFFFFFF);
}

} // namespace
} // namespace tavo
