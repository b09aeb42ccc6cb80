#include "platform/posix/disk_entry.h"

#include "platform/posix/descriptor.h"
#include "platform/posix/local_clock.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace tavo {

namespace {

constexpr const char* textName = "user.DOSATTRIB";

constexpr unsigned entryMask =
    STATX_TYPE | STATX_MODE | STATX_SIZE | STATX_ATIME | STATX_MTIME | STATX_BTIME;

FileTime ToFileTime(const struct statx_timestamp& stamp)
{
    return FileTimeFromUnix(stamp.tv_sec, stamp.tv_nsec);
}

bool LeadsToFolder(int folder, const char* name)
{
    struct statx data;
    return statx(folder, name, AT_NO_AUTOMOUNT, STATX_TYPE, &data) == 0 && S_ISDIR(data.stx_mode);
}

int RegularFileError(mode_t mode)
{
    if (S_ISREG(mode))
        return 0;
    return S_ISDIR(mode) ? EISDIR : EINVAL;
}

int ReadLongAttributes(const std::string& path, std::uint32_t& attributes)
{
    constexpr std::size_t largestText = 65'536; // the system's own limit
    std::string text(largestText, '\0');
    const ssize_t length = ::lgetxattr(path.c_str(), textName, text.data(), text.size());
    if (length < 0)
        return errno == ENODATA ? 0 : errno;
    text.resize(static_cast<std::size_t>(length));
    attributes = ParseStoredAttributes(text);
    return 0;
}

int ReadAll(int file, std::uint64_t limit, std::uint64_t expected, std::string& bytes)
{
    // The size is a hint only: files of the kernel say 0, others still grow.
    bytes.resize(std::min(limit, expected) + 1);
    std::size_t filled = 0;
    for (;;) {
        const ssize_t count = WithoutInterrupts(
            [&] { return ::read(file, bytes.data() + filled, bytes.size() - filled); });
        if (count < 0)
            return errno;
        filled += static_cast<std::size_t>(count);
        if (filled > limit)
            return EFBIG;
        if (count == 0)
            break;
        if (filled == bytes.size())
            bytes.resize(std::min<std::uint64_t>(limit, 2 * filled + 4096) + 1);
    }
    bytes.resize(filled);
    return 0;
}

} // namespace

int ReadEntry(int folder, const char* name, FindData& found, bool* isFile)
{
    constexpr int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
    constexpr unsigned anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    struct statx data;
    if (WithoutInterrupts([&] { return statx(folder, name, flags, entryMask, &data); }) != 0)
        return errno;
    if (isFile)
        *isFile = S_ISREG(data.stx_mode);
    found.Attributes = 0;
    if ((data.stx_mode & anyWrite) == 0)
        found.Attributes = attrReadOnly;
    found.Size = data.stx_size;
    if (S_ISDIR(data.stx_mode)) {
        found.Attributes |= attrDirectory;
        found.Size = 0;
    } else if (S_ISLNK(data.stx_mode)) {
        const bool toFolder = LeadsToFolder(folder, name);
        found.Attributes |= toFolder ? attrReparse | attrDirectory : attrReparse;
    }
    found.Written = ToFileTime(data.stx_mtime);
    found.Accessed = ToFileTime(data.stx_atime);
    const bool hasBirth = (data.stx_mask & STATX_BTIME) != 0;
    found.Created = hasBirth ? ToFileTime(data.stx_btime) : found.Written;
    return 0;
}

int ReadStoredAttributes(const std::string& path, std::uint32_t& attributes)
{
    attributes = 0;
    std::array<char, 256> some;
    const ssize_t length = ::lgetxattr(path.c_str(), textName, some.data(), some.size());
    if (length >= 0) {
        attributes = ParseStoredAttributes({some.data(), static_cast<std::size_t>(length)});
        return 0;
    }
    if (errno != ERANGE)
        return errno == ENODATA ? 0 : errno;
    return ReadLongAttributes(path, attributes);
}

std::uint32_t ParseStoredAttributes(std::string_view text)
{
    if (!text.starts_with("0x"))
        return 0;
    std::uint32_t mask = 0;
    const auto result = std::from_chars(text.data() + 2, text.data() + text.size(), mask, 16);
    if (result.ec != std::errc{})
        return 0;
    return mask & (attrHidden | attrSystem | attrArchive);
}

int ReadRegularFile(const std::string& path, std::uint64_t limit, std::string& bytes)
{
    bytes.clear();
    // Looked at before it is opened, since to open a device may do something.
    struct stat data;
    if (::stat(path.c_str(), &data) != 0)
        return errno;
    if (const int error = RegularFileError(data.st_mode))
        return error;
    constexpr int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const Descriptor file(WithoutInterrupts([&] { return ::open(path.c_str(), flags); }));
    if (!file.IsOpen() || ::fstat(file.Number(), &data) != 0)
        return errno;
    if (const int error = RegularFileError(data.st_mode))
        return error;
    const auto size = static_cast<std::uint64_t>(data.st_size);
    if (size > limit)
        return EFBIG;
    const int error = ReadAll(file.Number(), limit, size, bytes);
    if (error != 0)
        bytes.clear();
    return error;
}

} // namespace tavo
