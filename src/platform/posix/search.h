#pragma once

#include "platform/files.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/folder_listing.h"

#include <optional>
#include <string>

namespace tavo {

// A search that goes on: the names of one folder, read beforehand, whose data
// is read one by one. It can let go of its open folder and find it again by
// its path, so that searches inside searches don't run out of descriptors.
class Search {
public:
    // Lists `folder` (which ends in a slash) by the pattern. Gives a DiskCode.
    int Open(const std::string& folder, const Pattern& pattern, ListScope scope);
    // Reads the next entry; false at the end. What has vanished is passed
    // over. An entry whose data may not be read comes with what the folder
    // tells of it: its name and kind.
    bool Next(FindData& found);

    bool HoldsFolder() const { return handle_.IsOpen(); }
    void ReleaseFolder();

private:
    bool HoldFolder();

    std::string folder_;
    Descriptor handle_;
    std::optional<FolderId> released_;
    FolderListing names_;
    std::size_t next_ = 0;
    ListScope scope_ = ListScope::Everything;
};

} // namespace tavo
