#include "platform/posix/posix_files.h"

#include "platform/posix/attributes.h"
#include "platform/posix/disk_entry.h"
#include "platform/posix/disk_error.h"
#include "platform/posix/places.h"
#include "platform/posix/send_to.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace tavo {

namespace {

// So many folders are held open by searches inside one another; a system
// allows a program no more than about a thousand.
constexpr std::size_t mostHeldFolders = 64;

PosixCalls WithSystemCalls(PosixCalls calls)
{
    if (!calls.Rename)
        calls.Rename = SystemRenameDisk();
    if (!calls.Entries)
        calls.Entries = SystemEntryDisk();
    if (!calls.Contents)
        calls.Contents = SystemContentDisk();
    if (!calls.Transfer)
        calls.Transfer = SystemTransferDisk();
    if (!calls.Bin)
        calls.Bin = DesktopTrash();
    if (!calls.Edit)
        calls.Edit = SystemEditDisk();
    return calls;
}

} // namespace

PosixFiles::PosixFiles(PosixCalls calls)
    : calls_(WithSystemCalls(std::move(calls))), renamer_(*calls_.Rename),
      transfer_(*calls_.Transfer, *calls_.Rename, renamer_, *calls_.Bin),
      openFiles_(*calls_.Entries, *calls_.Contents)
{
}

FindHandle PosixFiles::FindFirstFileA(const std::string& pattern, FindData& found)
{
    return FindFirst(pattern, ListScope::Everything, found);
}

FindHandle PosixFiles::FindFirstFolder(const std::string& pattern, FindData& found)
{
    return FindFirst(pattern, ListScope::Folders, found);
}

FindHandle PosixFiles::FindFirst(const std::string& pattern, ListScope scope, FindData& found)
{
    const std::string_view name = NamePart(pattern);
    if (!HasWildcards(name) || CheckPath(pattern) != diskOk)
        return FindOne(pattern, scope, found);
    auto search = std::make_unique<Search>();
    if (!Done(search->Open(FolderPart(pattern), Pattern(name, rules_), scope)))
        return invalidFind;
    if (search->Next(found))
        return Keep(std::move(search));
    Done(diskMissing);
    return invalidFind;
}

FindHandle PosixFiles::FindOne(const std::string& path, ListScope scope, FindData& found)
{
    FindData entry;
    int code = path == "/" ? diskMissing : StatExact(path, entry);
    if (code == diskOk && scope == ListScope::Folders && !(entry.Attributes & attrDirectory))
        code = diskMissing;
    if (!Done(code))
        return invalidFind;
    found = std::move(entry);
    return ++lastHandle_;
}

FindHandle PosixFiles::Keep(std::unique_ptr<Search> search)
{
    LimitHeldFolders();
    currentHandle_ = ++lastHandle_;
    current_ = search.get();
    searches_[currentHandle_] = std::move(search);
    return currentHandle_;
}

void PosixFiles::LimitHeldFolders()
{
    std::size_t held = 0;
    for (const auto& [handle, search] : searches_)
        held += search->HoldsFolder() ? 1 : 0;
    // The oldest waits longest for its turn.
    for (auto search = searches_.begin(); held >= mostHeldFolders; ++search) {
        if (!search->second->HoldsFolder())
            continue;
        search->second->ReleaseFolder();
        --held;
    }
}

bool PosixFiles::FindNextFileA(FindHandle handle, FindData& found)
{
    if (handle != currentHandle_) {
        const auto search = searches_.find(handle);
        if (search == searches_.end())
            return Done(diskNoMoreFiles);
        current_ = search->second.get();
        currentHandle_ = handle;
    }
    if (current_ && current_->Next(found))
        return Done(diskOk);
    FindClose(handle);
    return Done(diskNoMoreFiles);
}

void PosixFiles::FindClose(FindHandle handle)
{
    if (handle == currentHandle_) {
        current_ = nullptr;
        currentHandle_ = invalidFind;
    }
    searches_.erase(handle);
}

int PosixFiles::StatExact(const std::string& path, FindData& found)
{
    if (const int code = CheckPath(path))
        return code;
    const std::string_view name = path == "/" ? path : NamePart(path);
    if (name.empty())
        return MissingCodeOf(path);
    const int error = ReadEntry(AT_FDCWD, path.c_str(), found);
    if (error == ENOENT)
        return MissingCodeOf(FolderPart(path));
    if (error != 0)
        return DiskCodeOf(error);
    if ((found.Attributes & attrReparse) == 0) {
        AddStoredAttributes(*calls_.Entries, path, found.Attributes);
        TakeStoredCreated(path, found.Created);
    }
    found.Name = name;
    return diskOk;
}

