#pragma once

#include <string>

namespace tavo {
class Control;
} // namespace tavo

namespace tavo::console {

// Writes what a control that shows pictures shows into the PNG file `target`,
// a dot a pixel, without its frame: a picture in its own size, a stretched one
// in the control's, a box or button without one as a plane of its colour. Gives
// an empty text, or why not: a control that shows nothing, a file that could
// not be written. The file is then what it was.
std::string Face_Save(const Control& control, double twipsPerPixel, const std::string& target);

} // namespace tavo::console
