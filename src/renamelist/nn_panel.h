#pragma once

#include "toolkit/text_box.h"

namespace tavo {

class Program;

// The rules of the Name & Number panel.
void NN_Panel_Wire(Program& p);
// Box "Digits" gets the width that start value and number of rows need.
void NN_Digits_Auto(Program& p);
// Box "Start" gets the first value of the style.
void NN_Start_Reset(Program& p);
// The click on insert label `index`.
void Tmpl_Insert(Program& p, int index);
// Applies template `index` of `Templates` to the mode's boxes.
void Tmpl_Load(Program& p, int index);
// Holds the value of a start box between two bounds (a reversed pair is
// swapped): rewritten text is selected whole, else the caret goes to the end.
void Cnt_CheckNumber(TextBox& box, double low, double high);
void Cnt_CheckLetters(TextBox& box, double low, double high, bool upper);

} // namespace tavo
