#include "toolkit/unicode_case.h"

#include <algorithm>
#include <iterator>

namespace tavo {

namespace {

// Code points First, First + Step .. Last move by Delta.
struct CaseRun {
    char32_t First;
    char32_t Last;
    char32_t Step;
    int Delta;
};

#include "toolkit/unicode_case_tables.inc"

template <std::size_t Count>
char32_t Moved(const CaseRun (&runs)[Count], char32_t code)
{
    const CaseRun* run =
        std::lower_bound(std::begin(runs), std::end(runs), code,
                         [](const CaseRun& each, char32_t wanted) { return each.Last < wanted; });
    if (run == std::end(runs) || code < run->First || (code - run->First) % run->Step != 0)
        return code;
    return code + static_cast<char32_t>(run->Delta);
}

constexpr bool IsBetween(char32_t code, char32_t first, char32_t last)
{
    return code - first <= last - first;
}

// Capitals of Latin-1 beyond ASCII; D7 is the multiplication sign.
constexpr bool IsLatinCapital(char32_t code)
{
    return IsBetween(code, 0xC0, 0xDE) && code != 0xD7;
}

} // namespace

char32_t SimpleUpper(char32_t code)
{
    if (code < 0x80)
        return IsBetween(code, 'a', 'z') ? code - 32 : code;
    if (IsBetween(code, 0xE0, 0xFE) && code != 0xF7)
        return code - 32;
    return Moved(UpperRuns, code);
}

char32_t SimpleLower(char32_t code)
{
    if (code < 0x80)
        return IsBetween(code, 'A', 'Z') ? code + 32 : code;
    if (code <= 0xFF)
        return IsLatinCapital(code) ? code + 32 : code;
    return Moved(LowerRuns, code);
}

char32_t SimpleFold(char32_t code)
{
    if (code < 0x80)
        return IsBetween(code, 'A', 'Z') ? code + 32 : code;
    if (code <= 0xFF && code != 0xB5)
        return IsLatinCapital(code) ? code + 32 : code;
    return Moved(FoldRuns, code);
}

} // namespace tavo
