#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavo {

enum SearchType : std::uint8_t { searchText = 1, searchRange = 2 };
enum SearchScope : std::uint8_t { scopeName = 1, scopeExtension = 2, scopeBoth = 3 };

// What Search & Replace does to each name. Positions count characters from 1.
struct SearchTask {
    std::uint8_t Type = searchText;
    std::uint8_t Scope = scopeBoth;
    std::uint8_t MatchCase = 0;
    std::string Find, Replace;
    std::int16_t First = 0, Last = 0;
};

// Changes name and extension in place. With scopeBoth the whole name is
// changed and split again at its last point, so an extension can come and go.
void SR_Apply(std::string& baseName, std::string& extension, const SearchTask& task);
// Replaces every `find` once; what was put in is not searched again.
void SR_ReplaceText(std::string& target, std::string_view find, std::string_view replace,
                    std::uint8_t matchCase);
// Puts `replace` in the place of the characters `first` to `last`, or with
// `last` 0 in front of `first`. Positions beyond the ends are pulled back, and
// a pair the wrong way round is turned. A `first` of 0, which an empty target
// gives too, changes nothing.
void SR_ReplaceRange(std::string& target, std::string_view replace, std::int16_t first,
                     std::int16_t last);

} // namespace tavo
