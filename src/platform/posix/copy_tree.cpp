#include "platform/posix/copy_tree.h"

#include "platform/posix/copy_file.h"
#include "platform/posix/remove_tree.h"

#include <cerrno>

namespace tavo {

namespace {

using Entry = TransferDisk::Entry;
using EntryKind = TransferDisk::EntryKind;

class TreeCopier {
public:
    TreeCopier(TransferDisk& disk, const CopyOrder& order, CopiedEntries& copied)
        : disk_(disk), order_(order), copied_(copied)
    {
    }

    int Copy(FolderId& made)
    {
        int error = CopyOne(order_.Name, order_.NewName);
        while (error == 0 && !levels_.empty())
            error = Step();
        if (error == 0 && order_.IsDurable && isFolder_)
            error = disk_.SyncAll(order_.ToFolder);
        std::size_t removed = 0;
        if (error != 0 && isMade_)
            RemoveTree(disk_, order_.ToFolder, order_.NewName, removed);
        made = made_;
        return error;
    }

private:
    // A folder on the way down and its copy, and what is still to be copied.
    struct Level {
        Entry Data;
        Descriptor From, To;
        FolderId ToId;
        std::vector<std::string> Names;
    };

    bool IsTop() const { return levels_.empty(); }
    const Descriptor& FromHere() const { return IsTop() ? order_.FromFolder : levels_.back().From; }
    const Descriptor& ToHere() const { return IsTop() ? order_.ToFolder : levels_.back().To; }

    int Step()
    {
        std::vector<std::string>& names = levels_.back().Names;
        if (names.empty())
            return Leave();
        const std::string name = std::move(names.back());
        names.pop_back();
        return CopyOne(name, name);
    }

    int CopyOne(const std::string& name, const std::string& newName)
    {
        Entry entry;
        if (const int error = disk_.Look(FromHere(), name, entry))
            return error;
        switch (entry.Kind) {
        case EntryKind::File: return CopyFile(name, newName);
        case EntryKind::Link: return CopyLink(name, newName, entry);
        case EntryKind::Folder: return Enter(name, newName);
        case EntryKind::Other: break;
        }
        return ENOTSUP;
    }

    int CopyFile(const std::string& name, const std::string& newName)
    {
        Descriptor from, to;
        Entry entry;
        if (const int error = disk_.OpenFile(FromHere(), name, from))
            return error;
        if (const int error = disk_.Look(from, entry))
            return error;
        if (entry.Kind != EntryKind::File)
            return EBUSY;
        Remember(entry);
        FolderId id;
        if (const int error = Made(disk_.MakeFile(ToHere(), newName, to)))
            return error;
        if (const int error = Identify(to, id))
            return error;
        if (const int error = CopyContent(disk_, from, to))
            return error;
        if (const int error = CopyProperties(disk_, from, entry, to))
            return error;
        if (order_.IsDurable && IsTop()) {
            if (const int error = SyncEntry(disk_, to))
                return error;
        }
        return disk_.Close(to);
    }

    int CopyLink(const std::string& name, const std::string& newName, const Entry& entry)
    {
        std::string target;
        if (const int error = disk_.ReadLink(FromHere(), name, target))
            return error;
        Remember(entry);
        if (const int error = Made(disk_.MakeLink(ToHere(), newName, target)))
            return error;
        Entry link;
        if (const int error = disk_.Look(ToHere(), newName, link))
            return error;
        if (IsTop())
            made_ = link.Id;
        return CopyLinkProperties(disk_, entry, ToHere(), newName);
    }

    int Enter(const std::string& name, const std::string& newName)
    {
        Level level;
        if (const int error = disk_.OpenFolder(FromHere(), name, level.From))
            return error;
        if (const int error = disk_.Look(level.From, level.Data))
            return error;
        if (const int error = disk_.List(level.From, level.Names))
            return error;
        if (const int error = RefusedFolder(level))
            return error;
        if (const int error = Made(disk_.MakeFolder(ToHere(), newName)))
            return error;
        if (const int error = disk_.OpenFolder(ToHere(), newName, level.To))
            return error;
        if (const int error = Identify(level.To, level.ToId))
            return error;
        isFolder_ = true;
        levels_.push_back(std::move(level));
        if (levels_.size() > mostOpenLevels) {
            Level& far = levels_[levels_.size() - 1 - mostOpenLevels];
            far.From.Close();
            far.To.Close();
        }
        return 0;
    }

    int RefusedFolder(const Level& level)
    {
        if (!IsTop() && level.Data.Id == made_)
            return EINVAL;
        if (!order_.IsMove)
            return 0;
        if (level.Data.IsMount)
            return EBUSY;
        return level.Names.empty() ? 0 : disk_.MayChange(level.From);
    }

    int Leave()
    {
        const Level left = std::move(levels_.back());
        levels_.pop_back();
        // First, since the copy's mode may close the way back.
        if (!FromHere().IsOpen()) {
            Level& above = levels_.back();
            if (const int error = OpenAgain(disk_, left.From, above.Data.Id, above.From))
                return error;
            if (const int error = OpenAgain(disk_, left.To, above.ToId, above.To))
                return error;
        }
        return CopyProperties(disk_, left.From, left.Data, left.To);
    }

    // From the moment that there is a copy it has to be removed on failure.
    int Made(int error)
    {
        isMade_ |= error == 0;
        return error;
    }

    int Identify(const Descriptor& copy, FolderId& id)
    {
        Entry entry;
        if (const int error = disk_.Look(copy, entry))
            return error;
        id = entry.Id;
        if (IsTop())
            made_ = id;
        return 0;
    }

    void Remember(const Entry& entry)
    {
        if (order_.IsMove)
            copied_.Add(entry);
    }

    TransferDisk& disk_;
    const CopyOrder& order_;
    CopiedEntries& copied_;
    std::vector<Level> levels_;
    FolderId made_;
    bool isMade_ = false, isFolder_ = false;
};

} // namespace

void CopiedEntries::Add(const Entry& entry)
{
    states_.try_emplace({entry.Id.Device, entry.Id.Node}, State{entry.Size, entry.Written});
}

bool CopiedEntries::IsUnchanged(const Entry& entry) const
{
    const auto state = states_.find({entry.Id.Device, entry.Id.Node});
    return state != states_.end() && state->second == State{entry.Size, entry.Written};
}

int CopyTree(TransferDisk& disk, const CopyOrder& order, CopiedEntries& copied, FolderId& made)
{
    return TreeCopier(disk, order, copied).Copy(made);
}

} // namespace tavo
