#pragma once

#include "toolkit/scroll_bar.h"

class QAbstractSlider;

namespace tavo {

class Binder;

// Ties a bar or slider of the window to its control. What the program sets is
// shown and not told back. Dragging the thumb tells every place, and letting
// it go the end of the drag; what arrows, pages and the wheel do is a move of
// its own each.
void ScrollBar_Bind(Binder& binder, QAbstractSlider& slider, ScrollBar& bar);

} // namespace tavo
