#pragma once

#include <QImage>

#include <string>

namespace tavo {

// Reads pictures, and keeps the last one for the widget that shows it.
class PictureStore {
public:
    // A null image for what cannot be read as a picture.
    const QImage& Read(const std::string& path);
    // The same, without a look at the disk for the path that was read last.
    const QImage& Shown(const std::string& path);

private:
    std::string path_;
    QImage image_;
};

} // namespace tavo
