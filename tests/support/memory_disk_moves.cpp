// Moves, copies, removals and the trash of the disk in memory.

#include "support/memory_disk.h"

#include "support/windows_names.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr int codeEmptySource = 5, codeEmptyTarget = 87;
constexpr int codeMissingFolderOfDeleted = 124;
constexpr int codeNoTrashWindows = 50, codeNoTrashPosix = 2095;

template <typename Test>
bool AnyIn(const NodePtr& node, Test test)
{
    return test(*node)
           || std::any_of(node->Children.begin(), node->Children.end(),
                          [&](const auto& child) { return AnyIn(child.second, test); });
}

bool IsHeld(const MemoryNode& node)
{
    return node.InUse;
}

bool IsClosed(const MemoryNode& node)
{
    return node.Unreadable;
}

// A folder of which nothing can be taken.
bool KeepsAll(const MemoryNode& node)
{
    return node.Locked && !node.Children.empty();
}

} // namespace

int MemoryDisk::MoveOrCopy(const FileOperation& op)
{
    if (op.From.empty())
        return codeEmptySource;
    if (op.To.empty())
        return codeEmptyTarget;
    const auto from = tree_.Locate(op.From);
    const bool isBareFolder = LastPart(op.To).empty();
    const std::string full = isBareFolder ? op.To + from.Name : op.To;
    if (const int code = RefusedName(full))
        return code;
    const auto to = tree_.Locate(full);
    if (const int code = RefusedPlaces(from, to))
        return code;

    const NodePtr node = ChildOf(from), standing = ChildOf(to);
    if (isBareFolder && standing == node)
        return diskOk;
    const bool isCaseChange = op.Func == foMove && standing == node && from.Name != to.Name;
    const bool isReplaced =
        isBareFolder && standing && !IsFolderLike(standing) && !node->IsFolder();
    if (standing && !isCaseChange && !isReplaced)
        return diskExists;
    if (isReplaced && standing->InUse)
        return diskInUse;
    const int code = op.Func == foMove ? RefusedToGo(from, node) : RefusedToCopy(node);
    if (code != diskOk || to.Folder->Locked)
        return code != diskOk ? code : diskDenied;

    if (op.Func == foMove)
        Relink(from, to);
    else
        tree_.Copy(node, to.Folder, to.Name);
    return diskOk;
}

bool MemoryDisk::IsFolderLike(const NodePtr& node) const
{
    const NodePtr target = tree_.Target(node);
    return target && target->IsFolder();
}

int MemoryDisk::RefusedToGo(const MemoryTree::Place& from, const NodePtr& node) const
{
    if (from.Folder->Locked)
        return diskDenied;
    if (node->InUse)
        return diskInUse;
    return IsWindows() && AnyIn(node, IsHeld) ? diskDenied : diskOk;
}

int MemoryDisk::RefusedToCopy(const NodePtr& node) const
{
    if (AnyIn(node, IsClosed))
        return diskDenied;
    return IsWindows() && AnyIn(node, IsHeld) ? diskInUse : diskOk;
}

int MemoryDisk::Delete(const FileOperation& op)
{
    if (op.From.empty())
        return CodeOf(codeEmptySource, diskMissingFolder);
    if (IsWindows() && windows::HasBadCharacter(LastPart(op.From)))
        return diskBadName;
    const auto place = tree_.Locate(op.From);
    if (place.IsRoot())
        return CodeOf(diskDenied, diskBadName);
    const NodePtr node = ChildOf(place);
    if (!place.Folder)
        return CodeOf(codeMissingFolderOfDeleted, diskMissingFolder);
    if (!node)
        return diskMissing;
    if (place.Folder->Locked || AnyIn(node, KeepsAll))
        return diskDenied;
    if (AnyIn(node, IsHeld))
        return diskInUse;
    if (op.Flags == fofQuietRecycle) {
        if (!hasTrash_)
            return CodeOf(codeNoTrashWindows, codeNoTrashPosix);
        trash_.push_back({op.From, node});
    }
    MemoryTree::Unlink(place.Folder, tree_.Key(place.Name));
    return diskOk;
}

std::vector<MemoryDisk::Entry> MemoryDisk::Trashed() const
{
    std::vector<Entry> entries;
    for (const auto& [path, node] : trash_) {
        entries.push_back({path, node->Content, node->IsFolder()});
        Collect(node, path + rules_.Separator, entries);
    }
    return entries;
}

} // namespace tavo
