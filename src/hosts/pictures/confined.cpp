#include "hosts/pictures/confined.h"

#include "hosts/pictures/decode.h"
#include "platform/posix/start_info.h"
#include "platform/posix/worker.h"

#include <filesystem>

namespace tavo::pictures {

namespace {

constexpr const char* workerName = "tavo-picture";

// A picture of many bytes may take longer.
constexpr std::chrono::milliseconds leastTime{8000};
constexpr std::uint64_t bytesPerMillisecond = std::uint64_t{64} * 1024;

} // namespace

std::optional<Loaded> Confined_Take(const Printed& printed, QSize bound)
{
    ConfinedHead head;
    if (!printed(reinterpret_cast<char*>(&head), sizeof head) || head.Mark != ConfinedHead::mark)
        return std::nullopt;
    const QSize size(head.Width, head.Height), full(head.FullWidth, head.FullHeight);
    if (!Size_IsFit(full) || size != Size_Fit(full, bound))
        return std::nullopt;
    QImage image(size,
                 head.HasAlpha != 0 ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull()
        || !printed(reinterpret_cast<char*>(image.bits()),
                    static_cast<std::size_t>(image.sizeInBytes())))
        return std::nullopt;
    return Loaded{std::move(image), full};
}

std::string Worker_Find()
{
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(Executable_Path()).parent_path();
    for (const char* way : {"", "../libexec/tavo"}) {
        const fs::path path = folder / way / workerName;
        std::error_code error;
        if (fs::is_regular_file(path, error))
            return path.string();
    }
    return {};
}

std::optional<Loaded> Confined_Load(const RegularFile& file, QSize bound)
{
    const std::string program = Worker_Find();
    if (program.empty())
        return std::nullopt;
    const auto time = leastTime + std::chrono::milliseconds(file.Size() / bytesPerMillisecond);
    auto worker =
        Worker::Start(program, {std::to_string(bound.width()), std::to_string(bound.height())},
                      file.Number(), time);
    if (!worker)
        return std::nullopt;
    return Confined_Take(
        [&worker](char* bytes, std::size_t count) { return worker->Read(bytes, count); }, bound);
}

} // namespace tavo::pictures
