#pragma once

#include <QImage>

#include <string>

namespace tavo {

// Reads pictures, and keeps the last one for the widget that shows it.
class PictureStore {
public:
    // A null image for what cannot be read as a picture. A picture larger than
    // the screen, which is only ever shown shrunk, is made at the screen's size:
    // that takes a fraction of the time.
    const QImage& Read(const std::string& path);
    // The own size of the picture that was read last, in pixels.
    QSize FullSize() const { return fullSize_; }
    // The same, without a look at the disk for the path that was read last.
    const QImage& Shown(const std::string& path);

private:
    std::string path_;
    QImage image_;
    QSize fullSize_;
};

} // namespace tavo
