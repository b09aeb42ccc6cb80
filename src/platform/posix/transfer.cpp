#include "platform/posix/transfer.h"

#include "platform/posix/copy_file.h"
#include "platform/posix/disk_error.h"

#include <cerrno>

namespace tavo {

namespace {

constexpr std::string_view hiddenName = ".tavo-";
constexpr int codeAcross = ownCodeBase + EXDEV;

using EntryKind = TransferDisk::EntryKind;

int FolderCodeOf(int error)
{
    return error == ENOENT ? diskMissingFolder : DiskCodeOf(error);
}

} // namespace

int Transfer::Run(const FileOperation& op)
{
    switch (op.Func) {
    case foMove: return Move(op);
    case foCopy: return Copy(op);
    case foDelete: return Delete(op);
    case foRename: break;
    }
    return ownCodeBase + EINVAL;
}

int Transfer::Move(const FileOperation& op)
{
    if (!op.To.ends_with('/')) {
        const int code = renamer_.Rename(op.From, op.To);
        if (code != codeAcross)
            return code;
    }
    Route route;
    if (const int code = FindSource(op, route))
        return code;
    if (const int code = FindTarget(op, route))
        return code;
    if (route.IsDone)
        return diskOk;
    const int code = route.Replaces ? DiskCodeOf(names_.Move(route.From, route.To))
                                    : renamer_.Rename(route.From, route.To);
    return code == codeAcross ? MoveAcross(route) : code;
}

int Transfer::MoveAcross(const Route& route)
{
    if (const int error = disk_.MayChange(route.FromFolder))
        return DiskCodeOf(error);
    CopiedEntries copied;
    FolderId made;
    if (const int code = CopyInPlace(route, true, copied, made))
        return code;
    bool isTouched = false;
    int code = DiskCodeOf(SyncEntry(disk_, route.ToFolder));
    if (code == diskOk)
        code = RemoveSource(route, copied, isTouched);
    if (code != diskOk && !isTouched && !route.Replaces)
        TakeBack(route, made);
    return code;
}

int Transfer::Copy(const FileOperation& op)
{
    Route route;
    CopiedEntries copied;
    FolderId made;
    if (const int code = FindSource(op, route))
        return code;
    if (const int code = FindTarget(op, route))
        return code;
    return route.IsDone ? diskOk : CopyInPlace(route, false, copied, made);
}

int Transfer::Delete(const FileOperation& op)
{
    Route route;
    if (const int code = FindSource(op, route))
        return code;
    if (op.Flags == fofQuietRecycle)
        return trash_.Take(route.From);
    std::size_t removed = 0;
    return DiskCodeOf(RemoveTree(disk_, route.FromFolder, route.Name, removed));
}

// -- Where from and where to

int Transfer::FindSource(const FileOperation& op, Route& route)
{
    if (const int code = CheckPath(op.From))
        return code;
    route.From = WithoutSlashes(op.From);
    route.Name = NamePart(route.From);
    if (!IsUsableName(route.Name))
        return diskBadName;
    if (const int error = disk_.OpenFolder(FolderPart(route.From), route.FromFolder))
        return FolderCodeOf(error);
    return DiskCodeOf(disk_.Look(route.FromFolder, route.Name, route.Entry));
}

int Transfer::FindTarget(const FileOperation& op, Route& route)
{
    if (const int code = CheckPath(op.To))
        return code;
    const bool isBareFolder = op.To.ends_with('/');
    route.To = isBareFolder ? op.To + route.Name : op.To;
    route.NewName = NamePart(route.To);
    if (!IsUsableName(route.NewName))
        return diskBadName;
    if (const int error = disk_.OpenFolder(FolderPart(route.To), route.ToFolder))
        return FolderCodeOf(error);
    if (const int code = LookAtTarget(isBareFolder, route))
        return code;
    return !route.IsDone && IsInside(route) ? ownCodeBase + EINVAL : diskOk;
}

int Transfer::LookAtTarget(bool isBareFolder, Route& route)
{
    TransferDisk::Entry standing;
    const int error = disk_.Look(route.ToFolder, route.NewName, standing);
    if (error != 0)
        return error == ENOENT ? diskOk : DiskCodeOf(error);
    if (!isBareFolder)
        return diskExists;
    route.IsDone = standing.Id == route.Entry.Id;
    if (route.IsDone)
        return diskOk;
    Descriptor folder;
    const bool isFile =
        standing.Kind == EntryKind::File
        || (standing.Kind == EntryKind::Link && disk_.OpenFolder(route.To + '/', folder) != 0);
    route.Replaces = isFile && route.Entry.Kind != EntryKind::Folder;
    return route.Replaces ? diskOk : diskExists;
}

// Would a folder come to lie inside itself?
bool Transfer::IsInside(const Route& route)
{
    if (route.Entry.Kind != EntryKind::Folder)
        return false;
    Descriptor folder;
    TransferDisk::Entry here;
    int error = disk_.OpenFolder(FolderPart(route.To), folder);
    for (FolderId below; error == 0; below = here.Id) {
        error = disk_.Look(folder, here);
        if (error != 0 || here.Id == below)
            break;
        if (here.Id == route.Entry.Id)
            return true;
        Descriptor above;
        error = disk_.OpenAbove(folder, above);
        folder = std::move(above);
    }
    return false;
}

// -- Copies

int Transfer::MakeHiddenName(std::string& name)
{
    const int error = disk_.MakeUnique(name);
    name.insert(0, hiddenName);
    return error;
}

int Transfer::CopyInPlace(const Route& route, bool isMove, CopiedEntries& copied, FolderId& made)
{
    std::string name;
    if (const int error = MakeHiddenName(name))
        return DiskCodeOf(error);
    // What a copy replaces is gone, so it must be there itself.
    const bool isDurable = isMove || route.Replaces;
    const CopyOrder order{route.FromFolder, route.Name, route.ToFolder, name, isDurable, isMove};
    if (const int error = CopyTree(disk_, order, copied, made))
        return DiskCodeOf(error);
    const int code = PutInPlace(route, name);
    std::size_t removed = 0;
    if (code != diskOk)
        RemoveTree(disk_, route.ToFolder, name, removed);
    return code;
}

int Transfer::PutInPlace(const Route& route, const std::string& name)
{
    const std::string copy = FolderPart(route.To) + name;
    if (route.Replaces)
        return DiskCodeOf(names_.Move(copy, route.To));
    return renamer_.Rename(copy, route.To);
}

// -- The end of a move

// `isTouched` tells that a part of the source is gone.
int Transfer::RemoveSource(const Route& route, const CopiedEntries& copied, bool& isTouched)
{
    const auto mayGo = [&copied](const TransferDisk::Entry& entry) {
        return copied.IsUnchanged(entry);
    };
    if (route.Entry.Kind == EntryKind::Folder)
        return RemoveSourceFolder(route, mayGo, isTouched);
    std::size_t removed = 0;
    const int error = RemoveTree(disk_, route.FromFolder, route.Name, removed, mayGo);
    isTouched = removed != 0;
    // Somebody took the old name away: the copy is all that is left.
    isTouched |= error == ENOENT;
    return error == ENOENT ? diskOk : DiskCodeOf(error);
}

// A folder goes under a hidden name first: nothing stands for half a folder,
// and nobody finds his way into it any more.
int Transfer::RemoveSourceFolder(const Route& route, const MayGo& mayGo, bool& isTouched)
{
    std::string name;
    if (const int error = MakeHiddenName(name))
        return DiskCodeOf(error);
    const std::string aside = FolderPart(route.From) + name;
    if (const int code = renamer_.Rename(route.From, aside))
        return code;
    std::size_t removed = 0;
    const int error = RemoveTree(disk_, route.FromFolder, name, removed, mayGo);
    isTouched = removed != 0;
    if (error != 0)
        isTouched |= renamer_.Rename(aside, route.From) != diskOk;
    return DiskCodeOf(error);
}

// Takes the copy away again, under a hidden name like all that is not whole,
// and only where it is still ours.
void Transfer::TakeBack(const Route& route, const FolderId& made)
{
    TransferDisk::Entry placed;
    std::string name;
    if (disk_.Look(route.ToFolder, route.NewName, placed) != 0 || !(placed.Id == made)
        || MakeHiddenName(name) != 0)
        return;
    std::size_t removed = 0;
    if (renamer_.Rename(route.To, FolderPart(route.To) + name) == diskOk)
        RemoveTree(disk_, route.ToFolder, name, removed);
}

} // namespace tavo
