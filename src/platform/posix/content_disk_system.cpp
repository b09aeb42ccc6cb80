#include "platform/posix/content_disk.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace tavo {

namespace {

template <typename Call>
int ErrorOf(Call call)
{
    return WithoutInterrupts(call) == -1 ? errno : 0;
}

ContentDisk::State StateOf(const struct stat& data)
{
    return {data.st_mode, static_cast<std::uint64_t>(data.st_size)};
}

class SystemCalls : public ContentDisk {
public:
    int Look(const std::string& path, State& state) override
    {
        struct stat data;
        const int error = ErrorOf([&] { return ::stat(path.c_str(), &data); });
        if (error == 0)
            state = StateOf(data);
        return error;
    }

    int Open(const std::string& path, Access access, Descriptor& file) override
    {
        const int flags =
            (access == Access::Read ? O_RDONLY : O_RDWR) | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
        file = Descriptor(WithoutInterrupts([&] { return ::open(path.c_str(), flags); }));
        return file.IsOpen() ? 0 : errno;
    }

    int Look(const Descriptor& file, State& state) override
    {
        struct stat data;
        const int error = ErrorOf([&] { return ::fstat(file.Number(), &data); });
        if (error == 0)
            state = StateOf(data);
        return error;
    }

    int Read(const Descriptor& file, std::uint64_t offset, std::size_t count,
             std::string& bytes) override
    {
        bytes.resize(count);
        const ssize_t got = WithoutInterrupts([&] {
            return ::pread(file.Number(), bytes.data(), count, static_cast<off_t>(offset));
        });
        const int error = got < 0 ? errno : 0;
        bytes.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
        return error;
    }

    int Write(const Descriptor& file, std::uint64_t offset, std::string_view bytes,
              std::size_t& written) override
    {
        const ssize_t count = WithoutInterrupts([&] {
            return ::pwrite(file.Number(), bytes.data(), bytes.size(), static_cast<off_t>(offset));
        });
        written = count < 0 ? 0 : static_cast<std::size_t>(count);
        return count < 0 ? errno : 0;
    }

    int Cut(const Descriptor& file, std::uint64_t length) override
    {
        return ErrorOf([&] { return ::ftruncate(file.Number(), static_cast<off_t>(length)); });
    }
};

} // namespace

std::unique_ptr<ContentDisk> SystemContentDisk()
{
    return std::make_unique<SystemCalls>();
}

} // namespace tavo
