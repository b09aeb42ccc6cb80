#pragma once

#include "platform/posix/file_edit.h"

#include <optional>
#include <string>
#include <string_view>

namespace tavo {

// Leads from a path to what the links at its end lead to, which need not be
// there. Gives 0 or the system's error number.
int FollowLinks(EditDisk& disk, std::string& path);

int WriteAll(EditDisk& disk, const Descriptor& file, std::string_view bytes);

// Makes the folder's list of names durable, where its disk can.
int SyncFolder(EditDisk& disk, const Descriptor& folder);

// A file in the making beside the one whose place it takes in one step. All
// calls give 0 or the system's error number. What is not put in place is
// removed again.
class NewFile {
public:
    // Is it listed among the other files as long as it is not in place?
    enum class Sight { Shown, Hidden };

    explicit NewFile(EditDisk& disk, Sight sight = Sight::Shown) : disk_(disk), sight_(sight) {}
    ~NewFile() { Remove(); }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // `rights` are those of the old file at `path`, none where there is no old
    // file. Theirs are given as far as the user may give them.
    int Make(const std::string& path, const std::optional<EditDisk::Rights>& rights);
    int Write(std::string_view bytes) { return WriteAll(disk_, file_, bytes); }
    // Returns when its bytes are on the disk.
    int Sync() { return disk_.Sync(file_); }
    int PutInPlace();
    void Remove();

    // Where it lies now; empty where there is none to remove.
    const std::string& Temporary() const { return temporary_; }

private:
    int Create(std::uint32_t mode);

    EditDisk& disk_;
    Sight sight_;
    std::string path_, temporary_;
    Descriptor file_;
};

} // namespace tavo
