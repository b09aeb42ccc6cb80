#include "platform/posix/remove_tree.h"

#include <cerrno>

namespace tavo {

namespace {

class Remover {
public:
    Remover(TransferDisk& disk, const Descriptor& base, std::size_t& removed, const MayGo& mayGo)
        : disk_(disk), base_(base), removed_(removed), mayGo_(mayGo)
    {
    }

    int Remove(const std::string& name)
    {
        int error = RemoveOne(name);
        while (error == 0 && !levels_.empty())
            error = Step();
        return error;
    }

private:
    // A folder on the way down, and what is still in it.
    struct Level {
        std::string Name;
        FolderId Id;
        Descriptor Folder;
        std::vector<std::string> Names;
    };

    const Descriptor& Here() const { return levels_.empty() ? base_ : levels_.back().Folder; }

    int Step()
    {
        std::vector<std::string>& names = levels_.back().Names;
        if (names.empty())
            return Leave();
        const std::string name = std::move(names.back());
        names.pop_back();
        const int error = RemoveOne(name);
        // Somebody else was faster.
        return error == ENOENT ? 0 : error;
    }

    int RemoveOne(const std::string& name)
    {
        TransferDisk::Entry entry;
        if (const int error = disk_.Look(Here(), name, entry))
            return error;
        if (entry.Kind == TransferDisk::EntryKind::Folder)
            return entry.IsMount ? EBUSY : Enter(name, entry.Id);
        if (mayGo_ && !mayGo_(entry))
            return EBUSY;
        return Counted(disk_.Unlink(Here(), name));
    }

    int Enter(const std::string& name, const FolderId& id)
    {
        Level level{name, id, {}, {}};
        int error = disk_.OpenFolder(Here(), name, level.Folder);
        if (error == 0)
            error = disk_.List(level.Folder, level.Names);
        // A folder that nobody may read can still be removed when it is empty.
        if (error == EACCES && Counted(disk_.RemoveFolder(Here(), name)) == 0)
            return 0;
        if (error != 0)
            return error;
        levels_.push_back(std::move(level));
        if (levels_.size() > mostOpenLevels)
            levels_[levels_.size() - 1 - mostOpenLevels].Folder.Close();
        return 0;
    }

    int Leave()
    {
        const Level left = std::move(levels_.back());
        levels_.pop_back();
        if (!Here().IsOpen()) {
            Level& above = levels_.back();
            if (const int error = OpenAgain(disk_, left.Folder, above.Id, above.Folder))
                return error;
        }
        return Counted(disk_.RemoveFolder(Here(), left.Name));
    }

    int Counted(int error)
    {
        removed_ += error == 0 ? 1 : 0;
        return error;
    }

    TransferDisk& disk_;
    const Descriptor& base_;
    std::size_t& removed_;
    const MayGo& mayGo_;
    std::vector<Level> levels_;
};

} // namespace

int OpenAgain(TransferDisk& disk, const Descriptor& below, const FolderId& id, Descriptor& folder)
{
    Descriptor above;
    TransferDisk::Entry entry;
    if (const int error = disk.OpenAbove(below, above))
        return error;
    if (const int error = disk.Look(above, entry))
        return error;
    if (!(entry.Id == id))
        return EBUSY;
    folder = std::move(above);
    return 0;
}

int RemoveTree(TransferDisk& disk, const Descriptor& folder, const std::string& name,
               std::size_t& removed, const MayGo& mayGo)
{
    removed = 0;
    return Remover(disk, folder, removed, mayGo).Remove(name);
}

} // namespace tavo
