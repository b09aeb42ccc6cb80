#include "toolkit/dates.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

constexpr int CurrentYear = 2023;

struct FormatRow {
    std::string_view Text;
    std::string_view Formatted;
};

TEST(DateParse, A_text_that_is_no_date_passes_through)
{
    const std::string_view rows[] = {
        "abc",
        "02/30/2001",
        "0/5/2001",
        "13/13/2001",
        "__/__/____",
        "09:__:__ AM",
        "24:00",
        "9:60",
        "009:05",
        "25:00:00",
        "3/7/2001|9:05:00",
        "",
        " ",
        "30/2/2001",
        "9:05:02.5",
        "9:05.02",
        "9:05:02:03",
        "9:05:",
        ":05",
        "3/7/",
        "/3/7",
        "3//7",
        "3/7/2001/5",
        "3 7 2001",
        "3,7,2001",
        "3/7/10000",
        "3/7/12345",
        "2001/2/30",
        "1/2001/3",
        "3.7.2001",
        "3/7/2001 9",
        "9:05 3/7/2001 9:05",
        "9 10:05",
        "3/7/2001 25:00",
        "Mar",
        "Mar Apr 7",
        "Ma 7",
        "Mar 32 7 8",
        "Marx 7",
        "PM",
        "9:05 XM",
        "12345678",
        "1e3",
        "$5",
        "&H10",
        "1,234",
        "2958466",
        "-657435",
        "-",
        "3/7/2001 PM",
        "Mar 7 PM 9:05",
        "3/7/2001T09:05",
        "3/7/99999999999",
        "99999999999999999999999",
        "\xFF",
        "3/7/2001\xFF",
        "13:05 13:05",
    };
    for (const std::string_view row : rows) {
        EXPECT_EQ(Format_Date(row, "mm/dd/yyyy", CurrentYear), row);
        EXPECT_EQ(Format_Date(row, "hh:mm:ss", CurrentYear), row);
    }
}

TEST(DateParse, Dates_are_month_first_and_tried_otherwise)
{
    const FormatRow rows[] = {
        {"3/7/2001", "03/07/2001"},
        {"03/07/2001", "03/07/2001"},
        {"13/05/2001", "05/13/2001"},
        {"2/30/01", "01/30/2002"},
        {"2001/3/7", "03/07/2001"},
        {"2001-03-07", "03/07/2001"},
        {"2001/13/5", "05/13/2001"},
        {"3-7-2001", "03/07/2001"},
        {"Mar 7, 2001", "03/07/2001"},
        {"March 7 2001", "03/07/2001"},
        {"7 Mar 2001", "03/07/2001"},
        {"7-mar-01", "03/07/2001"},
        {"2001 MAR 7", "03/07/2001"},
        {"Sept 30, 1999", "09/30/1999"},
        {"Mar 7", "03/07/2023"},
        {"Mar 2001", "03/01/2001"},
        {"Mar 45", "03/01/1945"},
        {"3/7", "03/07/2023"},
        {"13/5", "05/13/2023"},
        {"7/2001", "07/01/2001"},
        {"2001/7", "07/01/2001"},
        {"2/29", "02/01/2029"},
        {"2/30", "02/01/1930"},
        {" 3 / 7 / 2001 ", "03/07/2001"},
        {"2/29/2000", "02/29/2000"},
        {"12/31/9999", "12/31/9999"},
        {"1/1/100", "01/01/0100"},
        {"3/7/2001 9:05", "03/07/2001"},
        {"9:05 PM 3/7/2001", "03/07/2001"},
    };
    for (const FormatRow& row : rows)
        EXPECT_EQ(Format_Date(row.Text, "mm/dd/yyyy", CurrentYear), row.Formatted) << row.Text;
}

TEST(DateParse, Two_digit_years_are_1930_to_2029)
{
    const FormatRow rows[] = {
        {"3/7/00", "03/07/2000"}, {"3/7/1", "03/07/2001"},  {"3/7/29", "03/07/2029"},
        {"3/7/30", "03/07/1930"}, {"3/7/49", "03/07/1949"}, {"3/7/99", "03/07/1999"},
    };
    for (const FormatRow& row : rows)
        EXPECT_EQ(Format_Date(row.Text, "mm/dd/yyyy", CurrentYear), row.Formatted) << row.Text;
}

TEST(DateParse, A_plain_number_counts_days)
{
    const FormatRow rows[] = {
        {"0", "12/30/1899 00:00:00"},        {"1", "12/31/1899 00:00:00"},
        {"36957", "03/07/2001 00:00:00"},    {"36957.5", "03/07/2001 12:00:00"},
        {"-1", "12/29/1899 00:00:00"},       {"-1.75", "12/29/1899 18:00:00"},
        {"0.999999", "12/31/1899 00:00:00"}, {"-657434", "01/01/0100 00:00:00"},
        {"2958465", "12/31/9999 00:00:00"},  {"2958465.999999", "2958465.999999"},
    };
    for (const FormatRow& row : rows)
        EXPECT_EQ(Format_Date(row.Text, "mm/dd/yyyy hh:mm:ss", CurrentYear), row.Formatted)
            << row.Text;
}

TEST(DateParse, Times_are_read_with_and_without_half_days)
{
    const FormatRow rows[] = {
        {"9:5", "09:05:00"},
        {"9.05.02", "09:05:02"},
        {"9:05:02", "09:05:02"},
        {"12:00:00 AM", "00:00:00"},
        {"12:00 PM", "12:00:00"},
        {"0:30 PM", "12:30:00"},
        {"13:05:07 PM", "13:05:07"},
        {"13:00 AM", "13:00:00"},
        {"1:05pm", "13:05:00"},
        {"1:05 p", "13:05:00"},
        {"9 PM", "21:00:00"},
        {"9PM", "21:00:00"},
        {"12 a", "00:00:00"},
        {"23:59:59", "23:59:59"},
        {"0:0:0", "00:00:00"},
        {"3/7/2001 9:05 PM", "21:05:00"},
        {"9:05 PM 3/7/2001", "21:05:00"},
        {"Mar 7, 2001 9 PM", "21:00:00"},
        {"3/7/2001", "00:00:00"},
    };
    for (const FormatRow& row : rows)
        EXPECT_EQ(Format_Date(row.Text, "hh:mm:ss", CurrentYear), row.Formatted) << row.Text;
}

TEST(DateParse, A_time_alone_has_the_first_day)
{
    const auto when = DateTime_Parse("9:05:02 PM", CurrentYear);
    ASSERT_TRUE(when);
    EXPECT_EQ(*when, (DateTime{1899, 12, 30, 21, 5, 2}));
}

TEST(DateParse, Every_day_of_three_centuries_comes_back)
{
    for (int year = 1800; year < 2100; ++year) {
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= Days_InMonth(year, month); ++day) {
                const DateTime when{year, month, day, 7, 8, 9};
                const std::string text = DateTime_Format(when, "mm/dd/yyyy hh:mm:ss AMPM");
                ASSERT_EQ(DateTime_Parse(text, CurrentYear), when) << text;
            }
        }
    }
}

} // namespace
} // namespace tavo
