#include "fileactions/time_text.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

SystemTime At(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return {year, month, 0, day, hour, minute, second, 0};
}

std::string Numbers(const SystemTime& t)
{
    std::string text;
    for (const int field : {t.Year, t.Month, t.Day, t.Hour, t.Minute, t.Second})
        text += std::to_string(field) + " ";
    return text;
}

struct RepairCase {
    const char* What;
    SystemTime Read, Repaired;
};

const RepairCase repairCases[] = {
    {"good", At(2001, 3, 7, 21, 5, 12), At(2001, 3, 7, 21, 5, 12)},
    {"the ends", At(1900, 1, 1, 0, 0, 0), At(1900, 1, 1, 0, 0, 0)},
    {"the other ends", At(9999, 12, 31, 23, 59, 59), At(9999, 12, 31, 23, 59, 59)},
    {"nothing at all", At(0, 0, 0), At(1967, 2, 20)},
    {"month below", At(2001, 0, 7), At(2001, 2, 7)},
    {"month above", At(2001, 13, 7), At(2001, 2, 7)},
    {"day below", At(2001, 3, 0), At(2001, 3, 20)},
    {"day above", At(2001, 3, 32), At(2001, 3, 20)},
    {"year below keeps the rest", At(1899, 3, 7, 21, 5, 12), At(1967, 3, 7, 21, 5, 12)},
    {"year above", At(10000, 3, 7), At(1967, 3, 7)},
    {"hour above", At(2001, 3, 7, 24, 5, 12), At(2001, 3, 7, 0, 5, 12)},
    {"hour below", At(2001, 3, 7, -1, 5, 12), At(2001, 3, 7, 0, 5, 12)},
    {"minute above", At(2001, 3, 7, 21, 60, 12), At(2001, 3, 7, 21, 0, 12)},
    {"minute below", At(2001, 3, 7, 21, -1, 12), At(2001, 3, 7, 21, 0, 12)},
    {"second above takes the minute", At(2001, 3, 7, 21, 5, 60), At(2001, 3, 7, 21, 0, 60)},
    {"second below takes the minute", At(2001, 3, 7, 21, 5, -1), At(2001, 3, 7, 21, 0, -1)},
};

TEST(TimeText, Fields_out_of_range_get_their_fixed_values)
{
    for (const RepairCase& row : repairCases) {
        SystemTime time = row.Read;
        Time_Repair(time);
        EXPECT_EQ(Numbers(time), Numbers(row.Repaired)) << row.What;
    }
}

struct ToTextCase {
    SystemTime Time;
    const char* Text;
};

const ToTextCase toTextCases[] = {
    {At(2001, 3, 7, 21, 5, 12), "03/07/2001|09:05:12 PM"},
    {At(2001, 3, 8, 0, 0, 0), "03/08/2001|12:00:00 AM"},
    {At(2001, 12, 31, 12, 0, 0), "12/31/2001|12:00:00 PM"},
    {At(9999, 1, 1, 23, 59, 59), "01/01/9999|11:59:59 PM"},
    {At(1967, 2, 20), "02/20/1967|12:00:00 AM"},
    {At(1967, 2, 29, 9, 5, 2), "2/29/1967|09:05:02 AM"},
    {At(2001, 3, 7, 9, 0, 75), "03/07/2001|9:0:75"},
};

TEST(TimeText, A_time_reads_month_first_with_AM_and_PM)
{
    for (const ToTextCase& row : toTextCases)
        EXPECT_EQ(Time_To_Text(row.Time), row.Text) << Numbers(row.Time);
}

struct ParseCase {
    const char* Text;
    SystemTime Time;
};

const ParseCase parseCases[] = {
    {"03/07/2001|09:05:12 PM", At(2001, 3, 7, 21, 5, 12)},
    {"03/07/2001|21:05:12", At(2001, 3, 7, 21, 5, 12)},
    {"03/07/2001|12:00:00 AM", At(2001, 3, 7)},
    {"03/07/2001|12:00:00 PM", At(2001, 3, 7, 12)},
    {"03/07/2001|13:05:07 PM", At(2001, 3, 7, 13, 5, 7)},
    {"3/7/2001|9:5:2", At(2001, 3, 7, 9, 5, 2)},
    // No date and no time: the numbers that stand in the places of theirs.
    {"02/30/2001|09:05:12 PM", At(2001, 2, 30, 21, 5, 12)},
    {"02/30/2001|25:05:12", At(2001, 2, 30, 25, 5, 12)},
    {"__/__/____|09:05:12 PM", At(0, 0, 0, 21, 5, 12)},
    {"1_/05/2001|00:00:00", At(2001, 0, 5)},
    {"03/07/2001|09:__:__ AM", At(2001, 3, 7, 9)},
    {"03/07/2001|09:30:__ PM", At(2001, 3, 7, 9, 30)},
    {"03/07/2001|", At(2001, 3, 7)},
    {"03/07/2001", At(2001, 3, 7)},
    {"", At(0, 0, 0)},
    {"|", At(0, 0, 0)},
    // The first bar alone parts.
    {"03/07/2001|09:05:12 PM|x", At(2001, 3, 7, 9, 5, 0)},
};

TEST(TimeText, Both_forms_of_a_time_are_read)
{
    for (const ParseCase& row : parseCases)
        EXPECT_EQ(Numbers(Time_Text_Parse(row.Text)), Numbers(row.Time)) << row.Text;
}

