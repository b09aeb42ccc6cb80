#pragma once

namespace tavo {

class Program;

// The panels of Search & Replace and of Change Case: boxes and options keep
// their values and let the preview follow.
void SR_Panel_Wire(Program& p);
void Case_Panel_Wire(Program& p);

} // namespace tavo
