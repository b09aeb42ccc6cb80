#include "hosts/qt/picture_store.h"

#include "hosts/pictures/pictures.h"

#include <QGuiApplication>
#include <QScreen>

namespace tavo {

const QImage& PictureStore::Read(const std::string& path)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize bound = screen ? screen->size() * screen->devicePixelRatio() : QSize();
    const auto loaded = pictures::Load(path, bound);
    path_ = path;
    image_ = loaded ? loaded->Image : QImage();
    fullSize_ = loaded ? loaded->FullSize : QSize();
    return image_;
}

const QImage& PictureStore::Shown(const std::string& path)
{
    return path == path_ ? image_ : Read(path);
}

} // namespace tavo
