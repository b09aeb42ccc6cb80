#pragma once

#include "toolkit/panels.h"

namespace tavo {

class Program;

// What the parts of the thumbnail view share: which row a cell shows, and how.

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
