#include "platform/profile_text.h"

#include "toolkit/code_page.h"
#include "toolkit/text.h"
#include "toolkit/utf8.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view utf16Mark = "\xFF\xFE";
constexpr std::string_view blanks = " \t";
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

void ReadSection(std::string_view text, ProfileText::Line& line)
{
    const std::size_t end = text.rfind(']');
    if (end == text.npos)
        return;
    line.Kind = ProfileText::LineKind::Section;
    line.Name = TrimProfileText(text.substr(1, end - 1));
}

void ReadKey(std::string_view text, ProfileText::Line& line)
{
    const std::size_t equals = text.find('=');
    if (equals == text.npos)
        return;
    const std::string_view value = text.substr(equals + 1);
    line.Kind = ProfileText::LineKind::Key;
    line.Name = TrimProfileText(text.substr(0, equals));
    line.Value = TrimProfileText(value.substr(0, value.find('\0')));
}

// Sets kind, name and value from the line's bytes.
void ReadLine(ProfileText::Line& line)
{
    const std::string converted = IsUtf8(line.Text) ? std::string() : Cp1252ToUtf8(line.Text);
    const std::string_view text = TrimProfileText(converted.empty() ? line.Text : converted);
    if (text.empty() || text.front() == ';')
        return;
    if (text.front() == '[')
        ReadSection(text, line);
    if (line.Kind == ProfileText::LineKind::Other)
        ReadKey(text, line);
}

} // namespace

ProfileText::ProfileText(std::string_view bytes)
{
    if (bytes.starts_with(utf16Mark))
        AddLines(Utf8FromUtf16(bytes.substr(utf16Mark.size())));
    else
        AddLines(bytes.substr(bytes.starts_with(utf8Mark) ? utf8Mark.size() : 0));
}

void ProfileText::AddLines(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = std::min(text.find_first_of("\r\n"), text.size());
        const std::string_view behind = text.substr(length);
        const std::size_t endBytes =
            std::min<std::size_t>(behind.starts_with("\r\n") ? 2 : 1, behind.size());
        Line line;
        line.Text = text.substr(0, length);
        line.End = behind.substr(0, endBytes);
        ReadLine(line);
        folded_.push_back(FoldCase(line.Name));
        lines_.push_back(std::move(line));
        text = behind.substr(endBytes);
    }
}

ProfileText::Range ProfileText::LinesOf(std::string_view section) const
{
    const std::string wanted = FoldCase(TrimProfileText(section));
    std::size_t first = 0;
    if (!wanted.empty()) {
        while (first < lines_.size()
               && (lines_[first].Kind != LineKind::Section || folded_[first] != wanted))
            ++first;
        first = std::min(first + 1, lines_.size());
    }
    std::size_t end = first;
    while (end < lines_.size() && lines_[end].Kind != LineKind::Section)
        ++end;
    return {first, end};
}

std::optional<std::string> ProfileText::Value(std::string_view section, std::string_view key) const
{
    const std::string wanted = FoldCase(TrimProfileText(key));
    const Range range = LinesOf(section);
    for (std::size_t index = range.First; index < range.End; ++index) {
        const Line& line = lines_[index];
        if (line.Kind == LineKind::Key && folded_[index] == wanted)
            return std::string(WithoutQuotes(line.Value));
    }
    return std::nullopt;
}

std::vector<std::string> ProfileText::Keys(std::string_view section) const
{
    std::vector<std::string> names;
    const Range range = LinesOf(section);
    for (std::size_t index = range.First; index < range.End; ++index) {
        if (lines_[index].Kind == LineKind::Key)
            names.push_back(lines_[index].Name);
    }
    return names;
}

std::string ProfileAnswer(const ProfileText& text, const std::string& section,
                          const std::optional<std::string>& key, std::string_view fallback,
                          int size)
{
    if (size <= 1)
        return {};
    const auto mostBytes = static_cast<std::size_t>(size) - 1;
    if (key) {
        if (const auto value = text.Value(section, *key))
            return CutBytes(*value, mostBytes);
    } else {
        std::string run;
        for (const std::string& name : text.Keys(section))
            run.append(name).push_back('\0');
        // The run ends in one more NUL, which takes its place too.
        if (!run.empty())
            return CutBytes(run, mostBytes - 1);
    }
    const std::size_t last = fallback.find_last_not_of(' ');
    const std::string_view trimmed = fallback.substr(0, last + 1);
    return CutBytes(WithoutQuotes(trimmed), mostBytes);
}

std::string_view TrimProfileText(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

std::string_view WithoutQuotes(std::string_view text)
{
    const bool enclosed = text.size() >= 2 && text.front() == text.back()
                          && (text.front() == '"' || text.front() == '\'');
    return enclosed ? text.substr(1, text.size() - 2) : text;
}

} // namespace tavo
