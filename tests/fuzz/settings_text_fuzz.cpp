#include "fuzz/plain_profile.h"
#include "fuzz/require.h"
#include "support/memory_profile.h"
#include "toolkit/text.h"
#include "toolkit/utf8.h"

#include <algorithm>

// A settings file, and behind a line `%%` what is written to it, one change a
// line. Fields are parted by `|`; `\n` in one is a line end.
//
//     Section                 the section goes
//     Section|Key             the key goes
//     Section|Key|Value       the key gets the value

namespace tavo {
namespace {

constexpr std::string_view separator = "\n%%\n";
constexpr std::size_t mostChanges = 12;

using Changes = std::vector<ProfileChange>;

std::vector<std::string> Split(std::string_view text, char sign)
{
    std::vector<std::string> parts(1);
    for (const char each : text) {
        if (each == sign)
            parts.emplace_back();
        else
            parts.back() += each;
    }
    return parts;
}

std::string WithLineEnds(std::string field)
{
    for (std::size_t at = field.find("\\n"); at != field.npos; at = field.find("\\n", at))
        field.replace(at, 2, "\n");
    return field;
}

ProfileChange Change_Of(const std::string& line)
{
    const std::vector<std::string> fields = Split(line, '|');
    ProfileChange change{WithLineEnds(fields[0]), std::nullopt, std::nullopt};
    if (fields.size() > 1)
        change.Key = WithLineEnds(fields[1]);
    if (fields.size() > 2)
        change.Value = WithLineEnds(fields[2]);
    return change;
}

Changes Changes_Of(std::string_view script)
{
    Changes changes;
    for (const std::string& line : Split(script, '\n'))
        if (changes.size() < mostChanges)
            changes.push_back(Change_Of(line));
    return changes;
}

// -- Reading

// A text cut to fit is its beginning, as long as can be, with whole characters.
void Cut_Check(const std::string& answer, const std::string& whole, int size, int spared)
{
    const auto most = static_cast<std::size_t>(std::max(0, size - spared));
    Require(answer.size() <= most, "an answer fits into the buffer", answer);
    Require(whole.starts_with(answer), "an answer is the beginning of the text", answer);
    if (answer.size() == whole.size() || size <= 1)
        return;
    Require(IsCharBoundary(whole, answer.size()), "no character is split", answer);
    Require(answer.size() + 3 >= most, "as much as fits is given", answer);
}

void Answers_Check(const ProfileText& text, const std::string& section,
                   const std::optional<std::string>& key, const std::string& whole)
{
    for (const int size : {-1, 0, 1, 2, 3, 17, 2048})
        Cut_Check(ProfileAnswer(text, section, key, "", size), whole, size, key ? 1 : 2);
}

// The names of a section's keys, as a list of them is given.
std::string Names_Of(const std::vector<std::string>& names)
{
    std::string run;
    for (const std::string& name : names)
        run.append(name).push_back('\0');
    return run;
}

void Section_Check(const ProfileText& text, const PlainProfile& plain, const std::string& name)
{
    const PlainProfile::Section* section = plain.Find(name);
    std::vector<std::string> wanted;
    if (section)
        for (const PlainProfile::Key& key : section->Keys)
            wanted.push_back(key.Name);
    Require(text.Keys(name) == wanted, "the names of a section's keys are told", name);
    for (const std::string& key : wanted)
        Require(text.Value(name, key) == WithoutQuotes(plain.Find(name, key)->Value),
                "the first of a name gives the value", key);
}

void Reading_Check(const ProfileText& text, const PlainProfile& plain)
{
    for (const PlainProfile::Section& section : plain.Sections())
        Section_Check(text, plain, section.Name);
    for (const char* name : {"Settings", "defaults", "\xC3\x84\xC3\xA4", "nowhere\t"})
        Section_Check(text, plain, name);
}

void Sizes_Check(const ProfileText& text, const PlainProfile& plain)
{
    for (const PlainProfile::Section& section : plain.Sections()) {
        const std::vector<std::string> names = text.Keys(section.Name);
        Answers_Check(text, section.Name, std::nullopt, Names_Of(names));
        for (const std::string& name : names)
            Answers_Check(text, section.Name, name, text.Value(section.Name, name).value_or(""));
    }
    Require(ProfileAnswer(text, "nowhere", "k", "\"fallback\" ", 2048) == "fallback"
                || plain.Find("nowhere", "k"),
            "what is missing gives the fallback");
}

// -- Writing

// One text in one dialect, with what a change does to it.
class Ground {
public:
    Ground(std::string_view bytes, ProfileDialect dialect)
        : dialect_(dialect), encoding_(bytes, dialect), text_(bytes, dialect)
    {
        Require(text_.Bytes() == bytes, "a text that is read is written back as it was");
        Reading_Check(text_, Plain());
        Sizes_Check(text_, Plain());
    }

