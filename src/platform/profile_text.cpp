#include "platform/profile_text.h"

#include "toolkit/text.h"

#include <algorithm>
#include <iterator>

namespace tavo {

namespace {

constexpr std::string_view blanks = " \t";

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

// Sets kind, names and value from the text of the line.
void ReadLine(std::string_view text, ProfileText::Line& line)
{
    text = TrimProfileText(text);
    if (text.empty() || text.front() == ';')
        return;
    if (text.front() == '[')
        ReadSection(text, line);
    if (line.Kind == ProfileText::LineKind::Other)
        ReadKey(text, line);
    line.Folded = FoldCase(line.Name);
}

// Where the first CR or LF stands, or the size; units are of 1 or 2 bytes.
std::size_t LineLength(std::string_view bytes, std::size_t unitBytes)
{
    std::size_t pos = bytes.find_first_of("\r\n");
    while (unitBytes == 2 && pos < bytes.size()
           && (pos % 2 != 0 || bytes.substr(pos + 1, 1) != std::string_view("\0", 1)))
        pos = bytes.find_first_of("\r\n", pos + 1);
    return std::min(pos, bytes.size());
}

// The bytes of the line end in front.
std::size_t EndLength(std::string_view bytes, std::size_t unitBytes)
{
    const bool isPair = bytes.starts_with('\r')
                        && LineLength(bytes.substr(unitBytes), unitBytes) == 0
                        && bytes.substr(unitBytes).starts_with('\n');
    return std::min(isPair ? 2 * unitBytes : unitBytes, bytes.size());
}

} // namespace

ProfileText::ProfileText(std::string_view bytes, ProfileDialect dialect)
    : encoding_(bytes, dialect), lines_(LinesIn(bytes.substr(encoding_.Mark().size())))
{
    if (dialect == ProfileDialect::Windows)
        newLineEnd_ = encoding_.Encode("\r\n");
    else if (lines_.empty() || lines_.front().End.empty())
        newLineEnd_ = encoding_.Encode("\n");
    else
        newLineEnd_ = lines_.front().End;
}

std::string ProfileText::Bytes() const
{
    std::string bytes(encoding_.Mark());
    for (const Line& line : lines_)
        bytes.append(line.Text).append(line.End);
    return bytes;
}

std::vector<ProfileText::Line> ProfileText::LinesIn(std::string_view bytes) const
{
    const std::size_t unitBytes = encoding_.UnitBytes();
    std::vector<Line> lines;
    std::string space;
    while (!bytes.empty()) {
        const std::size_t length = LineLength(bytes, unitBytes);
        const std::string_view behind = bytes.substr(length);
        const std::size_t endBytes = EndLength(behind, unitBytes);
        Line& line = lines.emplace_back();
        line.Text = bytes.substr(0, length);
        line.End = behind.substr(0, endBytes);
        ReadLine(encoding_.Decode(line.Text, space), line);
        bytes = behind.substr(endBytes);
    }
    return lines;
}

ProfileText::Range ProfileText::LinesOf(std::string_view section) const
{
    const std::string wanted = FoldCase(TrimProfileText(section));
    std::size_t header = 0, first = 0;
    if (!wanted.empty()) {
        while (header < lines_.size()
               && (lines_[header].Kind != LineKind::Section || lines_[header].Folded != wanted))
            ++header;
        if (header == lines_.size())
            return {false, header, header, header};
        first = header + 1;
    }
    std::size_t end = first;
    while (end < lines_.size() && lines_[end].Kind != LineKind::Section)
        ++end;
    return {true, header, first, end};
}

std::size_t ProfileText::FindKey(const Range& range, std::string_view key) const
{
    const std::string wanted = FoldCase(TrimProfileText(key));
    std::size_t index = range.First;
    while (index < range.End
           && (lines_[index].Kind != LineKind::Key || lines_[index].Folded != wanted))
        ++index;
    return index;
}

std::size_t ProfileText::EndWithoutBlanks(const Range& range) const
{
    std::string space;
    std::size_t end = range.End;
    while (end > range.First
           && TrimProfileText(encoding_.Decode(lines_[end - 1].Text, space)).empty())
        --end;
    return end;
}

std::optional<std::string> ProfileText::Value(std::string_view section, std::string_view key) const
{
    const Range range = LinesOf(section);
    const std::size_t index = FindKey(range, key);
    if (index == range.End)
        return std::nullopt;
    return std::string(WithoutQuotes(lines_[index].Value));
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

void ProfileText::Write(const ProfileChange& change)
{
    const std::string section = AsWritten(change.Section);
    const Range range = LinesOf(section);
    if (!change.Key)
        return Replace(range.Header, range.End, {});
    const std::string key = AsWritten(*change.Key);
    const std::size_t index = FindKey(range, key);
    const bool isThere = index < range.End;
    if (!change.Value)
        return Replace(index, isThere ? index + 1 : index, {});
    const std::string value = AsWritten(*change.Value);
    if (isThere)
        return ChangeValue(index, value);
    if (!range.IsThere)
        Insert(lines_.size(), '[' + section + ']');
    Insert(range.IsThere ? EndWithoutBlanks(range) : lines_.size(), key + '=' + value);
}

// The text as it will be read from the file.
std::string ProfileText::AsWritten(std::string_view text) const
{
    text = text.substr(0, text.find('\0'));
    const std::string bytes =
        encoding_.Encode(text.substr(std::min(text.find_first_not_of(blanks), text.size())));
    std::string space;
    return std::string(encoding_.Decode(bytes, space));
}

void ProfileText::ChangeValue(std::size_t index, const std::string& value)
{
    if (lines_[index].Value == value)
        return;
    std::string space;
    const std::string_view text = encoding_.Decode(lines_[index].Text, space);
    const std::size_t behindSign = text.find('=') + 1;
    const std::size_t start = std::min(text.find_first_not_of(blanks, behindSign), text.size());
    const std::string changed = std::string(text.substr(0, start)) + value;
    Replace(index, index + 1, encoding_.Encode(changed) + lines_[index].End);
}

// Inserts text as a new line, which needs a line end before it.
void ProfileText::Insert(std::size_t index, const std::string& text)
{
    if (index > 0 && lines_[index - 1].End.empty()) {
        Line& above = lines_[index - 1];
        // Half a unit of UTF-16 would shift all that comes behind it.
        above.Text.resize(above.Text.size() - above.Text.size() % encoding_.UnitBytes());
        above.End = newLineEnd_;
    }
    Replace(index, index, encoding_.Encode(text) + newLineEnd_);
}

void ProfileText::Replace(std::size_t first, std::size_t end, std::string_view bytes)
{
    std::vector<Line> lines = LinesIn(bytes);
    const auto same = static_cast<std::ptrdiff_t>(std::min(end - first, lines.size()));
    const auto from = lines.begin() + same;
    const auto to =
        std::move(lines.begin(), from, lines_.begin() + static_cast<std::ptrdiff_t>(first));
    const auto behind = lines_.erase(to, lines_.begin() + static_cast<std::ptrdiff_t>(end));
    lines_.insert(behind, std::move_iterator(from), std::move_iterator(lines.end()));
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
