#pragma once

#include "platform/path_rules.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// Does the text hold `*` or `?`?
bool HasWildcards(std::string_view text);

// A wildcard pattern for the names of a folder, made ready once and asked for
// many names. Case-blind by simple folding; a character is a code point, and a
// byte that is no UTF-8 is a character of its own (where the rules say that
// text is no UTF-8, each byte is a character of code page 1252).
//
//     *             any run of characters, also none
//     ?             one character but the dot; nothing before a dot or at the end
//     . before * ?  a dot, or the end of the name
//     * before that dot, or before a dot at the end of the pattern:
//                   as `*`, but it leaves the name's last dot alone
//
// So `*.*` takes every name, `a.*` takes `a` too, `*.???` takes names without
// an extension and with one of up to three characters, and `*.` takes names
// without a dot. Dots and blanks at the end of the pattern are dropped, blanks
// in front are kept: ` *.txt` takes only names that begin with a blank. All
// other characters stand for themselves. A pattern of which nothing is left
// takes no name. Names are taken as they are, dots and blanks at their end too.
class Pattern {
public:
    explicit Pattern(std::string_view text, const PathRules& rules = PosixRules());

    bool Matches(std::string_view name) const;

private:
    enum class Kind : std::uint8_t { Plain, One, Run, RunToLastDot, DotOrEnd };
    struct Piece {
        Kind What = Kind::Plain;
        char32_t Folded = 0;
    };
    // Most patterns are answered by a look at the end of the name.
    enum class Way : std::uint8_t { Nothing, Everything, Suffix, Pieces };
    enum class Quick : std::uint8_t { No, Yes, Unknown };

    // What a piece does with one character of the name.
    static bool Takes(const Piece& piece, char32_t folded, bool isLastDot);
    static bool MayBeNothing(const Piece& piece, char32_t nextFolded);
    static bool Repeats(const Piece& piece)
    {
        return piece.What == Kind::Run || piece.What == Kind::RunToLastDot;
    }

    void AddPieces(std::string_view text, bool dotDropped);
    void ChooseWay();
    Quick MatchesSuffix(std::string_view name) const;
    bool MatchesPieces(std::string_view name) const;

    std::vector<Piece> pieces_;
    std::string suffix_; // what every name must end in: lower case ASCII
    Way way_ = Way::Pieces;
    bool utf8_ = true;
};

} // namespace tavo