    // False when the change has made the file begin with a mark, or no more:
    // all of it is then another text.
    bool Write(const ProfileChange& change);
    // True when all that the change writes is read back as it was meant.
    bool IsPlain(const ProfileChange& change) const;
    std::string Bytes() const { return text_.Bytes(); }

private:
    // From the first one to the one behind the last.
    struct Lines {
        std::size_t First, End;
    };
    PlainProfile Plain() const { return {text_.Bytes(), dialect_}; }
    std::string AsWritten(std::string_view text) const;
    std::string Folded(const std::string& name) const
    {
        return FoldCase(TrimProfileText(AsWritten(name)));
    }
    // The lines that a change may replace or take away.
    Lines Touched(const ProfileChange& change) const;
    std::string Bytes(std::size_t first, std::size_t end) const;
    void Bytes_Check(const ProfileText& after, const ProfileChange& change) const;
    void Meaning_Check(const ProfileText& after, const ProfileChange& change) const;

    ProfileDialect dialect_;
    ProfileEncoding encoding_;
    ProfileText text_;
};

std::string Ground::AsWritten(std::string_view text) const
{
    text = text.substr(0, text.find('\0'));
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    std::string space;
    return std::string(encoding_.Decode(encoding_.Encode(text), space));
}

bool Ground::IsPlain(const ProfileChange& change) const
{
    const std::string key = AsWritten(change.Key.value_or("k"));
    const std::string all = AsWritten(change.Section) + key + AsWritten(change.Value.value_or(""));
    return all.find_first_of("\r\n") == all.npos && key.find('=') == key.npos
           && !key.starts_with(';') && !key.starts_with('[');
}

Ground::Lines Ground::Touched(const ProfileChange& change) const
{
    using Kind = ProfileText::LineKind;
    const std::vector<ProfileText::Line>& lines = text_.Lines();
    const auto find = [&](Kind kind, const std::string& name, std::size_t from, std::size_t end) {
        while (from < end && (lines[from].Kind != kind || lines[from].Folded != name))
            ++from;
        return from;
    };
    const std::string section = Folded(change.Section);
    const std::size_t header = section.empty() ? 0 : find(Kind::Section, section, 0, lines.size());
    std::size_t end = std::min(section.empty() ? 0 : header + 1, lines.size());
    while (end < lines.size() && lines[end].Kind != Kind::Section)
        ++end;
    if (!change.Key)
        return {header, end};
    const std::size_t key = find(Kind::Key, Folded(*change.Key), header, end);
    return {key, std::min(key + 1, end)};
}

std::string Ground::Bytes(std::size_t first, std::size_t end) const
{
    std::string bytes;
    for (; first < end; ++first)
        bytes += text_.Lines()[first].Text + text_.Lines()[first].End;
    return bytes;
}

// The bytes that are the same at the beginning and at the end.
std::size_t BytesKept(std::string_view before, std::string_view after)
{
    const auto front = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto back = std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend());
    return static_cast<std::size_t>(front.first - before.begin())
           + static_cast<std::size_t>(back.first - before.rbegin());
}

void Ground::Bytes_Check(const ProfileText& after, const ProfileChange& change) const
{
    const auto [first, end] = Touched(change);
    const std::string bytes = after.Bytes(), mark(encoding_.Mark());
    const std::string front = mark + Bytes(0, first), back = Bytes(end, text_.Lines().size());
    if (first == end && change.Value) {
        // Half a unit of UTF-16 at the end gives way to a line end.
        Require(BytesKept(text_.Bytes(), bytes) + encoding_.UnitBytes() > text_.Bytes().size(),
                "a new line leaves all others as they are", bytes);
        return;
    }
    const std::string lineEnd = change.Value ? text_.Lines()[first].End : "";
    Require(bytes.starts_with(front), "what stands in front stays byte for byte", bytes);
    Require(bytes.ends_with(lineEnd + back), "what stands behind stays byte for byte", bytes);
    Require(change.Value || bytes.size() == front.size() + back.size(), "what is deleted is gone",
            bytes);
}

void Ground::Meaning_Check(const ProfileText& after, const ProfileChange& change) const
{
    ProfileChange read{AsWritten(change.Section), std::nullopt, std::nullopt};
    if (change.Key)
        read.Key = AsWritten(*change.Key);
    if (change.Value)
        read.Value = AsWritten(*change.Value);
    PlainProfile wanted = Plain();
    wanted.Change(read);
    const std::string bytes = after.Bytes();
    Require(PlainProfile(bytes, dialect_) == wanted, "what was written is read, and all else",
            bytes);
    ProfileText again = after;
    again.Write(change);
    Require(!change.Value || again.Bytes() == bytes, "a value written again changes nothing",
            bytes);
}

bool Ground::Write(const ProfileChange& change)
{
    ProfileText after = text_;
    after.Write(change);
    Bytes_Check(after, change);
    const std::string bytes = after.Bytes();
    if (ProfileEncoding(bytes, dialect_).Mark() != encoding_.Mark())
        return false;
    Reading_Check(after, PlainProfile(bytes, dialect_));
    if (IsPlain(change))
        Meaning_Check(after, change);
    text_ = std::move(after);
    return true;
}

// -- Saving

// What is written in one save is what is written one by one. Line ends may be
// others: those of a new line follow the first line of the file as it was when
// it was read, and that line may go.
void Save_Check(std::string_view bytes, const Changes& changes, ProfileDialect dialect)
{
    const std::string file = "Tavo.ini";
    MemoryProfile single(dialect), saved(dialect);
    single.SetText(file, std::string(bytes));
    saved.SetText(file, std::string(bytes));
    {
        const ProfileSave save(saved, file);
        for (const ProfileChange& change : changes) {
            single.WritePrivateProfileStringA(change.Section, change.Key, change.Value, file);
            saved.WritePrivateProfileStringA(change.Section, change.Key, change.Value, file);
            Require(saved.GetPrivateProfileStringA(change.Section, std::nullopt, "", 2048, file)
                        == single.GetPrivateProfileStringA(change.Section, std::nullopt, "", 2048,
                                                           file),
                    "what a save has written is seen in it");
        }
        Require(saved.Text(file) == bytes, "a save that goes on leaves the file as it is");
    }
    Require(PlainProfile(*saved.Text(file), dialect) == PlainProfile(*single.Text(file), dialect),
            "one save does what its changes do", *saved.Text(file));
}

void Dialect_Try(std::string_view bytes, const Changes& changes, ProfileDialect dialect)
{
    Ground ground(bytes, dialect);
    bool allPlain = true;
    for (const ProfileChange& change : changes) {
        allPlain = allPlain && ground.IsPlain(change);
        if (!ground.Write(change))
            return;
    }
    if (allPlain)
        Save_Check(bytes, changes, dialect);
}

} // namespace
} // namespace tavo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tavo;
    const std::string_view input = Input_Text(data, size);
    const std::size_t at = input.rfind(separator);
    Changes changes;
    if (at != input.npos)
        changes = Changes_Of(input.substr(at + separator.size()));
    Dialect_Try(input.substr(0, at), changes, ProfileDialect::Linux);
    Dialect_Try(input.substr(0, at), changes, ProfileDialect::Windows);
    return 0;
}
