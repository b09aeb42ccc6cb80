#pragma once

#include <string>

// The picture loader for a host that knows nothing of Qt. Where the program is
// built without Qt, no picture can be read.
namespace tavo::pictures {

// The size of the picture in pixels; false, with the numbers left as they
// were, for a file that cannot be read as a picture from its beginning to its
// end.
bool Picture_Size(const std::string& path, int& widthPixels, int& heightPixels);

// Writes the picture, smoothly made `widthPixels` by `heightPixels`, as a PNG
// file `target`. False when that failed.
bool Picture_SavePng(const std::string& path, int widthPixels, int heightPixels,
                     const std::string& target);

} // namespace tavo::pictures
