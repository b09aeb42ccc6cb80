#pragma once

#include <optional>
#include <string>
#include <string_view>

// Dates and times as text, in English form whatever the system's language is:
// month first, AM and PM.
namespace tavo {

struct DateTime {
    int Year = 1899; // 100 to 9999 in texts
    int Month = 12;
    int Day = 30; // a time without a date has this day
    int Hour = 0;
    int Minute = 0;
    int Second = 0;

    friend bool operator==(const DateTime&, const DateTime&) = default;
};

int Days_InMonth(int year, int month);           // 0 for a month outside 1 to 12
bool Date_IsValid(int year, int month, int day); // years 100 to 9999
bool Time_IsValid(int hour, int minute, int second);
bool DateTime_IsValid(const DateTime& when);

// Reads a date, a time, or both in either order. Month first, other orders
// where that is no date. Two-digit years are 1930 to 2029; a date without a
// year is in `currentYear`. A plain number counts days from 12/30/1899.
std::optional<DateTime> DateTime_Parse(std::string_view text, int currentYear);

// Writes by a mask of `mm` (minutes right behind `hh`, else month), `dd`,
// `yyyy`, `hh`, `ss` and `AMPM`, which makes `hh` count to 12; anything else
// in the mask stands for itself.
std::string DateTime_Format(const DateTime& when, std::string_view mask);

// Both: the text by the mask, or unchanged when it is no date.
std::string Format_Date(std::string_view text, std::string_view mask, int currentYear);

// Mask of the Modified column, and the one it is sorted by.
inline constexpr std::string_view ModifiedMask = "mm/dd/yyyy hh:mm AMPM";
inline constexpr std::string_view ModifiedSortMask = "yyyy/mm/dd hh:mm";

// Modified cell of a file: `03/09/2001 01:05 PM`. A date out of range stands
// as its plain numbers, the way a text that is no date would.
std::string Modified_Text(const DateTime& when);

// The Modified cell in the form that sorts as text, and back. A text that is
// no date stays.
std::string Modified_To_Sortable(std::string_view text, int currentYear);
std::string Modified_From_Sortable(std::string_view text, int currentYear);

} // namespace tavo