bool PosixFiles::Exists(const std::string& path)
{
    if (const int code = CheckPath(path))
        return Done(code);
    constexpr int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
    struct statx data;
    if (path != "/" && NamePart(path).empty())
        return Done(MissingCodeOf(path));
    if (statx(AT_FDCWD, path.c_str(), flags, STATX_TYPE, &data) == 0)
        return Done(diskOk);
    return Done(DiskCodeOf(errno));
}

std::optional<FindData> PosixFiles::Stat(const std::string& path)
{
    FindData found;
    if (!Done(StatExact(path, found)))
        return std::nullopt;
    return found;
}

std::optional<FolderId> PosixFiles::FolderIdentity(const std::string& path)
{
    if (!Done(CheckPath(path)))
        return std::nullopt;
    struct stat data;
    if (::stat(path.c_str(), &data) != 0) {
        Done(DiskCodeOf(errno));
        return std::nullopt;
    }
    if (!S_ISDIR(data.st_mode)) {
        Done(diskMissingFolder);
        return std::nullopt;
    }
    return FolderId{data.st_dev, data.st_ino};
}

int PosixFiles::SHFileOperationA(const FileOperation& op)
{
    Done(op.Func == foRename ? renamer_.Rename(op.From, op.To) : transfer_.Run(op));
    return lastError_;
}

std::optional<std::string> PosixFiles::ReadWhole(const std::string& path, std::uint64_t limit)
{
    std::string bytes;
    if (!Done(CheckPath(path)) || !Done(DiskCodeOf(ReadRegularFile(path, limit, bytes))))
        return std::nullopt;
    return bytes;
}

bool PosixFiles::FileTimeToLocalSystemTime(FileTime time, SystemTime& out)
{
    constexpr int invalidParameter = ownCodeBase + EINVAL;
    return Done(clock_.ToLocal(time, out) ? diskOk : invalidParameter);
}

std::vector<RootPlace> PosixFiles::RootPlaces()
{
    std::vector<RootPlace> places = {{"Home", HomeFolder()}, {"File System", "/"}};
    for (RootPlace& volume : MountedVolumes(mounts_.Now()))
        places.push_back(std::move(volume));
    return places;
}

bool PosixFiles::IsSlowFolder(const std::string& path)
{
    return !mounts_.SlowMountOn(path).empty();
}

// Whoever reads a slow folder waits for it, but not for another one.
bool PosixFiles::LeadsToFolder(const std::string& path, int folder, const char* name,
                               const std::string& slowAbove)
{
    const std::string slow = mounts_.SlowMountOn(path);
    if (!slow.empty() && slow != slowAbove)
        return true;
    struct statx data;
    return statx(folder, name, AT_NO_AUTOMOUNT, STATX_TYPE, &data) == 0 && S_ISDIR(data.stx_mode);
}

std::vector<ListedFolder> PosixFiles::ListFolders(const std::string& folder)
{
    std::vector<ListedFolder> folders;
    if (!Done(CheckPath(folder)))
        return folders;
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    const Descriptor open(WithoutInterrupts([&] { return ::open(folder.c_str(), flags); }));
    if (!Done(open.IsOpen() ? diskOk : DiskCodeOf(errno)))
        return folders;
    FolderListing names;
    const Pattern all("*", rules_);
    if (!Done(DiskCodeOf(names.Read(open.Number(), all, ListScope::Folders, false))))
        return folders;
    const std::string slowAbove = mounts_.SlowMountOn(folder);
    for (std::size_t index = 0; index < names.Count(); ++index) {
        const std::string name(names.Name(index));
        if (names.Kind(index) == ListedKind::Folder
            || LeadsToFolder(folder + name, open.Number(), name.c_str(), slowAbove))
            folders.push_back({name, rules_.DotHides && name.starts_with('.')});
    }
    return folders;
}

bool PosixFiles::SendToStands()
{
    return SendTo_Stands(SendTo_OfSystem());
}

void PosixFiles::SendToSet(bool on)
{
    SendTo_Put(SendTo_OfSystem(), on);
}

std::string PosixFiles::SpecialFolderPath(SpecialFolder which)
{
    switch (which) {
    case SpecialFolder::Home: return HomeFolder();
    case SpecialFolder::Temp: return TempFolder();
    case SpecialFolder::Trash: return TrashFolder();
    }
    return "/";
}

} // namespace tavo
