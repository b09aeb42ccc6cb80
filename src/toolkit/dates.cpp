#include "toolkit/dates.h"

#include <array>
#include <cstddef>

namespace tavo {

namespace {

constexpr bool IsDigit(char sign)
{
    return sign >= '0' && sign <= '9';
}

bool IsLeapYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int HourOf12(int hour)
{
    return hour % 12 == 0 ? 12 : hour % 12;
}

void AppendPadded(std::string& out, int value, std::size_t width)
{
    const std::string digits = std::to_string(value);
    if (digits.size() < width)
        out.append(width - digits.size(), '0');
    out += digits;
}

enum class Part { Year, Month, Day, Hour, Minute, Second, HalfDay };

struct MaskWord {
    std::string_view Word;
    Part What;
};

constexpr MaskWord MaskWords[] = {
    {"yyyy", Part::Year}, {"mm", Part::Month},  {"dd", Part::Day},
    {"hh", Part::Hour},   {"ss", Part::Second}, {"AMPM", Part::HalfDay},
};

const MaskWord* MaskWordAt(std::string_view mask, std::size_t pos)
{
    for (const MaskWord& each : MaskWords) {
        if (mask.substr(pos, each.Word.size()) == each.Word)
            return &each;
    }
    return nullptr;
}

void AppendPart(std::string& out, const DateTime& when, Part part, bool is12Hours)
{
    switch (part) {
    case Part::Year: return AppendPadded(out, when.Year, 4);
    case Part::Month: return AppendPadded(out, when.Month, 2);
    case Part::Day: return AppendPadded(out, when.Day, 2);
    case Part::Hour: return AppendPadded(out, is12Hours ? HourOf12(when.Hour) : when.Hour, 2);
    case Part::Minute: return AppendPadded(out, when.Minute, 2);
    case Part::Second: return AppendPadded(out, when.Second, 2);
    case Part::HalfDay: out += when.Hour < 12 ? "AM" : "PM";
    }
}

void PutTwo(char* out, int value)
{
    out[0] = static_cast<char>('0' + value / 10);
    out[1] = static_cast<char>('0' + value % 10);
}

void PutFour(char* out, int value)
{
    PutTwo(out, value / 100);
    PutTwo(out + 2, value % 100);
}

// `mm/dd/yyyy hh:mm AM` of a valid date.
std::string ModifiedOf(const DateTime& when)
{
    std::string text("mm/dd/yyyy hh:mm AM");
    char* const out = text.data();
    PutTwo(out, when.Month);
    PutTwo(out + 3, when.Day);
    PutFour(out + 6, when.Year);
    PutTwo(out + 11, HourOf12(when.Hour));
    PutTwo(out + 14, when.Minute);
    out[17] = when.Hour < 12 ? 'A' : 'P';
    return text;
}

// `yyyy/mm/dd hh:mm` of a valid date.
std::string SortableOf(const DateTime& when)
{
    std::string text("yyyy/mm/dd hh:mm");
    char* const out = text.data();
    PutFour(out, when.Year);
    PutTwo(out + 5, when.Month);
    PutTwo(out + 8, when.Day);
    PutTwo(out + 11, when.Hour);
    PutTwo(out + 14, when.Minute);
    return text;
}

// True when the text has the very form: a `0` in it stands for any digit.
bool HasForm(std::string_view text, std::string_view form)
{
    if (text.size() != form.size())
        return false;
    for (std::size_t i = 0; i < form.size(); ++i) {
        if (form[i] == '0' ? !IsDigit(text[i]) : text[i] != form[i])
            return false;
    }
    return true;
}

int TwoAt(std::string_view text, std::size_t pos)
{
    return (text[pos] - '0') * 10 + (text[pos + 1] - '0');
}

int FourAt(std::string_view text, std::size_t pos)
{
    return TwoAt(text, pos) * 100 + TwoAt(text, pos + 2);
}

std::optional<DateTime> IfValid(const DateTime& when)
{
    return DateTime_IsValid(when) ? std::optional(when) : std::nullopt;
}

// The exact form of the Modified column; nullopt for any other text.
std::optional<DateTime> ReadModified(std::string_view text)
{
    const bool isPm = HasForm(text, "00/00/0000 00:00 PM");
    if (!isPm && !HasForm(text, "00/00/0000 00:00 AM"))
        return std::nullopt;
    const int hour = TwoAt(text, 11);
    if (hour > 12)
        return std::nullopt;
    return IfValid({FourAt(text, 6), TwoAt(text, 0), TwoAt(text, 3), hour % 12 + (isPm ? 12 : 0),
                    TwoAt(text, 14), 0});
}

std::optional<DateTime> ReadSortable(std::string_view text)
{
    if (!HasForm(text, "0000/00/00 00:00"))
        return std::nullopt;
    return IfValid(
        {FourAt(text, 0), TwoAt(text, 5), TwoAt(text, 8), TwoAt(text, 11), TwoAt(text, 14), 0});
}

} // namespace

int Days_InMonth(int year, int month)
{
    constexpr std::array<int, 13> Days{0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12)
        return 0;
    return month == 2 && IsLeapYear(year) ? 29 : Days[static_cast<std::size_t>(month)];
}

bool Date_IsValid(int year, int month, int day)
{
    return year >= 100 && year <= 9999 && day >= 1 && day <= Days_InMonth(year, month);
}

bool Time_IsValid(int hour, int minute, int second)
{
    return hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
}

bool DateTime_IsValid(const DateTime& when)
{
    return Date_IsValid(when.Year, when.Month, when.Day)
           && Time_IsValid(when.Hour, when.Minute, when.Second);
}

std::string DateTime_Format(const DateTime& when, std::string_view mask)
{
    const bool is12Hours = mask.find("AMPM") != std::string_view::npos;
    bool isBehindHours = false;
    std::string text;
    for (std::size_t pos = 0; pos < mask.size();) {
        const MaskWord* word = MaskWordAt(mask, pos);
        if (word == nullptr) {
            text += mask[pos++];
            continue;
        }
        const bool isMinute = word->What == Part::Month && isBehindHours;
        AppendPart(text, when, isMinute ? Part::Minute : word->What, is12Hours);
        isBehindHours = word->What == Part::Hour;
        pos += word->Word.size();
    }
    return text;
}

std::string Format_Date(std::string_view text, std::string_view mask, int currentYear)
{
    const auto when = DateTime_Parse(text, currentYear);
    return when ? DateTime_Format(*when, mask) : std::string(text);
}

std::string Modified_Text(const DateTime& when)
{
    if (DateTime_IsValid(when))
        return ModifiedOf(when);
    std::string text = std::to_string(when.Month) + '/' + std::to_string(when.Day) + '/'
                       + std::to_string(when.Year) + ' ';
    if (Time_IsValid(when.Hour, when.Minute, when.Second))
        return text + DateTime_Format(when, "hh:mm AMPM");
    return text + std::to_string(when.Hour) + ':' + std::to_string(when.Minute);
}

std::string Modified_To_Sortable(std::string_view text, int currentYear)
{
    const auto exact = ReadModified(text);
    return exact ? SortableOf(*exact) : Format_Date(text, ModifiedSortMask, currentYear);
}

std::string Modified_From_Sortable(std::string_view text, int currentYear)
{
    const auto exact = ReadSortable(text);
    return exact ? ModifiedOf(*exact) : Format_Date(text, ModifiedMask, currentYear);
}

} // namespace tavo
