#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavo {

// One character of a text: a code point, or a byte that is no valid UTF-8.
// Names on disk may hold any bytes, so such a byte is a character of its own
// and is written back as it was. As a number it stands behind all code points.
struct Character {
    static constexpr char32_t StrayBase = 0x110000;

    // U+0000 to U+10FFFF without surrogates, or StrayBase + the byte's value.
    char32_t Code = 0;

    constexpr bool IsStray() const { return Code >= StrayBase; }
    // The byte itself; only for a stray one.
    constexpr unsigned char Byte() const { return static_cast<unsigned char>(Code - StrayBase); }
    friend constexpr bool operator==(Character, Character) = default;
};

// The character at `bytePos`, which must lie inside the text and at the start
// of a character. Moves `bytePos` behind it. This one is for any character,
// NextChar is the same with a short way for ASCII.
Character NextCharAny(std::string_view text, std::size_t& bytePos);

inline Character NextChar(std::string_view text, std::size_t& bytePos)
{
    const auto byte = static_cast<unsigned char>(text[bytePos]);
    if (byte >= 0x80)
        return NextCharAny(text, bytePos);
    ++bytePos;
    return {byte};
}

// The character that ends at `bytePos` (over 0); moves `bytePos` to its start.
Character PrevChar(std::string_view text, std::size_t& bytePos);

// Appends a character as it stands in a text: UTF-8, or the stray byte.
// A number that is no character (surrogates, too large) appends nothing.
void AppendChar(std::string& out, char32_t code);

// True when no character of the text lies on both sides of `bytePos`.
bool IsCharBoundary(std::string_view text, std::size_t bytePos);

// Number of bytes below 80 before the first other one.
std::size_t AsciiPrefix(std::string_view text);
inline bool IsAscii(std::string_view text)
{
    return AsciiPrefix(text) == text.size();
}

// Changes the case of A to Z in place; other bytes stay.
void AsciiLower(char* text, std::size_t count);
void AsciiUpper(char* text, std::size_t count);
constexpr unsigned char AsciiLower(unsigned char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + 32) : byte;
}

} // namespace tavo
