#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace tavo {

// What must hold for any input. Where it does not the program ends, and the
// input is kept.
inline void Require(bool holds, const char* sentence, const std::string& about = {})
{
    if (holds)
        return;
    std::fprintf(stderr, "This does not hold: %s\n%s\n", sentence, about.c_str());
    std::abort();
}

inline std::string_view Input_Text(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

} // namespace tavo
