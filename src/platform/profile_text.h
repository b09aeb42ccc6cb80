#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// The text of a settings file: lines, sections and keys.
//
// The file is UTF-8; a line of it that is not is read as code page 1252. A
// UTF-8 mark in front is skipped, and a file with a UTF-16LE mark is read as
// that. Lines end in CR LF, LF or a lone CR, and keep their bytes and their
// ends, so that a file can be written back with nothing changed but what was
// meant.
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
        std::string Text; // as in the file (UTF-16 as UTF-8), without its end
        std::string End;  // CR LF, LF, CR or nothing
        std::string Name; // of the section or key, trimmed, UTF-8
        // Trimmed and UTF-8, cut at a NUL; its quotes are still there.
        std::string Value;
    };

    ProfileText() = default;
    explicit ProfileText(std::string_view bytes);

    const std::vector<Line>& Lines() const { return lines_; }

    // The value without one pair of quotes round it, empty for `key=`; none
    // when section or key is missing, or when the key stands without `=`.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;
    // The names of all keys in file order, repeated ones too.
    std::vector<std::string> Keys(std::string_view section) const;

private:
    struct Range {
        std::size_t First, End;
    };

    void AddLines(std::string_view text);
    Range LinesOf(std::string_view section) const;

    std::vector<Line> lines_;
    // Folded names, beside the lines; the index is the same.
    std::vector<std::string> folded_;
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
