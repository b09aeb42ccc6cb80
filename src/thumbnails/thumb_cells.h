#pragma once

#include "platform/desktop.h"
#include "thumbnails/thumb_look.h"
#include "toolkit/panels.h"

#include <algorithm>
#include <string_view>

namespace tavo {

class Program;

// What the parts of the thumbnail view share: which row a cell shows, and how.

// The tools of the alignments 0, 1 and 2, of which one is pressed. What is none
// of the three shows as the centre.
inline constexpr std::string_view alignTools[] = {"ID_AlignLeft", "ID_AlignRight",
                                                  "ID_AlignCenter"};
inline constexpr int alignCenter = 2;
constexpr bool Align_IsKnown(int alignment)
{
    return alignment >= 0 && alignment <= alignCenter;
}
constexpr int Align_Pressed(int alignment)
{
    return Align_IsKnown(alignment) ? alignment : alignCenter;
}

// No thumbnail of this look is larger.
inline Desktop::PictureBound Look_Bound(const ThumbLook& look)
{
    return {std::max<int>(look.Width, 1), std::max<int>(look.Height, 1)};
}
// The picture at the look's size, drawn on this surface; null when there is no
// memory for it.
BitmapPtr Thumb_Draw(Program& p, PictureBox& surface, const Bitmap& original);

// Is the view in sight?
bool Thumbs_Shown(const Program& p);
// The row of a cell (from 1); 0 behind the end of the list, and for a row whose
// number does not fit into 16 bits.
int Cell_Row(const Program& p, int cell);
// The grid line of a row: its number by the columns, rounded, and one more
// where that many lines do not reach it. 0 where there is no such line.
int Row_Line(const Program& p, int row);
// A line as the scroll bar can show it.
int Line_Held(const Program& p, int line);
// The slot that the row's Tag names; 0 for none.
int Row_Slot(const Program& p, int row);
// The row's thumbnail, else its icon.
PictureRef Row_Picture(const Program& p, int row);
PictureRef Row_Icon(const Program& p, int row);
// In the middle of a frame of the same container.
void Picture_Center(ImageBox& image, const Shape& frame);
// A new cell's part in what the mouse does.
void Cell_Wire(Program& p, int cell);

} // namespace tavo
