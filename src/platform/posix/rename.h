#pragma once

#include "platform/files.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace tavo {

// What a rename asks of the system. Every call gives 0 or the system's error
// number, and none follows a link that a path names.
class RenameDisk {
public:
    // Which entry it is, under how many names, and whether it is a folder.
    struct Entry {
        FolderId Id;
        std::uint64_t Links = 0;
        bool IsFolder = false;
    };

    virtual ~RenameDisk() = default;

    // Renames in one step and refuses an existing target with EEXIST. EINVAL,
    // ENOSYS or ENOTSUP where the file system has no such call.
    virtual int MoveNoReplace(const std::string& from, const std::string& to) = 0;
    // Renames and replaces.
    virtual int Move(const std::string& from, const std::string& to) = 0;
    virtual int Link(const std::string& from, const std::string& to) = 0;
    virtual int Unlink(const std::string& path) = 0;
    virtual int Look(const std::string& path, Entry& entry) = 0;
    // Does the listing of the folder hold the name, byte for byte?
    virtual int HasName(const std::string& folder, const std::string& name, bool& has) = 0;
};

// The calls of the system itself.
std::unique_ptr<RenameDisk> SystemRenameDisk();

// Renames files, folders and links, and never replaces anything.
//
// Where the file system can, a rename is one atomic call that refuses an
// existing target. Elsewhere a file is linked under the new name, which
// refuses too, and then loses the old one; a folder, or a file that cannot be
// linked, is renamed plainly after a look that the new name is free.
class Renamer {
public:
    explicit Renamer(RenameDisk& disk) : disk_(disk) {}

    // Gives a DiskCode. Bad names (123): empty, `.`, `..`, more than 255 bytes,
    // a NUL, and what the file system itself refuses to spell. The same name
    // again is an existing one. A change of case alone succeeds where both
    // names lead to one entry that the folder holds once. A slash behind the
    // old name is passed over.
    int Rename(const std::string& from, const std::string& to);

private:
    int MoveCarefully(const std::string& from, const std::string& to);
    int DropOldName(const std::string& from, const std::string& to, const RenameDisk::Entry& entry);

    int ChangeCase(const std::string& from, const std::string& to);
    bool IsOneEntry(const std::string& from, const std::string& to, const RenameDisk::Entry& entry);
    int MoveAside(const std::string& from, const std::string& to);

    int CodeOf(int error, const std::string& from, const std::string& to);
    bool IsInside(const std::string& from, const std::string& to);

    RenameDisk& disk_;
    // For each case-blind disk met: does a plain rename change the case of the
    // stored name? Some report success and leave the old spelling.
    std::map<std::uint64_t, bool> changesCase_;
};

} // namespace tavo
