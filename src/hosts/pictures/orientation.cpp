#include "hosts/pictures/orientation.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <string>

namespace tavo::pictures {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t largestBlock = std::size_t{64} * 1024;
constexpr int mostChunks = 4096;

// A whole number of `count` bytes; 0 beyond the end.
std::uint32_t Number_At(std::string_view bytes, std::size_t at, int count, bool bigEnd)
{
    std::uint32_t number = 0;
    if (at > bytes.size() || bytes.size() - at < static_cast<std::size_t>(count))
        return 0;
    for (int i = 0; i < count; ++i) {
        const auto place = at + static_cast<std::size_t>(bigEnd ? i : count - 1 - i);
        number = number << 8 | static_cast<unsigned char>(bytes[place]);
    }
    return number;
}

// How a file of chunks is laid out.
struct ChunkForm {
    PictureKind Kind;
    std::size_t FirstAt;
    bool NameFirst, BigEnd;
    std::size_t Behind; // bytes behind the data of each
    std::size_t Round;  // chunks begin at a multiple of this
    std::string_view Exif, Last;
};

constexpr ChunkForm forms[] = {
    {PictureKind::Png, 8, false, true, 4, 1, "eXIf"sv, "IEND"sv},
    {PictureKind::WebP, 12, true, false, 0, 2, "EXIF"sv, ""sv},
};

std::string Chunk_Read(const RegularFile& file, std::uint64_t at, std::size_t size)
{
    std::string block(std::min(size, largestBlock), '\0');
    block.resize(file.Read(at, block.data(), block.size()));
    return block;
}

std::string ExifChunk_Find(const RegularFile& file, const ChunkForm& form)
{
    std::uint64_t at = form.FirstAt;
    std::array<char, 8> head;
    for (int chunk = 0; chunk < mostChunks; ++chunk) {
        if (file.Read(at, head.data(), head.size()) < head.size())
            return {};
        const std::string_view words(head.data(), head.size());
        const std::string_view name = words.substr(form.NameFirst ? 0 : 4, 4);
        const std::uint32_t size = Number_At(words, form.NameFirst ? 4 : 0, 4, form.BigEnd);
        if (name == form.Exif)
            return Chunk_Read(file, at + head.size(), size);
        if (name == form.Last)
            return {};
        at += head.size() + size + form.Behind;
        at = (at + form.Round - 1) / form.Round * form.Round;
    }
    return {};
}

} // namespace

Turn Turn_OfNumber(unsigned number)
{
    using Io = QImageIOHandler;
    static constexpr Turn turns[] = {
        Io::TransformationNone,      Io::TransformationNone,
        Io::TransformationMirror,    Io::TransformationRotate180,
        Io::TransformationFlip,      Io::TransformationFlipAndRotate90,
        Io::TransformationRotate90,  Io::TransformationMirrorAndRotate90,
        Io::TransformationRotate270,
    };
    return number < std::size(turns) ? turns[number] : Io::TransformationNone;
}

Turn Turn_OfExif(std::string_view block)
{
    constexpr std::string_view prefix = "Exif\0\0"sv;
    constexpr std::size_t entrySize = 12;
    constexpr std::uint32_t orientationTag = 0x112;
    if (block.starts_with(prefix))
        block.remove_prefix(prefix.size());
    const bool bigEnd = block.starts_with("MM");
    if (!bigEnd && !block.starts_with("II"))
        return QImageIOHandler::TransformationNone;
    const std::size_t folder = Number_At(block, 4, 4, bigEnd);
    const std::uint32_t entries = Number_At(block, folder, 2, bigEnd);
    for (std::uint32_t i = 0; i < entries; ++i) {
        const std::size_t entry = folder + 2 + i * entrySize;
        if (Number_At(block, entry, 2, bigEnd) == orientationTag)
            return Turn_OfNumber(Number_At(block, entry + 8, 2, bigEnd));
    }
    return QImageIOHandler::TransformationNone;
}

Turn Turn_InChunks(const RegularFile& file, PictureKind kind)
{
    for (const ChunkForm& form : forms)
        if (form.Kind == kind)
            return Turn_OfExif(ExifChunk_Find(file, form));
    return QImageIOHandler::TransformationNone;
}

bool Turn_Swaps(Turn turn)
{
    return (turn & QImageIOHandler::TransformationRotate90) != 0;
}

QImage Image_Turn(const QImage& image, Turn turn)
{
    if (turn == QImageIOHandler::TransformationNone)
        return image;
    const QImage mirrored = image.mirrored((turn & QImageIOHandler::TransformationMirror) != 0,
                                           (turn & QImageIOHandler::TransformationFlip) != 0);
    return Turn_Swaps(turn) ? mirrored.transformed(QTransform().rotate(90)) : mirrored;
}

} // namespace tavo::pictures
