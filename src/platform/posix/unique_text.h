#pragma once

#include <string>

namespace tavo {

// Sixteen digits and letters that nobody can foresee, for the names of files
// that are only passing. Gives 0 or the system's error number.
int MakeUniqueText(std::string& text);

} // namespace tavo
