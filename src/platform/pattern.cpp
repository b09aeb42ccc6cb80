#include "platform/pattern.h"

#include "toolkit/code_page.h"
#include "toolkit/unicode_case.h"
#include "toolkit/utf8.h"

#include <algorithm>
#include <array>
#include <bit>

namespace tavo {

namespace {

constexpr std::string_view wildcards = "*?";
// Stands behind the last character of a name.
constexpr char32_t nameEnd = 0xFFFFFFFF;

// The places in the pattern that a part of the name has led to: a set of
// numbers, small enough for the stack unless somebody writes a novel.
class Places {
public:
    explicit Places(std::size_t count) : words_((count + 63) / 64)
    {
        if (words_ > near_.size())
            far_.resize(words_);
    }
    void Add(std::size_t place) { Word(place / 64) |= std::uint64_t{1} << (place % 64); }
    bool Has(std::size_t place) const { return (Data()[place / 64] >> (place % 64) & 1) != 0; }
    void Clear() { std::fill_n(Data(), words_, std::uint64_t{0}); }
    void Swap(Places& other)
    {
        near_.swap(other.near_);
        far_.swap(other.far_);
    }

    // Calls `visit(place)` for places below `end` from the lowest up, also for
    // those that are added above the one just visited.
    template <typename Visit>
    void ForEach(std::size_t end, Visit visit)
    {
        for (std::size_t place = NextFrom(0); place < end; place = NextFrom(place + 1))
            visit(place);
    }

private:
    std::size_t NextFrom(std::size_t place) const
    {
        for (std::size_t word = place / 64; word < words_; ++word, place = word * 64) {
            if (const std::uint64_t left = Data()[word] >> (place % 64))
                return place + static_cast<std::size_t>(std::countr_zero(left));
        }
        return words_ * 64;
    }
    std::uint64_t* Data() { return far_.empty() ? near_.data() : far_.data(); }
    const std::uint64_t* Data() const { return far_.empty() ? near_.data() : far_.data(); }
    std::uint64_t& Word(std::size_t index) { return Data()[index]; }

