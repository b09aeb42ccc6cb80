#include "platform/posix/new_file.h"

#include "platform/posix/disk_error.h"
#include "toolkit/text.h"

#include <cerrno>
#include <sys/stat.h>

namespace tavo {

namespace {

constexpr int mostLinks = 40;
constexpr int mostNames = 100;
constexpr std::size_t maxNameBytes = 255;
constexpr std::uint32_t newFileMode = 0666; // less what the user's mask takes

using Rights = EditDisk::Rights;

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

} // namespace

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

int SyncFolder(EditDisk& disk, const Descriptor& folder)
{
    const int error = disk.Sync(folder);
    // A disk that does not know this for folders.
    const bool isLacking = error == EBADF || error == EINVAL || error == ENOTSUP;
    return isLacking ? 0 : error;
}

// As long as it is to get other rights it may be read by its owner alone.
int NewFile::Make(const std::string& path, const std::optional<Rights>& rights)
{
    path_ = path;
    if (const int error = Create(rights ? S_IRUSR | S_IWUSR : newFileMode))
        return error;
    return rights ? KeepRights(disk_, file_, *rights) : 0;
}

// Under a name that nobody else can have made or can guess.
int NewFile::Create(std::uint32_t mode)
{
    int error = EEXIST;
    for (int tries = 0; tries < mostNames && error == EEXIST; ++tries) {
        std::string tail;
        if (const int noTail = disk_.MakeUnique(tail))
            return noTail;
        tail.insert(0, 1, '.');
        const std::string_view dot = sight_ == Sight::Hidden ? "." : "";
        temporary_ = FolderPart(path_).append(dot);
        temporary_ += CutBytes(NamePart(path_), maxNameBytes - dot.size() - tail.size()) + tail;
        error = disk_.Create(temporary_, mode, file_);
    }
    if (error != 0)
        temporary_.clear();
    return error;
}

int NewFile::PutInPlace()
{
    const int error = disk_.Move(temporary_, path_);
    if (error == 0)
        temporary_.clear();
    return error;
}

void NewFile::Remove()
{
    if (!temporary_.empty())
        disk_.Unlink(temporary_);
    temporary_.clear();
}

} // namespace tavo
