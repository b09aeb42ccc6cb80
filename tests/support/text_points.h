#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tavo::points {

// Small text functions of the test support, kept apart from the program's own
// so that the two can be held against each other.

// The text cut into characters: code points of UTF-8, and each byte that
// belongs to none by itself. Joined they give the text back.
std::vector<std::string_view> Split(std::string_view text);

// How many characters the text has.
std::size_t Count(std::string_view text);

// The text with each letter replaced by its upper-case form, one to one:
// Latin, Greek and Cyrillic letters. `ß` stays, and so does all that is no
// letter, bytes that are no UTF-8 among them.
std::string Upper(std::string_view text);

// Are the two texts the same but for case?
bool SameBlind(std::string_view left, std::string_view right);

// The last `count` characters.
std::string Right(std::string_view text, std::size_t count);

// The last characters that together have at most `bytes` bytes.
std::string RightBytes(std::string_view text, std::size_t bytes);

} // namespace tavo::points
