#pragma once

#include <string>

namespace tavo {

class Program;

// Schemes (thumb_scheme.cpp).
// Takes a scheme record into the look, fits the thumbnails that are there to a
// new size, builds the grid anew and colours it. Only its name is ever saved.
void Thumb_Scheme_Apply(Program& p, const std::string& record);
// Brings the look's colours, border and alignment to the controls there are.
void Thumb_Colors_Apply(Program& p);
// Applies the scheme that `Scheme` names, blind to case; none of that name
// leaves all as it is.
void Thumb_Scheme_TakeUp(Program& p);
// The built-in look, and the controls that are sized by it.
void Thumb_Look_Begin(Program& p);

// The pictures (thumb_make.cpp). Both walk all rows of the rename list, or the
// selected ones, in its order; Escape ends them after the row in hand. A file
// that cannot be read is passed over without a word. Refused while another long
// operation is under way.
// Makes those that are missing.
void Thumb_Create(Program& p, bool allRows);
// Makes those anew that there are; one whose file cannot be read is gone.
void Thumb_Update(Program& p, bool allRows);
// Offers to make them, where there are none.
void Thumb_Create_Offer(Program& p);
// Drops all pictures, the parked one too.
void Thumb_Clear(Program& p);

// The grid (thumb_layout.cpp). Its arithmetic has 16 bits: a row beyond 32767 is
// not shown.
// Builds the cells from the window's size and the look, then shows the rows.
void Thumb_Layout(Program& p);
// Binds each cell to its row anew.
void Thumb_Refresh(Program& p);
// Colours the frames by the selection, and does nothing else.
void Thumb_Sel_Paint(Program& p);
// Shows or hides the captions.
void Thumb_Caption_Flip(Program& p);
// 0 left, 1 right, 2 centre.
void Thumb_Align(Program& p, int alignment);
// The side column at the look's size.
void Thumb_Side_Fit(Program& p);
// Lets the person edit the look in force, and fits all to what it is then
// (thumb_layout_edit.cpp).
void Thumb_Layout_Edit(Program& p);

// What the mouse does in the grid (thumb_mouse.cpp, thumb_drop.cpp), the timers
// and what the grid hears of the list.
void Thumb_Wire(Program& p);

} // namespace tavo
