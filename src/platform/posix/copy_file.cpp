#include "platform/posix/copy_file.h"

#include "platform/posix/disk_entry.h"
#include "platform/posix/local_clock.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <sys/stat.h>

namespace tavo {

namespace {

using Entry = TransferDisk::Entry;

constexpr std::size_t mostAtOnce = std::size_t{1} << 30; // inside the system
constexpr std::size_t bufferBytes = std::size_t{256} << 10;

constexpr const char* createdAttribute = "user.tavo.created";
constexpr const char* maskAttribute = "user.DOSATTRIB";
constexpr std::uint32_t inText = attrHidden | attrSystem | attrArchive;

std::string CreatedText(const TransferDisk::Stamp& born)
{
    return std::to_string(FileTimeFromUnix(born.Seconds, born.Nanoseconds).Ticks);
}

// Refusals to a user without the right, or by a file system without the means.
bool IsRefusal(int error)
{
    constexpr int refusals[] = {EPERM, EACCES, EINVAL, ENOTSUP, ENOSYS};
    return std::find(std::begin(refusals), std::end(refusals), error) != std::end(refusals);
}

int UnlessRefused(int error)
{
    return IsRefusal(error) ? 0 : error;
}

// A system says of attributes in many ways that it cannot keep them, most of
// all that there is no room for them; only a broken disk is none.
int UnlessNotKept(int error)
{
    return error == EIO ? error : 0;
}

int WriteAll(TransferDisk& disk, const Descriptor& to, std::uint64_t offset, std::string_view bytes)
{
    while (!bytes.empty()) {
        std::size_t written = 0;
        if (const int error = disk.Write(to, offset, bytes, written))
            return error;
        if (written == 0)
            return EIO;
        offset += written;
        bytes.remove_prefix(written);
    }
    return 0;
}

// Copies what the system copies by itself, and leaves the rest from `offset`
// on: a failure here is met again there, if it is one.
void CopyInside(TransferDisk& disk, const Descriptor& from, const Descriptor& to,
                std::uint64_t& offset)
{
    std::size_t copied = 0;
    while (disk.CopyRange(from, to, offset, mostAtOnce, copied) == 0 && copied != 0)
        offset += copied;
}

// Archive, Hidden and System stand in an extended attribute, but on FAT in a
// byte of its own.
std::string AttributeText(std::uint32_t attributes)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%x", attributes & inText);
    return text;
}

int StoreAttribute(TransferDisk& disk, const Descriptor& to, const std::string& name,
                   const std::string& value)
{
    const int error = disk.SetAttribute(to, name, value);
    std::uint32_t byte = 0;
    if (error != ENOTSUP || name != maskAttribute || disk.GetFat(to, byte) != 0)
        return error;
    return disk.SetFat(to, (byte & ~inText) | ParseStoredAttributes(value));
}

int CopyFatByte(TransferDisk& disk, const Descriptor& from, const Descriptor& to)
{
    std::uint32_t byte = 0;
    const int error = disk.GetFat(from, byte);
    if (error != 0 || (byte & inText) == 0)
        return error;
    return StoreAttribute(disk, to, maskAttribute, AttributeText(byte));
}

int CopyAttributes(TransferDisk& disk, const Descriptor& from, const Descriptor& to)
{
    std::vector<std::string> names;
    std::string value;
    int error = disk.ListAttributes(from, names);
    if (error == ENOTSUP)
        error = CopyFatByte(disk, from, to);
    for (const std::string& name : names) {
        if (UnlessNotKept(error) != 0)
            return error;
        error = disk.GetAttribute(from, name, value);
        if (error == 0)
            error = StoreAttribute(disk, to, name, value);
    }
    return UnlessNotKept(error);
}

// A copy is born now. The time that is shown as the old one's is stored with
// it, unless that is what would be shown in any case; one that somebody had set
// has come along with the attributes.
int CopyCreated(TransferDisk& disk, const Descriptor& from, const Entry& data, const Entry& fresh,
                const Descriptor& to)
{
    std::string stored;
    const int error = disk.GetAttribute(from, createdAttribute, stored);
    if (error == 0 || UnlessNotKept(error) != 0)
        return error;
    const TransferDisk::Stamp shown = data.Born.value_or(data.Written);
    if (shown == fresh.Born.value_or(data.Written))
        return 0;
    return UnlessNotKept(disk.SetAttribute(to, createdAttribute, CreatedText(shown)));
}

// Gives the owner and the group as far as the user may, and takes out of
// `mode` what the old mode never meant for those that the copy has instead.
int CopyOwner(TransferDisk& disk, const Entry& data, const Entry& now, const Descriptor& to,
              std::uint32_t& mode)
{
    if (data.Owner == now.Owner && data.Group == now.Group)
        return 0;
    int error = disk.SetOwner(to, data.Owner, data.Group);
    if (IsRefusal(error)) {
        mode &= ~static_cast<std::uint32_t>(S_ISUID | S_ISGID);
        error =
            data.Group == now.Group ? 0 : disk.SetOwner(to, TransferDisk::sameOwner, data.Group);
    }
    if (IsRefusal(error)) {
        // The group is another one than was meant: it gets what everybody has.
        mode &= ~static_cast<std::uint32_t>(S_IRWXG);
        mode |= (mode & S_IRWXO) << 3;
        error = 0;
    }
    return error;
}

} // namespace

int CopyContent(TransferDisk& disk, const Descriptor& from, const Descriptor& to)
{
    if (disk.Clone(from, to) == 0)
        return 0;
    std::uint64_t offset = 0;
    CopyInside(disk, from, to, offset);
    std::string bytes;
    for (;;) {
        bytes.resize(bufferBytes);
        if (const int error = disk.Read(from, offset, bytes))
            return error;
        if (bytes.empty())
            return 0;
        if (const int error = WriteAll(disk, to, offset, bytes))
            return error;
        offset += bytes.size();
    }
}

int CopyProperties(TransferDisk& disk, const Descriptor& from, const Entry& data,
                   const Descriptor& to)
{
    Entry fresh;
    if (const int error = disk.Look(to, fresh))
        return error;
    std::uint32_t mode = data.Mode;
    if (const int error = CopyOwner(disk, data, fresh, to, mode))
        return error;
    // Before the mode, which may forbid them, and before the times.
    if (const int error = CopyAttributes(disk, from, to))
        return error;
    if (const int error = CopyCreated(disk, from, data, fresh, to))
        return error;
    if (const int error = UnlessRefused(disk.SetMode(to, mode)))
        return error;
    return UnlessRefused(disk.SetTimes(to, data.Accessed, data.Written));
}

int CopyLinkProperties(TransferDisk& disk, const Entry& data, const Descriptor& folder,
                       const std::string& name)
{
    if (const int error = UnlessRefused(disk.SetLinkOwner(folder, name, data.Owner, data.Group)))
        return error;
    return UnlessRefused(disk.SetLinkTimes(folder, name, data.Accessed, data.Written));
}

int SyncEntry(TransferDisk& disk, const Descriptor& entry)
{
    const int error = disk.Sync(entry);
    const bool isLacking = error == EBADF || error == EINVAL || error == ENOTSUP;
    return isLacking ? 0 : error;
}

} // namespace tavo
