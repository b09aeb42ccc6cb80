#include "platform/profile_encoding.h"

#include "toolkit/code_page.h"
#include "toolkit/utf8.h"

namespace tavo {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view utf16Mark = "\xFF\xFE";
constexpr char32_t replacement = 0xFFFD;

bool IsUtf8(std::string_view text)
{
    for (std::size_t pos = AsciiPrefix(text); pos < text.size();) {
        if (NextChar(text, pos).IsStray())
            return false;
    }
    return true;
}

bool IsHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

std::string Utf8FromUtf16(std::string_view bytes)
{
    const auto unitAt = [bytes](std::size_t pos) -> char32_t {
        return static_cast<unsigned char>(bytes[pos])
               | static_cast<char32_t>(static_cast<unsigned char>(bytes[pos + 1])) << 8;
    };
    std::string text;
    for (std::size_t pos = 0; pos + 1 < bytes.size(); pos += 2) {
        char32_t code = unitAt(pos);
        const char32_t next = pos + 3 < bytes.size() ? unitAt(pos + 2) : 0;
        if (IsHighSurrogate(code) && IsLowSurrogate(next)) {
            code = 0x10000 + ((code - 0xD800) << 10) + (next - 0xDC00);
            pos += 2;
        } else if (IsHighSurrogate(code) || IsLowSurrogate(code))
            code = replacement;
        AppendChar(text, code);
    }
    return text;
}

// Calls `take` with each code point.
template <typename Take>
void WalkCodes(std::string_view text, Take take)
{
    for (std::size_t pos = 0; pos < text.size();) {
        const Character character = NextChar(text, pos);
        take(character.IsStray() ? Cp1252ToCode(character.Byte()) : character.Code);
    }
}

std::string Utf16FromUtf8(std::string_view text)
{
    std::string bytes;
    const auto addUnit = [&bytes](char32_t unit) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    };
    WalkCodes(text, [&addUnit](char32_t code) {
        if (code < 0x10000)
            return addUnit(code);
        addUnit(0xD800 + ((code - 0x10000) >> 10));
        addUnit(0xDC00 + ((code - 0x10000) & 0x3FF));
    });
    return bytes;
}

std::string WithoutStrays(std::string_view text)
{
    std::string valid;
    WalkCodes(text, [&valid](char32_t code) { AppendChar(valid, code); });
    return valid;
}

} // namespace

ProfileEncoding::ProfileEncoding(std::string_view file, ProfileDialect dialect)
    : form_(FormOf(file, dialect))
{
}

ProfileEncoding::Form ProfileEncoding::FormOf(std::string_view file, ProfileDialect dialect)
{
    if (file.starts_with(utf16Mark))
        return Form::Utf16;
    if (file.starts_with(utf8Mark))
        return Form::MarkedUtf8;
    return dialect == ProfileDialect::Windows ? Form::CodePage : Form::Utf8;
}

std::string_view ProfileEncoding::Mark() const
{
    if (form_ == Form::Utf16)
        return utf16Mark;
    return form_ == Form::MarkedUtf8 ? utf8Mark : std::string_view();
}

std::string_view ProfileEncoding::Decode(std::string_view bytes, std::string& space) const
{
    if (form_ == Form::Utf16)
        return space = Utf8FromUtf16(bytes);
    if (form_ == Form::CodePage ? IsAscii(bytes) : IsUtf8(bytes))
        return bytes;
    return space = Cp1252ToUtf8(bytes);
}

std::string ProfileEncoding::Encode(std::string_view text) const
{
    switch (form_) {
    case Form::Utf16: return Utf16FromUtf8(text);
    case Form::CodePage: return Utf8ToCp1252(text);
    default: return WithoutStrays(text);
    }
}

} // namespace tavo
