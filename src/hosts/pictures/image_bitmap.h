#pragma once

#include "toolkit/bitmap.h"

#include <QImage>

namespace tavo::pictures {

// A picture of the program with its dots. There may be fewer or more of them
// than the size says: a picture that was reduced on reading, or one for a
// screen of double scale.
class ImageBitmap : public Bitmap {
public:
    ImageBitmap(QImage image, QSize size)
        : Bitmap(size.width(), size.height()), Image(std::move(image))
    {
    }

    const QImage Image;
};

// The dots of a picture; a null image for one that is none of ours.
const QImage& Image_Of(const Bitmap& bitmap);

// Bitmap_Load and Bitmap_Paint for a screen with `scale` dots to a pixel.
BitmapPtr Bitmap_Load(const std::string& path, QSize bound, double scale);
BitmapPtr Bitmap_Paint(const Bitmap& bitmap, QSize size, double scale);

} // namespace tavo::pictures
