#pragma once

namespace tavo {

class Program;

// What becomes of a picture that is dragged over a cell, and dropped on it.
void Drop_Wire(Program& p, int cell);
// The same of the side box and the strips, and the box's button.
void Side_Wire(Program& p);

} // namespace tavo
