#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tavo::pictures {

enum class PictureKind {
    Jpeg,
    Png,
    Gif,
    Bmp,
    Icon,
    Cursor,
    WebP,
    Tiff,
    Mng,
    Icns,
    Pnm,
    Xpm,
    Xbm,
    Svg,
    Svgz,
    Wmf,
    Emf,
    Tga,
    Wbmp
};

// How a decoder that was handed half a picture gives itself away, where it
// does not say so itself.
enum class Ending {
    ByDecoder,   // it fails
    NoEmptyRead, // it goes on reading where nothing is left
    NoShortRead, // it asks for more than is left
};

struct KindRules {
    PictureKind Kind;
    // The name of Qt's reader; empty for what Qt has none for.
    const char* Reader;
    Ending End;
    // Is it decoded in a process of its own? docs/decisions/pictures.md tells
    // which are.
    bool Confined;
    // Does the decoder itself make it smaller, and better or faster than we?
    bool Reduces;
    // Larger files are refused.
    std::uint64_t LargestFile;
    // A byte of the format holds at most so many dots, 0 for any number. A
    // large picture that promises more breaks its promise, or is one colour to
    // the last dot and made to fill the memory.
    std::uint32_t DotsPerByte;
};

// As many bytes as tell each kind.
inline constexpr std::size_t headBytes = 4096;

// The kind by what the file begins with, whatever its name; null for what is no
// picture of these.
const KindRules* Kind_Find(std::string_view head, std::uint64_t fileSize);

std::span<const KindRules> Kinds_All();

} // namespace tavo::pictures
