#pragma once

#include <string>

namespace tavo::pictures {

// A red box on nothing, 60 by 40.
std::string Svg_Bytes();
// The same with words, which takes fonts.
std::string Svg_BytesWithWords();

// A red box from 10,10 to 70,50 of 80 by 60 dots; with or without the
// placeable frame in front that tells the size.
std::string Wmf_Bytes(bool isPlaceable);
std::string Emf_Bytes();

} // namespace tavo::pictures
