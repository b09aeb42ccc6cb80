#pragma once

#include "platform/files.h"

#include <cstdint>
#include <vector>

namespace tavo {

// From the system's clock (seconds since 1970 and nanoseconds of that second)
// to ours. What lies beyond the ends of FileTime becomes the nearest end.
FileTime FileTimeFromUnix(std::int64_t seconds, std::uint32_t nanoseconds);

// The same moment by the system's clock. Every FileTime has one.
struct UnixTime {
    std::int64_t Seconds = 0;
    std::uint32_t Nanoseconds = 0; // of that second
};
UnixTime UnixFromFileTime(FileTime time);

// Tells local time by the rule that the zone has for that very date, as `ls`
// does. The zone is read from TZ or the system when the clock is made.
class LocalClock {
public:
    LocalClock();

    // Takes a moment apart; false before 1601 and for "none", and then `out`
    // stays as it was. Parts of a millisecond are cut off.
    bool ToLocal(FileTime time, SystemTime& out);

    // The moment of a local time, whose DayOfWeek does not count. Where clocks
    // were set back and the time occurs twice, it is the first one; where they
    // were set forward and it never occurs, it is as far behind the change as
    // the time is. False for what is no date or no time of day, and for what
    // lies before 1601 in UTC or beyond FileTime; `out` then stays as it was.
    bool FromLocal(const SystemTime& time, FileTime& out);

private:
    // The offset from UTC within one stretch of six hours.
    struct Stretch {
        std::int64_t Number = INT64_MIN;
        std::int64_t OffsetSeconds = 0;
    };

    std::int64_t OffsetAt(std::int64_t unixSeconds);
    std::int64_t MomentOf(std::int64_t localSeconds);

    std::vector<Stretch> known_;
};

} // namespace tavo
