#pragma once

#include "platform/posix/regular_file.h"

namespace tavo::pictures {

// Which image of an icon or cursor file is the largest, counted from 0, and of
// those the one with most bytes, which is the one with most colours; the first
// of equal ones. 0 where nothing is told.
int Icon_FindLargest(const RegularFile& file);

} // namespace tavo::pictures
