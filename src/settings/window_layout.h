#pragma once

#include "core/state.h"

#include <string>
#include <string_view>

namespace tavo {

class Form;
class Program;

// The five fields of a window that has no place: left, top, width, height
// (twips), state.
inline constexpr std::string_view nowhereRecord = "0,0,0,0,0";

// The five fields of a window's place, as the settings file keeps them. A
// maximised window gives its normal place and size.
std::string Pos_Text(const Form& form);
std::string Pos_Text(const WindowPos& pos);

// Puts the windows where a layout record has them. The record has ten fields:
// left, top, width, height (twips) and state (0 normal, 1 minimised, 2
// maximised, 3 as it is) of the main window, then those of the viewer, which
// count while it is in sight.
void Win_Layout_Apply(Program& p, const std::string& record);

// The record of the windows as they stand, which Win_Layout_Apply takes. A
// window that is not in sight, or not in the normal state, has no place in it.
std::string Win_Layout_Text(Program& p);

} // namespace tavo
