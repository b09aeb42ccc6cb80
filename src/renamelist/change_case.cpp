#include "renamelist/change_case.h"

#include "core/state.h"
#include "toolkit/text.h"

#include <algorithm>

namespace tavo {

namespace {

bool IsLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool IsWord(const std::string& text)
{
    return std::ranges::all_of(text, IsLetter);
}

bool Precedes(const CaseRules& rules, std::string_view previous)
{
    return std::any_of(rules.Preceding.begin() + 1, rules.Preceding.end(),
                       [&](const std::string& sign) { return sign == previous; });
}

// Each letter's case depends on the one character before it, as that stood.
void Capitals_Place(std::string& text, const CaseRules& rules)
{
    std::string result;
    std::string_view previous;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t begin = at;
        NextChar(text, at);
        const std::string_view character = std::string_view(text).substr(begin, at - begin);
        const bool isCapital = begin == 0 ? rules.FirstIsCapital == 1 : Precedes(rules, previous);
        result += isCapital ? UCase(character) : LCase(character);
        previous = character;
    }
    text = std::move(result);
}

bool SameCapitals(std::string_view left, std::string_view right)
{
    if (IsAscii(left) && IsAscii(right))
        return SameText(left, right);
    return UCase(left) == UCase(right);
}

// A word's place in the text, in bytes.
struct Span {
    std::size_t Begin = 0, End = 0;
};

// How far the entry reaches when it stands at the word; 0 when it does not.
// One of letters alone must be the whole word. One with other signs, which
// would end every word, is compared as far as it reaches.
std::size_t Entry_Reach(const std::string& text, const Span& word, const std::string& entry)
{
    if (entry.empty())
        return 0;
    const std::string_view rest = std::string_view(text).substr(word.Begin);
    const std::string_view stands = IsWord(entry) ? rest.substr(0, word.End - word.Begin)
                                                  : rest.substr(0, BytePosOf(rest, Len(entry) + 1));
    return SameCapitals(stands, entry) ? stands.size() : 0;
}

// Where the scan goes on: behind what was replaced.
std::size_t Word_Correct(std::string& text, const Span& word,
                         const std::vector<std::string>& wordList)
{
    for (std::size_t index = 1; index < wordList.size(); ++index) {
        const std::size_t reach = Entry_Reach(text, word, wordList[index]);
        if (reach == 0)
            continue;
        text.replace(word.Begin, reach, wordList[index]);
        return word.Begin + wordList[index].size();
    }
    return word.End;
}

void Words_Correct(std::string& text, const std::vector<std::string>& wordList)
{
    std::size_t begin = 0;
    for (std::size_t at = 0; at < text.size();) {
        if (IsLetter(text[at])) {
            ++at;
            continue;
        }
        const std::size_t end = at;
        if (end > begin)
            at = Word_Correct(text, {begin, end}, wordList);
        if (at == end)
            ++at;
        begin = at;
    }
}

} // namespace

CaseRules Case_Rules(const SharedState& state)
{
    return {state.ccMode, state.ccCap, state.ccTemp};
}

void Case_Apply(std::string& text, const CaseRules& rules, const std::vector<std::string>& wordList,
                std::uint8_t useWords)
{
    if (rules.Mode == caseUpper)
        text = UCase(text);
    else if (rules.Mode == caseLower)
        text = LCase(text);
    if (rules.Mode != caseSmart)
        return;
    Capitals_Place(text, rules);
    if (wordList.size() > 1 && useWords > 0)
        Words_Correct(text, wordList);
}

} // namespace tavo
