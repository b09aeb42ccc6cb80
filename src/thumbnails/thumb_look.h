#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tavo {

// Indexes of ThumbLook's colours.
enum ThumbColor {
    thumbNormalBorder = 0,
    thumbSelectedBorder = 1,
    thumbBackground = 2,
    thumbCaptionText = 3,
    thumbCaptionBackground = 4,
    thumbWindow = 5,
};

// The look of the thumbnail view. Sizes are pixels of 16 bits.
struct ThumbLook {
    std::array<std::int32_t, 6> Color{};
    bool CaptionShown = true;
    std::int16_t Align = 2; // of captions: 0 left, 1 right, 2 centre
    std::int16_t CaptionHeight = 0;
    std::int16_t Width = 80, Height = 80; // of a picture
    // Of a frame: the picture, its border on both sides, and the margin.
    std::int16_t CellWidth = 0, CellHeight = 0;
    std::int16_t Margin = 4;
    std::int16_t BorderWidth = 3;
};

// The scheme that is there from the start, as a record.
inline constexpr std::string_view defaultScheme =
    "80,80,3,-2147483633,-2147483635,-2147483633,2,-2147483643,-2147483630,-2147483643";

// Puts a scheme record into the look, with what follows from it. The record has
// ten fields parted by commas: height, width, border width, the colours 2, 1
// and 0, alignment, the colours 4, 3 and 5. A field that is missing at the end
// is that of the default scheme, an empty one is 0, and one beyond its width
// leaves what was there.
void Scheme_Take(ThumbLook& look, const std::string& record);
// The frame's size from picture, border and margin; what would not fit into 16
// bits stays as it was.
void Cell_Measure(ThumbLook& look);

struct PixelSize {
    int Width = 0, Height = 0;
    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

// The size of a picture in the look's box: proportions kept, whole numbers,
// small ones made larger too. Nothing for a source without any size.
PixelSize Thumb_Fit(const ThumbLook& look, int sourceWidth, int sourceHeight);

} // namespace tavo
