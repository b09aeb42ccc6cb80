#pragma once

#include <cstdint>

namespace tavo::console {

// A colour of the program, 0x00BBGGRR or 0x80000000 and the number of a system
// colour, as 0x00RRGGBB. The console has no desktop to ask for the latter, so
// its own never change: those of a plain light one. A number that is no system
// colour is that of window text.
std::uint32_t Dots_OfColour(std::int32_t colour);

} // namespace tavo::console
