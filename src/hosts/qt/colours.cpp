#include "hosts/qt/colours.h"

namespace tavo {

namespace {

constexpr std::uint32_t systemBit = 0x80000000u;

struct SystemColour {
    QPalette::ColorRole Role;
    QPalette::ColorGroup Group = QPalette::Active;
};

// By the number of the system colour. What a desktop of today has no colour of
// its own for takes that of the nearest part of a window.
constexpr SystemColour systemColours[] = {
    {QPalette::Midlight},                       // 0 scroll bars
    {QPalette::Window},                         // 1 desktop
    {QPalette::Highlight},                      // 2 active caption
    {QPalette::Window, QPalette::Inactive},     // 3 inactive caption
    {QPalette::Window},                         // 4 menus
    {QPalette::Base},                           // 5 window
    {QPalette::Shadow},                         // 6 window frame
    {QPalette::WindowText},                     // 7 menu text
    {QPalette::Text},                           // 8 window text
    {QPalette::HighlightedText},                // 9 caption text
    {QPalette::Button},                         // 10 active border
    {QPalette::Button, QPalette::Inactive},     // 11 inactive border
    {QPalette::Dark},                           // 12 work space
    {QPalette::Highlight},                      // 13 highlight
    {QPalette::HighlightedText},                // 14 highlight text
    {QPalette::Button},                         // 15 button face
    {QPalette::Dark},                           // 16 button shadow
    {QPalette::WindowText, QPalette::Disabled}, // 17 gray text
    {QPalette::ButtonText},                     // 18 button text
    {QPalette::WindowText, QPalette::Inactive}, // 19 inactive caption text
    {QPalette::Light},                          // 20 button highlight
    {QPalette::Shadow},                         // 21 dark shadow
    {QPalette::Midlight},                       // 22 light
    {QPalette::ToolTipText},                    // 23 tool tip text
    {QPalette::ToolTipBase},                    // 24 tool tip
};

constexpr std::uint32_t windowText = 8;

} // namespace

bool Color_IsOfSystem(std::int32_t colour)
{
    return static_cast<std::uint32_t>(colour) & systemBit;
}

QColor Color_Of(std::int32_t colour, const QPalette& palette)
{
    const auto bits = static_cast<std::uint32_t>(colour);
    if (!Color_IsOfSystem(colour))
        return QColor(static_cast<int>(bits & 255), static_cast<int>(bits >> 8 & 255),
                      static_cast<int>(bits >> 16 & 255));
    const std::uint32_t number = bits & ~systemBit;
    const auto& row = systemColours[number < std::size(systemColours) ? number : windowText];
    return palette.color(row.Group, row.Role);
}

} // namespace tavo
