#include "platform/posix/content_disk.h"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>

namespace tavo {

namespace {

constexpr std::size_t blockBytes = 65'536;
constexpr auto mostBytes = static_cast<std::uint64_t>(INT64_MAX);

int ErrorOfKind(const ContentDisk::State& state, ContentDisk::Access access)
{
    if (S_ISDIR(state.Mode))
        return EISDIR;
    if (!S_ISREG(state.Mode))
        return EINVAL;
    // The system lets root write what no one is meant to.
    constexpr std::uint32_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    const bool mayWrite = (state.Mode & anyWrite) != 0;
    return access == ContentDisk::Access::ReadWrite && !mayWrite ? EACCES : 0;
}

int WriteAll(ContentDisk& disk, const Descriptor& file, std::uint64_t offset,
             std::string_view bytes)
{
    while (!bytes.empty()) {
        std::size_t written = 0;
        if (const int error = disk.Write(file, offset, bytes, written))
            return error;
        if (written == 0)
            return EIO;
        bytes.remove_prefix(written);
        offset += written;
    }
    return 0;
}

} // namespace

int OpenContent(ContentDisk& disk, const std::string& path, ContentDisk::Access access,
                Descriptor& file)
{
    // Looked at before it is opened, since to open a device may do something,
    // and behind that, since another entry may have taken the name.
    ContentDisk::State state;
    int error = disk.Look(path, state);
    if (error == 0)
        error = ErrorOfKind(state, access);
    if (error == 0)
        error = disk.Open(path, access, file);
    if (error == 0)
        error = disk.Look(file, state);
    if (error == 0)
        error = ErrorOfKind(state, access);
    if (error != 0)
        file.Close();
    return error;
}

int ReadContent(ContentDisk& disk, const Descriptor& file, std::uint64_t offset, std::size_t count,
                std::string& bytes)
{
    bytes.clear();
    std::string block;
    while (bytes.size() < count && offset + bytes.size() < mostBytes) {
        const std::size_t wanted = std::min(count - bytes.size(), blockBytes);
        if (const int error = disk.Read(file, offset + bytes.size(), wanted, block))
            return error;
        if (block.empty())
            break;
        bytes += block;
    }
    return 0;
}

int WriteContent(ContentDisk& disk, const Descriptor& file, std::uint64_t offset,
                 std::string_view bytes)
{
    ContentDisk::State before;
    if (const int error = disk.Look(file, before))
        return error;
    if (offset > before.Length)
        return EINVAL;
    if (bytes.size() > mostBytes - offset)
        return EFBIG;
    const std::uint64_t end = offset + bytes.size();
    const std::uint64_t replaced = std::min(end, before.Length) - offset;
    std::string old;
    if (const int error = ReadContent(disk, file, offset, static_cast<std::size_t>(replaced), old))
        return error;
    if (old.size() != replaced)
        return EIO;

    const int error = WriteAll(disk, file, offset, bytes);
    if (error == 0)
        return 0;
    WriteAll(disk, file, offset, old);
    if (end > before.Length)
        disk.Cut(file, before.Length);
    return error;
}

} // namespace tavo
