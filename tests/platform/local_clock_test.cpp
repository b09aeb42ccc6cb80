#include "platform/posix/local_clock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace tavo {
namespace {

// Sets the zone for one test and puts the old one back.
class Zone {
public:
    explicit Zone(const std::string& name)
    {
        if (const char* old = std::getenv("TZ"))
            old_ = old;
        ::setenv("TZ", name.c_str(), 1);
    }
    ~Zone()
    {
        if (old_)
            ::setenv("TZ", old_->c_str(), 1);
        else
            ::unsetenv("TZ");
        ::tzset();
    }

private:
    std::optional<std::string> old_;
};

constexpr std::int64_t unixZero = 116'444'736'000'000'000;

std::string Text(const SystemTime& time)
{
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d.%03d (%d)", time.Year,
                  time.Month, time.Day, time.Hour, time.Minute, time.Second, time.Milliseconds,
                  time.DayOfWeek);
    return text;
}

std::string LocalText(LocalClock& clock, std::int64_t unixSeconds)
{
    SystemTime time;
    if (!clock.ToLocal(FileTimeFromUnix(unixSeconds, 0), time))
        return "none";
    return Text(time);
}

TEST(LocalClock, A_moment_is_counted_in_hundreds_of_nanoseconds_from_1601)
{
    EXPECT_EQ(FileTimeFromUnix(0, 0).Ticks, unixZero);
    EXPECT_EQ(FileTimeFromUnix(1, 199).Ticks, unixZero + 10'000'001);
    EXPECT_EQ(FileTimeFromUnix(-11'644'473'600, 0).Ticks, 0);
    EXPECT_EQ(FileTimeFromUnix(-1, 999'999'999).Ticks, unixZero - 1);
    EXPECT_EQ(FileTimeFromUnix(INT64_MAX, 0).Ticks, INT64_MAX);
    EXPECT_EQ(FileTimeFromUnix(INT64_MIN, 0).Ticks, INT64_MIN);
}

struct ZoneRow {
    const char* What;
    const char* Zone;
    std::int64_t UnixSeconds;
    const char* Wanted;
};

TEST(LocalClock, Local_time_follows_the_rule_of_that_very_date)
{
    // Rules are spelled out, so that no list of zones need be installed.
    constexpr const char* berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
    const ZoneRow rows[] = {
        {"zero", "UTC0", 0, "1970-01-01 00:00:00.000 (4)"},
        {"before zero", "UTC0", -1, "1969-12-31 23:59:59.000 (3)"},
        {"leap day", "UTC0", 951'782'400, "2000-02-29 00:00:00.000 (2)"},
        {"no leap day in 1900", "UTC0", -2'203'891'201, "1900-02-28 23:59:59.000 (3)"},
        {"the day after", "UTC0", -2'203'891'200, "1900-03-01 00:00:00.000 (4)"},
        {"end of a year", "UTC0", 978'307'199, "2000-12-31 23:59:59.000 (0)"},
        {"far ahead", "UTC0", 253'402'300'799, "9999-12-31 23:59:59.000 (5)"},
        {"first second told", "UTC0", -11'644'473'599, "1601-01-01 00:00:01.000 (1)"},
        {"winter", berlin, 1'704'067'200, "2024-01-01 01:00:00.000 (1)"},
        {"summer", berlin, 1'720'000'000, "2024-07-03 11:46:40.000 (3)"},
        {"last second of winter", berlin, 1'711'846'799, "2024-03-31 01:59:59.000 (0)"},
        {"first second of summer", berlin, 1'711'846'800, "2024-03-31 03:00:00.000 (0)"},
        {"hour that comes twice, first", berlin, 1'729'988'999, "2024-10-27 02:29:59.000 (0)"},
        {"hour that comes twice, second", berlin, 1'729'992'599, "2024-10-27 02:29:59.000 (0)"},
        {"half an hour off", "IST-5:30", 0, "1970-01-01 05:30:00.000 (4)"},
        {"odd seconds off", "LMT-0:19:32", 0, "1970-01-01 00:19:32.000 (4)"},
        {"west", "EST5", 0, "1969-12-31 19:00:00.000 (3)"},
    };
    for (const ZoneRow& row : rows) {
        const Zone zone(row.Zone);
        LocalClock clock;
        EXPECT_EQ(LocalText(clock, row.UnixSeconds), row.Wanted) << row.What;
        EXPECT_EQ(LocalText(clock, row.UnixSeconds), row.Wanted) << row.What << ", asked again";
    }
}

TEST(LocalClock, It_agrees_with_the_system_on_either_side_of_every_change)
{
    const Zone zone("EST5EDT,M3.2.0,M11.1.0");
    LocalClock clock;
    // Two years around the present in steps that fall on every minute of a day.
    for (std::int64_t moment = 1'700'000'000; moment < 1'765'000'000; moment += 1'801) {
        const std::time_t seconds = moment;
        std::tm parts{};
        ASSERT_NE(::localtime_r(&seconds, &parts), nullptr);
        const SystemTime wanted = {
            parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_wday, parts.tm_mday,
            parts.tm_hour,        parts.tm_min,     parts.tm_sec,  0};
        ASSERT_EQ(LocalText(clock, moment), Text(wanted)) << moment;
    }
}

TEST(LocalClock, Parts_below_the_millisecond_are_cut_off)
{
    const Zone zone("UTC0");
    LocalClock clock;
    SystemTime time;
    ASSERT_TRUE(clock.ToLocal(FileTimeFromUnix(0, 999'999'999), time));
    EXPECT_EQ(Text(time), "1970-01-01 00:00:00.999 (4)");
    ASSERT_TRUE(clock.ToLocal(FileTimeFromUnix(-1, 500'000), time));
    EXPECT_EQ(Text(time), "1969-12-31 23:59:59.000 (3)");
}

TEST(LocalClock, What_cannot_be_told_leaves_the_last_value)
{
    LocalClock clock;
    SystemTime time = {1999, 1, 2, 3, 4, 5, 6, 7};
    const SystemTime before = time;
    for (const std::int64_t ticks : {std::int64_t{0}, std::int64_t{-1}, INT64_MIN}) {
        EXPECT_FALSE(clock.ToLocal({ticks}, time)) << ticks;
        EXPECT_EQ(time, before) << ticks;
    }
    EXPECT_TRUE(clock.ToLocal({INT64_MAX}, time));
    EXPECT_EQ(time.Year, 30'828);
}

} // namespace
} // namespace tavo
