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
                Descriptor& file, std::uint64_t& length)
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
    length = state.Length;
    if (error != 0)
        file.Close();
    return error;
}

int ReadContent(ContentDisk& disk, const Descriptor& file, std::uint64_t offset, std::size_t count,
                std::string& bytes)
{
    bytes.clear();
    // Most reads are done in one.
    if (count <= blockBytes && offset < mostBytes)
        if (const int error = disk.Read(file, offset, count, bytes))
            return error;
    if (bytes.size() == count)
        return 0;
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
                 std::string_view bytes, const KnownBytes& known)
{
    const bool isKnown = known.Offset == offset && known.Bytes.size() == bytes.size();
    ContentDisk::State before;
    before.Length = offset + known.Bytes.size();
    if (const int error = isKnown ? 0 : disk.Look(file, before))
        return error;
    if (offset > before.Length)
        return EINVAL;
    if (bytes.size() > mostBytes - offset)
        return EFBIG;
    const std::uint64_t end = offset + bytes.size();
    const std::uint64_t replaced = std::min(end, before.Length) - offset;
    std::string old = isKnown ? known.Bytes : std::string();
    const std::size_t unknown = static_cast<std::size_t>(replaced) - old.size();
    if (const int error = unknown == 0 ? 0 : ReadContent(disk, file, offset, unknown, old))
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
