#include "platform/posix/file_edit.h"

#include "platform/posix/disk_error.h"
#include "platform/posix/new_file.h"

#include <cerrno>
#include <optional>

namespace tavo {

namespace {

constexpr int mostPauses = 200;
constexpr std::uint32_t allRights = 07777;

using Rights = EditDisk::Rights;

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

// Replaces the file, or makes it where there are no rights of an old one.
int Replace(EditDisk& disk, const std::string& path, const std::optional<Rights>& rights,
            std::string_view bytes)
{
    NewFile file(disk);
    int error = file.Make(path, rights);
    if (error == 0)
        error = file.Write(bytes);
    if (error == 0)
        error = file.Sync();
    return error == 0 ? file.PutInPlace() : error;
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
