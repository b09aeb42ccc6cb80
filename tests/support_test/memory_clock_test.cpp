#include "support/memory_clock.h"

#include <gtest/gtest.h>

namespace tavo {

struct MomentCase {
    SystemTime Parts;
    std::int64_t Seconds; // since 1601
};

TEST(MemoryClock, Moments_go_apart_and_together)
{
    const MomentCase cases[] = {
        {{1601, 1, 1, 1, 0, 0, 0, 0}, 0},
        {{1970, 1, 4, 1, 0, 0, 0, 0}, 11644473600},
        {{2000, 2, 2, 29, 23, 59, 59, 0}, 12596342399},
        {{2001, 3, 3, 7, 21, 5, 9, 0}, 12628472709},
        {{1900, 3, 4, 1, 0, 0, 0, 0}, 9440582400},
        {{9999, 12, 5, 31, 12, 0, 0, 0}, 265046731200},
    };
    for (const auto& row : cases) {
        const SystemTime& t = row.Parts;
        const FileTime made = Clock_Moment(t.Year, t.Month, t.Day, t.Hour, t.Minute, t.Second);
        EXPECT_EQ(made.Ticks, row.Seconds * 10000000) << t.Year;
        SystemTime back;
        EXPECT_TRUE(Clock_TakeApart(made, back));
        EXPECT_EQ(back, t) << t.Year << " " << back.Month << "/" << back.Day;
    }
}

TEST(MemoryClock, What_is_below_a_millisecond_is_cut)
{
    SystemTime out;
    EXPECT_TRUE(Clock_TakeApart({19999}, out));
    EXPECT_EQ(out.Milliseconds, 1);
}

TEST(MemoryClock, A_moment_before_1601_leaves_the_parts_as_they_were)
{
    SystemTime out{1999, 1, 5, 1, 0, 0, 0, 0};
    const SystemTime before = out;
    EXPECT_FALSE(Clock_TakeApart({-1}, out));
    EXPECT_EQ(out, before);
}

} // namespace tavo
