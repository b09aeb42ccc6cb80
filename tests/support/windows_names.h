#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// What a disk with the rules of Windows thinks of names. Text is UTF-8.
namespace tavo::windows {

inline constexpr std::size_t longestName = 255; // characters
inline constexpr std::size_t longestPath = 259; // characters

// Does the system keep the name for a device, whatever extension it has?
bool IsDevice(std::string_view name);

// Does the name hold a character that no name may hold? Separators are none of
// these.
bool HasBadCharacter(std::string_view name);

// The name as the disk keeps it: without dots and blanks at its end.
std::string Stored(std::string_view name);

} // namespace tavo::windows
