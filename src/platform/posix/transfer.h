#pragma once

#include "platform/files.h"
#include "platform/posix/copy_tree.h"
#include "platform/posix/remove_tree.h"
#include "platform/posix/rename.h"
#include "platform/posix/transfer_disk.h"
#include "platform/posix/trash.h"

#include <string>

namespace tavo {

// Moves, copies and deletes files, folders and links, as Files tells.
//
// What needs a copy makes it under a hidden name in the target's folder and
// gives it its own name when it is whole, so that no name ever stands for half
// a file, even when the process is killed. A move to another file system puts
// the copy on the disk before the source goes. Where the source cannot go,
// the copy is taken back; there are two exceptions, which lose nothing: a copy
// that has replaced a file stays, and so does that of a folder of which a part
// is gone already.
class Transfer {
public:
    // `names` are the calls that `renamer` renames by.
    Transfer(TransferDisk& disk, RenameDisk& names, Renamer& renamer, Trash& trash)
        : disk_(disk), names_(names), renamer_(renamer), trash_(trash)
    {
    }

    // All but foRename; gives a DiskCode. A slash behind the old name is passed
    // over.
    int Run(const FileOperation& op);

private:
    // An operation with the folders that it works in.
    struct Route {
        std::string From, Name;
        Descriptor FromFolder;
        TransferDisk::Entry Entry;

        std::string To, NewName;
        Descriptor ToFolder;
        bool IsDone = false;   // the entry stands there already
        bool Replaces = false; // a file stands there, and goes
    };

    int Move(const FileOperation& op);
    int MoveAcross(const Route& route);
    int Copy(const FileOperation& op);
    int Delete(const FileOperation& op);

    int FindSource(const FileOperation& op, Route& route);
    int FindTarget(const FileOperation& op, Route& route);
    int LookAtTarget(bool isBareFolder, Route& route);
    bool IsInside(const Route& route);

    int MakeHiddenName(std::string& name);
    int CopyInPlace(const Route& route, bool isMove, CopiedEntries& copied, FolderId& made);
    int PutInPlace(const Route& route, const std::string& name);
    int RemoveSource(const Route& route, const CopiedEntries& copied, bool& isTouched);
    int RemoveSourceFolder(const Route& route, const MayGo& mayGo, bool& isTouched);
    void TakeBack(const Route& route, const FolderId& made);

    TransferDisk& disk_;
    RenameDisk& names_;
    Renamer& renamer_;
    Trash& trash_;
};

} // namespace tavo
