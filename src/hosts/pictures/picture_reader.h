#pragma once

#include "toolkit/bitmap.h"

#include <cstdint>
#include <string>

// The picture loader for a host that knows nothing of Qt. Where the program is
// built without Qt, no picture can be read.
namespace tavo::pictures {

// The picture with its own size; with a bound it keeps no more dots than fit
// in. Null for a file that cannot be read as a picture from its beginning to
// its end.
BitmapPtr Bitmap_Load(const std::string& path, int boundWidth, int boundHeight);

// The same picture, smoothly drawn at another size, at least a dot wide and
// high. Null for more dots than there is memory for.
BitmapPtr Bitmap_Paint(const Bitmap& bitmap, int widthPixels, int heightPixels);

// One colour, 0x00RRGGBB. Null for more dots than there is memory for, or none.
BitmapPtr Bitmap_Plain(std::uint32_t colour, int widthPixels, int heightPixels);

// A sheet of paper with this letter on it, for a host that has no icons of file
// classes; without one for a letter that is none of a class. 32 pixels a side.
BitmapPtr Bitmap_OfClass(char letter);

// Writes it at this size as a PNG file `target`. Gives an empty text, or why it
// could not be done; the file is then what it was.
std::string Bitmap_SavePng(const Bitmap& bitmap, int widthPixels, int heightPixels,
                           const std::string& target);

} // namespace tavo::pictures