TEST(TimeText, Every_second_of_a_day_comes_back)
{
    for (int second = 0; second < 86400; second += 7) {
        const SystemTime time = At(2004, 2, 29, second / 3600, second / 60 % 60, second % 60);
        ASSERT_EQ(Numbers(Time_Text_Parse(Time_To_Text(time))), Numbers(time));
    }
}

TEST(TimeText, The_undo_record_holds_the_three_texts)
{
    const FileTimes times{"03/07/2001|09:05:12 PM", "03/07/2001|09:05:13 PM",
                          "03/08/2001|12:00:00 AM"};
    const std::string record =
        "DT: 03/07/2001|09:05:12 PM=03/07/2001|09:05:13 PM=03/08/2001|12:00:00 AM";
    EXPECT_EQ(DT_Undo_Build(times), record);
    FileTimes back;
    DT_Undo_Parse(record, back);
    EXPECT_EQ(back.Created, times.Created);
    EXPECT_EQ(back.Modified, times.Modified);
    EXPECT_EQ(back.Accessed, times.Accessed);
}

struct RecordCase {
    const char *Record, *Created, *Modified, *Accessed;
};

const RecordCase recordCases[] = {
    {"DT: ==", "", "", ""},           {"", "", "", ""},          {"DT:", "", "", ""},
    {"DT: a", "a", "", ""},           {"DT: a=b", "a", "b", ""}, {"dt: a=b=c", "a", "b", "c"},
    {"xxxxa=b=c=d", "a", "b", "c=d"},
};

TEST(TimeText, A_record_is_read_by_its_signs_alone)
{
    for (const RecordCase& row : recordCases) {
        FileTimes times{"old", "old", "old"};
        DT_Undo_Parse(row.Record, times);
        EXPECT_EQ(times.Created, row.Created) << row.Record;
        EXPECT_EQ(times.Modified, row.Modified) << row.Record;
        EXPECT_EQ(times.Accessed, row.Accessed) << row.Record;
    }
}

struct BoxCase {
    const char *Typed, *Left;
};

const BoxCase dateCases[] = {
    {"03/07/2001", "03/07/2001"},
    {"00/07/2001", "01/07/2001"},
    {"13/07/2001", "12/07/2001"},
    {"99/07/2001", "12/07/2001"},
    {"03/00/2001", "03/01/2001"},
    {"03/31/2001", "03/31/2001"},
    {"03/32/2001", "03/28/2001"},
    {"12/99/2001", "12/28/2001"},
    {"02/99/2001", "02/28/2001"},
    {"03/07/1899", "03/07/2024"},
    {"03/07/1900", "03/07/1900"},
    {"03/07/0000", "03/07/2024"},
    {"03/07/9999", "03/07/9999"},
    {"__/__/____", "01/01/2024"},
    {"3_/7_/2001", "03/07/2001"},
    {"_3/_7/2001", "01/01/2001"},
    {"03/07/20__", "03/07/2024"},
    {"02/29/2004", "02/29/2004"},
    // No such date: as it was typed.
    {"02/30/2001", "02/30/2001"},
    {"02/29/2001", "02/29/2001"},
    {"04/31/2001", "04/31/2001"},
    {"2_/30/2001", "2_/30/2001"},
};

TEST(TimeText, A_date_box_is_mended_when_it_is_left)
{
    for (const BoxCase& row : dateCases)
        EXPECT_EQ(Date_Box_Text(row.Typed, 2024), row.Left) << row.Typed;
}

const BoxCase timeCases[] = {
    {"09:05:12 PM", "09:05:12 PM"}, {"12:00:00 AM", "12:00:00 AM"}, {"12:00:00 PM", "12:00:00 PM"},
    {"13:00:00 PM", "12:00:00 PM"}, {"13:00:00 AM", "12:00:00 AM"}, {"99:05:12 PM", "12:05:12 PM"},
    {"00:30:00 PM", "12:30:00 PM"}, {"00:30:00 AM", "12:30:00 AM"}, {"13:05:12 __", "01:05:12 PM"},
    {"23:59:59 XX", "11:59:59 PM"}, {"24:05:12 __", "12:05:12 AM"}, {"23:59:59 am", "11:59:59 PM"},
    {"09:05:12 A_", "09:05:12 AM"}, {"21:05:12 P_", "09:05:12 PM"}, {"09:60:12 AM", "09:59:12 AM"},
    {"09:05:60 AM", "09:05:59 AM"}, {"09:99:99 PM", "09:59:59 PM"}, {"__:__:__ __", "12:00:00 AM"},
    {"__:__:__ PM", "12:00:00 PM"}, {"9_:5_:2_ PM", "09:05:02 PM"}, {"-1:05:12 AM", "01:05:12 AM"},
    {"-1:05:12 __", "01:05:12 AM"}, {"09:-5:12 AM", "09:00:12 AM"}, {"09:05:-2 AM", "09:05:00 AM"},
};

TEST(TimeText, A_time_box_ends_in_12_hours_when_it_is_left)
{
    for (const BoxCase& row : timeCases)
        EXPECT_EQ(Time_Box_Text(row.Typed), row.Left) << row.Typed;
}

} // namespace
} // namespace tavo
