#include "renamelist/counters.h"

#include "toolkit/numbers.h"
#include "toolkit/text.h"

#include <limits>

namespace tavo {

namespace {

constexpr int letterCount = 26;

std::string Pad(std::string_view value, int digits, char filler)
{
    constexpr int mostFillers = 8;
    if (digits < Len(value))
        return std::string(value);
    return Right(std::string(mostFillers, filler).append(value), digits);
}

} // namespace

std::string Cnt_PadDigits(std::string_view value, int digits)
{
    return Pad(value, digits, '0');
}

std::string Cnt_PadLetters(std::string_view value, int digits)
{
    const bool isCapital = !value.empty() && value.front() >= 'A' && value.front() <= 'Z';
    return Pad(value, digits, isCapital ? 'A' : 'a');
}

std::string Cnt_ToLetters(std::int64_t number)
{
    std::string letters;
    do {
        const std::int64_t rest = number % letterCount;
        number /= letterCount;
        letters.insert(letters.begin(), static_cast<char>('a' + rest));
    } while (number >= 1);
    return letters;
}

double Cnt_FromLetters(std::string_view text)
{
    // Place by place from the left, so that a text of any length ends at most
    // in an infinite value and never in none.
    const std::string lower = LCase(text);
    const int length = Len(lower);
    double sum = 0;
    for (int pos = 1; pos <= length; ++pos)
        sum = sum * letterCount + (static_cast<double>(Asc(CharAt(lower, pos))) - 'a');
    return sum;
}

std::string Cnt_Text(std::int64_t counter, int style, int digits)
{
    if (style == cntNumber)
        return Cnt_PadDigits(IntToText(counter), digits);
    const std::string text = Cnt_PadLetters(Cnt_ToLetters(counter), digits);
    return style == cntCapital ? UCase(text) : LCase(text);
}

std::int64_t Cnt_Start(std::string_view startText, int style)
{
    // The box holds the start far below this; a text set by other means must
    // not leave the counter without room.
    constexpr double limit = std::numeric_limits<std::int32_t>::max();
    double value = style == cntNumber ? Val(startText) : Cnt_FromLetters(startText);
    if (!(value >= -limit))
        value = -limit;
    if (value > limit)
        value = limit;
    return static_cast<std::int64_t>(RoundHalfEven(value));
}

} // namespace tavo
