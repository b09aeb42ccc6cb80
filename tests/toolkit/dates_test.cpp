#include "toolkit/dates.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

constexpr int CurrentYear = 2024;

TEST(Dates, Days_of_a_month_know_leap_years)
{
    const int rows[][3] = {
        {2001, 2, 28},  {2000, 2, 29}, {1900, 2, 28}, {2004, 2, 29}, {2001, 4, 30},
        {2001, 12, 31}, {2001, 0, 0},  {2001, 13, 0}, {2001, -1, 0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Days_InMonth(row[0], row[1]), row[2]) << row[0] << '/' << row[1];
}

TEST(Dates, Valid_dates_and_times_have_limits)
{
    EXPECT_TRUE(Date_IsValid(100, 1, 1));
    EXPECT_TRUE(Date_IsValid(9999, 12, 31));
    EXPECT_FALSE(Date_IsValid(99, 1, 1));
    EXPECT_FALSE(Date_IsValid(10000, 1, 1));
    EXPECT_FALSE(Date_IsValid(2001, 2, 29));
    EXPECT_FALSE(Date_IsValid(2001, 2, 0));
    EXPECT_TRUE(Time_IsValid(23, 59, 59));
    EXPECT_FALSE(Time_IsValid(24, 0, 0));
    EXPECT_FALSE(Time_IsValid(0, 60, 0));
    EXPECT_FALSE(Time_IsValid(0, 0, 60));
    EXPECT_FALSE(Time_IsValid(-1, 0, 0));
}

TEST(Dates, Masks_write_their_parts)
{
    const DateTime when{2001, 3, 7, 13, 5, 9};
    struct Row {
        std::string_view Mask;
        std::string_view Text;
    };
    const Row rows[] = {
        {"mm/dd/yyyy", "03/07/2001"},
        {"hh:mm AMPM", "01:05 PM"},
        {"hh:mm:ss AMPM", "01:05:09 PM"},
        {"hh:mm:ss", "13:05:09"},
        {"mm/dd/yyyy hh:mm AMPM", "03/07/2001 01:05 PM"},
        {"yyyy/mm/dd hh:mm", "2001/03/07 13:05"},
        {"yyyy/mm/dd hh:mm:ss mm", "2001/03/07 13:05:09 03"},
        {"", ""},
        {"'x'", "'x'"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(DateTime_Format(when, row.Mask), row.Text) << row.Mask;
}

TEST(Dates, Twelve_hours_run_from_12_to_11)
{
    const std::string_view texts[24] = {
        "12 AM", "01 AM", "02 AM", "03 AM", "04 AM", "05 AM", "06 AM", "07 AM",
        "08 AM", "09 AM", "10 AM", "11 AM", "12 PM", "01 PM", "02 PM", "03 PM",
        "04 PM", "05 PM", "06 PM", "07 PM", "08 PM", "09 PM", "10 PM", "11 PM",
    };
    for (int hour = 0; hour < 24; ++hour) {
        const DateTime when{2001, 3, 7, hour, 0, 0};
        EXPECT_EQ(DateTime_Format(when, "hh AMPM"), texts[hour]);
    }
}

TEST(Dates, Years_are_written_with_four_digits)
{
    EXPECT_EQ(Format_Date("3/7/345", "mm/dd/yyyy", CurrentYear), "03/07/0345");
    EXPECT_EQ(Format_Date("3/7/99", "mm/dd/yyyy", CurrentYear), "03/07/1999");
}

TEST(Dates, A_date_and_time_takes_any_mask)
{
    const std::string_view text = "03/09/2001 01:05 PM";
    EXPECT_EQ(Format_Date(text, "mm/dd/yyyy", CurrentYear), "03/09/2001");
    EXPECT_EQ(Format_Date(text, "hh:mm:ss", CurrentYear), "13:05:00");
    EXPECT_EQ(Format_Date("9:5", "mm/dd/yyyy", CurrentYear), "12/30/1899");
    EXPECT_EQ(Format_Date("3/9/2001", "hh:mm:ss AMPM", CurrentYear), "12:00:00 AM");
}

TEST(Dates, The_Modified_cell_is_the_date_by_its_mask)
{
    for (int step = 0; step < 4000; ++step) {
        const DateTime when{100 + step * 2, step % 12 + 1, step % 28 + 1,
                            step % 24,      step % 60,     step % 60};
        const std::string text = Modified_Text(when);
        ASSERT_EQ(text, DateTime_Format(when, ModifiedMask));
        const std::string sortable = Modified_To_Sortable(text, CurrentYear);
        ASSERT_EQ(sortable, DateTime_Format(when, ModifiedSortMask));
        ASSERT_EQ(Modified_From_Sortable(sortable, CurrentYear), text);
    }
}

TEST(Dates, A_Modified_cell_out_of_range_stands_as_plain_numbers)
{
    EXPECT_EQ(Modified_Text({12345, 3, 7, 13, 5, 0}), "3/7/12345 01:05 PM");
    EXPECT_EQ(Modified_Text({50, 3, 7, 0, 5, 0}), "3/7/50 12:05 AM");
    EXPECT_EQ(Modified_Text({-5, 13, 7, 25, 5, 0}), "13/7/-5 25:5");
}

TEST(Dates, Swapping_reads_other_forms_and_leaves_what_is_no_date)
{
    struct Row {
        std::string_view Text;
        std::string_view Sortable;
        std::string_view Back;
    };
    const Row rows[] = {
        {"03/09/2001 01:05 PM", "2001/03/09 13:05", "03/09/2001 01:05 PM"},
        {"03/09/2001 12:00 AM", "2001/03/09 00:00", "03/09/2001 12:00 AM"},
        {"03/09/2001 12:00 PM", "2001/03/09 12:00", "03/09/2001 12:00 PM"},
        {"03/09/2001 00:30 PM", "2001/03/09 12:30", "03/09/2001 12:30 PM"},
        {"03/09/2001 13:05 AM", "2001/03/09 13:05", "03/09/2001 01:05 PM"},
        {"13/09/2001 01:05 PM", "2001/09/13 13:05", "09/13/2001 01:05 PM"},
        {"3/9/2001 1:05 PM", "2001/03/09 13:05", "03/09/2001 01:05 PM"},
        {"02/30/2001 01:05 PM", "02/30/2001 01:05 PM", "02/30/2001 01:05 PM"},
        {"03/09/2001 01:60 PM", "03/09/2001 01:60 PM", "03/09/2001 01:60 PM"},
        {"", "", ""},
        {"-", "-", "-"},
        {"no date", "no date", "no date"},
        {"\xFF", "\xFF", "\xFF"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Modified_To_Sortable(row.Text, CurrentYear), row.Sortable) << row.Text;
        EXPECT_EQ(Modified_From_Sortable(row.Sortable, CurrentYear), row.Back) << row.Text;
    }
}

} // namespace
} // namespace tavo
