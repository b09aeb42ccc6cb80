#include "hosts/pictures/pictures.h"

#include "hosts/pictures/confined.h"
#include "hosts/pictures/decode.h"
#include "platform/posix/file_edit.h"

#include <QBuffer>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tavo::pictures {

std::optional<Loaded> Load(const std::string& path, QSize bound)
{
    const auto file = RegularFile::Open(path);
    const KindRules* const rules = file ? Kind_OfFile(*file) : nullptr;
    if (rules == nullptr)
        return std::nullopt;
    return rules->Confined ? Confined_Load(*file, bound) : File_Decode(*file, *rules, bound);
}

std::optional<QSize> Size(const std::string& path)
{
    const auto file = RegularFile::Open(path);
    const KindRules* const rules = file ? Kind_OfFile(*file) : nullptr;
    if (rules == nullptr)
        return std::nullopt;
    if (!rules->Confined)
        return File_Size(*file, *rules);
    const auto loaded = Confined_Load(*file, {1, 1});
    return loaded ? std::optional(loaded->FullSize) : std::nullopt;
}

QSize Size_Fit(QSize full, QSize bound)
{
    if (bound.isEmpty() || full.isEmpty()
        || (full.width() <= bound.width() && full.height() <= bound.height()))
        return full;
    const double byHeight = double(bound.height()) / full.height();
    const double byWidth = double(bound.width()) / full.width();
    if (byHeight < byWidth)
        return {std::max(1, static_cast<int>(full.width() * byHeight)), bound.height()};
    return {bound.width(), std::max(1, static_cast<int>(full.height() * byWidth))};
}

void Dots_Plain(QImage& image)
{
    // In place, so that a large picture is not there twice.
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
}

QImage Scale_Smooth(QImage image, QSize size)
{
    if (size.isEmpty() || image.isNull())
        return {};
    if (image.size() == size)
        return image;
    Dots_Plain(image);
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

std::string Save_Png(const QImage& image, const std::string& path)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (image.isNull() || !buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        return "no picture to write";
    std::error_code none;
    const std::string target = std::filesystem::absolute(path, none).string();
    const auto disk = SystemEditDisk();
    const int error =
        ChangeFile(*disk, target, [&bytes](const std::string&) { return bytes.toStdString(); });
    return error == 0 ? std::string() : std::generic_category().message(error);
}

} // namespace tavo::pictures
