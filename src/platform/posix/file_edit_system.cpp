#include "platform/posix/file_edit.h"

#include "platform/posix/disk_entry.h"
#include "platform/posix/unique_text.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace tavo {

namespace {

constexpr std::uint64_t largestFile = 64u << 20;
constexpr long lockPauseNanoseconds = 10'000'000;

template <typename Call>
int ErrorOf(Call call)
{
    return WithoutInterrupts(call) == 0 ? 0 : errno;
}

template <typename Call>
int Open(Call call, Descriptor& opened)
{
    opened = Descriptor(WithoutInterrupts(call));
    return opened.IsOpen() ? 0 : errno;
}

EditDisk::Rights RightsOf(const struct stat& data)
{
    return {data.st_uid, data.st_gid, data.st_mode & 07777u};
}

class SystemCalls : public EditDisk {
public:
    int ReadLink(const std::string& path, std::string& target) override
    {
        target.resize(PATH_MAX);
        const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
        target.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
        return length < 0 ? errno : 0;
    }

    int OpenFolder(const std::string& path, Descriptor& folder) override
    {
        constexpr int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
        return Open([&] { return ::open(path.c_str(), flags); }, folder);
    }

    int Lock(const Descriptor& folder) override
    {
        return ErrorOf([&] { return ::flock(folder.Number(), LOCK_EX | LOCK_NB); });
    }

    void Pause() override
    {
        const timespec pause{0, lockPauseNanoseconds};
        ::nanosleep(&pause, nullptr);
    }

    int Read(const std::string& path, std::string& bytes) override
    {
        return ReadRegularFile(path, largestFile, bytes);
    }

    int Look(const std::string& path, Rights& rights) override
    {
        struct stat data;
        const int error = ErrorOf([&] { return ::lstat(path.c_str(), &data); });
        if (error == 0)
            rights = RightsOf(data);
        return error;
    }

    int MayWrite(const std::string& path) override
    {
        // The system lets root write what no one is meant to.
        constexpr std::uint32_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
        Rights rights;
        if (const int error = Look(path, rights))
            return error;
        if ((rights.Mode & anyWrite) == 0)
            return EACCES;
        return ErrorOf([&] { return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS); });
    }

    int MakeUnique(std::string& text) override { return MakeUniqueText(text); }

    int Create(const std::string& path, std::uint32_t mode, Descriptor& file) override
    {
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
        return Open([&] { return ::open(path.c_str(), flags, mode); }, file);
    }

    int Look(const Descriptor& file, Rights& rights) override
    {
        struct stat data;
        const int error = ErrorOf([&] { return ::fstat(file.Number(), &data); });
        if (error == 0)
            rights = RightsOf(data);
        return error;
    }

    int SetOwner(const Descriptor& file, std::uint32_t owner, std::uint32_t group) override
    {
        return ErrorOf([&] { return ::fchown(file.Number(), owner, group); });
    }

    int SetMode(const Descriptor& file, std::uint32_t mode) override
    {
        return ErrorOf([&] { return ::fchmod(file.Number(), mode); });
    }

    int Write(const Descriptor& file, std::string_view bytes, std::size_t& written) override
    {
        const ssize_t count =
            WithoutInterrupts([&] { return ::write(file.Number(), bytes.data(), bytes.size()); });
        written = count < 0 ? 0 : static_cast<std::size_t>(count);
        return count < 0 ? errno : 0;
    }

    int Sync(const Descriptor& entry) override
    {
        return ErrorOf([&] { return ::fsync(entry.Number()); });
    }

    int Move(const std::string& from, const std::string& to) override
    {
        return ErrorOf([&] { return ::rename(from.c_str(), to.c_str()); });
    }

    int Unlink(const std::string& path) override
    {
        return ErrorOf([&] { return ::unlink(path.c_str()); });
    }
};

} // namespace

std::unique_ptr<EditDisk> SystemEditDisk()
{
    return std::make_unique<SystemCalls>();
}

} // namespace tavo
