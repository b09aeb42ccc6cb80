#pragma once

#include "hosts/pictures/picture_kind.h"
#include "platform/posix/regular_file.h"

#include <QImage>
#include <QImageIOHandler>

namespace tavo::pictures {

using Turn = QImageIOHandler::Transformation;

// The turn that brings a picture upright, by the number of Exif (1 to 8);
// none for any other number.
Turn Turn_OfNumber(unsigned number);

// The same out of a block of Exif data: a TIFF header and its first folder.
Turn Turn_OfExif(std::string_view block);

// For a PNG or WebP, whose readers do not look at their Exif block.
Turn Turn_InChunks(const RegularFile& file, PictureKind kind);

// Does the turn swap width and height?
bool Turn_Swaps(Turn turn);
QImage Image_Turn(const QImage& image, Turn turn);

} // namespace tavo::pictures
