#include "renamelist/templates.h"

#include "core/tag_genres.h"
#include "fileactions/mp3_tag.h"
#include "renamelist/counters.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"

#include <algorithm>
#include <limits>

namespace tavo {

namespace {

constexpr std::string_view forbiddenInNames = "\\/:*?<>|\"";

bool Is_BadInTemplate(char c)
{
    return c != '<' && forbiddenInNames.find(c) != std::string_view::npos;
}

// The token that begins at `pos`: up to the first ">" within four characters,
// in capitals; empty when there is none.
std::string Token_At(std::string_view text, int pos)
{
    const std::string four = Mid(text, pos, 4);
    return UCase(Left(four, InStr(four, ">")));
}

bool Is_Token(std::string_view token, bool allowExisting)
{
    if (allowExisting && (token == "<E>" || token == "<ER>"))
        return true;
    return std::any_of(Template_Tokens().begin(), Template_Tokens().end(),
                       [&](const TemplateToken& known) { return known.Token == token; });
}

void Remove_CharAt(std::string& text, int pos)
{
    text = Left(text, pos - 1) + Mid(text, pos + 1);
}

std::string_view Genre_Text(std::uint8_t genre)
{
    const auto names = Tag_Genres();
    return genre == 0 || genre >= names.size() ? std::string_view() : names[genre];
}

std::string Track_Text(std::uint8_t track, int digits)
{
    return track == 0 ? std::string() : Cnt_PadDigits(IntToText(track), digits);
}

} // namespace

const std::array<TemplateToken, 9>& Template_Tokens()
{
    static constexpr std::array<TemplateToken, 9> tokens{{
        {"<#>", 1, "Click to Insert Counter (Ctrl+1)"},
        {"<ON>", 2, "Click to Insert Old Name (Ctrl+2)"},
        {"<OE>", 3, "Click to Insert Old Extension (Ctrl+3)"},
        {"<T>", 5, "Click to Insert MP3 Title"},
        {"<AR>", 6, "Click to Insert MP3 Artist"},
        {"<AL>", 7, "Click to Insert MP3 Album"},
        {"<G>", 8, "Click to Insert MP3 Genre"},
        {"<Y>", 9, "Click to Insert MP3 Year"},
        {"<TR>", 10, "Click to Insert MP3 Track"},
    }};
    return tokens;
}

void Tmpl_Scan(std::string_view text, TmplFlags& flags)
{
    flags.fill(false);
    for (const TemplateToken& token : Template_Tokens()) {
        const auto flag = static_cast<std::size_t>(token.Flag);
        flags[flag] = text.find(token.Token) != std::string_view::npos;
        flags[flag < 4 ? 0 : 4] = flags[flag < 4 ? 0 : 4] || flags[flag];
    }
}

void Tmpl_Replace(std::string& text, std::string_view token, std::string_view value)
{
    // The search starts anew where the value was put, so a value that holds
    // the token would grow the text until its positions no longer fit: it ends
    // where no disk takes the name any more. A value that is the token itself
    // would stand there for ever, and is stepped over.
    constexpr int lastPos = std::numeric_limits<std::int16_t>::max();
    constexpr std::size_t outgrown = 4096;
    const bool grows = InStr(1, value, token, Compare::Text) > 0;
    const int step = SameText(value, token) ? Len(value) : 0;
    int pos = 1;
    while ((pos = InStr(pos, text, token, Compare::Text)) > 0 && pos <= lastPos) {
        const std::size_t begin = BytePosOf(text, pos);
        const std::size_t end = BytePosOf(text, pos + Len(token));
        text.replace(begin, end - begin, value);
        if (grows && text.size() > outgrown)
            return;
        pos += step;
    }
}

void Tmpl_ApplyOld(std::string& text, std::string_view baseName, std::string_view extension,
                   std::string_view counterText, const TmplFlags& flags)
{
    if (flags[2])
        Tmpl_Replace(text, "<ON>", baseName);
    if (flags[3])
        Tmpl_Replace(text, "<OE>", extension);
    if (flags[1])
        Tmpl_Replace(text, "<#>", counterText);
}

void Tmpl_ApplyTag(std::string& text, const MP3Tag& tag, int digits, const TmplFlags& flags)
{
    if (!flags[4] || tag.Tag == mp3Absent)
        return;
    if (flags[5])
        Tmpl_Replace(text, "<T>", tag.Title);
    if (flags[6])
        Tmpl_Replace(text, "<AR>", tag.Artist);
    if (flags[7])
        Tmpl_Replace(text, "<AL>", tag.Album);
    if (flags[8])
        Tmpl_Replace(text, "<G>", Genre_Text(tag.Genre));
    if (flags[9])
        Tmpl_Replace(text, "<Y>", tag.Year);
    if (flags[10])
        Tmpl_Replace(text, "<TR>", Track_Text(tag.Track, digits));
}

std::string Str_KeepNonDigits(std::string_view text)
{
    std::string result(text);
    std::erase_if(result, [](char c) { return c >= '0' && c <= '9'; });
    return result;
}

bool Tmpl_CheckBox(std::string& text, bool allowExisting)
{
    bool isGood = true;
    int pos = 1;
    while (pos <= Len(text)) {
        const std::string c = CharAt(text, pos);
        const bool isBad = c.size() == 1 && Is_BadInTemplate(c.front());
        if (!isBad && c != "<") {
            ++pos;
            continue;
        }
        const std::string token = isBad ? std::string() : Token_At(text, pos);
        if (Is_Token(token, allowExisting)) {
            pos += Len(token);
            continue;
        }
        Remove_CharAt(text, pos);
        isGood = false;
    }
    return isGood;
}

bool Str_StripBadChars(std::string& text)
{
    const auto removed = std::erase_if(
        text, [](char c) { return forbiddenInNames.find(c) != std::string_view::npos; });
    return removed == 0;
}

} // namespace tavo
