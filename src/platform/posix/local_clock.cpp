#include "platform/posix/local_clock.h"

#include <algorithm>
#include <ctime>

namespace tavo {

namespace {

constexpr std::int64_t ticksPerSecond = 10'000'000;
constexpr std::int64_t secondsPerDay = 86'400;
constexpr std::int64_t secondsFrom1601To1970 = 11'644'473'600;
constexpr std::int64_t secondsPerHour = 3600, secondsPerMinute = 60;
constexpr std::int64_t stretchSeconds = 6 * secondsPerHour;
constexpr std::int64_t ticksPerMillisecond = 10'000;
constexpr std::size_t knownStretches = 4096; // a power of two

std::int64_t FloorDivide(std::int64_t value, std::int64_t by)
{
    return value / by - (value % by < 0 ? 1 : 0);
}

// The date of a day counted from 1970-01-01, not before the year 0. Years are
// counted from March, so that the leap day is the last one of its year.
void SetDate(std::int64_t day, SystemTime& out)
{
    constexpr std::uint32_t daysIn400Years = 146'097;
    constexpr std::int64_t firstOfMarch0 = -719'468;
    const auto shifted = static_cast<std::uint32_t>(day - firstOfMarch0);
    const std::uint32_t era = shifted / daysIn400Years;
    const std::uint32_t inEra = shifted % daysIn400Years;
    const std::uint32_t yearInEra = (inEra - inEra / 1460 + inEra / 36'524 - inEra / 146'096) / 365;
    const std::uint32_t inYear = inEra - (365 * yearInEra + yearInEra / 4 - yearInEra / 100);
    const std::uint32_t monthFromMarch = (5 * inYear + 2) / 153;
    const bool nextYear = monthFromMarch >= 10;
    out.Day = static_cast<int>(inYear - (153 * monthFromMarch + 2) / 5 + 1);
    out.Month = static_cast<int>(nextYear ? monthFromMarch - 9 : monthFromMarch + 3);
    out.Year = static_cast<int>(era * 400 + yearInEra + (nextYear ? 1 : 0));
    // The first of March of the year 0 was a Wednesday.
    out.DayOfWeek = static_cast<int>((shifted + 3) % 7);
}

bool IsLeap(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysOfMonth(int year, int month)
{
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeap(year) ? 29 : days[month - 1];
}

bool IsWithin(int value, int first, int last)
{
    return first <= value && value <= last;
}

bool IsTime(const SystemTime& time)
{
    constexpr int firstYear = 1601, lastYear = 30'828;
    return IsWithin(time.Year, firstYear, lastYear) && IsWithin(time.Month, 1, 12)
           && IsWithin(time.Day, 1, DaysOfMonth(time.Year, time.Month))
           && IsWithin(time.Hour, 0, 23) && IsWithin(time.Minute, 0, 59)
           && IsWithin(time.Second, 0, 59) && IsWithin(time.Milliseconds, 0, 999);
}

// Seconds from 1970 to a date and time of day, as if it were UTC.
std::int64_t SecondsOf(const SystemTime& time)
{
    const std::int64_t past = time.Year - 1601;
    std::int64_t days = past * 365 + past / 4 - past / 100 + past / 400;
    for (int month = 1; month < time.Month; ++month)
        days += DaysOfMonth(time.Year, month);
    days += time.Day - 1;
    return days * secondsPerDay - secondsFrom1601To1970 + time.Hour * secondsPerHour
           + time.Minute * secondsPerMinute + time.Second;
}

std::int64_t OffsetFromSystem(std::int64_t unixSeconds)
{
    const std::time_t moment = unixSeconds;
    std::tm parts{};
    return localtime_r(&moment, &parts) ? parts.tm_gmtoff : 0;
}

} // namespace

FileTime FileTimeFromUnix(std::int64_t seconds, std::uint32_t nanoseconds)
{
    constexpr std::int64_t most = INT64_MAX / ticksPerSecond - 1;
    if (seconds > most - secondsFrom1601To1970)
        return {INT64_MAX};
    if (seconds < -most - secondsFrom1601To1970)
        return {INT64_MIN};
    return {(seconds + secondsFrom1601To1970) * ticksPerSecond + nanoseconds / 100};
}

UnixTime UnixFromFileTime(FileTime time)
{
    const std::int64_t seconds = FloorDivide(time.Ticks, ticksPerSecond);
    const std::int64_t rest = time.Ticks % ticksPerSecond;
    const std::int64_t ticks = rest < 0 ? rest + ticksPerSecond : rest;
    return {seconds - secondsFrom1601To1970, static_cast<std::uint32_t>(ticks * 100)};
}

LocalClock::LocalClock() : known_(knownStretches)
{
    tzset();
}

std::int64_t LocalClock::OffsetAt(std::int64_t unixSeconds)
{
    const std::int64_t number = FloorDivide(unixSeconds, stretchSeconds);
    Stretch& stretch = known_[static_cast<std::uint64_t>(number) % knownStretches];
    if (stretch.Number == number)
        return stretch.OffsetSeconds;
    const std::int64_t first = OffsetFromSystem(number * stretchSeconds);
    const std::int64_t last = OffsetFromSystem((number + 1) * stretchSeconds - 1);
    // Clocks are changed within this stretch: ask for the very second.
    if (first != last)
        return OffsetFromSystem(unixSeconds);
    stretch = {number, first};
    return first;
}

bool LocalClock::ToLocal(FileTime time, SystemTime& out)
{
    if (time.Ticks <= 0)
        return false;
    const std::int64_t utc = time.Ticks / ticksPerSecond - secondsFrom1601To1970;
    const std::int64_t local = utc + OffsetAt(utc);
    const std::int64_t day = FloorDivide(local, secondsPerDay);
    const auto second = static_cast<int>(local - day * secondsPerDay);
    SetDate(day, out);
    out.Hour = second / 3600;
    out.Minute = second / 60 % 60;
    out.Second = second % 60;
    out.Milliseconds = static_cast<int>(time.Ticks % ticksPerSecond / 10'000);
    return true;
}

std::int64_t LocalClock::MomentOf(std::int64_t local)
{
    // No zone is further from UTC than this, and no rule is in force for a
    // shorter time than the steps from one look to the next.
    constexpr std::int64_t farthest = 27 * secondsPerHour;
    std::int64_t smallest = INT64_MAX, largest = INT64_MIN, moment = INT64_MAX;
    for (std::int64_t at = local - farthest; at <= local + farthest; at += stretchSeconds) {
        const std::int64_t offset = OffsetAt(at);
        if (offset == smallest && offset == largest)
            continue;
        smallest = std::min(smallest, offset);
        largest = std::max(largest, offset);
        if (OffsetAt(local - offset) == offset)
            moment = std::min(moment, local - offset);
    }
    // A time that clocks leapt over is told by the rule before the leap.
    return moment != INT64_MAX ? moment : local - smallest;
}

bool LocalClock::FromLocal(const SystemTime& time, FileTime& out)
{
    if (!IsTime(time))
        return false;
    const std::int64_t seconds = MomentOf(SecondsOf(time)) + secondsFrom1601To1970;
    constexpr std::int64_t last = INT64_MAX / ticksPerSecond - 1;
    if (seconds < 0 || seconds > last)
        return false;
    const std::int64_t ticks = seconds * ticksPerSecond + time.Milliseconds * ticksPerMillisecond;
    if (ticks > 0)
        out.Ticks = ticks;
    return ticks > 0;
}

} // namespace tavo
