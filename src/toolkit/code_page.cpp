#include "toolkit/code_page.h"

#include "toolkit/utf8.h"

#include <algorithm>
#include <iterator>

namespace tavo {

namespace {

// Code points of the bytes 80 to 9F; all others are their own number.
constexpr char16_t CodesOf80To9F[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

unsigned char ByteOfCode(char32_t code)
{
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF))
        return static_cast<unsigned char>(code);
    const auto found = std::find(std::begin(CodesOf80To9F), std::end(CodesOf80To9F), code);
    if (found == std::end(CodesOf80To9F))
        return '?';
    return static_cast<unsigned char>(0x80 + (found - std::begin(CodesOf80To9F)));
}

} // namespace

char32_t Cp1252ToCode(unsigned char byte)
{
    return byte >= 0x80 && byte <= 0x9F ? CodesOf80To9F[byte - 0x80] : byte;
}

std::string Cp1252ToUtf8(std::string_view bytes)
{
    if (IsAscii(bytes))
        return std::string(bytes);
    std::string text;
    text.reserve(bytes.size() + 16);
    for (const char byte : bytes)
        AppendChar(text, Cp1252ToCode(static_cast<unsigned char>(byte)));
    return text;
}

std::string Utf8ToCp1252(std::string_view text)
{
    if (IsAscii(text))
        return std::string(text);
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t pos = 0; pos < text.size();) {
        const Character next = NextChar(text, pos);
        bytes.push_back(static_cast<char>(next.IsStray() ? next.Byte() : ByteOfCode(next.Code)));
    }
    return bytes;
}

unsigned char Cp1252Upper(unsigned char byte)
{
    switch (byte) {
    case 0x9A:
    case 0x9C:
    case 0x9E: return static_cast<unsigned char>(byte - 0x10);
    case 0xFF: return 0x9F;
    case 0xF7: return byte;
    default: break;
    }
    const bool small = (byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte <= 0xFE);
    return small ? static_cast<unsigned char>(byte - 0x20) : byte;
}

unsigned char Cp1252Lower(unsigned char byte)
{
    switch (byte) {
    case 0x8A:
    case 0x8C:
    case 0x8E: return static_cast<unsigned char>(byte + 0x10);
    case 0x9F: return 0xFF;
    case 0xD7: return byte;
    default: break;
    }
    const bool capital = (byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE);
    return capital ? static_cast<unsigned char>(byte + 0x20) : byte;
}

} // namespace tavo
