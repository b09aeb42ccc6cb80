#pragma once

#include "platform/files.h"

namespace tavo {

// Moments for tests, taken apart and put together without any zone.

// The moment of a date and time that is meant in UTC. DayOfWeek is ignored.
FileTime Clock_Moment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0,
                      int milliseconds = 0);

// The moment taken apart. False, with `out` as it was, when it lies before 1601.
bool Clock_TakeApart(FileTime time, SystemTime& out);

} // namespace tavo
