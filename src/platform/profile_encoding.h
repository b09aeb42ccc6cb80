#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavo {

// What differs between the systems in a settings file without a mark.
//
//     Linux     UTF-8; a line that is not is read as code page 1252 for
//               itself. New lines end as the file's first line does, in LF in
//               a new file.
//     Windows   code page 1252. New lines end in CR LF.
enum class ProfileDialect { Linux, Windows };

// How the bytes of one settings file spell text. A mark in front tells, UTF-8
// or UTF-16LE; without one the dialect does. Text is UTF-8 everywhere else.
class ProfileEncoding {
public:
    ProfileEncoding(std::string_view file, ProfileDialect dialect);

    // What the file begins with; empty for none.
    std::string_view Mark() const;
    // The number of bytes that a line end takes at least.
    std::size_t UnitBytes() const { return form_ == Form::Utf16 ? 2 : 1; }

    // The text that the bytes of one line spell. Gives `bytes` itself where
    // that is the text already, or what it has put into `space`. Half a unit
    // of UTF-16 at the end spells nothing.
    std::string_view Decode(std::string_view bytes, std::string& space) const;
    // The bytes for a text. A byte that is no UTF-8 is taken as one of code
    // page 1252, as a line that holds it would be. What the form cannot spell
    // becomes `?`.
    std::string Encode(std::string_view text) const;

private:
    enum class Form { Utf8, MarkedUtf8, Utf16, CodePage };
    static Form FormOf(std::string_view file, ProfileDialect dialect);

    Form form_;
};

} // namespace tavo
