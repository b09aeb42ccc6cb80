#pragma once

namespace tavo {

class Form;
class Program;

// Freezes a form's painting around bulk changes, or thaws and repaints it.
void Win_Lock(Program& p, bool on, Form& form);
// The hourglass, or the default pointer.
void Cursor_Busy(Program& p, bool on);
// Places a form in the middle of the screen, or of another form.
void Win_CenterScreen(Program& p, Form& form);
void Win_CenterOwner(const Form& owner, Form& form);

} // namespace tavo
