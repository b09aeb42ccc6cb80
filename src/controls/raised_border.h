#pragma once

#include "toolkit/panels.h"

#include <array>
#include <cstdint>

namespace tavo {

// A panel with a raised edge. Who can use it can use what lies in it: its
// `Enabled` is true from the start.
class RaisedBorder : public Frame {
public:
    using Frame::Frame;
};

// A line of the edge, in pixels of the panel; the last point is not drawn.
struct EdgeLine {
    int FromX = 0, FromY = 0, ToX = 0, ToY = 0;
    std::int32_t Color = 0;
    friend bool operator==(const EdgeLine&, const EdgeLine&) = default;
};

// The edge of a panel of this size in the order of drawing: top and left light,
// bottom and right in shadow.
std::array<EdgeLine, 4> RaisedBorder_Lines(int widthPixels, int heightPixels);

} // namespace tavo
