#include "hosts/qt/picture_store.h"

#include "hosts/pictures/pictures.h"

namespace tavo {

const QImage& PictureStore::Read(const std::string& path)
{
    const auto loaded = pictures::Load(path);
    path_ = path;
    image_ = loaded ? loaded->Image : QImage();
    return image_;
}

const QImage& PictureStore::Shown(const std::string& path)
{
    return path == path_ ? image_ : Read(path);
}

} // namespace tavo
