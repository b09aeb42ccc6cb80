#pragma once

#include <QImage>
#include <QSize>

#include <optional>
#include <string>

// Reads pictures, without a window, a display or an application object of Qt.
// What a file holds decides, not its name. A file that cannot be read (no
// regular file, no picture, broken, cut short, without a dot, above
// `largestDots`, too large for the memory that is free, too slow) gives none,
// and that is all that it can do. Paths are bytes of any kind.
namespace tavo::pictures {

inline constexpr qint64 largestDots = 512'000'000;

struct Loaded {
    QImage Image;
    QSize FullSize; // the picture's own size, in pixels
};

// The picture, upright. With a bound it is made to fit in, by the proportions
// of Size_Fit and never larger than it is; a null size is no bound. Drawings,
// such as svg, are drawn at that size.
std::optional<Loaded> Load(const std::string& path, QSize bound = {});

// The picture's own size as its beginning tells it, upright. Load may still
// find that the rest cannot be read.
std::optional<QSize> Size(const std::string& path);

// What a picture of `full` shrinks to in `bound`: the side that limits takes
// the bound's, the other one the whole part of its own share, at least 1.
QSize Size_Fit(QSize full, QSize bound);

// Makes each dot four bytes, premultiplied where there is opacity.
void Dots_Plain(QImage& image);

// The picture at another size: every dot weighs by its area and its opacity.
// Null for an empty size or a null picture.
QImage Scale_Smooth(QImage image, QSize size);

// Gives an empty text, or why the file could not be written; it is then what it
// was.
std::string Save_Png(const QImage& image, const std::string& path);

} // namespace tavo::pictures
