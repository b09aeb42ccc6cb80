#include "hosts/pictures/decode.h"

#include "hosts/pictures/icon_folder.h"
#include "hosts/pictures/picture_device.h"
#include "platform/posix/worker.h"

#include <QColorSpace>

#include <array>

namespace tavo::pictures {

namespace {

constexpr int megabyte = 1024 * 1024;
// A dot at its worst: two bytes for each of three channels while a picture is
// put together, or four of them when it is whole.
constexpr qint64 bytesPerDot = 8;

constexpr double leastSeconds = 5, dotsPerSecond = 10e6;

double Seconds_For(QSize size)
{
    return leastSeconds + static_cast<double>(Dots_Of(size)) / dotsPerSecond;
}

bool Is_CutShort(const PictureDevice& device, Ending ending)
{
    return device.IsOutOfTime() || (ending == Ending::NoEmptyRead && device.HadEmptyRead())
           || (ending == Ending::NoShortRead && device.HadShortRead());
}

// Can a file of so many bytes hold as many dots?
bool Size_IsTrue(QSize size, const KindRules& rules, std::uint64_t bytes)
{
    const qint64 dots = Dots_Of(size);
    return rules.DotsPerByte == 0 || dots <= freeDots
           || static_cast<std::uint64_t>(dots) <= bytes * rules.DotsPerByte;
}

unsigned Byte(const char* bytes, std::size_t at)
{
    return static_cast<unsigned char>(bytes[at]);
}

// A file of icons whose reader tells no sizes: the largest by trying.
void LargestImage_Choose(QImageReader& reader)
{
    constexpr int mostImages = 64;
    const int count = std::min(reader.imageCount(), mostImages);
    int largest = 0, width = 0;
    for (int i = 0; i < count; ++i) {
        if (!reader.jumpToImage(i))
            continue;
        if (const int its = reader.read().width(); its > width) {
            width = its;
            largest = i;
        }
    }
    reader.jumpToImage(largest);
}

void Image_Choose(QImageReader& reader, const RegularFile& file, PictureKind kind)
{
    if (kind == PictureKind::Icon || kind == PictureKind::Cursor)
        reader.jumpToImage(Icon_FindLargest(file));
    else if (kind == PictureKind::Icns)
        LargestImage_Choose(reader);
}

// The size as the beginning tells it, invalid for none. Qt's reader of MNG
// tells it only when it has taken the memory.
QSize Size_Told(QImageReader& reader, const RegularFile& file, PictureKind kind)
{
    constexpr std::size_t mngSizeAt = 16;
    char bytes[8] = {};
    if (kind != PictureKind::Mng)
        return reader.size();
    file.Read(mngSizeAt, bytes, sizeof bytes);
    const auto number = [&bytes](std::size_t at) {
        return static_cast<int>(Byte(bytes, at) << 24 | Byte(bytes, at + 1) << 16
                                | Byte(bytes, at + 2) << 8 | Byte(bytes, at + 3));
    };
    return {number(0), number(4)};
}

void Reader_Prepare(QImageReader& reader)
{
    // By name the reader would try others when this one gives up.
    reader.setAutoDetectImageFormat(false);
    QImageReader::setAllocationLimit(static_cast<int>(largestDots * bytesPerDot / megabyte) + 1);
}

Turn Turn_Of(QImageReader& reader, Turn ifNone)
{
    const Turn turn = Turn(int(reader.transformation()));
    return turn == QImageIOHandler::TransformationNone ? ifNone : turn;
}

QSize Upright(QSize size, Turn turn)
{
    return Turn_Swaps(turn) ? size.transposed() : size;
}

// The words and the profile that a camera wrote may be larger than a thumbnail,
// and every copy of the picture would carry them on.
void Dots_Bare(QImage& image)
{
    const QStringList keys = image.textKeys();
    for (const QString& key : keys)
        image.setText(key, QString());
    image.setColorSpace(QColorSpace());
}

} // namespace

qint64 Dots_Of(QSize size)
{
    return qint64{size.width()} * size.height();
}

bool Size_IsFit(QSize size)
{
    const qint64 dots = Dots_Of(size);
    if (size.isEmpty() || dots > largestDots)
        return false;
    return dots <= freeDots
           || static_cast<std::uint64_t>(dots * bytesPerDot) < Memory_Available() / 2;
}

std::optional<Loaded> Reader_Load(QImageReader& reader, QSize bound, bool reduces, Turn turn)
{
    const QSize told = reader.size();
    if (told.isValid() && !Size_IsFit(told))
        return std::nullopt;
    turn = Turn_Of(reader, turn);
    if (told.isValid() && reduces) {
        const QSize wanted = Size_Fit(Upright(told, turn), bound);
        if (wanted != Upright(told, turn))
            reader.setScaledSize(Upright(wanted, turn));
    }
    QImage image;
    if (!reader.read(&image) || !Size_IsFit(image.size()))
        return std::nullopt;
    Dots_Bare(image);
    const QSize full = Upright(told.isValid() ? told : image.size(), turn);
    const QSize wanted = Size_Fit(full, bound);
    image = Scale_Smooth(std::move(image), Upright(wanted, turn));
    if (image.isNull())
        return std::nullopt;
    return Loaded{Image_Turn(image, turn), full};
}

const KindRules* Kind_OfFile(const RegularFile& file)
{
    std::array<char, headBytes> head;
    const std::size_t got = file.Read(0, head.data(), head.size());
    const KindRules* const rules = Kind_Find({head.data(), got}, file.Size());
    return rules != nullptr && file.Size() <= rules->LargestFile ? rules : nullptr;
}

std::optional<Loaded> File_Decode(const RegularFile& file, const KindRules& rules, QSize bound)
{
    PictureDevice device(file, leastSeconds);
    QImageReader reader(&device, rules.Reader);
    Reader_Prepare(reader);
    Image_Choose(reader, file, rules.Kind);
    const QSize told = Size_Told(reader, file, rules.Kind);
    // Some readers tell no size. In our own process they must.
    const bool mayBeUntold = rules.Confined && rules.DotsPerByte == 0;
    if (!mayBeUntold && (!Size_IsFit(told) || !Size_IsTrue(told, rules, file.Size())))
        return std::nullopt;
    device.Restart(Seconds_For(told));
    auto loaded = Reader_Load(reader, bound, rules.Reduces, Turn_InChunks(file, rules.Kind));
    return Is_CutShort(device, rules.End) ? std::nullopt : loaded;
}

std::optional<QSize> File_Size(const RegularFile& file, const KindRules& rules)
{
    PictureDevice device(file, leastSeconds);
    QImageReader reader(&device, rules.Reader);
    Reader_Prepare(reader);
    Image_Choose(reader, file, rules.Kind);
    const QSize told = Size_Told(reader, file, rules.Kind);
    if (!Size_IsFit(told) || !Size_IsTrue(told, rules, file.Size()))
        return std::nullopt;
    return Upright(told, Turn_Of(reader, Turn_InChunks(file, rules.Kind)));
}

} // namespace tavo::pictures
