#pragma once

#include "hosts/pictures/picture_kind.h"

#include <QImage>

#include <string>
#include <vector>

namespace tavo::pictures {

// One whole picture of a format.
struct Sample {
    std::string Name; // the format and what is special about it
    PictureKind Kind;
    QSize Size;
    std::string Bytes;
};

// A picture for each format and each way to store it that counts, written by
// Qt where it can, by hand where it cannot.
const std::vector<Sample>& Samples();

// Soft colours, every dot another one.
QImage Image_Colours(QSize size);
// `image` as a file of Qt's writer `format`.
std::string Bytes_Of(const QImage& image, const char* format, int quality = -1);

// Whole numbers, low byte first or last.
std::string Low(std::uint32_t number, int count);
std::string High(std::uint32_t number, int count);

// Turns one of the eight bits round.
void Bit_Flip(char& byte, unsigned bit);

// A PNG or MNG chunk with its length and checksum.
std::string Chunk(const std::string& name, const std::string& data);
std::uint32_t Checksum(const std::string& bytes);

// Packed by deflate's way to store bytes as they are; at most 65535 of them.
std::string Gzip(const std::string& bytes);

// A BMP with these bytes as its dots, under a header of 40 bytes.
std::string Bmp_Bytes(int width, int height, int depth, int compression, const std::string& palette,
                      const std::string& dots);
// A GIF of one image; `screen` is the size in front.
std::string Gif_Bytes(QSize screen, QSize size);
// A JPEG's or TIFF's block of Exif data that holds nothing but this number.
std::string Exif_Block(unsigned orientation, bool bigEnd);

} // namespace tavo::pictures
