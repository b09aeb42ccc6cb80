#include "hosts/pictures/picture_kind.h"

#include <algorithm>
#include <string>

namespace tavo::pictures {

namespace {

using enum PictureKind;

constexpr std::uint64_t mebibyte = std::uint64_t{1024} * 1024;
// Room for the largest picture without compression, at eight bytes a dot.
constexpr std::uint64_t streamed = 4200 * mebibyte;
// These are taken into memory as a whole.
constexpr std::uint64_t whole = 512 * mebibyte;
constexpr std::uint64_t drawing = 64 * mebibyte;

constexpr bool here = false, confined = true;
constexpr bool full = false, reduces = true;

// A block of 64 dots takes a JPEG at least a bit; deflate gives back at most
// 1032 times what it is fed, a bit a dot; a code of a GIF stands for at most
// 4096; two bytes of a BMP for 255.
constexpr KindRules kinds[] = {
    {Jpeg, "jpeg", Ending::NoEmptyRead, here, reduces, streamed, 512},
    {Png, "png", Ending::NoEmptyRead, here, full, streamed, 8 * 1032},
    {Gif, "gif", Ending::NoEmptyRead, here, full, streamed, 4096},
    {Bmp, "bmp", Ending::NoShortRead, here, full, streamed, 128},
    {Icon, "ico", Ending::NoShortRead, here, full, drawing, 0},
    {Cursor, "cur", Ending::NoShortRead, here, full, drawing, 0},
    {WebP, "webp", Ending::ByDecoder, here, full, whole, 0},
    {Tiff, "tiff", Ending::NoEmptyRead, confined, full, streamed, 0},
    {Mng, "mng", Ending::NoEmptyRead, confined, full, whole, 8 * 1032},
    {Icns, "icns", Ending::NoShortRead, confined, full, drawing, 0},
    {Pnm, "ppm", Ending::ByDecoder, confined, full, streamed, 8},
    {Xpm, "xpm", Ending::ByDecoder, confined, full, whole, 1},
    {Xbm, "xbm", Ending::NoShortRead, confined, full, whole, 8},
    {Svg, "svg", Ending::ByDecoder, confined, reduces, drawing, 0},
    {Svgz, "svgz", Ending::ByDecoder, confined, reduces, drawing, 0},
    {Wmf, "", Ending::ByDecoder, confined, reduces, drawing, 0},
    {Emf, "", Ending::ByDecoder, confined, reduces, drawing, 0},
    {Tga, "tga", Ending::NoShortRead, confined, full, streamed, 1},
    {Wbmp, "wbmp", Ending::NoShortRead, confined, full, streamed, 8},
};

unsigned Byte(std::string_view head, std::size_t at)
{
    return at < head.size() ? static_cast<unsigned char>(head[at]) : 0;
}

unsigned Word(std::string_view head, std::size_t at)
{
    return Byte(head, at) | Byte(head, at + 1) << 8;
}

struct Mark {
    PictureKind Kind;
    std::size_t At;
    std::string_view Bytes;
};

using namespace std::string_view_literals;

// What stands at a fixed place. The first row that fits is the kind.
constexpr Mark marks[] = {
    {Jpeg, 0, "\xff\xd8\xff"sv},  {Png, 0, "\x89PNG\r\n\x1a\n"sv},
    {Gif, 0, "GIF87a"sv},         {Gif, 0, "GIF89a"sv},
    {WebP, 8, "WEBPVP8"sv},       {Tiff, 0, "II*\0"sv},
    {Tiff, 0, "MM\0*"sv},         {Tiff, 0, "II+\0"sv},
    {Tiff, 0, "MM\0+"sv},         {Mng, 0, "\x8aMNG\r\n\x1a\n"sv},
    {Icns, 0, "icns"sv},          {Xpm, 0, "/* XPM"sv},
    {Xbm, 0, "#define "sv},       {Svgz, 0, "\x1f\x8b\x08"sv},
    {Emf, 40, " EMF"sv},          {Wmf, 0, "\xd7\xcd\xc6\x9a\0\0"sv},
    {Wmf, 0, "\1\0\x09\0\0\3"sv}, {Wmf, 0, "\1\0\x09\0\0\1"sv},
};

bool Is_Bmp(std::string_view head)
{
    static constexpr unsigned headers[] = {12, 40, 52, 56, 64, 108, 124};
    return head.starts_with("BM") && Word(head, 16) == 0
           && std::ranges::find(headers, Word(head, 14)) != std::end(headers);
}

bool Is_IconFile(std::string_view head, unsigned type)
{
    return head.size() > 6 && Word(head, 0) == 0 && Word(head, 2) == type && Word(head, 4) > 0;
}

bool Is_Pnm(std::string_view head)
{
    return head.size() > 2 && head[0] == 'P' && head[1] >= '1' && head[1] <= '6'
           && " \t\r\n"sv.find(head[2]) != std::string_view::npos;
}

bool Is_Svg(std::string_view head)
{
    constexpr std::string_view byteOrder = "\xef\xbb\xbf";
    if (head.starts_with(byteOrder))
        head.remove_prefix(byteOrder.size());
    const auto first = head.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && head[first] == '<'
           && head.find("<svg") != std::string_view::npos;
}

// These two have no mark, so that everything in the header must fit, the size
// of the file too.
bool Is_Tga(std::string_view head, std::uint64_t fileSize)
{
    constexpr std::uint64_t header = 18;
    constexpr unsigned trueColour = 2;
    const std::uint64_t depth = Byte(head, 16);
    const std::uint64_t dots = std::uint64_t{Word(head, 12)} * Word(head, 14);
    return head.size() >= header && Byte(head, 1) == 0 && Byte(head, 2) == trueColour
           && Word(head, 3) == 0 && Word(head, 5) == 0 && dots > 0
           && (depth == 16 || depth == 24 || depth == 32)
           && header + Byte(head, 0) + dots * depth / 8 <= fileSize;
}

// A number of seven bits a byte, the last one below 128; 0 for none.
std::uint64_t Number_Take(std::string_view head, std::size_t& at)
{
    std::uint64_t number = 0;
    for (int taken = 0; taken < 4; ++taken) {
        const unsigned byte = Byte(head, at++);
        number = number << 7 | (byte & 127);
        if (byte < 128)
            return number;
    }
    return 0;
}

bool Is_Wbmp(std::string_view head, std::uint64_t fileSize)
{
    std::size_t at = 2;
    const std::uint64_t width = Number_Take(head, at), height = Number_Take(head, at);
    return Word(head, 0) == 0 && at < head.size() && width > 0 && height > 0
           && fileSize == at + (width + 7) / 8 * height;
}

const KindRules* Rules_Of(PictureKind kind)
{
    return std::ranges::find(kinds, kind, &KindRules::Kind);
}

} // namespace

std::span<const KindRules> Kinds_All()
{
    return kinds;
}

const KindRules* Kind_Find(std::string_view head, std::uint64_t fileSize)
{
    for (const Mark& mark : marks)
        if (head.size() >= mark.At && head.substr(mark.At).starts_with(mark.Bytes))
            return Rules_Of(mark.Kind);
    const struct {
        PictureKind Kind;
        bool Fits;
    } looks[] = {
        {Bmp, Is_Bmp(head)},
        {Icon, Is_IconFile(head, 1)},
        {Cursor, Is_IconFile(head, 2)},
        {Pnm, Is_Pnm(head)},
        {Svg, Is_Svg(head)},
        {Tga, Is_Tga(head, fileSize)},
        {Wbmp, Is_Wbmp(head, fileSize)},
    };
    for (const auto& look : looks)
        if (look.Fits)
            return Rules_Of(look.Kind);
    return nullptr;
}

} // namespace tavo::pictures
