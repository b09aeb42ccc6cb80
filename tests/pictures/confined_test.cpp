#include "hosts/pictures/confined.h"

#include "samples.h"

#include <gtest/gtest.h>

#include <cstring>

// What the worker prints, which may have been led astray by what it read.

namespace tavo::pictures {
namespace {

using namespace std::string_literals;

std::string Head(std::int32_t width, std::int32_t height, std::int32_t fullWidth,
                 std::int32_t fullHeight, std::uint32_t hasAlpha = 0)
{
    const ConfinedHead head{ConfinedHead::mark, width, height, fullWidth, fullHeight, hasAlpha};
    return {reinterpret_cast<const char*>(&head), sizeof head};
}

std::optional<Loaded> Taken(const std::string& printed, QSize bound)
{
    std::size_t at = 0;
    return Confined_Take(
        [&](char* bytes, std::size_t count) {
            if (count > printed.size() - at)
                return false;
            std::memcpy(bytes, printed.data() + at, count);
            at += count;
            return true;
        },
        bound);
}

TEST(ConfinedPicture, What_a_worker_prints_is_the_picture)
{
    const std::string dots = Low(0xff102030, 4) + Low(0x40404040, 4);
    const auto plain = Taken(Head(2, 1, 2, 1) + dots, {});
    ASSERT_TRUE(plain);
    EXPECT_FALSE(plain->Image.hasAlphaChannel());
    EXPECT_EQ(plain->Image.pixel(0, 0), 0xff102030u);
    const auto clear = Taken(Head(2, 1, 400, 200, 1) + dots, {2, 2});
    ASSERT_TRUE(clear);
    EXPECT_EQ(clear->FullSize, QSize(400, 200));
    EXPECT_EQ(qAlpha(clear->Image.pixel(1, 0)), 0x40);
}

TEST(ConfinedPicture, Anything_else_is_none)
{
    constexpr std::int32_t most = INT32_MAX;
    const std::string dots(64, '\x7f');
    struct Row {
        const char* Name;
        std::string Printed;
        QSize Bound;
    };
    const Row rows[] = {
        {"nothing", "", {}},
        {"half a head", Head(2, 2, 2, 2).substr(0, 12), {}},
        {"another mark", "abcd" + Head(2, 2, 2, 2).substr(4) + dots, {}},
        {"words", "The worker has something to say." + dots, {}},
        {"a head alone", Head(2, 2, 2, 2), {}},
        {"a dot too few", Head(5, 4, 5, 4) + dots, {}},
        {"no width", Head(0, 2, 0, 2) + dots, {}},
        {"a width below nothing", Head(-2, -2, -2, -2) + dots, {}},
        {"more dots than the whole", Head(4, 4, 2, 2) + dots, {}},
        {"fewer dots than asked for", Head(2, 2, 4, 4) + dots, {}},
        {"larger than the bound", Head(4, 4, 4, 4) + dots, {2, 2}},
        {"smaller than the bound", Head(1, 1, 4, 4) + dots, {2, 2}},
        {"enormous", Head(most, most, most, most) + dots, {}},
        {"an enormous whole", Head(2, 2, most, most) + dots, {2, 2}},
        {"above the bound of all", Head(2, 2, 32'000, 16'001) + dots, {2, 2}},
    };
    for (const Row& row : rows)
        EXPECT_FALSE(Taken(row.Printed, row.Bound)) << row.Name;
}

} // namespace
} // namespace tavo::pictures
