#pragma once

#include <cstdint>
#include <string>

// Sizes of files as the lists show them.
namespace tavo {

// The two masks of size texts: `#,###,###KB` and `#,###,### KB`.
enum class SizeMask { Joined, Spaced };

// A number of kibibytes as a size text, rounded half AWAY from zero. 0 shows
// no digit (`KB`), so callers add their half first.
std::string Format_KB(double kib, SizeMask mask);

// Size cell of a file, 12 wide, blanks to the left. A load takes the low 32
// bits as a signed number (`         1KB` for an empty file, `-2,097,152KB` for
// 2 GiB), a refresh takes the whole size and puts a blank before `KB`.
std::string Size_Text_Load(std::uint64_t sizeBytes);
std::string Size_Text_Refresh(std::uint64_t sizeBytes);

} // namespace tavo
