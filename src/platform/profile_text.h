#pragma once

#include "platform/profile_encoding.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// One call of WritePrivateProfileStringA: without a value the key goes,
// without a key the section.
struct ProfileChange {
    std::string Section;
    std::optional<std::string> Key, Value;
};

// The text of a settings file: lines, sections and keys.
//
// Lines end in CR LF, LF or a lone CR, and keep their bytes and their ends, so
// that the file is written back with nothing changed but what was meant.
//
//     ; comment                     first character that is no blank or tab
//     [name] anything               a section; the name runs to the last `]`
//     key=value                     parted at the first `=`, both trimmed
//     anything else                 no key, never listed
//
// What stands before the first header is the section with the empty name. Of
// sections and of keys with one name only the first is looked at. Names
// compare trimmed and without regard to case.
class ProfileText {
public:
    enum class LineKind { Other, Section, Key };
    struct Line {
        LineKind Kind = LineKind::Other;
        std::string Text;   // the bytes of the file, without the line's end
        std::string End;    // CR LF, LF, CR or nothing, in the file's encoding
        std::string Name;   // of the section or key, trimmed, UTF-8
        std::string Folded; // the name, for comparison
        // Trimmed and UTF-8, cut at a NUL; its quotes are still there.
        std::string Value;
    };

    // The dialect tells the encoding, where no mark in front does, and how new
    // lines end.
    explicit ProfileText(std::string_view bytes = {},
                         ProfileDialect dialect = ProfileDialect::Linux);

    const std::vector<Line>& Lines() const { return lines_; }
    // The whole file.
    std::string Bytes() const;

    // The value without one pair of quotes round it, empty for `key=`; none
    // when section or key is missing, or when the key stands without `=`.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;
    // The names of all keys in file order, repeated ones too.
    std::vector<std::string> Keys(std::string_view section) const;

    // Makes one change, and leaves all other lines as they are.
    //
    //     a key that is there     its line keeps all that stands before the
    //                             value; a value that is there already
    //                             changes nothing
    //     a new key               behind the last line of its section that is
    //                             not blank
    //     a new section           at the end
    //     a section that goes     takes all lines up to the next header along
    //
    // Names and values are written without the blanks and tabs in front of
    // them, up to a NUL, and as they are otherwise: a line end or a `;` inside
    // does its harm at once.
    void Write(const ProfileChange& change);

private:
    // The lines of a section, empty and at the file's end when it is missing.
    struct Range {
        bool IsThere;
        std::size_t Header; // the first line itself where there is no header
        std::size_t First, End;
    };

    std::vector<Line> LinesIn(std::string_view bytes) const;
    Range LinesOf(std::string_view section) const;
    // The end of the range for none.
    std::size_t FindKey(const Range& range, std::string_view key) const;
    std::size_t EndWithoutBlanks(const Range& range) const;

    std::string AsWritten(std::string_view text) const;
    void ChangeValue(std::size_t index, const std::string& value);
    void Insert(std::size_t index, const std::string& text);
    void Replace(std::size_t first, std::size_t end, std::string_view bytes);

    ProfileEncoding encoding_;
    std::vector<Line> lines_;
    std::string newLineEnd_;
};

// What the Profile port gives for one text and one question.
std::string ProfileAnswer(const ProfileText& text, const std::string& section,
                          const std::optional<std::string>& key, std::string_view fallback,
                          int size);

// Takes off blanks and tabs on both sides and nothing else.
std::string_view TrimProfileText(std::string_view text);

// Takes off one pair of the same quotes, `"` or `'`, that encloses the text.
std::string_view WithoutQuotes(std::string_view text);

} // namespace tavo
