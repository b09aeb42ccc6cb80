#pragma once

#include <string>

namespace tavo {

class Program;

// Stands for no mode where a mode is asked for.
inline constexpr int modeNone = 99;
// The view code of the thumbnails.
inline constexpr int viewThumbnails = 254;

// Changes the screen (see Screen). `refill` matters for the selection alone:
// true walks the folder again, false only clears the list's selection. Asking
// for the screen in hand, or from inside another change, does nothing.
void Screen_Show(Program& p, int screen, bool refill);

// A control that went out of sight keeps no keys: the list in sight gets the
// focus, and the control is left.
void Focus_Follow(Program& p);

// Changes the rename mode and its panel, and shows the row in hand in it.
void Mode_Set(Program& p, int mode);

// Brings the mode to its combo tool, which does not set it again by that. A
// mode outside the choices leaves the box as it is.
void Mode_Box_Show(Program& p);

// The program's title with the suffix of the mode; the bare title for any
// number that is no mode, such as 99.
std::string Title_Get(int mode);

// The rename list's view and the check marks of the view tools: 2 list, 3
// details; 254 stands for the thumbnails and changes neither.
void View_Set(Program& p, int code);

// The state of a list without rows.
void List_SetEmptyState(Program& p);
// Puts a mode outside 0 to 6 back to Name & Number, enters it, and switches
// the rename commands on.
void List_LeaveEmptyState(Program& p);

// Switches the commands of the rename list, of a run, of a walk.
void Tools_ListEnable(Program& p, bool on);
void Tools_RunEnable(Program& p, bool on);
void Tools_SelEnable(Program& p, bool on);
// Date and time in the status bar, once a second in Date & Time.
void Clock_Show(Program& p);
// Text labels under the tools of the bands.
void Tools_SetLabels(Program& p, bool on);

} // namespace tavo
