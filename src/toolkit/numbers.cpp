#include "toolkit/numbers.h"

#include "toolkit/text.h"

#include <array>
#include <charconv>

namespace tavo {

namespace {

constexpr bool IsDigit(char sign)
{
    return sign >= '0' && sign <= '9';
}

constexpr char Lower(char sign)
{
    return static_cast<char>(AsciiLower(static_cast<unsigned char>(sign)));
}

constexpr bool IsExponentSign(char sign)
{
    return Lower(sign) == 'e' || Lower(sign) == 'd';
}

// Value of a digit in any base up to 16; 99 for what is none.
constexpr unsigned DigitValue(char sign)
{
    const char low = Lower(sign);
    if (IsDigit(low))
        return static_cast<unsigned>(low - '0');
    return low >= 'a' && low <= 'f' ? static_cast<unsigned>(low - 'a') + 10 : 99;
}

// Reads a text sign by sign; behind the end stands NUL. Blanks that are
// skipped never part digits here; Val hands over a text without any.
struct Cursor {
    std::string_view Text;
    std::size_t Pos = 0;

    char Peek(std::size_t ahead = 0) const
    {
        return Pos + ahead < Text.size() ? Text[Pos + ahead] : '\0';
    }
    bool Take(char sign)
    {
        const bool there = Pos < Text.size() && Text[Pos] == sign;
        Pos += there ? 1 : 0;
        return there;
    }
    bool AtEnd() const { return Pos >= Text.size(); }
};

// Digits as std::from_chars takes them: commas left out, `e` for the exponent.
// Empty when there is no digit. `grouped` lets commas stand behind the first
// digit of the whole part.
std::string DecimalDigits(Cursor& cursor, bool grouped)
{
    std::string digits;
    const auto takeDigits = [&](bool commas) {
        for (; IsDigit(cursor.Peek()) || (commas && cursor.Peek() == ',' && !digits.empty());
             ++cursor.Pos) {
            if (cursor.Peek() != ',')
                digits += cursor.Peek();
        }
    };
    takeDigits(grouped);
    const bool hasWhole = !digits.empty();
    if (cursor.Peek() == '.' && (hasWhole || IsDigit(cursor.Peek(1)))) {
        ++cursor.Pos;
        digits += hasWhole ? "." : "0.";
        takeDigits(false);
    }
    return digits;
}

// The exponent behind digits; nothing is taken when no digit stands in it.
void AppendExponent(Cursor& cursor, std::string& digits)
{
    if (!IsExponentSign(cursor.Peek()))
        return;
    const bool isSigned = cursor.Peek(1) == '+' || cursor.Peek(1) == '-';
    if (!IsDigit(cursor.Peek(isSigned ? 2 : 1)))
        return;
    digits += cursor.Peek(1) == '-' ? "e-" : "e";
    cursor.Pos += isSigned ? 2 : 1;
    for (; IsDigit(cursor.Peek()); ++cursor.Pos)
        digits += cursor.Peek();
}

// True for digits whose number is so large that it cannot be held, and not so
// small: the exponent tells, or many digits before the point do.
bool IsHuge(std::string_view digits)
{
    const std::size_t exponent = digits.find('e');
    if (exponent == std::string_view::npos)
        return digits.find('.') > 300;
    return digits.substr(exponent + 1, 1) != "-";
}

bool IsZero(std::string_view digits)
{
    return digits.substr(0, digits.find('e')).find_first_not_of("0.") == std::string_view::npos;
}

template <typename Real>
Real ValueOf(std::string_view digits)
{
    Real value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    const bool infinite = IsHuge(digits) && !IsZero(digits);
    return infinite ? std::numeric_limits<Real>::infinity() : Real(0);
}

// Digits of base 16 or 8 behind `&H`, `&O` or `&`; nullopt when there are
// none, or more than 64 bits of them.
std::optional<std::uint64_t> RadixDigits(Cursor& cursor)
{
    const char kind = Lower(cursor.Peek());
    const unsigned shift = kind == 'h' ? 4 : 3;
    if (kind == 'h' || kind == 'o')
        ++cursor.Pos;
    const std::size_t first = cursor.Pos;
    std::uint64_t value = 0;
    for (; DigitValue(cursor.Peek()) < 1u << shift; ++cursor.Pos) {
        if (value >> (64 - shift) != 0)
            return std::nullopt;
        value = value << shift | DigitValue(cursor.Peek());
    }
    return cursor.Pos == first ? std::nullopt : std::optional(value);
}

// What a whole text says, before it is fitted to a width.
struct Reading {
    bool IsRadix = false;
    bool IsNegative = false;
    std::uint64_t RadixValue = 0;
    std::string Digits;
};

// The signs that may stand round the digits, each kind once.
struct Surround {
    bool Negative = false;
    bool Signed = false;
    bool Parenthesis = false;
    bool Currency = false;
};

bool SkipSpace(Cursor& cursor)
{
    constexpr std::string_view NoBreakSpace = "\xC2\xA0";
    if (cursor.Text.substr(cursor.Pos, 2) == NoBreakSpace) {
        cursor.Pos += 2;
        return true;
    }
    return cursor.Take(' ') || cursor.Take('\t') || cursor.Take('\r') || cursor.Take('\n');
}

bool TakeOnce(Cursor& cursor, char sign, bool& taken)
{
    if (taken || !cursor.Take(sign))
        return false;
    taken = true;
    return true;
}

bool TakeSign(Cursor& cursor, Surround& around)
{
    if (around.Parenthesis)
        return false;
    const bool minus = cursor.Peek() == '-';
    if (!TakeOnce(cursor, minus ? '-' : '+', around.Signed))
        return false;
    around.Negative = minus;
    return true;
}

void TakeBefore(Cursor& cursor, Surround& around)
{
    while (SkipSpace(cursor) || TakeSign(cursor, around) || TakeOnce(cursor, '$', around.Currency)
           || (!around.Signed && TakeOnce(cursor, '(', around.Parenthesis)))
        continue;
}

// False when an opened parenthesis stays open.
bool TakeBehind(Cursor& cursor, Surround& around)
{
    bool closed = !around.Parenthesis;
    while (SkipSpace(cursor) || TakeSign(cursor, around) || TakeOnce(cursor, '$', around.Currency)
           || TakeOnce(cursor, ')', closed))
        continue;
    return closed;
}

std::optional<Reading> ReadWhole(std::string_view text)
{
    Cursor cursor{text};
    Surround around;
    Reading reading;
    TakeBefore(cursor, around);
    reading.IsRadix = cursor.Take('&');
    if (reading.IsRadix) {
        const auto value = RadixDigits(cursor);
        if (!value)
            return std::nullopt;
        reading.RadixValue = *value;
    } else {
        reading.Digits = DecimalDigits(cursor, true);
        if (reading.Digits.empty())
            return std::nullopt;
        AppendExponent(cursor, reading.Digits);
    }
    if (!TakeBehind(cursor, around) || !cursor.AtEnd())
        return std::nullopt;
    reading.IsNegative = around.Negative || around.Parenthesis;
    return reading;
}

template <typename Real>
Real RealOf(const Reading& reading)
{
    const Real size =
        reading.IsRadix ? static_cast<Real>(reading.RadixValue) : ValueOf<Real>(reading.Digits);
    return reading.IsNegative ? -size : size;
}

template <typename Real>
std::optional<Real> ParseReal(std::string_view text)
{
    const auto reading = ReadWhole(text);
    if (!reading)
        return std::nullopt;
    const Real value = RealOf<Real>(*reading);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

// Plain digits, as nearly every settings key holds them.
template <typename T>
std::optional<int> ParsePlain(std::string_view text)
{
    T value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

template <typename T>
std::optional<int> ParseWhole(std::string_view text)
{
    if (const auto plain = ParsePlain<T>(text))
        return plain;
    const auto reading = ReadWhole(text);
    if (!reading)
        return std::nullopt;
    using Bits = std::make_unsigned_t<T>;
    if (reading->IsRadix && !reading->IsNegative
        && reading->RadixValue <= std::numeric_limits<Bits>::max())
        return static_cast<T>(static_cast<Bits>(reading->RadixValue));
    T value = 0;
    if (!AssignChecked(value, RealOf<double>(*reading)))
        return std::nullopt;
    return value;
}

constexpr bool IsValBlank(char sign)
{
    return sign == ' ' || sign == '\t' || sign == '\n';
}

// Hexadecimal and octal numbers of up to 16 bits are 16-bit numbers with a
// sign unless a `&` stands behind, those of up to 32 bits 32-bit numbers.
double SignedRadix(std::uint64_t value, bool isLong)
{
    if (value <= 0xFFFF && !isLong)
        return static_cast<std::int16_t>(value);
    if (value <= 0xFFFFFFFF)
        return static_cast<std::int32_t>(value);
    return static_cast<double>(value);
}

template <typename Real>
std::string RealToText(Real value, int digits)
{
    if (value == 0)
        return "0";
    std::array<char, 40> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::general, digits);
    std::string text(buffer.data(), result.ptr);
    AsciiUpper(text.data(), text.size());
    return text;
}

} // namespace

double Val(std::string_view text)
{
    std::string packed;
    for (const char sign : text) {
        if (!IsValBlank(sign))
            packed += sign;
    }
    Cursor cursor{packed};
    const bool isNegative = cursor.Take('-');
    if (!isNegative)
        cursor.Take('+');
    double size = 0;
    if (cursor.Take('&')) {
        const auto value = RadixDigits(cursor);
        size = value ? SignedRadix(*value, cursor.Peek() == '&') : 0;
    } else {
        std::string digits = DecimalDigits(cursor, false);
        AppendExponent(cursor, digits);
        size = ValueOf<double>(digits);
    }
    return isNegative && size != 0 ? -size : size;
}

std::optional<int> ParseByte(std::string_view text)
{
    return ParseWhole<std::uint8_t>(text);
}

std::optional<int> ParseI16(std::string_view text)
{
    return ParseWhole<std::int16_t>(text);
}

std::optional<int> ParseI32(std::string_view text)
{
    return ParseWhole<std::int32_t>(text);
}

std::optional<float> ParseSingle(std::string_view text)
{
    return ParseReal<float>(text);
}

std::optional<double> ParseDouble(std::string_view text)
{
    return ParseReal<double>(text);
}

std::optional<bool> ParseBool(std::string_view text)
{
    if (SameText(text, "True") || SameText(text, "#TRUE#"))
        return true;
    if (SameText(text, "False") || SameText(text, "#FALSE#"))
        return false;
    const auto number = ParseDouble(text);
    return number ? std::optional(*number != 0) : std::nullopt;
}

double RoundHalfEven(double value)
{
    const double below = std::floor(value);
    const double part = value - below;
    if (part != 0.5)
        return part < 0.5 ? below : below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::string SingleToText(float value)
{
    return RealToText(value, 7);
}

std::string DoubleToText(double value)
{
    return RealToText(value, 15);
}

std::string IntToText(std::int64_t value)
{
    return std::to_string(value);
}

std::string BoolToText(bool value)
{
    return value ? "True" : "False";
}

} // namespace tavo
