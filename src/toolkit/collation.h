#pragma once

#include <string>
#include <string_view>

namespace tavo {

// CodePoint: by the code points of the case-folded text; bytes that are no
// UTF-8 stand behind all characters, in the order of their values.
// WordSort: the word order of Windows for characters of code page 1252. Hyphens
// and apostrophes only break ties, after accents; case never counts. Other
// characters stand behind the letters as CodePoint has them.
enum class Collation { CodePoint, WordSort };

// Appends the sort key of a text: two texts stand in the order of their keys
// compared as bytes (memcmp, a shorter one first); equal keys are equal texts
// in that order. A text without NUL gives a key without NUL, so the keys of
// several columns can be joined by one NUL each.
void Sort_Key_Append(std::string& out, std::string_view text, Collation collation);

} // namespace tavo
