#pragma once

namespace tavo {

class Program;

// Filters of a typed character: they set it to 0 to swallow it. The control
// codes of copy, paste, cut and undo pass everywhere.
void Txt_NumericKey(int& key);
void Key_Letters(int& key);
// What no file name may hold is refused with a message; "<" and ">" pass in
// Name & Number, where templates need them.
void Key_FileName(Program& p, int& key);

} // namespace tavo
