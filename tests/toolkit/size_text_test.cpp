#include "toolkit/size_text.h"

#include <gtest/gtest.h>

#include <random>

namespace tavo {
namespace {

TEST(SizeText, A_number_rounds_half_away_from_zero)
{
    struct Row {
        double Kib;
        std::string_view Text;
    };
    const Row rows[] = {
        {2.5, "3KB"},
        {-1.5, "-2KB"},
        {0, "KB"},
        {0.5, "1KB"},
        {0.999, "1KB"},
        {0.49, "KB"},
        {-0.25, "-KB"},
        {-0.5, "-1KB"},
        {1.4990, "1KB"},
        {1.5, "2KB"},
        {999, "999KB"},
        {1000, "1,000KB"},
        {1234567, "1,234,567KB"},
        {-2097151.5, "-2,097,152KB"},
        {1e15, "1,000,000,000,000,000KB"},
        {1e21, "1,000,000,000,000,000,000,000KB"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Format_KB(row.Kib, SizeMask::Joined), row.Text) << row.Kib;
        std::string spaced(row.Text);
        spaced.insert(spaced.size() - 2, " ");
        EXPECT_EQ(Format_KB(row.Kib, SizeMask::Spaced), spaced) << row.Kib;
    }
}

TEST(SizeText, A_load_shows_the_low_half_of_the_size_as_a_signed_number)
{
    struct Row {
        std::uint64_t SizeBytes;
        std::string_view Text;
    };
    const Row rows[] = {
        {0, "         1KB"},
        {511, "         1KB"},
        {1023, "         1KB"},
        {1024, "         2KB"},
        {125952, "       124KB"},
        {1023 * 1024, "     1,024KB"},
        {2147483647, " 2,097,152KB"},
        {2147483648, "-2,097,152KB"},
        {4294967296, "         1KB"},
        {4294967295, "          KB"},
        {4294967296 - 512, "          KB"},
        {4294967296 - 513, "         -KB"},
        {4294967296 - 1024, "        -1KB"},
        {4294967296 * 5 + 2048, "         3KB"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Size_Text_Load(row.SizeBytes), row.Text) << row.SizeBytes;
}

TEST(SizeText, A_refresh_shows_the_whole_size_with_a_blank)
{
    struct Row {
        std::uint64_t SizeBytes;
        std::string_view Text;
    };
    const Row rows[] = {
        {0, "        1 KB"},          {1023, "        1 KB"},       {1024, "        2 KB"},
        {2147483648, "2,097,153 KB"}, {4294967296, "4,194,305 KB"}, {10737418240, "0,485,761 KB"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Size_Text_Refresh(row.SizeBytes), row.Text) << row.SizeBytes;
}

std::string PaddedTo12(const std::string& text)
{
    const std::string padded = std::string(12, ' ') + text;
    return padded.substr(padded.size() - 12);
}

TEST(SizeText, Cells_are_the_formatted_number_of_their_formula)
{
    std::mt19937_64 random(1024);
    const auto check = [](std::uint64_t size) {
        const auto low = static_cast<std::int32_t>(size & 0xFFFFFFFF);
        ASSERT_EQ(Size_Text_Load(size), PaddedTo12(Format_KB(low / 1024.0 + 0.5, SizeMask::Joined)))
            << size;
        ASSERT_EQ(Size_Text_Refresh(size),
                  PaddedTo12(Format_KB(static_cast<double>(size) / 1024 + 0.5, SizeMask::Spaced)))
            << size;
    };
    for (std::uint64_t size = 0; size < 5000; ++size) {
        check(size);
        check(4294967296 - size);
        check(2147483648 - 2500 + size);
    }
    for (int round = 0; round < 20000; ++round)
        check(random() >> (13 + round % 45));
}

} // namespace
} // namespace tavo
