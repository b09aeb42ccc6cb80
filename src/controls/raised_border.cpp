#include "controls/raised_border.h"

namespace tavo {

namespace {

constexpr auto highlight = static_cast<std::int32_t>(0x80000014);
constexpr auto shadow = static_cast<std::int32_t>(0x80000010);

} // namespace

std::array<EdgeLine, 4> RaisedBorder_Lines(int widthPixels, int heightPixels)
{
    const int right = widthPixels - 1, bottom = heightPixels - 1;
    return {{{0, 0, widthPixels, 0, highlight},
             {0, 0, 0, heightPixels, highlight},
             {0, bottom, widthPixels, bottom, shadow},
             {right, 0, right, heightPixels, shadow}}};
}

} // namespace tavo
