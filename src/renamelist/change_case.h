#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tavo {

struct SharedState;

enum CaseMode : std::uint8_t { caseUpper = 1, caseLower = 2, caseSmart = 3 };

// How the letters of a name are to stand.
struct CaseRules {
    std::uint8_t Mode = caseSmart;
    std::uint8_t FirstIsCapital = 1;      // 1: the first letter is one
    std::array<std::string, 7> Preceding; // 1 to 6: a letter behind it is a capital
};

// The rules that the boxes of the panel have set.
CaseRules Case_Rules(const SharedState& state);

// Changes the letters of the whole text, extension included. `wordList` counts
// from 1, its element 0 is no word; it is asked in Smart Case when `useWords`
// is above 0. A word is a run of the letters A to Z that something else ends,
// so the last one of a text is never looked up.
void Case_Apply(std::string& text, const CaseRules& rules, const std::vector<std::string>& wordList,
                std::uint8_t useWords);

} // namespace tavo
