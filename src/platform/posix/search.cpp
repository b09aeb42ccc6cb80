#include "platform/posix/search.h"

#include "platform/posix/disk_entry.h"
#include "platform/posix/disk_error.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace tavo {

namespace {

Descriptor OpenFolder(const std::string& folder, int access)
{
    const int flags = access | O_DIRECTORY | O_CLOEXEC;
    return Descriptor(WithoutInterrupts([&] { return ::open(folder.c_str(), flags); }));
}

std::optional<FolderId> IdentityOf(int folder)
{
    struct stat data;
    if (::fstat(folder, &data) != 0)
        return std::nullopt;
    return FolderId{data.st_dev, data.st_ino};
}

void SetFromListing(ListedKind kind, FindData& found)
{
    found = {0, {}, {}, {}, 0, std::move(found.Name)};
    if (kind == ListedKind::Folder)
        found.Attributes = attrDirectory;
    if (kind == ListedKind::Link)
        found.Attributes = attrReparse;
}

} // namespace

int Search::Open(const std::string& folder, const Pattern& pattern, ListScope scope)
{
    folder_ = folder;
    scope_ = scope;
    handle_ = OpenFolder(folder, O_RDONLY);
    if (!handle_.IsOpen())
        return errno == ENOENT ? diskMissingFolder : DiskCodeOf(errno);
    const bool isRoot = folder.find_first_not_of('/') == folder.npos;
    return DiskCodeOf(names_.Read(handle_.Number(), pattern, scope, !isRoot));
}

bool Search::Next(FindData& found)
{
    if (!HoldFolder())
        return false;
    while (next_ < names_.Count()) {
        const std::size_t index = next_++;
        const std::string_view name = names_.Name(index);
        const int error = ReadEntry(handle_.Number(), name.data(), found);
        if (error == ENOENT)
            continue;
        if (error != 0)
            SetFromListing(names_.Kind(index), found);
        if (scope_ == ListScope::Folders && (found.Attributes & attrDirectory) == 0)
            continue;
        found.Name = name;
        return true;
    }
    return false;
}

void Search::ReleaseFolder()
{
    released_ = IdentityOf(handle_.Number());
    handle_.Close();
}

bool Search::HoldFolder()
{
    if (handle_.IsOpen())
        return true;
    handle_ = OpenFolder(folder_, O_PATH);
    // Another folder of the same name is not the one that was listed.
    if (handle_.IsOpen() && IdentityOf(handle_.Number()) != released_)
        handle_.Close();
    return handle_.IsOpen();
}

} // namespace tavo
