#pragma once

#include "toolkit/utf8.h"

#include <cstddef>
#include <string>
#include <string_view>

// Text functions on UTF-8. A character is one code point, or one byte that is
// no valid UTF-8; positions and lengths count characters, positions from 1,
// unless the name says bytes. None of them fails: a length below 1 is 0, a
// length beyond the end is the rest, a position outside the text gives an
// empty text or 0.
namespace tavo {

// Binary compares characters as they are, Text without regard to case.
enum class Compare { Binary, Text };

int Len(std::string_view text);

std::string Left(std::string_view text, int count);
std::string Right(std::string_view text, int count);
// From `start` to the end, or `count` characters of that.
std::string Mid(std::string_view text, int start);
std::string Mid(std::string_view text, int start, int count);

// The character at `pos`, empty outside the text.
std::string CharAt(std::string_view text, int pos);

// Byte offset of the character at `pos`; the size of the text when it lies
// behind the end. For walks that cut views out of a text without copying.
std::size_t BytePosOf(std::string_view text, int pos);

// Position of the first `find` at or behind `start`, 0 for none. An empty
// `find` stands at `start`. 0 when `start` lies outside the text. A match
// begins and ends between characters, never inside one.
int InStr(int start, std::string_view text, std::string_view find,
          Compare compare = Compare::Binary);
inline int InStr(std::string_view text, std::string_view find)
{
    return InStr(1, text, find);
}

// Position of the last `find` that ends at or before the character `start`
// (-1: the last of the text), 0 for none. An empty `find` stands at `start`.
int InStrRev(std::string_view text, std::string_view find, int start = -1,
             Compare compare = Compare::Binary);

// Simple case of each code point, one to one: the number of characters never
// changes, `ß` has no upper case. Stray bytes stay.
std::string LCase(std::string_view text);
std::string UCase(std::string_view text);

// Folds a text for comparison: two texts are equal without regard to case
// when their folded forms are equal.
std::string FoldCase(std::string_view text);
// The same question without making the forms.
bool SameText(std::string_view left, std::string_view right);
// True when `text` begins (ends) with `part` without regard to case.
bool StartsWithText(std::string_view text, std::string_view part);
bool EndsWithText(std::string_view text, std::string_view part);

// Take off blanks (U+0020), and no other white space.
std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);

// Number of the first character as in Character::Code, 0 for an empty text;
// Chr goes the way back and gives an empty text for what is no character.
char32_t Asc(std::string_view text);
std::string Chr(char32_t code);

// The longest beginning (end) of at most `maxBytes` bytes that splits no
// character.
std::string CutBytes(std::string_view text, std::size_t maxBytes);
std::string RightWithinBytes(std::string_view text, std::size_t maxBytes);

} // namespace tavo
