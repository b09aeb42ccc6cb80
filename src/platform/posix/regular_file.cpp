#include "platform/posix/regular_file.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

namespace tavo {

std::optional<RegularFile> RegularFile::Open(const std::string& path)
{
    struct stat data;
    if (path.find('\0') != std::string::npos || ::stat(path.c_str(), &data) != 0
        || !S_ISREG(data.st_mode))
        return std::nullopt;
    // Another file may have taken the name by now, so this must not wait either.
    constexpr int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    return Take(WithoutInterrupts([&] { return ::open(path.c_str(), flags); }));
}

std::optional<RegularFile> RegularFile::Take(int number)
{
    Descriptor file(number);
    struct stat data;
    if (!file.IsOpen() || ::fstat(number, &data) != 0 || !S_ISREG(data.st_mode))
        return std::nullopt;
    return RegularFile(std::move(file), static_cast<std::uint64_t>(data.st_size));
}

std::size_t RegularFile::Read(std::uint64_t at, char* bytes, std::size_t count) const
{
    if (at >= size_)
        return 0;
    count = static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - at));
    std::size_t done = 0;
    while (done < count) {
        const auto got = WithoutInterrupts([&] {
            return ::pread(file_.Number(), bytes + done, count - done,
                           static_cast<off_t>(at + done));
        });
        if (got <= 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    return done;
}

} // namespace tavo
