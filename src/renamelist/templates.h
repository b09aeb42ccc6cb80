#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tavo {

struct MP3Tag;

// Which tokens a template holds: 1 <#>, 2 <ON>, 3 <OE>, 5 <T>, 6 <AR>, 7 <AL>,
// 8 <G>, 9 <Y>, 10 <TR>. 0 is true when any of 1 to 3 is, 4 when any of 5 to
// 10 is.
using TmplFlags = std::array<bool, 11>;

struct TemplateToken {
    std::string_view Token;
    int Flag;
    std::string_view Tip; // of its insert label
};
// The tokens in the order of the insert labels.
const std::array<TemplateToken, 9>& Template_Tokens();

// Sees only tokens in capitals.
void Tmpl_Scan(std::string_view text, TmplFlags& flags);
// Replaces every occurrence of `token`, in whatever case, looking again from
// the same place on. Positions are 16-bit: what would go beyond ends it.
void Tmpl_Replace(std::string& text, std::string_view token, std::string_view value);
// <ON>, <OE>, <#> in this order, each only if its flag is set.
void Tmpl_ApplyOld(std::string& text, std::string_view baseName, std::string_view extension,
                   std::string_view counterText, const TmplFlags& flags);
// The tokens of the tag in their order, each only if its flag is set. Where the
// file has no tag they stay; where it could not be read they go. Genre 0 and
// track 0 are none; the track is padded to `digits`.
void Tmpl_ApplyTag(std::string& text, const MP3Tag& tag, int digits, const TmplFlags& flags);
// Removes each digit "0" to "9".
std::string Str_KeepNonDigits(std::string_view text);

// Leaving a template box: removes what no name may hold, and each "<" that
// opens no token. True when nothing had to go. With allowExisting <E> and <ER>
// stay as well.
bool Tmpl_CheckBox(std::string& text, bool allowExisting);
// Removes \ / : * ? < > | and the double quote; true when none was there.
bool Str_StripBadChars(std::string& text);

} // namespace tavo
