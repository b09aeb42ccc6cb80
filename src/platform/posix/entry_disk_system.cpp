#include "platform/posix/entry_disk.h"

#include "platform/posix/local_clock.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <linux/magic.h>
#include <linux/msdos_fs.h>
#include <string_view>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <sys/xattr.h>

namespace tavo {

namespace {

constexpr std::uint32_t allRights = 07777;
constexpr std::uint32_t usualUserMask = 022;
constexpr std::size_t largestText = 65'536; // the system's own limit

template <typename Call>
int ErrorOf(Call call)
{
    return WithoutInterrupts(call) == -1 ? errno : 0;
}

// Another name of the open entry, for calls that refuse one that was opened for
// its name alone with EBADF. It leads to that very entry and to nothing behind it.
class OpenName {
public:
    explicit OpenName(const Descriptor& entry)
    {
        std::snprintf(text_.data(), text_.size(), "/proc/self/fd/%d", entry.Number());
    }
    const char* Text() const { return text_.data(); }

private:
    std::array<char, 40> text_;
};

EntryDisk::Kind KindOf(unsigned mode)
{
    if (S_ISREG(mode))
        return EntryDisk::Kind::File;
    if (S_ISDIR(mode))
        return EntryDisk::Kind::Folder;
    return S_ISLNK(mode) ? EntryDisk::Kind::Link : EntryDisk::Kind::Other;
}

timespec StampOf(FileTime time)
{
    if (time.Ticks == 0)
        return {0, UTIME_OMIT};
    const UnixTime unixTime = UnixFromFileTime(time);
    return {unixTime.Seconds, static_cast<long>(unixTime.Nanoseconds)};
}

// The mask can be asked for without setting it only here, and to set it would
// be felt by files that other threads make meanwhile.
std::uint32_t ReadUserMask()
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> status(
        std::fopen("/proc/self/status", "re"), std::fclose);
    std::array<char, 256> line;
    while (status && std::fgets(line.data(), line.size(), status.get())) {
        constexpr std::string_view label = "Umask:";
        if (std::string_view(line.data()).starts_with(label))
            return static_cast<std::uint32_t>(std::strtoul(line.data() + label.size(), nullptr, 8));
    }
    return usualUserMask;
}

bool IsFat(const Descriptor& entry)
{
    struct statfs data;
    if (::fstatfs(entry.Number(), &data) != 0)
        return false;
    const auto magic = static_cast<std::uint32_t>(data.f_type);
    return magic == MSDOS_SUPER_MAGIC || magic == EXFAT_SUPER_MAGIC;
}

// Asks a FAT file system by an ioctl, for which the entry must be opened to be
// read. Older systems know it for some kinds of FAT only.
template <typename Value>
int AskFat(const Descriptor& entry, unsigned long request, Value* value)
{
    if (!IsFat(entry))
        return ENOTSUP;
    constexpr int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const OpenName name(entry);
    const Descriptor opened(WithoutInterrupts([&] { return ::open(name.Text(), flags); }));
    if (!opened.IsOpen())
        return errno;
    const int error = ErrorOf([&] { return ::ioctl(opened.Number(), request, value); });
    return error == ENOTTY ? ENOTSUP : error;
}

// To open a device to be read may do something, and a folder may be mounted
// by it.
bool IsFile(const std::string& path)
{
    constexpr int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
    struct statx data;
    return ::statx(AT_FDCWD, path.c_str(), flags, STATX_TYPE, &data) == 0 && S_ISREG(data.stx_mode);
}

// Makes the call with the entry itself, or with its other name where it was
// opened for its name alone.
template <typename ByNumber, typename ByName>
ssize_t Ask(const Descriptor& entry, ByNumber byNumber, ByName byName)
{
    const ssize_t result = byNumber(entry.Number());
    return result == -1 && errno == EBADF ? byName(OpenName(entry).Text()) : result;
}

template <typename Read>
int ReadText(std::string& bytes, Read read)
{
    std::array<char, 256> some;
    ssize_t length = read(some.data(), some.size());
    if (length >= 0) {
        bytes.assign(some.data(), static_cast<std::size_t>(length));
        return 0;
    }
    if (errno != ERANGE)
        return errno;
    bytes.resize(largestText);
    length = read(bytes.data(), bytes.size());
    const int error = length < 0 ? errno : 0;
    bytes.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    return error;
}

class SystemCalls : public EntryDisk {
public:
    int Open(const std::string& path, Descriptor& entry) override
    {
        if (IsFile(path))
            return OpenFile(path, entry);
        return OpenAs(O_PATH, path, entry);
    }

    // A file that may be read is opened for that, as calls to such a one need
    // no other name, which takes longer to look up than all they do.
    int OpenFile(const std::string& path, Descriptor& entry) override
    {
        if (OpenAs(O_RDONLY | O_NONBLOCK | O_NOCTTY, path, entry) == 0)
            return 0;
        return OpenAs(O_PATH, path, entry);
    }

