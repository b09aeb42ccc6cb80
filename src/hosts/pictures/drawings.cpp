#include "hosts/pictures/drawings.h"

#include "hosts/pictures/decode.h"

#include <QBuffer>

#include <cstring>
#include <memory>

#include <emf2svg.h>
#include <libwmf/api.h>
#include <libwmf/gd.h>

namespace tavo::pictures {

namespace {

constexpr unsigned dotsPerInch = 96;
// The device that the library lays pictures out for.
constexpr wmfD_Rect wmfDevice{{0, 0}, {1024, 768}};

std::uint32_t Number_At(const QByteArray& bytes, qsizetype at, int count)
{
    std::uint32_t number = 0;
    if (at + count > bytes.size())
        return 0;
    for (int i = count - 1; i >= 0; --i)
        number = number << 8 | static_cast<unsigned char>(bytes[at + i]);
    return number;
}

using WmfApi = std::unique_ptr<wmfAPI, decltype(&wmf_api_destroy)>;

WmfApi Wmf_Open(QByteArray& bytes)
{
    wmfAPI_Options options;
    std::memset(&options, 0, sizeof options);
    options.function = wmf_gd_function;
    wmfAPI* made = nullptr;
    const auto error = wmf_api_create(&made, WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL, &options);
    WmfApi api(made, &wmf_api_destroy);
    if (error != wmf_E_None
        || wmf_mem_open(made, reinterpret_cast<unsigned char*>(bytes.data()), long(bytes.size()))
               != wmf_E_None)
        api.reset();
    return api;
}

// Does the picture fill the whole device by its own window, as almost all do?
// Then its blank margins belong to it. The library only knows how far the
// drawing itself goes.
bool Wmf_FillsDevice(const QByteArray& bytes, bool isPlaceable)
{
    constexpr std::uint32_t setMapMode = 0x103, setWindowExt = 0x20c, setViewportOrg = 0x20d,
                            setViewportExt = 0x20e, anisotropic = 8;
    constexpr qsizetype placeableBytes = 22, headerBytes = 18, wordBytes = 2, leastRecord = 6;
    bool fills = isPlaceable, hasWindow = false;
    qsizetype at = (isPlaceable ? placeableBytes : 0) + headerBytes;
    while (fills && at + leastRecord <= bytes.size()) {
        const qsizetype size = qsizetype{Number_At(bytes, at, 4)} * wordBytes;
        const std::uint32_t function = Number_At(bytes, at + 4, 2);
        hasWindow = hasWindow || function == setWindowExt;
        fills = function != setViewportOrg && function != setViewportExt
                && (function != setMapMode || Number_At(bytes, at + 6, 2) == anisotropic);
        if (size < leastRecord)
            break;
        at += size;
    }
    return fills && hasWindow;
}

// Are there as many bytes as the header promises?
bool Wmf_IsWhole(const QByteArray& bytes, bool isPlaceable)
{
    constexpr qsizetype placeableBytes = 22, sizeAt = 6, wordBytes = 2;
    const qsizetype begin = isPlaceable ? placeableBytes : 0;
    return begin + qsizetype{Number_At(bytes, begin + sizeAt, 4)} * wordBytes <= bytes.size();
}

QImage Wmf_Paint(wmfAPI& api, QSize size, wmfD_Rect box)
{
    wmf_gd_t* const device = WMF_GD_GetData(&api);
    device->flags |= WMF_GD_OUTPUT_MEMORY | WMF_GD_OWN_BUFFER;
    device->type = wmf_gd_image;
    device->width = static_cast<unsigned>(size.width());
    device->height = static_cast<unsigned>(size.height());
    device->bbox = box;
    if (wmf_play(&api, 0, &box) != wmf_E_None || device->gd_image == nullptr)
        return {};
    const int* const dots = wmf_gd_image_pixels(device->gd_image);
    if (dots == nullptr)
        return {};
    return QImage(reinterpret_cast<const uchar*>(dots), size.width(), size.height(),
                  size.width() * qsizetype{sizeof *dots}, QImage::Format_RGB32)
        .copy();
}

bool Emf_IsWhole(const QByteArray& bytes)
{
    constexpr qsizetype sizeAt = 48;
    const qsizetype told = Number_At(bytes, sizeAt, 4);
    return told > 0 && told <= bytes.size();
}

} // namespace

std::optional<Loaded> Wmf_Draw(QByteArray bytes, QSize bound)
{
    constexpr std::uint32_t placeableMark = 0x9ac6cdd7;
    const bool isPlaceable = Number_At(bytes, 0, 4) == placeableMark;
    if (!Wmf_IsWhole(bytes, isPlaceable))
        return std::nullopt;
    const WmfApi api = Wmf_Open(bytes);
    wmfD_Rect box;
    unsigned width = 0, height = 0;
    if (!api || wmf_scan(api.get(), 0, &box) != wmf_E_None
        || wmf_display_size(api.get(), &width, &height, dotsPerInch, dotsPerInch) != wmf_E_None)
        return std::nullopt;
    const QSize full(static_cast<int>(width), static_cast<int>(height));
    if (!Size_IsFit(full))
        return std::nullopt;
    if (Wmf_FillsDevice(bytes, isPlaceable))
        box = wmfDevice;
    const QSize wanted = Size_Fit(full, bound);
    // The library draws hard edges; twice the size, made smaller, softens them.
    const int finer = Dots_Of(wanted) <= freeDots ? 2 : 1;
    QImage image = Scale_Smooth(Wmf_Paint(*api, wanted * finer, box), wanted);
    return image.isNull() ? std::nullopt : std::optional(Loaded{std::move(image), full});
}

std::optional<Loaded> Emf_Draw(QByteArray bytes, QSize bound)
{
    if (!Emf_IsWhole(bytes))
        return std::nullopt;
    char noPrefix[] = "";
    generatorOptions options{};
    options.nameSpace = noPrefix;
    options.emfplus = true;
    options.svgDelimiter = true;
    char* text = nullptr;
    std::size_t size = 0;
    const int good =
        emf2svg(bytes.data(), static_cast<std::size_t>(bytes.size()), &text, &size, &options);
    const std::unique_ptr<char, decltype(&std::free)> owner(text, &std::free);
    if (good == 0 || text == nullptr)
        return std::nullopt;
    QByteArray svg = QByteArray::fromRawData(text, static_cast<qsizetype>(size));
    QBuffer buffer(&svg);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "svg");
    return Reader_Load(reader, bound, true, QImageIOHandler::TransformationNone);
}

} // namespace tavo::pictures
