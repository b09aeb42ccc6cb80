#pragma once

#include "toolkit/size_text.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

// Numbers from text and text from numbers, the same in every language of the
// system: the decimal sign is a point, the thousands sign a comma.
namespace tavo {

// The number at the start of a text, 0 when there is none. Blanks, tabs and
// line feeds are passed over wherever they stand; then sign, digits, point and
// exponent (e or d), or &H and &O with their digits. It ends at the first
// other character. A number too large for a double is infinite, which fits
// into no checked number.
double Val(std::string_view text);

// The whole text as a number of the width told, nullopt when it is none or
// does not fit. White space round it, a sign before or behind, parentheses for
// a negative number, `$`, commas between digits, exponents, &H, &O and & are
// accepted. Fractions are rounded half to even. Hexadecimal and octal digits
// fill the width: &HFFFF is -1 in 16 bits.
std::optional<int> ParseByte(std::string_view text);
std::optional<int> ParseI16(std::string_view text);
std::optional<int> ParseI32(std::string_view text);
std::optional<float> ParseSingle(std::string_view text);
std::optional<double> ParseDouble(std::string_view text);
// `True` and `False` in any case, also between `#`, or a number: 0 is false.
std::optional<bool> ParseBool(std::string_view text);

// Nearest whole number, halves to the even one.
double RoundHalfEven(double value);

// Gives `target` the rounded value and true, or leaves it and gives false when
// the value does not fit.
template <typename T>
bool AssignChecked(T& target, double value)
{
    static_assert(std::is_integral_v<T> && sizeof(T) <= 4);
    const double rounded = RoundHalfEven(value);
    const bool fits =
        rounded >= std::numeric_limits<T>::min() && rounded <= std::numeric_limits<T>::max();
    if (fits)
        target = static_cast<T>(rounded);
    return fits;
}

// A whole number with a width. An assignment that does not fit leaves the old
// value and says so.
template <typename T>
class Checked {
public:
    constexpr Checked() = default;
    constexpr explicit Checked(T value) : Value(value) {}

    [[nodiscard]] bool Assign(double value) { return AssignChecked(Value, value); }
    constexpr T Get() const { return Value; }
    constexpr operator T() const { return Value; }

private:
    T Value = 0;
};

using CheckedByte = Checked<std::uint8_t>;
using Checked16 = Checked<std::int16_t>;
using Checked32 = Checked<std::int32_t>;

// Shortest common form with 7 (15) digits: `12000.5`, from 1E+07 (1E+15) on
// and below 0.0001 with an exponent of two digits or more.
std::string SingleToText(float value);
std::string DoubleToText(double value);
std::string IntToText(std::int64_t value);
std::string BoolToText(bool value);

} // namespace tavo
