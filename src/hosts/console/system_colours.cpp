#include "hosts/console/system_colours.h"

#include <iterator>

namespace tavo::console {

namespace {

constexpr std::uint32_t systemBit = 0x80000000u;

// By the number of the system colour, red first.
constexpr std::uint32_t systemColours[] = {
    0xc8c8c8, // 0 scroll bars
    0x3a6ea5, // 1 desktop
    0x99b4d1, // 2 active caption
    0xbfcddb, // 3 inactive caption
    0xf0f0f0, // 4 menus
    0xffffff, // 5 window
    0x646464, // 6 window frame
    0x000000, // 7 menu text
    0x000000, // 8 window text
    0x000000, // 9 caption text
    0xb4b4b4, // 10 active border
    0xf4f7fc, // 11 inactive border
    0xababab, // 12 work space
    0x3399ff, // 13 highlight
    0xffffff, // 14 highlight text
    0xf0f0f0, // 15 button face
    0xa0a0a0, // 16 button shadow
    0x6d6d6d, // 17 gray text
    0x000000, // 18 button text
    0x434e54, // 19 inactive caption text
    0xffffff, // 20 button highlight
    0x696969, // 21 dark shadow
    0xe3e3e3, // 22 light
    0x000000, // 23 tool tip text
    0xffffe1, // 24 tool tip
};

constexpr std::uint32_t windowText = 8;

} // namespace

std::uint32_t Dots_OfColour(std::int32_t colour)
{
    const auto bits = static_cast<std::uint32_t>(colour);
    if ((bits & systemBit) == 0)
        return (bits & 0xff) << 16 | (bits & 0xff00) | (bits >> 16 & 0xff);
    const std::uint32_t number = bits & ~systemBit;
    return systemColours[number < std::size(systemColours) ? number : windowText];
}

} // namespace tavo::console
