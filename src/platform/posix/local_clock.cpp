#include "platform/posix/local_clock.h"

#include <ctime>

namespace tavo {

namespace {

constexpr std::int64_t ticksPerSecond = 10'000'000;
constexpr std::int64_t secondsPerDay = 86'400;
constexpr std::int64_t secondsFrom1601To1970 = 11'644'473'600;
constexpr std::int64_t stretchSeconds = 6 * 3600;
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

} // namespace tavo
