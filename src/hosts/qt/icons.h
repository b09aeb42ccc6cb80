#pragma once

#include <QColor>
#include <QIcon>

#include <string_view>

namespace tavo {

// The icon of this name: from the desktop's icon theme when that draws the
// whole set of the tool bars, else our own drawing, in the text colour of the
// palette in force. Without either it is null.
QIcon Icon_Named(std::string_view name);

// The icon of a row's class: "F" file, "D" folder, "P" picture, "M" music.
QIcon Icon_OfClass(std::string_view letter);
// The icon that a row of a list goes by: its class, or the short name or the
// number of the list that it belongs to.
QIcon Icon_OfRow(std::string_view key);

// For what is to catch the eye on the window's own ground, light or dark.
QColor Accent_Colour();

// The program's own.
QIcon Icon_OfProgram();

} // namespace tavo
