#pragma once

#include <span>
#include <string_view>

namespace tavo {

// The genres of an MP3 tag; a genre's number in the tag is its place here,
// counted from 0. The spelling is the one that users know from the list.
std::span<const std::string_view> Tag_Genres();

} // namespace tavo
