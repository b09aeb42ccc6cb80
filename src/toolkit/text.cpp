#include "toolkit/text.h"

#include "toolkit/unicode_case.h"

#include <algorithm>

namespace tavo {

namespace {

std::size_t CountOf(int count)
{
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}

// Byte offset behind the first `count` characters.
std::size_t BytesOfFirst(std::string_view text, std::size_t count)
{
    const std::string_view head = text.substr(0, std::min(count, text.size()));
    std::size_t pos = AsciiPrefix(head);
    for (std::size_t done = pos; done < count && pos < text.size(); ++done)
        NextChar(text, pos);
    return pos;
}

// Byte offset where the last `count` characters begin.
std::size_t BytesBeforeLast(std::string_view text, std::size_t count)
{
    std::size_t pos = text.size();
    for (; count > 0 && pos > 0; --count)
        PrevChar(text, pos);
    return pos;
}

char32_t FoldOf(Character character)
{
    return character.IsStray() ? character.Code : SimpleFold(character.Code);
}

// Maps the case of every code point; stray bytes are copied. Runs of ASCII are
// copied and mapped whole.
std::string MapCase(std::string_view text, void (*mapAscii)(char*, std::size_t),
                    char32_t (*mapCode)(char32_t))
{
    std::string mapped;
    for (std::size_t pos = 0;;) {
        const std::string_view rest = text.substr(pos);
        const std::size_t plain = AsciiPrefix(rest);
        const std::size_t start = mapped.size();
        mapped.append(rest.substr(0, plain));
        mapAscii(mapped.data() + start, plain);
        pos += plain;
        if (pos == text.size())
            return mapped;
        const Character next = NextCharAny(text, pos);
        AppendChar(mapped, next.IsStray() ? next.Code : mapCode(next.Code));
    }
}

// Compares from the given offsets on until `part` is used up; moves both
// offsets. False at the first difference, also when `text` ends before.
bool MatchFrom(std::string_view text, std::size_t& pos, std::string_view part, std::size_t& partPos,
               Compare compare)
{
    while (partPos < part.size()) {
        if (pos >= text.size())
            return false;
        const Character left = NextChar(text, pos);
        const Character right = NextChar(part, partPos);
        if (left == right)
            continue;
        if (compare == Compare::Binary || FoldOf(left) != FoldOf(right))
            return false;
    }
    return true;
}

bool MatchAt(std::string_view text, std::size_t pos, std::string_view part, Compare compare)
{
    std::size_t partPos = 0;
    return MatchFrom(text, pos, part, partPos, compare);
}

bool HasStray(std::string_view text)
{
    for (std::size_t pos = AsciiPrefix(text); pos < text.size();) {
        if (NextChar(text, pos).IsStray())
            return true;
    }
    return false;
}

// Where `find` can be looked up byte by byte: valid UTF-8 is found between
// characters only.
bool SearchesBytes(std::string_view find, Compare compare)
{
    return compare == Compare::Binary && !HasStray(find);
}

// The number of leading bytes that are equal ASCII but for case.
std::size_t SameAsciiPrefix(std::string_view left, std::string_view right)
{
    const std::size_t count = std::min(left.size(), right.size());
    std::size_t i = 0;
    for (; i < count; ++i) {
        const auto l = static_cast<unsigned char>(left[i]);
        const auto r = static_cast<unsigned char>(right[i]);
        if ((l | r) >= 0x80 || AsciiLower(l) != AsciiLower(r))
            break;
    }
    return i;
}

std::size_t FindAsciiBlind(std::string_view text, std::size_t pos, std::string_view find)
{
    for (; pos + find.size() <= text.size(); ++pos) {
        if (SameAsciiPrefix(text.substr(pos), find) == find.size())
            return pos;
    }
    return std::string_view::npos;
}

std::size_t FindFrom(std::string_view text, std::size_t pos, std::string_view find, Compare compare)
{
    if (SearchesBytes(find, compare))
        return text.find(find, pos);
    if (compare == Compare::Text && IsAscii(text) && IsAscii(find))
        return FindAsciiBlind(text, pos, find);
    while (pos < text.size()) {
        if (MatchAt(text, pos, find, compare))
            return pos;
        NextChar(text, pos);
    }
    return std::string_view::npos;
}

std::size_t FindLast(std::string_view text, std::string_view find, Compare compare)
{
    if (SearchesBytes(find, compare))
        return text.rfind(find);
    for (std::size_t pos = text.size(); pos > 0;) {
        PrevChar(text, pos);
        if (MatchAt(text, pos, find, compare))
            return pos;
    }
    return std::string_view::npos;
}

int PosOfByte(std::string_view text, std::size_t bytePos)
{
    return bytePos == std::string_view::npos ? 0 : Len(text.substr(0, bytePos)) + 1;
}

} // namespace

int Len(std::string_view text)
{
    std::size_t pos = AsciiPrefix(text);
    std::size_t count = pos;
    for (; pos < text.size(); ++count)
        NextChar(text, pos);
    return static_cast<int>(count);
}

std::string Left(std::string_view text, int count)
{
    return std::string(text.substr(0, BytesOfFirst(text, CountOf(count))));
}

std::string Right(std::string_view text, int count)
{
    return std::string(text.substr(BytesBeforeLast(text, CountOf(count))));
}

std::string Mid(std::string_view text, int start)
{
    return start < 1 ? std::string() : std::string(text.substr(BytePosOf(text, start)));
}

std::string Mid(std::string_view text, int start, int count)
{
    if (start < 1)
        return {};
    const std::string_view rest = text.substr(BytePosOf(text, start));
    return std::string(rest.substr(0, BytesOfFirst(rest, CountOf(count))));
}

std::string CharAt(std::string_view text, int pos)
{
    return Mid(text, pos, 1);
}

std::size_t BytePosOf(std::string_view text, int pos)
{
    return pos < 1 ? 0 : BytesOfFirst(text, static_cast<std::size_t>(pos) - 1);
}

int InStr(int start, std::string_view text, std::string_view find, Compare compare)
{
    if (start < 1)
        return 0;
    const std::size_t from = BytePosOf(text, start);
    if (from >= text.size())
        return 0;
    if (find.empty())
        return start;
    const std::size_t found = FindFrom(text, from, find, compare);
    if (found == std::string_view::npos)
        return 0;
    return start + Len(text.substr(from, found - from));
}

int InStrRev(std::string_view text, std::string_view find, int start, Compare compare)
{
    const int length = Len(text);
    const int last = start == -1 ? length : start;
    if (last < 1 || last > length)
        return 0;
    if (find.empty())
        return last;
    const std::string_view head = text.substr(0, BytesOfFirst(text, CountOf(last)));
    return PosOfByte(head, FindLast(head, find, compare));
}

std::string LCase(std::string_view text)
{
    return MapCase(text, AsciiLower, SimpleLower);
}

std::string UCase(std::string_view text)
{
    return MapCase(text, AsciiUpper, SimpleUpper);
}

std::string FoldCase(std::string_view text)
{
    return MapCase(text, AsciiLower, SimpleFold);
}

bool SameText(std::string_view left, std::string_view right)
{
    std::size_t leftPos = SameAsciiPrefix(left, right);
    std::size_t rightPos = leftPos;
    return MatchFrom(left, leftPos, right, rightPos, Compare::Text) && leftPos == left.size();
}

bool StartsWithText(std::string_view text, std::string_view part)
{
    return MatchAt(text, 0, part, Compare::Text);
}

bool EndsWithText(std::string_view text, std::string_view part)
{
    const std::size_t count = CountOf(Len(part));
    const std::string_view tail = text.substr(BytesBeforeLast(text, count));
    return SameText(tail, part);
}

std::string Trim(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string LTrim(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return std::string(text.substr(std::min(first, text.size())));
}

std::string RTrim(std::string_view text)
{
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

char32_t Asc(std::string_view text)
{
    std::size_t pos = 0;
    return text.empty() ? 0 : NextChar(text, pos).Code;
}

std::string Chr(char32_t code)
{
    std::string text;
    AppendChar(text, code);
    return text;
}

std::string CutBytes(std::string_view text, std::size_t maxBytes)
{
    std::size_t end = std::min(maxBytes, text.size());
    while (!IsCharBoundary(text, end))
        --end;
    return std::string(text.substr(0, end));
}

std::string RightWithinBytes(std::string_view text, std::size_t maxBytes)
{
    std::size_t start = text.size() - std::min(maxBytes, text.size());
    while (!IsCharBoundary(text, start))
        ++start;
    return std::string(text.substr(start));
}

} // namespace tavo
