#pragma once

namespace tavo {

class Program;

// Places every control for the client size and the state, in twips. Does
// nothing while ResizeOn is off.
void Main_Layout(Program& p);

// Takes the client size from the window, held to the smallest one, and lays
// out. Runs at every resize while ResizeOn is on.
void Form_Resize(Program& p);

} // namespace tavo
