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

// Another name of the open entry, for calls that take none that was opened for
// its name alone. It leads to that very entry and to nothing behind it.
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

class SystemCalls : public EntryDisk {
public:
    int Open(const std::string& path, Descriptor& entry) override
    {
        constexpr int flags = O_PATH | O_NOFOLLOW | O_CLOEXEC;
        entry = Descriptor(WithoutInterrupts([&] { return ::open(path.c_str(), flags); }));
        return entry.IsOpen() ? 0 : errno;
    }

    int Look(const Descriptor& entry, State& state) override
    {
        constexpr unsigned wanted = STATX_TYPE | STATX_MODE | STATX_MTIME | STATX_BTIME;
        struct statx data;
        const int error = ErrorOf([&] {
            return ::statx(entry.Number(), "", AT_EMPTY_PATH | AT_NO_AUTOMOUNT, wanted, &data);
        });
        if (error != 0)
            return error;
        state.What = KindOf(data.stx_mode);
        state.Mode = data.stx_mode & allRights;
        state.Written = FileTimeFromUnix(data.stx_mtime.tv_sec, data.stx_mtime.tv_nsec);
        state.Birth.reset();
        if ((data.stx_mask & STATX_BTIME) != 0)
            state.Birth = FileTimeFromUnix(data.stx_btime.tv_sec, data.stx_btime.tv_nsec);
        return 0;
    }

    int GetText(const Descriptor& entry, const char* name, std::string& bytes) override
    {
        std::array<char, 256> some;
        const OpenName path(entry);
        ssize_t length = ::getxattr(path.Text(), name, some.data(), some.size());
        if (length >= 0) {
            bytes.assign(some.data(), static_cast<std::size_t>(length));
            return 0;
        }
        if (errno != ERANGE)
            return errno;
        bytes.resize(largestText);
        length = ::getxattr(path.Text(), name, bytes.data(), bytes.size());
        const int error = length < 0 ? errno : 0;
        bytes.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
        return error;
    }

    int SetText(const Descriptor& entry, const char* name, const std::string& bytes) override
    {
        const OpenName path(entry);
        return ErrorOf(
            [&] { return ::setxattr(path.Text(), name, bytes.data(), bytes.size(), 0); });
    }

    int RemoveText(const Descriptor& entry, const char* name) override
    {
        const OpenName path(entry);
        return ErrorOf([&] { return ::removexattr(path.Text(), name); });
    }

    int SetMode(const Descriptor& entry, std::uint32_t mode) override
    {
        const OpenName path(entry);
        return ErrorOf([&] { return ::chmod(path.Text(), mode); });
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
    std::optional<std::uint32_t> userMask_;
};

} // namespace

std::unique_ptr<EntryDisk> SystemEntryDisk()
{
    return std::make_unique<SystemCalls>();
}

} // namespace tavo
