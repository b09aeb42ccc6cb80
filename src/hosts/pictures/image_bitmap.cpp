#include "hosts/pictures/image_bitmap.h"

#include "hosts/pictures/decode.h"
#include "hosts/pictures/pictures.h"

#include <algorithm>
#include <cmath>

namespace tavo::pictures {

namespace {

// Empty for what is no number of dots.
QSize Dots_For(QSize size, double scale)
{
    const auto dots = [scale](int side) {
        const double wanted = std::round(side * scale);
        return wanted >= 1 && wanted <= largestDots ? static_cast<int>(wanted) : 0;
    };
    return {dots(size.width()), dots(size.height())};
}

} // namespace

const QImage& Image_Of(const Bitmap& bitmap)
{
    static const QImage none;
    const auto* ours = dynamic_cast<const ImageBitmap*>(&bitmap);
    return ours ? ours->Image : none;
}

BitmapPtr Bitmap_Load(const std::string& path, QSize bound, double scale)
{
    auto loaded = Load(path, bound * scale);
    if (!loaded)
        return nullptr;
    return std::make_shared<ImageBitmap>(std::move(loaded->Image), loaded->FullSize);
}

BitmapPtr Bitmap_Paint(const Bitmap& bitmap, QSize size, double scale)
{
    size = {std::max(1, size.width()), std::max(1, size.height())};
    const QSize dots = Dots_For(size, scale);
    if (!Size_IsFit(dots))
        return nullptr;
    QImage image = Scale_Smooth(Image_Of(bitmap), dots);
    if (image.isNull())
        return nullptr;
    Dots_Plain(image);
    return std::make_shared<ImageBitmap>(std::move(image), size);
}

} // namespace tavo::pictures
