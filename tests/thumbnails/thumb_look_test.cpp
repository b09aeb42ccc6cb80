#include "thumbnails/thumb_look.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

struct SchemeRow {
    const char *What, *Record;
    int Height, Width, Border, Align, CellWidth, CellHeight;
    std::array<std::int32_t, 6> Color;
};

constexpr std::int32_t face = -2147483633, highlight = -2147483635, window = -2147483643,
                       text = -2147483630;
constexpr std::array<std::int32_t, 6> usual = {face, highlight, face, text, window, window};

TEST(ThumbLook, A_record_is_read_in_its_order)
{
    static constexpr SchemeRow rows[] = {
        {"empty", "", 80, 80, 3, 2, 90, 90, usual},
        {"two numbers", "100,60", 100, 60, 3, 2, 70, 110, usual},
        {"an empty field is no missing one", "100,,5", 100, 0, 5, 2, 14, 114, usual},
        {"all fields", "1,2,3,30,20,10,1,50,40,60", 1, 2, 3, 1, 12, 11, {10, 20, 30, 40, 50, 60}},
        {"more than ten",
         "1,2,3,30,20,10,0,50,40,60,70",
         1,
         2,
         3,
         0,
         12,
         11,
         {10, 20, 30, 40, 50, 60}},
        {"prefixes", "90px,70 px,x", 90, 70, 0, 2, 74, 94, usual},
        {"rounded half to even", "2.5,3.5,0.5", 2, 4, 0, 2, 8, 6, usual},
        {"beyond 16 bits stays", "40000,50", 80, 50, 3, 2, 60, 90, usual},
        {"a sum beyond stays", "50,32767,3", 50, 32767, 3, 2, 90, 60, usual},
        {"a colour beyond 32 bits stays",
         "80,80,3,2147483648",
         80,
         80,
         3,
         2,
         90,
         90,
         {face, highlight, 0, text, window, window}},
    };
    for (const SchemeRow& row : rows) {
        ThumbLook look;
        Cell_Measure(look);
        Scheme_Take(look, row.Record);
        EXPECT_EQ(look.Height, row.Height) << row.What;
        EXPECT_EQ(look.Width, row.Width) << row.What;
        EXPECT_EQ(look.BorderWidth, row.Border) << row.What;
        EXPECT_EQ(look.Align, row.Align) << row.What;
        EXPECT_EQ(look.CellWidth, row.CellWidth) << row.What;
        EXPECT_EQ(look.CellHeight, row.CellHeight) << row.What;
        EXPECT_EQ(look.Color, row.Color) << row.What;
    }
}

TEST(ThumbLook, The_margin_counts_once_in_a_frame)
{
    ThumbLook look;
    look.Margin = 6;
    Cell_Measure(look);
    EXPECT_EQ(look.CellWidth, 92);
}

TEST(ThumbLook, Pictures_fit_into_the_box)
{
    struct Row {
        int BoxWidth, BoxHeight, Width, Height;
        PixelSize Fit;
    };
    for (const Row& row : {Row{80, 80, 100, 300, {26, 80}}, Row{80, 80, 10, 10, {80, 80}},
                           Row{80, 80, 300, 100, {80, 26}}, Row{60, 100, 640, 480, {60, 45}},
                           Row{80, 80, 80, 80, {80, 80}}, Row{80, 80, 10000, 1, {80, 0}},
                           Row{80, 80, 0, 5, {0, 0}}, Row{0, 80, 10, 10, {0, 0}}}) {
        ThumbLook look;
        look.Width = static_cast<std::int16_t>(row.BoxWidth);
        look.Height = static_cast<std::int16_t>(row.BoxHeight);
        EXPECT_EQ(Thumb_Fit(look, row.Width, row.Height), row.Fit)
            << row.Width << " x " << row.Height;
    }
}

} // namespace
} // namespace tavo
