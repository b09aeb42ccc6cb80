#include "fuzz/plain_profile.h"

#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

std::vector<std::string> Lines_Split(std::string_view bytes)
{
    std::vector<std::string> lines(1);
    for (std::size_t pos = 0; pos < bytes.size(); ++pos) {
        const bool isPair = bytes.substr(pos, 2) == "\r\n";
        if (bytes[pos] == '\r' || bytes[pos] == '\n')
            lines.emplace_back();
        else
            lines.back() += bytes[pos];
        pos += isPair ? 1 : 0;
    }
    return lines;
}

// The lines of the file as text. Where units have two bytes a byte alone may
// be half of any character, so all is turned into text first.
std::vector<std::string> Lines_Of(std::string_view bytes, ProfileDialect dialect)
{
    const ProfileEncoding encoding(bytes, dialect);
    bytes.remove_prefix(encoding.Mark().size());
    std::string space;
    if (encoding.UnitBytes() > 1)
        return Lines_Split(encoding.Decode(bytes, space));
    std::vector<std::string> lines = Lines_Split(bytes);
    for (std::string& line : lines)
        line = std::string(encoding.Decode(line, space));
    return lines;
}

std::string Trimmed(std::string_view text)
{
    while (text.starts_with(' ') || text.starts_with('\t'))
        text.remove_prefix(1);
    while (text.ends_with(' ') || text.ends_with('\t'))
        text.remove_suffix(1);
    return std::string(text);
}

std::string Folded(std::string_view name)
{
    return FoldCase(Trimmed(name));
}

template <typename Section>
auto Key_Find(Section& section, std::string_view key)
{
    const std::string wanted = Folded(key);
    return std::find_if(section.Keys.begin(), section.Keys.end(),
                        [&wanted](const auto& each) { return each.Folded == wanted; });
}

template <typename Sections>
auto Section_Find(Sections& sections, std::string_view name)
{
    const std::string wanted = Folded(name);
    if (wanted.empty())
        return sections.begin();
    return std::find_if(sections.begin() + 1, sections.end(),
                        [&wanted](const auto& each) { return each.Folded == wanted; });
}

} // namespace

PlainProfile::PlainProfile(std::string_view bytes, ProfileDialect dialect)
{
    for (const std::string& line : Lines_Of(bytes, dialect))
        ReadLine(Trimmed(line));
}

void PlainProfile::ReadLine(std::string_view line)
{
    const std::size_t equals = line.find('=');
    const std::size_t bracket = line.rfind(']');
    if (line.starts_with(';'))
        return;
    if (line.starts_with('[') && bracket != line.npos) {
        const std::string name = Trimmed(line.substr(1, bracket - 1));
        sections_.push_back({name, {}, Folded(name)});
    } else if (equals != line.npos) {
        const std::string name = Trimmed(line.substr(0, equals));
        const std::string_view value = line.substr(equals + 1);
        sections_.back().Keys.push_back(
            {name, Trimmed(value.substr(0, value.find('\0'))), Folded(name)});
    }
}

const PlainProfile::Section* PlainProfile::Find(std::string_view section) const
{
    const auto found = Section_Find(sections_, section);
    return found == sections_.end() ? nullptr : &*found;
}

const PlainProfile::Key* PlainProfile::Find(std::string_view section, std::string_view key) const
{
    const Section* lines = Find(section);
    if (!lines)
        return nullptr;
    const auto found = Key_Find(*lines, key);
    return found == lines->Keys.end() ? nullptr : &*found;
}

void PlainProfile::Change(const ProfileChange& change)
{
    auto section = Section_Find(sections_, change.Section);
    if (!change.Value) {
        if (section == sections_.end())
            return;
        if (!change.Key && section == sections_.begin())
            section->Keys.clear();
        else if (!change.Key)
            sections_.erase(section);
        else if (const auto key = Key_Find(*section, *change.Key); key != section->Keys.end())
            section->Keys.erase(key);
        return;
    }
    if (section == sections_.end())
        section = sections_.insert(section, {Trimmed(change.Section), {}, Folded(change.Section)});
    auto key = Key_Find(*section, *change.Key);
    if (key == section->Keys.end())
        key = section->Keys.insert(key, {Trimmed(*change.Key), {}, Folded(*change.Key)});
    key->Value = Trimmed(*change.Value);
}

} // namespace tavo
