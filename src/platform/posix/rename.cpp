#include "platform/posix/rename.h"

#include "platform/posix/disk_error.h"
#include "toolkit/text.h"

#include <cerrno>

namespace tavo {

namespace {

constexpr std::size_t maxNameBytes = 255;

bool LacksNoReplace(int error)
{
    return error == EINVAL || error == ENOSYS || error == ENOTSUP;
}

// Refusals of a link that say nothing about the rename itself: a file system
// without links, too many of them, or a system that links own files only.
bool LacksLinks(int error)
{
    return LacksNoReplace(error) || error == EPERM || error == EMLINK || error == EACCES;
}

} // namespace

int Renamer::Rename(const std::string& fromAsGiven, const std::string& to)
{
    const std::string from(WithoutSlashes(fromAsGiven));
    for (const std::string_view path : {std::string_view(fromAsGiven), std::string_view(to)}) {
        if (const int code = CheckPath(path))
            return code;
    }
    if (!IsUsableName(NamePart(from)) || !IsUsableName(NamePart(to)))
        return diskBadName;
    int error = MoveCarefully(from, to);
    if (error == EEXIST)
        error = ChangeCase(from, to);
    return CodeOf(error, from, to);
}

int Renamer::MoveCarefully(const std::string& from, const std::string& to)
{
    const int error = disk_.MoveNoReplace(from, to);
    if (!LacksNoReplace(error))
        return error;
    RenameDisk::Entry entry;
    if (const int missing = disk_.Look(from, entry))
        return missing;
    if (!entry.IsFolder) {
        const int linkError = disk_.Link(from, to);
        if (linkError == 0)
            return DropOldName(from, to, entry);
        if (!LacksLinks(linkError))
            return linkError;
    }
    RenameDisk::Entry target;
    const int targetError = disk_.Look(to, target);
    if (targetError == 0)
        return EEXIST;
    return targetError == ENOENT ? disk_.Move(from, to) : targetError;
}

// The file stands under both names; on failure it keeps the old one alone.
int Renamer::DropOldName(const std::string& from, const std::string& to,
                         const RenameDisk::Entry& entry)
{
    const int error = disk_.Unlink(from);
    // Somebody took the old name away: the new one is all that is left.
    if (error == 0 || error == ENOENT)
        return 0;
    RenameDisk::Entry linked;
    if (disk_.Look(to, linked) == 0 && linked.Id == entry.Id)
        disk_.Unlink(to);
    return error;
}

int Renamer::ChangeCase(const std::string& from, const std::string& to)
{
    const std::string oldName(NamePart(from)), newName(NamePart(to));
    RenameDisk::Entry old, target;
    if (oldName == newName || !SameText(oldName, newName) || disk_.Look(from, old) != 0
        || disk_.Look(to, target) != 0 || !(old.Id == target.Id) || !IsOneEntry(from, to, old))
        return EEXIST;
    const auto known = changesCase_.find(old.Id.Device);
    if (known != changesCase_.end() && !known->second)
        return MoveAside(from, to);
    const int error = disk_.Move(from, to);
    if (error != 0 || known != changesCase_.end())
        return error;
    bool changed = false;
    const int listError = disk_.HasName(FolderPart(to), newName, changed);
    if (listError == 0)
        changesCase_[old.Id.Device] = changed;
    return changed ? 0 : MoveAside(from, to);
}

// Two names of one file may also be two hard links, and then a rename to the
// second one would be the loss of a name.
bool Renamer::IsOneEntry(const std::string& from, const std::string& to,
                         const RenameDisk::Entry& entry)
{
    const std::string folder = FolderPart(from), otherFolder = FolderPart(to);
    RenameDisk::Entry here, there;
    if (folder != otherFolder
        && (disk_.Look(folder, here) != 0 || disk_.Look(otherFolder, there) != 0
            || !(here.Id == there.Id)))
        return false;
    if (entry.IsFolder || entry.Links == 1)
        return true;
    bool hasOld = false, hasNew = false;
    return disk_.HasName(folder, std::string(NamePart(from)), hasOld) == 0
           && disk_.HasName(folder, std::string(NamePart(to)), hasNew) == 0 && hasOld != hasNew;
}

// Changes the case by way of a third name.
int Renamer::MoveAside(const std::string& from, const std::string& to)
{
    constexpr int mostTries = 100;
    const std::string folder = FolderPart(from);
    for (int number = 1; number <= mostTries; ++number) {
        const std::string tail = '~' + std::to_string(number);
        const std::string aside =
            folder + CutBytes(NamePart(from), maxNameBytes - tail.size()) + tail;
        const int error = MoveCarefully(from, aside);
        if (error == EEXIST)
            continue;
        if (error != 0)
            return error;
        const int lastError = MoveCarefully(aside, to);
        if (lastError != 0)
            MoveCarefully(aside, from);
        return lastError;
    }
    return EEXIST;
}

int Renamer::CodeOf(int error, const std::string& from, const std::string& to)
{
    RenameDisk::Entry entry;
    if (error == ENOENT) {
        // The old name, or a folder on one of the two ways?
        if (disk_.Look(from, entry) == 0)
            return diskMissingFolder;
        return disk_.Look(FolderPart(from), entry) == 0 ? diskMissing : diskMissingFolder;
    }
    if (error == EINVAL && !IsInside(from, to))
        return diskBadName;
    return DiskCodeOf(error);
}

// Would the folder `from` come to lie inside itself?
bool Renamer::IsInside(const std::string& from, const std::string& to)
{
    RenameDisk::Entry moved, above;
    if (disk_.Look(from, moved) != 0 || !moved.IsFolder)
        return false;
    std::string folder = FolderPart(to);
    while (folder.size() > 1) {
        if (disk_.Look(folder, above) == 0 && above.Id == moved.Id)
            return true;
        folder.pop_back();
        folder = FolderPart(folder);
    }
    return false;
}

} // namespace tavo