    std::size_t words_;
    std::array<std::uint64_t, 2> near_{};
    std::vector<std::uint64_t> far_;
};

std::string_view WithoutDotsAndBlanks(std::string_view text)
{
    const std::size_t last = text.find_last_not_of(". ");
    return text.substr(0, last == text.npos ? 0 : last + 1);
}

} // namespace

bool HasWildcards(std::string_view text)
{
    return text.find_first_of(wildcards) != text.npos;
}

Pattern::Pattern(std::string_view text, const PathRules& rules) : utf8_(rules.Utf8)
{
    const std::string_view kept = WithoutDotsAndBlanks(text);
    const bool dotDropped = text.substr(kept.size()).starts_with('.');
    if (utf8_)
        AddPieces(kept, dotDropped);
    else
        AddPieces(Cp1252ToUtf8(kept), dotDropped);
    ChooseWay();
}

void Pattern::AddPieces(std::string_view text, bool dotDropped)
{
    for (std::size_t pos = 0; pos < text.size();) {
        const char32_t code = NextChar(text, pos).Code;
        const bool last = pos == text.size();
        const bool wildNext = !last && wildcards.find(text[pos]) != wildcards.npos;
        if (code == '*') {
            // Several in a row are one, and the last of them says which.
            if (!last && text[pos] == '*')
                continue;
            const bool dotNext =
                last ? dotDropped : text[pos] == '.' && HasWildcards(text.substr(pos + 1, 1));
            pieces_.push_back({dotNext ? Kind::RunToLastDot : Kind::Run, 0});
        } else if (code == '?')
            pieces_.push_back({Kind::One, 0});
        else if (code == '.' && wildNext)
            pieces_.push_back({Kind::DotOrEnd, 0});
        else
            pieces_.push_back({Kind::Plain, SimpleFold(code)});
    }
}

void Pattern::ChooseWay()
{
    if (pieces_.empty()) {
        way_ = Way::Nothing;
        return;
    }
    // `*`, `*.*`, `*.*.*` and so on.
    const bool onlyRunsAndDots =
        std::all_of(pieces_.begin(), pieces_.end(), [](const Piece& piece) {
            return piece.What != Kind::Plain && piece.What != Kind::One;
        });
    if (onlyRunsAndDots && pieces_.front().What != Kind::DotOrEnd
        && pieces_.back().What == Kind::Run) {
        way_ = Way::Everything;
        return;
    }
    auto piece = pieces_.rbegin();
    while (piece != pieces_.rend() && piece->What == Kind::Plain && piece->Folded < 0x80)
        suffix_.push_back(static_cast<char>((piece++)->Folded));
    std::reverse(suffix_.begin(), suffix_.end());
    if (suffix_.size() + 1 == pieces_.size() && pieces_.front().What == Kind::Run)
        way_ = Way::Suffix;
}

bool Pattern::Matches(std::string_view name) const
{
    if (way_ == Way::Everything)
        return true;
    if (way_ == Way::Nothing)
        return false;
    const Quick suffix = MatchesSuffix(name);
    if (suffix == Quick::No || (suffix == Quick::Yes && way_ == Way::Suffix))
        return suffix == Quick::Yes;
    return utf8_ ? MatchesPieces(name) : MatchesPieces(Cp1252ToUtf8(name));
}

Pattern::Quick Pattern::MatchesSuffix(std::string_view name) const
{
    std::size_t pos = name.size();
    for (std::size_t left = suffix_.size(); left > 0; --left) {
        if (pos == 0)
            return Quick::No;
        const auto byte = static_cast<unsigned char>(name[--pos]);
        // A letter outside ASCII may fold into it, as the Kelvin sign to `k`.
        if (byte >= 0x80)
            return Quick::Unknown;
        if (AsciiLower(byte) != static_cast<unsigned char>(suffix_[left - 1]))
            return Quick::No;
    }
    return Quick::Yes;
}

bool Pattern::Takes(const Piece& piece, char32_t folded, bool isLastDot)
{
    switch (piece.What) {
    case Kind::Plain: return piece.Folded == folded;
    case Kind::One: return folded != '.';
    case Kind::Run: return true;
    case Kind::RunToLastDot: return !isLastDot;
    case Kind::DotOrEnd: return folded == '.';
    }
    return false;
}

bool Pattern::MayBeNothing(const Piece& piece, char32_t nextFolded)
{
    switch (piece.What) {
    case Kind::Plain: return false;
    case Kind::One: return nextFolded == '.' || nextFolded == nameEnd;
    case Kind::DotOrEnd: return nextFolded == nameEnd;
    default: return true;
    }
}

bool Pattern::MatchesPieces(std::string_view name) const
{
    const std::size_t end = pieces_.size();
    const std::size_t lastDot = name.rfind('.');
    Places here(end + 1), next(end + 1);
    const auto passOver = [&](std::size_t place, char32_t folded) {
        if (MayBeNothing(pieces_[place], folded))
            here.Add(place + 1);
    };
    here.Add(0);
    for (std::size_t pos = 0; pos < name.size();) {
        const bool isLastDot = pos == lastDot;
        const char32_t folded = SimpleFold(NextChar(name, pos).Code);
        bool alive = false;
        next.Clear();
        here.ForEach(end, [&](std::size_t place) {
            passOver(place, folded);
            if (!Takes(pieces_[place], folded, isLastDot))
                return;
            next.Add(Repeats(pieces_[place]) ? place : place + 1);
            alive = true;
        });
        if (!alive)
            return false;
        here.Swap(next);
    }
    here.ForEach(end, [&](std::size_t place) { passOver(place, nameEnd); });
    return here.Has(end);
}

} // namespace tavo
