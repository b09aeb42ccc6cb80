#include "support/memory_clock.h"

namespace tavo {

namespace {

constexpr std::int64_t ticksPerMillisecond = 10000;
constexpr std::int64_t ticksPerSecond = 1000 * ticksPerMillisecond;
constexpr std::int64_t ticksPerDay = 86400 * ticksPerSecond;

constexpr bool IsLeap(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

constexpr int DaysOfMonth(int year, int month)
{
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeap(year) ? 29 : days[month - 1];
}

// Days from 1601-01-01 to the first of January of `year`.
constexpr std::int64_t DaysBefore(int year)
{
    const std::int64_t past = year - 1601;
    return past * 365 + past / 4 - past / 100 + past / 400;
}

} // namespace

FileTime Clock_Moment(int year, int month, int day, int hour, int minute, int second,
                      int milliseconds)
{
    std::int64_t days = DaysBefore(year) + day - 1;
    for (int before = 1; before < month; ++before)
        days += DaysOfMonth(year, before);
    const std::int64_t seconds = (hour * 60 + minute) * 60 + second;
    return {days * ticksPerDay + seconds * ticksPerSecond + milliseconds * ticksPerMillisecond};
}

bool Clock_TakeApart(FileTime time, SystemTime& out)
{
    if (time.Ticks < 0)
        return false;
    std::int64_t days = time.Ticks / ticksPerDay;
    const std::int64_t rest = time.Ticks % ticksPerDay;

    SystemTime made;
    made.DayOfWeek = static_cast<int>((days + 1) % 7); // 1601-01-01 was a Monday
    made.Year = 1601 + static_cast<int>(days / 366);
    while (DaysBefore(made.Year + 1) <= days)
        ++made.Year;
    days -= DaysBefore(made.Year);
    for (made.Month = 1; days >= DaysOfMonth(made.Year, made.Month); ++made.Month)
        days -= DaysOfMonth(made.Year, made.Month);
    made.Day = static_cast<int>(days) + 1;

    const int seconds = static_cast<int>(rest / ticksPerSecond);
    made.Hour = seconds / 3600;
    made.Minute = seconds / 60 % 60;
    made.Second = seconds % 60;
    made.Milliseconds = static_cast<int>(rest % ticksPerSecond / ticksPerMillisecond);
    out = made;
    return true;
}

} // namespace tavo
