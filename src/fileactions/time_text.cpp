#include "fileactions/time_text.h"

#include "selection/paths.h"
#include "toolkit/dates.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr std::string_view undoMark = "DT: ";

// Every date here names its year: the boxes have given it one.
constexpr int noYear = 0;

struct FieldRule {
    int SystemTime::*Checked;
    int Low, High;
    int SystemTime::*Repaired;
    int Replacement;
};

// A second out of range takes the minute with it and stays itself; that is as
// old as the rest of the table and shows such a stamp for what it is.
constexpr FieldRule fieldRules[] = {
    {&SystemTime::Month, 1, 12, &SystemTime::Month, 2},
    {&SystemTime::Day, 1, 31, &SystemTime::Day, 20},
    {&SystemTime::Year, 1900, 9999, &SystemTime::Year, 1967},
    {&SystemTime::Hour, 0, 23, &SystemTime::Hour, 0},
    {&SystemTime::Minute, 0, 59, &SystemTime::Minute, 0},
    {&SystemTime::Second, 0, 59, &SystemTime::Minute, 0},
};

std::string Joined(int first, char sign, int second, int third)
{
    return std::to_string(first) + sign + std::to_string(second) + sign + std::to_string(third);
}

int Field_Parse(const std::string& text)
{
    return ParseI16(text).value_or(0);
}

// The number that a person has typed so far.
int Typed_Value(const std::string& text)
{
    return static_cast<int>(Val(text));
}

int Held(int value, int low, int high)
{
    return std::clamp(value, low, high);
}

} // namespace

void Time_Repair(SystemTime& time)
{
    for (const FieldRule& rule : fieldRules)
        if (time.*rule.Checked < rule.Low || time.*rule.Checked > rule.High)
            time.*rule.Repaired = rule.Replacement;
}

std::string Time_To_Text(const SystemTime& time)
{
    const DateTime when{time.Year, time.Month, time.Day, time.Hour, time.Minute, time.Second};
    if (DateTime_IsValid(when))
        return DateTime_Format(when, "mm/dd/yyyy|hh:mm:ss AMPM");
    const std::string date = Joined(time.Month, '/', time.Day, time.Year);
    const std::string clock = Joined(time.Hour, ':', time.Minute, time.Second);
    return Format_Date(date, dateMask, noYear) + '|' + Format_Date(clock, time12Mask, noYear);
}

SystemTime Time_Text_Parse(std::string_view text)
{
    std::string rest(text);
    const std::string date = Format_Date(Str_GetToken(rest, "|", ""), dateMask, noYear);
    const std::string clock = Format_Date(rest, time24Mask, noYear);
    SystemTime time;
    time.Month = Field_Parse(Left(date, 2));
    time.Day = Field_Parse(Mid(date, 4, 2));
    time.Year = Field_Parse(Right(date, 4));
    time.Hour = Field_Parse(Left(clock, 2));
    time.Minute = Field_Parse(Mid(clock, 4, 2));
    time.Second = Field_Parse(Right(clock, 2));
    return time;
}

std::string DT_Undo_Build(const FileTimes& times)
{
    return std::string(undoMark) + times.Created + '=' + times.Modified + '=' + times.Accessed;
}

void DT_Undo_Parse(std::string_view record, FileTimes& times)
{
    times.Accessed = Mid(record, static_cast<int>(undoMark.size()) + 1);
    times.Created = Str_GetToken(times.Accessed, "=", "");
    times.Modified = Str_GetToken(times.Accessed, "=", "");
}

std::string Date_Box_Text(std::string_view typed, int currentYear)
{
    constexpr int lastDay = 31, dayBeyondIt = 28, firstYear = 1900;
    const int month = Held(Typed_Value(Left(typed, 2)), 1, 12);
    int day = std::max(1, Typed_Value(Mid(typed, 4, 2)));
    if (day > lastDay)
        day = dayBeyondIt;
    int year = Typed_Value(Right(typed, 4));
    if (year < firstYear)
        year = currentYear;
    if (!Date_IsValid(year, month, day))
        return std::string(typed);
    return Format_Date(Joined(month, '/', day, year), dateMask, currentYear);
}

std::string Time_Box_Text(std::string_view typed)
{
    const std::string suffix = Right(typed, 2);
    const bool isHalfDay = suffix == "AM" || suffix == "PM";
    int hour = Typed_Value(Left(typed, 2));
    if (hour < 0)
        hour = 1;
    else if (isHalfDay)
        hour = std::min(hour, 12);
    else if (hour > 23)
        hour = 0;
    const int minute = Held(Typed_Value(Mid(typed, 4, 2)), 0, 59);
    const int second = Held(Typed_Value(Mid(typed, 7, 2)), 0, 59);
    const std::string clock = Joined(hour, ':', minute, second);
    return Format_Date(isHalfDay ? clock + ' ' + suffix : clock, time12Mask, noYear);
}

} // namespace tavo
