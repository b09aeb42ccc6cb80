#pragma once

#include <QCursor>

namespace tavo {

// The pointer of a drag by its number: 0 no drop, 1 before, 2 behind, 3 up,
// 4 down, 5 drop; any other is the plain one. Dark with a light rim, so that it
// can be seen on any ground; `scale` is the dots to a pixel.
QCursor Pointer_OfDrag(int number, qreal scale);

} // namespace tavo
