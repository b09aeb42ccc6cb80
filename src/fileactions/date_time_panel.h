#pragma once

namespace tavo {

class Program;

// The rules of the Date & Time panel, and the click on its clock.
void DT_Panel_Wire(Program& p);
// Labels and boxes can be used exactly while the box above them is ticked.
void DT_Groups_Enable(Program& p);

} // namespace tavo
