#pragma once

#include <memory>

namespace tavo {

// A picture in memory. What its dots are is the affair of the host that made
// it; the program knows its size, hands it on, and has others made of it.
class Bitmap {
public:
    // Its natural size on the screen, in pixels.
    Bitmap(int widthPixels, int heightPixels) : width_(widthPixels), height_(heightPixels) {}
    virtual ~Bitmap() = default;
    Bitmap(const Bitmap&) = delete;
    Bitmap& operator=(const Bitmap&) = delete;

    int Width() const { return width_; }
    int Height() const { return height_; }

private:
    int width_, height_;
};

// Null for none.
using BitmapPtr = std::shared_ptr<const Bitmap>;

} // namespace tavo
