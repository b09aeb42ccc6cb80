#pragma once

#include "toolkit/text_box.h"

namespace tavo {

class Program;

// The click on a row of the rename list: status, preview, Auto Fill.
void Row_Click(Program& p);
// Computes anew what the row in hand would become, into status panel 2.
void Preview_Show(Program& p);
// Selects the whole text of a box.
void Box_SelectAll(TextBox& box);

} // namespace tavo
