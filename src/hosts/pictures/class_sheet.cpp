#include "hosts/pictures/image_bitmap.h"
#include "hosts/pictures/picture_reader.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tavo::pictures {

namespace {

// Drawn by hand, for letters of a font look different on each machine. A sign
// is two dots wide and high.
constexpr int signs = 16, dotsASign = 2;
constexpr std::array<std::string_view, signs> sheet = {
    "  ########      ", //
    "  #......##     ", //
    "  #......#.#    ", //
    "  #......####   ", //
    "  #.........#   ", //
    "  #.........#   ", //
    "  #.........#   ", //
    "  #.........#   ", //
    "  #.........#   ", //
    "  #.........#   ", //
    "  #.........#   ", //
    "  #.........#   ", //
    "  #.........#   ", //
    "  #.........#   ", //
    "  #.........#   ", //
    "  ###########   ", //
};

constexpr std::size_t letterColumn = 5, letterRow = 6;
struct Letter {
    char Name;
    std::array<std::string_view, 7> Rows;
};
constexpr Letter letters[] = {
    {'F', {"#####", "#....", "#....", "####.", "#....", "#....", "#...."}},
    {'D', {"####.", "#...#", "#...#", "#...#", "#...#", "#...#", "####."}},
    {'P', {"####.", "#...#", "#...#", "####.", "#....", "#....", "#...."}},
    {'M', {"#...#", "##.##", "#.#.#", "#.#.#", "#...#", "#...#", "#...#"}},
};

QRgb Colour_Of(char sign)
{
    constexpr QRgb line = 0xff404040, paper = 0xffffffff, clear = 0;
    return sign == '#' ? line : sign == '.' ? paper : clear;
}

// The sign at a place of the sheet, with the letter on it.
char Sign_At(const Letter* letter, std::size_t column, std::size_t row)
{
    if (letter == nullptr || row < letterRow || row - letterRow >= letter->Rows.size())
        return sheet[row][column];
    const std::string_view cells = letter->Rows[row - letterRow];
    const bool isOnIt = column >= letterColumn && column - letterColumn < cells.size();
    return isOnIt ? cells[column - letterColumn] : sheet[row][column];
}

} // namespace

BitmapPtr Bitmap_OfClass(char letter)
{
    constexpr int side = signs * dotsASign;
    const auto* const found = std::ranges::find(letters, letter, &Letter::Name);
    const Letter* const drawn = found != std::end(letters) ? found : nullptr;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            image.setPixel(x, y,
                           Colour_Of(Sign_At(drawn, static_cast<std::size_t>(x / dotsASign),
                                             static_cast<std::size_t>(y / dotsASign))));
    return std::make_shared<ImageBitmap>(std::move(image), QSize(side, side));
}

} // namespace tavo::pictures