    int Look(const Descriptor& entry, State& state) override
    {
        return LookAt(entry.Number(), "", AT_EMPTY_PATH, state);
    }

    int Look(const std::string& path, State& state) override
    {
        return LookAt(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, state);
    }

    int GetText(const Descriptor& entry, const char* name, std::string& bytes) override
    {
        return ReadText(bytes, [&](char* room, std::size_t size) {
            return Ask(
                entry, [&](int file) { return ::fgetxattr(file, name, room, size); },
                [&](const char* path) { return ::getxattr(path, name, room, size); });
        });
    }

    int GetText(const std::string& path, const char* name, std::string& bytes) override
    {
        return ReadText(bytes, [&](char* room, std::size_t size) {
            return ::lgetxattr(path.c_str(), name, room, size);
        });
    }

    int SetText(const std::string& path, const char* name, const std::string& bytes) override
    {
        return ErrorOf(
            [&] { return ::lsetxattr(path.c_str(), name, bytes.data(), bytes.size(), 0); });
    }

    int RemoveText(const std::string& path, const char* name) override
    {
        return ErrorOf([&] { return ::lremovexattr(path.c_str(), name); });
    }

    int SetTimes(const std::string& path, FileTime accessed, FileTime written) override
    {
        const timespec stamps[2] = {StampOf(accessed), StampOf(written)};
        return ErrorOf(
            [&] { return ::utimensat(AT_FDCWD, path.c_str(), stamps, AT_SYMLINK_NOFOLLOW); });
    }

    int SetText(const Descriptor& entry, const char* name, const std::string& bytes) override
    {
        const char* const data = bytes.data();
        const std::size_t size = bytes.size();
        return ErrorOf([&] {
            return Ask(
                entry, [&](int file) { return ::fsetxattr(file, name, data, size, 0); },
                [&](const char* path) { return ::setxattr(path, name, data, size, 0); });
        });
    }

    int RemoveText(const Descriptor& entry, const char* name) override
    {
        return ErrorOf([&] {
            return Ask(
                entry, [&](int file) { return ::fremovexattr(file, name); },
                [&](const char* path) { return ::removexattr(path, name); });
        });
    }

    int SetMode(const Descriptor& entry, std::uint32_t mode) override
    {
        return ErrorOf([&] {
            return Ask(
                entry, [&](int file) { return ::fchmod(file, mode); },
                [&](const char* path) { return ::chmod(path, mode); });
        });
    }

    int SetTimes(const Descriptor& entry, FileTime accessed, FileTime written) override
    {
        const timespec stamps[2] = {StampOf(accessed), StampOf(written)};
        return ErrorOf([&] { return ::utimensat(entry.Number(), "", stamps, AT_EMPTY_PATH); });
    }

    int GetFat(const Descriptor& entry, std::uint32_t& attributes) override
    {
        return AskFat(entry, FAT_IOCTL_GET_ATTRIBUTES, &attributes);
    }

    int SetFat(const Descriptor& entry, std::uint32_t attributes) override
    {
        return AskFat(entry, FAT_IOCTL_SET_ATTRIBUTES, &attributes);
    }

    std::uint32_t UserMask() override
    {
        if (!userMask_)
            userMask_ = ReadUserMask();
        return *userMask_;
    }

private:
    int OpenAs(int flags, const std::string& path, Descriptor& entry)
    {
        flags |= O_NOFOLLOW | O_CLOEXEC;
        entry = Descriptor(WithoutInterrupts([&] { return ::open(path.c_str(), flags); }));
        return entry.IsOpen() ? 0 : errno;
    }

    int LookAt(int folder, const char* name, int flags, State& state)
    {
        constexpr unsigned wanted =
            STATX_TYPE | STATX_MODE | STATX_ATIME | STATX_MTIME | STATX_BTIME;
        struct statx data;
        const int error =
            ErrorOf([&] { return ::statx(folder, name, flags | AT_NO_AUTOMOUNT, wanted, &data); });
        if (error != 0)
            return error;
        state.What = KindOf(data.stx_mode);
        state.Mode = data.stx_mode & allRights;
        state.Accessed = FileTimeFromUnix(data.stx_atime.tv_sec, data.stx_atime.tv_nsec);
        state.Written = FileTimeFromUnix(data.stx_mtime.tv_sec, data.stx_mtime.tv_nsec);
        state.Birth.reset();
        if ((data.stx_mask & STATX_BTIME) != 0)
            state.Birth = FileTimeFromUnix(data.stx_btime.tv_sec, data.stx_btime.tv_nsec);
        return 0;
    }

    std::optional<std::uint32_t> userMask_;
};

} // namespace

std::unique_ptr<EntryDisk> SystemEntryDisk()
{
    return std::make_unique<SystemCalls>();
}

} // namespace tavo
