#include "hosts/pictures/picture_reader.h"

#include "hosts/pictures/decode.h"
#include "hosts/pictures/image_bitmap.h"
#include "hosts/pictures/pictures.h"

#include <QtGlobal>

#include <cstdio>

namespace tavo::pictures {

namespace {

// Decoders complain on the standard error, where a host by lines has its own.
// Some know no other place: so while it lives theirs is another, and the
// host's stays where it is.
class Silence {
public:
    Silence() : before_(stderr), nothing_(std::fopen("/dev/null", "w"))
    {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        if (nothing_ != nullptr)
            stderr = nothing_;
    }
    ~Silence()
    {
        stderr = before_;
        if (nothing_ != nullptr)
            std::fclose(nothing_);
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    std::FILE* const before_;
    std::FILE* const nothing_;
};

} // namespace

BitmapPtr Bitmap_Load(const std::string& path, int boundWidth, int boundHeight)
{
    const Silence silence;
    return Bitmap_Load(path, {boundWidth, boundHeight}, 1);
}

BitmapPtr Bitmap_Paint(const Bitmap& bitmap, int widthPixels, int heightPixels)
{
    return Bitmap_Paint(bitmap, {widthPixels, heightPixels}, 1);
}

BitmapPtr Bitmap_Plain(std::uint32_t colour, int widthPixels, int heightPixels)
{
    const QSize size(widthPixels, heightPixels);
    if (!Size_IsFit(size))
        return nullptr;
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return nullptr;
    image.fill(0xff000000u | colour);
    return std::make_shared<ImageBitmap>(std::move(image), size);
}

std::string Bitmap_SavePng(const Bitmap& bitmap, int widthPixels, int heightPixels,
                           const std::string& target)
{
    const QSize size(widthPixels, heightPixels);
    if (!Size_IsFit(size))
        return "no memory for the picture";
    return Save_Png(Scale_Smooth(Image_Of(bitmap), size), target);
}

} // namespace tavo::pictures
