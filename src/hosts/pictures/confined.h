#pragma once

#include "hosts/pictures/pictures.h"
#include "platform/posix/regular_file.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tavo::pictures {

// What the worker prints in front of the dots: row by row from the top, each
// dot a 32-bit number of this machine, premultiplied by its opacity.
struct ConfinedHead {
    static constexpr std::uint32_t mark = 0x54767031;
    std::uint32_t Mark = mark;
    std::int32_t Width = 0, Height = 0;
    std::int32_t FullWidth = 0, FullHeight = 0;
    std::uint32_t HasAlpha = 0;
};

// Gives exactly so many bytes of what a worker prints; false for fewer.
using Printed = std::function<bool(char* bytes, std::size_t count)>;

// The picture that a worker prints. None for anything else than a picture that
// fits the bound: the worker may have been led astray by what it read.
std::optional<Loaded> Confined_Take(const Printed& printed, QSize bound);

// Where the worker is: beside the running program, or where it is installed;
// empty when it is nowhere.
std::string Worker_Find();

// Load of an open file by the worker, in a process of its own.
std::optional<Loaded> Confined_Load(const RegularFile& file, QSize bound);

} // namespace tavo::pictures
