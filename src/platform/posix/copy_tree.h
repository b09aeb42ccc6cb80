#pragma once

#include "platform/posix/transfer_disk.h"

#include <map>
#include <string>
#include <utility>

namespace tavo {

// The files and links that a copy was made of, as they were when it began, so
// that nothing is removed which has been written to since.
class CopiedEntries {
public:
    void Add(const TransferDisk::Entry& entry);
    bool IsUnchanged(const TransferDisk::Entry& entry) const;

private:
    struct State {
        std::uint64_t Size = 0;
        TransferDisk::Stamp Written;
        friend bool operator==(const State&, const State&) = default;
    };
    std::map<std::pair<std::uint64_t, std::uint64_t>, State> states_;
};

// What is copied, and where to.
struct CopyOrder {
    const Descriptor& FromFolder;
    std::string Name;
    const Descriptor& ToFolder;
    std::string NewName;
    // The copy is to be on the disk when the call returns.
    bool IsDurable = false;
    // The source goes afterwards: what could not be removed then fails at once,
    // and `CopiedEntries` is filled.
    bool IsMove = false;
};

// Copies a file, a link as itself, or a folder with all that is in it to a new
// name. `made` tells which entry the copy is. Gives 0 or the system's error
// number: ENOTSUP for pipes, sockets and devices, EINVAL for a folder that
// would come to lie inside itself. After an error there is no copy.
int CopyTree(TransferDisk& disk, const CopyOrder& order, CopiedEntries& copied, FolderId& made);

} // namespace tavo
