#include "platform/posix/file_edit.h"

#include "platform/posix/disk_error.h"
#include "toolkit/text.h"

#include <cerrno>
#include <optional>
#include <sys/stat.h>

namespace tavo {

namespace {

constexpr int mostLinks = 40;
constexpr int mostPauses = 200;
constexpr int mostNames = 100;
constexpr std::size_t maxNameBytes = 255;
constexpr std::uint32_t allRights = 07777;
constexpr std::uint32_t newFileMode = 0666; // less what the user's mask takes

using Rights = EditDisk::Rights;

int FollowLinks(EditDisk& disk, std::string& path)
{
    for (int link = 0; link < mostLinks; ++link) {
        std::string target;
        const int error = disk.ReadLink(path, target);
        if (error != 0)
            return error == EINVAL || error == ENOENT ? 0 : error;
        path = target.starts_with('/') ? target : FolderPart(path) + target;
    }
    return ELOOP;
}

// A lock that cannot be had is done without: network disks and some others
// know none for folders, and each says so in its own way.
int LockFolder(EditDisk& disk, const Descriptor& folder)
{
    for (int pauses = 0;; ++pauses) {
        const int error = disk.Lock(folder);
        if (error == EIO)
            return error;
        if (error != EWOULDBLOCK || pauses == mostPauses)
            return 0;
        disk.Pause();
    }
}

int SyncFolder(EditDisk& disk, const Descriptor& folder)
{
    const int error = disk.Sync(folder);
    // A disk that does not know this for folders.
    const bool isLacking = error == EBADF || error == EINVAL || error == ENOTSUP;
    return isLacking ? 0 : error;
}

int WriteAll(EditDisk& disk, const Descriptor& file, std::string_view bytes)
{
    while (!bytes.empty()) {
        std::size_t written = 0;
        if (const int error = disk.Write(file, bytes, written))
            return error;
        if (written == 0)
            return EIO;
        bytes.remove_prefix(written);
    }
    return 0;
}

// Refusals to a user who may not give files away.
bool IsKeptBack(int error)
{
    return error == EPERM || error == EINVAL;
}

// Lets the new file belong to whom the old one did. Where only the user's own
// group may have it, that group gets what everybody has: it is another one
// than was meant.
int KeepRights(EditDisk& disk, const Descriptor& file, Rights wanted)
{
    Rights now;
    if (const int error = disk.Look(file, now))
        return error;
    if (wanted.Owner != now.Owner || wanted.Group != now.Group) {
        int error = disk.SetOwner(file, wanted.Owner, wanted.Group);
        if (IsKeptBack(error)) {
            // To run as somebody was never meant for this owner.
            wanted.Mode &= ~static_cast<std::uint32_t>(S_ISUID | S_ISGID);
            error = disk.SetOwner(file, EditDisk::sameOwner, wanted.Group);
        }
        if (IsKeptBack(error)) {
            wanted.Mode &= ~static_cast<std::uint32_t>(S_IRWXG);
            wanted.Mode |= (wanted.Mode & S_IRWXO) << 3;
            error = 0;
        }
        if (error != 0)
            return error;
    }
    return wanted.Mode == now.Mode ? 0 : disk.SetMode(file, wanted.Mode);
}

// A file beside `path` that nobody else can have made or can guess. It may be
// read by its owner alone where it is to get other rights.
int CreateBeside(EditDisk& disk, const std::string& path, std::uint32_t mode,
                 std::string& temporary, Descriptor& file)
{
    int error = EEXIST;
    for (int tries = 0; tries < mostNames && error == EEXIST; ++tries) {
        std::string tail;
        if (const int noTail = disk.MakeUnique(tail))
            return noTail;
        tail.insert(0, 1, '.');
        temporary = FolderPart(path) + CutBytes(NamePart(path), maxNameBytes - tail.size()) + tail;
        error = disk.Create(temporary, mode, file);
    }
    return error;
}

int Fill(EditDisk& disk, const Descriptor& file, const std::optional<Rights>& rights,
         std::string_view bytes)
{
    if (rights) {
        if (const int error = KeepRights(disk, file, *rights))
            return error;
    }
    if (const int error = WriteAll(disk, file, bytes))
        return error;
    return disk.Sync(file);
}

// Replaces the file, or makes it where there are no rights of an old one.
int Replace(EditDisk& disk, const std::string& path, const std::optional<Rights>& rights,
            std::string_view bytes)
{
    std::string temporary;
    Descriptor file;
    const std::uint32_t mode = rights ? S_IRUSR | S_IWUSR : newFileMode;
    if (const int error = CreateBeside(disk, path, mode, temporary, file))
        return error;
    int error = Fill(disk, file, rights, bytes);
    if (error == 0)
        error = disk.Move(temporary, path);
    if (error != 0)
        disk.Unlink(temporary);
    return error;
}

} // namespace

int ChangeFile(EditDisk& disk, const std::string& pathAsGiven,
               const std::function<std::string(const std::string& bytes)>& change)
{
    if (CheckPath(pathAsGiven) != 0)
        return ENOENT;
    std::string path = pathAsGiven;
    if (const int error = FollowLinks(disk, path))
        return error;
    Descriptor folder;
    if (const int error = disk.OpenFolder(FolderPart(path), folder))
        return error;
    if (const int error = LockFolder(disk, folder))
        return error;

    std::string bytes;
    const int readError = disk.Read(path, bytes);
    if (readError != 0 && readError != ENOENT)
        return readError;
    const std::string changed = change(bytes);
    if (changed == bytes)
        return 0;

    std::optional<Rights> rights;
    if (readError == 0) {
        if (const int error = disk.MayWrite(path))
            return error;
        if (const int error = disk.Look(path, rights.emplace()))
            return error;
        rights->Mode &= allRights;
    }
    if (const int error = Replace(disk, path, rights, changed))
        return error;
    return SyncFolder(disk, folder);
}

} // namespace tavo
