#pragma once

#include <string_view>

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
// Opens the help pages by the desktop's opener; a failure is told in a message
// box. `mode` ("Topic", "Index") chooses nothing: the pages begin with both.
void Help_Show(Program& p, std::string_view mode);

} // namespace tavo
