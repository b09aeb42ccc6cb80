#include "platform/posix/local_clock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>
#include <tuple>
#include <unistd.h>

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

TEST(LocalClock, The_clock_of_the_system_has_every_moment)
{
    const std::tuple<std::int64_t, std::int64_t, std::uint32_t> rows[] = {
        {0, -11'644'473'600, 0},
        {1, -11'644'473'600, 100},
        {-1, -11'644'473'601, 999'999'900},
        {unixZero, 0, 0},
        {unixZero - 1, -1, 999'999'900},
        {unixZero + 12'345'678, 1, 234'567'800},
        {INT64_MAX, 910'692'730'085, 477'580'700},
        {INT64_MIN, -933'981'677'286, 522'419'200},
    };
    for (const auto& [ticks, seconds, nanoseconds] : rows) {
        const UnixTime time = UnixFromFileTime({ticks});
        EXPECT_EQ(time.Seconds, seconds) << ticks;
        EXPECT_EQ(time.Nanoseconds, nanoseconds) << ticks;
    }
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

// -- Local time to UTC

SystemTime Parts(int year, int month, int day, int hour, int minute, int second, int ms = 0)
{
    return {year, month, 0, day, hour, minute, second, ms};
}

constexpr std::int64_t noMoment = INT64_MIN;

std::int64_t MomentOf(LocalClock& clock, const SystemTime& time)
{
    FileTime moment;
    if (!clock.FromLocal(time, moment))
        return noMoment;
    return UnixFromFileTime(moment).Seconds;
}

struct MomentRow {
    const char *What, *Zone;
    SystemTime Local;
    std::int64_t Wanted;
};

TEST(LocalClock, A_local_time_is_told_by_the_rule_of_that_very_date)
{
    constexpr const char* berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
    constexpr const char* newYork = "EST5EDT,M3.2.0,M11.1.0";
    constexpr const char* sydney = "AEST-10AEDT,M10.1.0,M4.1.0/3";
    constexpr const char* kathmandu = "NPT-5:45";
    constexpr const char* lordHowe = "LHST-10:30LHDT-11,M10.1.0,M4.1.0";
    const MomentRow rows[] = {
        {"zero", "UTC0", Parts(1970, 1, 1, 0, 0, 0), 0},
        {"before zero", "UTC0", Parts(1969, 12, 31, 23, 59, 59), -1},
        {"leap day", "UTC0", Parts(2000, 2, 29, 0, 0, 0), 951'782'400},
        {"far ahead", "UTC0", Parts(9999, 12, 31, 23, 59, 59), 253'402'300'799},
        {"first second told", "UTC0", Parts(1601, 1, 1, 0, 0, 1), -11'644'473'599},
        {"none", "UTC0", Parts(1601, 1, 1, 0, 0, 0), noMoment},
        {"before all", "UTC-1", Parts(1601, 1, 1, 0, 59, 59), noMoment},
        {"winter", berlin, Parts(2024, 1, 1, 1, 0, 0), 1'704'067'200},
        {"summer", berlin, Parts(2024, 7, 3, 11, 46, 40), 1'720'000'000},
        {"last second of winter", berlin, Parts(2024, 3, 31, 1, 59, 59), 1'711'846'799},
        {"first second left out", berlin, Parts(2024, 3, 31, 2, 0, 0), 1'711'846'800},
        {"left out", berlin, Parts(2024, 3, 31, 2, 30, 0), 1'711'848'600},
        {"first second of summer", berlin, Parts(2024, 3, 31, 3, 0, 0), 1'711'846'800},
        {"before the hour that comes twice", berlin, Parts(2024, 10, 27, 1, 59, 59), 1'729'987'199},
        {"the hour that comes twice", berlin, Parts(2024, 10, 27, 2, 29, 59), 1'729'988'999},
        {"behind it", berlin, Parts(2024, 10, 27, 3, 0, 0), 1'729'994'400},
        {"west, left out", newYork, Parts(2024, 3, 10, 2, 30, 0), 1'710'055'800},
        {"west, twice", newYork, Parts(2024, 11, 3, 1, 30, 0), 1'730'611'800},
        {"south, left out", sydney, Parts(2024, 10, 6, 2, 30, 0), 1'728'145'800},
        {"south, twice", sydney, Parts(2024, 4, 7, 2, 30, 0), 1'712'417'400},
        {"half an hour, left out", lordHowe, Parts(2024, 10, 6, 2, 15, 0), 1'728'143'100},
        {"half an hour, twice", lordHowe, Parts(2024, 4, 7, 1, 45, 0), 1'712'414'700},
        {"a quarter off", kathmandu, Parts(1970, 1, 1, 5, 45, 0), 0},
    };
    for (const MomentRow& row : rows) {
        const Zone zone(row.Zone);
        LocalClock clock;
        EXPECT_EQ(MomentOf(clock, row.Local), row.Wanted) << row.What;
        EXPECT_EQ(MomentOf(clock, row.Local), row.Wanted) << row.What << ", asked again";
    }
}

TEST(LocalClock, What_is_no_time_leaves_the_last_value)
{
    const SystemTime rows[] = {
        Parts(2001, 2, 29, 0, 0, 0),       Parts(1900, 2, 29, 0, 0, 0),
        Parts(2024, 2, 30, 0, 0, 0),       Parts(2024, 0, 1, 0, 0, 0),
        Parts(2024, 13, 1, 0, 0, 0),       Parts(2024, 4, 31, 0, 0, 0),
        Parts(2024, 4, 0, 0, 0, 0),        Parts(2024, 4, -1, 0, 0, 0),
        Parts(2024, 1, 1, 24, 0, 0),       Parts(2024, 1, 1, -1, 0, 0),
        Parts(2024, 1, 1, 0, 60, 0),       Parts(2024, 1, 1, 0, 0, 60),
        Parts(2024, 1, 1, 0, 0, 0, 1000),  Parts(1600, 12, 31, 23, 59, 59),
        Parts(30'828, 12, 31, 23, 59, 59), Parts(INT32_MAX, 1, 1, 0, 0, 0),
        Parts(0, 0, 0, 0, 0, 0),           Parts(INT32_MIN, INT32_MIN, 1, 0, 0, 0),
    };
    const Zone zone("UTC0");
    LocalClock clock;
    FileTime moment{77};
    for (const SystemTime& row : rows) {
        EXPECT_FALSE(clock.FromLocal(row, moment)) << Text(row);
        EXPECT_EQ(moment.Ticks, 77) << Text(row);
    }
}

TEST(LocalClock, Milliseconds_come_along_and_the_weekday_does_not_count)
{
    const Zone zone("UTC0");
    LocalClock clock;
    SystemTime time = Parts(2000, 1, 1, 0, 0, 0, 123);
    time.DayOfWeek = 99;
    FileTime moment;
    ASSERT_TRUE(clock.FromLocal(time, moment));
    EXPECT_EQ(moment.Ticks, 125'911'584'001'230'000);
}

// Is there an earlier moment with the same local time?
bool IsSecondOccurrence(std::int64_t moment)
{
    const std::time_t seconds = moment;
    std::tm parts{};
    ::localtime_r(&seconds, &parts);
    for (const long earlier : {1800L, 3600L, 7200L}) {
        const std::time_t before = moment - earlier;
        std::tm past{};
        ::localtime_r(&before, &past);
        if (past.tm_gmtoff == parts.tm_gmtoff + earlier)
            return true;
    }
    return false;
}

TEST(LocalClock, To_local_time_and_back_gives_the_same_second)
{
    // The spelled rules stand in where no list of zones is installed.
    for (const char* name :
         {"Europe/Berlin", "America/New_York", "Australia/Sydney", "Asia/Kathmandu", "UTC",
          "CET-1CEST,M3.5.0,M10.5.0/3", "EST5EDT,M3.2.0,M11.1.0", "AEST-10AEDT,M10.1.0,M4.1.0/3",
          "LHST-10:30LHDT-11,M10.1.0,M4.1.0", "NPT-5:45"}) {
        const Zone zone(name);
        LocalClock clock;
        int twice = 0, wrong = 0;
        // Two years from 2023 on in steps that fall on every minute of a day.
        for (std::int64_t moment = 1'672'531'200; moment < 1'735'689'600; moment += 601) {
            SystemTime local;
            FileTime back;
            ASSERT_TRUE(clock.ToLocal(FileTimeFromUnix(moment, 0), local));
            ASSERT_TRUE(clock.FromLocal(local, back));
            const std::int64_t apart = moment - UnixFromFileTime(back).Seconds;
            const bool isSecond = IsSecondOccurrence(moment);
            twice += isSecond ? 1 : 0;
            const bool isRight = isSecond ? apart == 3600 || apart == 1800 : apart == 0;
            wrong += isRight ? 0 : 1;
        }
        EXPECT_EQ(wrong, 0) << name;
        const std::string text(name);
        const bool isEven =
            text == "UTC" || text.find("Kathmandu") != text.npos || text.starts_with("NPT");
        const bool isKnown =
            text.find('/') == text.npos || ::access("/usr/share/zoneinfo/UTC", 0) == 0;
        EXPECT_EQ(twice > 0, !isEven && isKnown) << name;
    }
}

TEST(LocalClock, Days_that_a_zone_left_out_or_changed_by_odd_seconds)
{
    if (::access("/usr/share/zoneinfo/Pacific/Apia", 0) != 0)
        GTEST_SKIP() << "no list of zones is installed";
    {
        const Zone zone("Pacific/Apia");
        LocalClock clock;
        // 2011-12-30 was left out: noon of it is noon of the next day.
        EXPECT_EQ(MomentOf(clock, Parts(2011, 12, 30, 12, 0, 0)),
                  MomentOf(clock, Parts(2011, 12, 31, 12, 0, 0)));
    }
    const Zone zone("Europe/Berlin");
    LocalClock clock;
    for (const SystemTime& time : {Parts(1893, 3, 31, 23, 59, 59), Parts(1893, 4, 1, 12, 0, 0),
                                   Parts(1945, 5, 24, 12, 0, 0), Parts(1700, 1, 1, 0, 0, 0)}) {
        SystemTime again;
        const FileTime moment = FileTimeFromUnix(MomentOf(clock, time), 0);
        ASSERT_TRUE(clock.ToLocal(moment, again));
        again.DayOfWeek = 0;
        EXPECT_EQ(Text(again), Text(time));
    }
}

} // namespace
} // namespace tavo
