#pragma once

#include "platform/files.h"

#include <cstdint>
#include <vector>

namespace tavo {

// From the system's clock (seconds since 1970 and nanoseconds of that second)
// to ours. What lies beyond the ends of FileTime becomes the nearest end.
FileTime FileTimeFromUnix(std::int64_t seconds, std::uint32_t nanoseconds);

// Tells local time by the rule that the zone has for that very date, as `ls`
// does. The zone is read from TZ or the system when the clock is made.
class LocalClock {
public:
    LocalClock();

    // Takes a moment apart; false before 1601 and for "none", and then `out`
    // stays as it was. Parts of a millisecond are cut off.
    bool ToLocal(FileTime time, SystemTime& out);

private:
    // The offset from UTC within one stretch of six hours.
    struct Stretch {
        std::int64_t Number = INT64_MIN;
        std::int64_t OffsetSeconds = 0;
    };

    std::int64_t OffsetAt(std::int64_t unixSeconds);

    std::vector<Stretch> known_;
};

} // namespace tavo
