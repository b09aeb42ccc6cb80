#include "hosts/pictures/confined.h"
#include "hosts/pictures/decode.h"
#include "hosts/pictures/drawings.h"
#include "platform/posix/worker.h"

#include <QGuiApplication>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <memory>
#include <unistd.h>

// tavo-picture WIDTH HEIGHT: reads the picture that its standard input is, and
// prints it (see ConfinedHead). A process for one picture, so that a decoder
// may fall over it.

namespace {

using namespace tavo;
using namespace tavo::pictures;

// Programs and fonts take their share of the addresses before any picture.
constexpr std::uint64_t leastMemory = std::uint64_t{1} << 30;
constexpr std::uint64_t mostMemory = std::uint64_t{6} << 30;
constexpr std::chrono::seconds mostTime{120};

QByteArray Bytes_Read(const RegularFile& file)
{
    QByteArray bytes(static_cast<qsizetype>(file.Size()), '\0');
    bytes.truncate(
        static_cast<qsizetype>(file.Read(0, bytes.data(), static_cast<std::size_t>(bytes.size()))));
    return bytes;
}

bool NeedsFonts(PictureKind kind)
{
    return kind == PictureKind::Svg || kind == PictureKind::Svgz || kind == PictureKind::Emf;
}

std::optional<Loaded> Picture_Read(const RegularFile& file, const KindRules& rules, QSize bound)
{
    switch (rules.Kind) {
    case PictureKind::Wmf: return Wmf_Draw(Bytes_Read(file), bound);
    case PictureKind::Emf: return Emf_Draw(Bytes_Read(file), bound);
    default: return File_Decode(file, rules, bound);
    }
}

bool Picture_Print(const Loaded& loaded)
{
    const bool hasAlpha = loaded.Image.hasAlphaChannel();
    const QImage image = loaded.Image.convertToFormat(hasAlpha ? QImage::Format_ARGB32_Premultiplied
                                                               : QImage::Format_RGB32);
    ConfinedHead head;
    head.Width = image.width();
    head.Height = image.height();
    head.FullWidth = loaded.FullSize.width();
    head.FullHeight = loaded.FullSize.height();
    head.HasAlpha = hasAlpha ? 1 : 0;
    char bytes[sizeof head];
    std::memcpy(bytes, &head, sizeof head);
    return !image.isNull() && Worker_Print(bytes, sizeof bytes)
           && Worker_Print(reinterpret_cast<const char*>(image.constBits()),
                           static_cast<std::size_t>(image.sizeInBytes()));
}

int Number_Read(const char* word)
{
    int number = 0;
    std::from_chars(word, word + std::strlen(word), number);
    return number;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    Worker_Confine(std::clamp(Memory_Available() / 2, leastMemory, mostMemory), mostTime);
    const auto file = RegularFile::Take(STDIN_FILENO);
    const KindRules* const rules = file ? Kind_OfFile(*file) : nullptr;
    if (rules == nullptr)
        return 1;
    const QSize bound(Number_Read(argv[1]), Number_Read(argv[2]));
    std::unique_ptr<QGuiApplication> fonts;
    if (NeedsFonts(rules->Kind)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        fonts = std::make_unique<QGuiApplication>(argc, argv);
    }
    const auto loaded = Picture_Read(*file, *rules, bound);
    return loaded && Picture_Print(*loaded) ? 0 : 1;
}
