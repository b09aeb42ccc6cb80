#pragma once

#include <QColor>
#include <QPalette>

#include <cstdint>

namespace tavo {

// A colour of the program, 0x00BBGGRR or 0x80000000 and the number of a system
// colour, in a palette of the desktop. A number that is no system colour is
// that of the texts.
QColor Color_Of(std::int32_t colour, const QPalette& palette);

// Is it one that follows the desktop?
bool Color_IsOfSystem(std::int32_t colour);

} // namespace tavo
