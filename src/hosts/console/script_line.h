#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavo::console {

// Takes a line apart into words. Words are parted by blanks; one in double
// quotes may hold blanks and the escapes \" \\ \t \n \r \0 \xHH. False with a
// reason in `why` for an unfinished quote or an escape that is none.
bool Line_Split(std::string_view line, std::vector<std::string>& words, std::string& why);

// A value as it is printed: tab, line ends, NUL and backslash as escapes.
std::string Value_Escape(std::string_view value);

} // namespace tavo::console
