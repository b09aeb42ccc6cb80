#pragma once

#include <cstdint>
#include <string_view>

namespace tavo {

// Hash of the bytes of a text.
std::uint32_t Text_Hash(std::string_view text);

// Hash of a text without regard to case: texts that SameText calls the same
// have the same one.
std::uint32_t Text_FoldHash(std::string_view text);

} // namespace tavo
