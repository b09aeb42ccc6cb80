#pragma once

#include <cstdint>

namespace tavo {

// Takes a packed colour apart: red in the low byte, then green, then blue. A
// system colour (0x80000000 and a number) is not looked up: its own bytes come
// out.
class RGB {
public:
    void SetColor(std::int32_t color) { color_ = static_cast<std::uint32_t>(color); }
    std::uint8_t Red() const { return Byte(0); }
    std::uint8_t Green() const { return Byte(8); }
    std::uint8_t Blue() const { return Byte(16); }

    static std::int32_t Pack(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
    {
        return red | green << 8 | blue << 16;
    }

private:
    std::uint8_t Byte(int shift) const { return static_cast<std::uint8_t>(color_ >> shift); }
    std::uint32_t color_ = 0;
};

} // namespace tavo
