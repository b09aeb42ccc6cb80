#include "hosts/pictures/picture_reader.h"

#include "hosts/pictures/pictures.h"

#include <QtGlobal>

namespace tavo::pictures {

namespace {

// Decoders complain on the standard error, where a host by lines has its own.
void Complaints_Silence()
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

} // namespace

bool Picture_Size(const std::string& path, int& widthPixels, int& heightPixels)
{
    // Small, since only the whole of the file tells whether it can be read.
    constexpr QSize proof(64, 64);
    Complaints_Silence();
    const auto loaded = Load(path, proof);
    if (!loaded)
        return false;
    widthPixels = loaded->FullSize.width();
    heightPixels = loaded->FullSize.height();
    return true;
}

bool Picture_SavePng(const std::string& path, int widthPixels, int heightPixels,
                     const std::string& target)
{
    Complaints_Silence();
    const QSize size(widthPixels, heightPixels);
    const auto loaded = size.isEmpty() ? std::nullopt : Load(path, size);
    return loaded && Save_Png(Scale_Smooth(loaded->Image, size), target);
}

} // namespace tavo::pictures
