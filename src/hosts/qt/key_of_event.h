#pragma once

#include "toolkit/keys.h"

#include <Qt>

class QKeyEvent;

namespace tavo {

// The key as the program knows it, its code keyNone for one that the program
// does not know at all.
Key Key_OfEvent(const QKeyEvent& event);
int Shift_Of(Qt::KeyboardModifiers modifiers);

} // namespace tavo
