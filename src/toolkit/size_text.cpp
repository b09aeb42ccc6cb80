#include "toolkit/size_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace tavo {

namespace {

// Writes decimal digits in threes, ending in front of `end`; a caller that
// has room for `limit` bytes only loses the front.
char* WriteGroupedBack(char* end, char* limit, std::uint64_t value)
{
    for (int written = 0; value != 0 && end != limit; ++written) {
        if (written == 3) {
            *--end = ',';
            written = 0;
            if (end == limit)
                break;
        }
        *--end = static_cast<char>('0' + value % 10);
        value /= 10;
    }
    return end;
}

constexpr int SizeTextWidth = 12;

// Right(12 blanks + sign + digits + unit, 12).
std::string PaddedSize(bool isNegative, std::uint64_t kib, std::string_view unit)
{
    std::string text(SizeTextWidth, ' ');
    char* const first = text.data();
    char* end = first + SizeTextWidth - unit.size();
    unit.copy(end, unit.size());
    end = WriteGroupedBack(end, first, kib);
    if (isNegative && end != first)
        *--end = '-';
    return text;
}

constexpr std::string_view UnitOf(SizeMask mask)
{
    return mask == SizeMask::Joined ? "KB" : " KB";
}

// Digits of a whole number of any size, in threes.
std::string GroupedDigits(double whole)
{
    if (whole == 0)
        return {};
    std::array<char, 400> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), whole,
                                      std::chars_format::fixed, 0);
    std::string text(buffer.data(), result.ptr);
    for (std::size_t end = text.size(); end > 3;) {
        end -= 3;
        text.insert(end, 1, ',');
    }
    return text;
}

} // namespace

std::string Format_KB(double kib, SizeMask mask)
{
    std::string text = kib < 0 ? "-" : "";
    text += GroupedDigits(std::round(std::fabs(kib)));
    return text += UnitOf(mask);
}

// Size / 1024 + 0.5 rounded half away from zero is whole kibibytes + 1; below
// zero, where the half works against the sign, the whole kibibytes.
std::string Size_Text_Load(std::uint64_t sizeBytes)
{
    constexpr std::int64_t BytesToZero = -512;
    const std::int64_t size = static_cast<std::int32_t>(sizeBytes & 0xFFFFFFFF);
    if (size >= 0)
        return PaddedSize(false, static_cast<std::uint64_t>(size) / 1024 + 1, "KB");
    const bool isNegative = size < BytesToZero;
    return PaddedSize(isNegative, static_cast<std::uint64_t>(-size) / 1024, "KB");
}

std::string Size_Text_Refresh(std::uint64_t sizeBytes)
{
    return PaddedSize(false, sizeBytes / 1024 + 1, UnitOf(SizeMask::Spaced));
}

} // namespace tavo
