#include "support/memory_disk.h"

#include "platform/pattern.h"
#include "support/memory_clock.h"
#include "support/text_points.h"
#include "support/windows_names.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr int codeBadHandle = 6, codeBadTime = 87, codeTooLongPath = 206;
constexpr int codeIntoItselfWindows = 87, codeIntoItselfPosix = 2022;
constexpr int codeSourceMissingWindows = 1026;
constexpr int codeEmptySource = 5, codeEmptyTarget = 87;
constexpr std::size_t longestPosixName = 255; // bytes

bool Holds(const NodePtr& folder, const NodePtr& wanted)
{
    return folder == wanted
           || std::any_of(folder->Children.begin(), folder->Children.end(),
                          [&](const auto& child) { return Holds(child.second, wanted); });
}

bool HoldsInUse(const NodePtr& folder)
{
    return std::any_of(folder->Children.begin(), folder->Children.end(), [](const auto& child) {
        return child.second->InUse || HoldsInUse(child.second);
    });
}

} // namespace

// -- Searches

FindHandle MemoryDisk::FindFirstFileA(const std::string& pattern, FindData& found)
{
    Search search;
    search.Pattern = pattern;
    int code = Enter("FindFirstFileA", pattern);
    if (code == diskOk)
        code = Begin(pattern, search);
    if (code == diskOk && !Take(search, found))
        code = diskMissing;
    if (!Report(code))
        return invalidFind;
    searches_[++lastHandle_] = std::move(search);
    return lastHandle_;
}

bool MemoryDisk::FindNextFileA(FindHandle handle, FindData& found)
{
    const auto search = searches_.find(handle);
    const bool known = search != searches_.end();
    const int code = Enter("FindNextFileA", known ? search->second.Pattern : "");
    if (code != diskOk)
        return Report(code);
    if (!known)
        return Report(codeBadHandle);
    return Report(Take(search->second, found) ? diskOk : diskNoMoreFiles);
}

void MemoryDisk::FindClose(FindHandle handle)
{
    const auto search = searches_.find(handle);
    const bool known = search != searches_.end();
    Report(Enter("FindClose", known ? search->second.Pattern : ""));
    searches_.erase(handle);
}

// What stands behind the last separator, as it was written.
std::string MemoryDisk::LastPart(const std::string& path) const
{
    const auto last = path.find_last_of(IsWindows() ? "\\/" : "/");
    return last == path.npos ? path : path.substr(last + 1);
}

bool MemoryDisk::IsTooLong(const std::string& path) const
{
    return IsWindows() && points::Count(windows::Stored(path)) > windows::longestPath;
}

// Fills the search with the names that the pattern takes.
int MemoryDisk::Begin(const std::string& pattern, Search& search) const
{
    if (IsTooLong(pattern))
        return codeTooLongPath;
    const auto place = tree_.Locate(pattern);
    const std::string last = LastPart(pattern);
    if (last.empty() || place.IsRoot())
        return tree_.FindTarget(pattern) ? diskMissing : diskMissingFolder;
    if (!place.Folder)
        return diskMissingFolder;
    if (place.Folder->Unreadable)
        return diskDenied;
    search.Folder = place.Folder;
    if (HasWildcards(last))
        return BeginWildcards(last, search);
    if (IsWindows() && windows::HasBadCharacter(last))
        return diskBadName;
    search.Keys = {tree_.Key(place.Name)};
    return diskOk;
}

int MemoryDisk::BeginWildcards(const std::string& last, Search& search) const
{
    const Pattern pattern(last, rules_);
    const auto& roots = tree_.Roots();
    const bool inRoot = std::find(roots.begin(), roots.end(), search.Folder) != roots.end();
    for (const char* dots : {".", ".."})
        if (!inRoot && pattern.Matches(dots))
            search.Keys.emplace_back(dots);
    for (const auto& [key, node] : search.Folder->Children)
        if (pattern.Matches(node->Name))
            search.Keys.push_back(key);
    return diskOk;
}

bool MemoryDisk::Take(Search& search, FindData& found) const
{
    while (search.Next < search.Keys.size()) {
        const std::string& key = search.Keys[search.Next++];
        const auto child = search.Folder->Children.find(key);
        if (child != search.Folder->Children.end()) {
            found = DataOf(*child->second);
            return true;
        }
        const bool device = IsWindows() && windows::IsDevice(key);
        if (key != "." && key != ".." && !device)
            continue;
        found = DataOf(*search.Folder);
        found.Attributes = device ? attrArchive : attrDirectory;
        found.Name = key;
        return true;
    }
    return false;
}

FindData MemoryDisk::DataOf(const MemoryNode& node) const
{
    FindData data;
    data.Attributes = node.Attributes;
    data.Created = node.Created;
    data.Accessed = node.Accessed;
    data.Written = node.Written;
    data.Size = node.Size;
    data.Name = node.Name;
    if (!node.IsLink())
        return data;
    data.Attributes |= attrReparse;
    const NodePtr target = tree_.FindTarget(node.LinkTo);
    if (target && target->IsFolder())
        data.Attributes |= attrDirectory;
    return data;
}

// -- Single entries

int MemoryDisk::Lookup(const std::string& path, NodePtr& node) const
{
    if (IsTooLong(path))
        return codeTooLongPath;
    if (IsWindows() && windows::HasBadCharacter(LastPart(path)))
        return diskBadName;
    node = tree_.Find(path);
    if (node)
        return diskOk;
    const auto place = tree_.Locate(path);
    return place.Folder && !place.EndsInSeparator ? diskMissing : diskMissingFolder;
}

bool MemoryDisk::Exists(const std::string& path)
{
    int code = Enter("Exists", path);
    if (code != diskOk)
        return Report(code);
    if (!rules_.WildcardsInNames) {
        NodePtr node;
        return Report(Lookup(path, node));
    }
    Search search;
    FindData found;
    code = Begin(path, search);
    if (code == diskOk && !Take(search, found))
        code = diskMissing;
    return Report(code);
}

std::optional<FindData> MemoryDisk::Stat(const std::string& path)
{
    NodePtr node;
    int code = Enter("Stat", path);
    if (code == diskOk)
        code = Lookup(path, node);
    if (!Report(code))
        return std::nullopt;
    return DataOf(*node);
}

std::optional<FolderId> MemoryDisk::FolderIdentity(const std::string& path)
{
    NodePtr node;
    int code = Enter("FolderIdentity", path);
    if (code == diskOk)
        code = Lookup(path, node);
    const NodePtr target = tree_.Target(node);
    if (code == diskOk && (!target || !target->IsFolder()))
        code = diskMissingFolder;
    if (!Report(code))
        return std::nullopt;
    return FolderId{1, target->Id};
}

std::optional<std::string> MemoryDisk::ReadWhole(const std::string& path, std::uint64_t limit)
{
    NodePtr node;
    int code = Enter("ReadWhole", path);
    if (code == diskOk)
        code = Lookup(path, node);
    const NodePtr target = tree_.Target(node);
    if (code == diskOk && !target)
        code = diskMissing;
    if (code == diskOk && (target->IsFolder() || target->Unreadable))
        code = diskDenied;
    if (!Report(code) || target->Size > limit)
        return std::nullopt;
    std::string whole = target->Content;
    whole.resize(static_cast<std::size_t>(target->Size), '\0');
    return whole;
}

// -- Renaming; what else SHFileOperationA does stands in memory_disk_moves.cpp

int MemoryDisk::SHFileOperationA(const FileOperation& op)
{
    int code = Enter("SHFileOperationA", op.From, op.To);
    if (code == diskOk)
        code = Operate(op);
    Report(code);
    return code;
}

int MemoryDisk::Operate(const FileOperation& op)
{
    switch (op.Func) {
    case foRename: return Rename(op.From, op.To);
    case foMove:
    case foCopy: return MoveOrCopy(op);
    case foDelete: return Delete(op);
    }
    return CodeOf(codeIntoItselfWindows, codeIntoItselfPosix);
}

int MemoryDisk::Rename(const std::string& from, const std::string& to)
{
    if (from.empty())
        return codeEmptySource;
    if (to.empty())
        return codeEmptyTarget;
    if (const int code = RefusedName(to))
        return code;
    const auto source = tree_.Locate(from), target = tree_.Locate(to);
    if (const int code = RefusedPlaces(source, target))
        return code;
    if (const int code = RefusedByState(source, target, ChildOf(source)))
        return code;
    Relink(source, target);
    return diskOk;
}

// What no entry may be called is refused before the disk is looked at.
int MemoryDisk::RefusedName(const std::string& path) const
{
    const std::string name = LastPart(path);
    if (!IsWindows()) {
        const bool bad = name.empty() || name == "." || name == ".."
                         || name.size() > longestPosixName || name.find('\0') != name.npos;
        return bad ? diskBadName : diskOk;
    }
    const std::string stored = windows::Stored(name);
    if (windows::HasBadCharacter(name) || points::Count(stored) > windows::longestName)
        return diskBadName;
    if (stored.empty() || windows::IsDevice(name))
        return diskExists;
    return IsTooLong(path) ? codeTooLongPath : diskOk;
}

NodePtr MemoryDisk::ChildOf(const MemoryTree::Place& place) const
{
    if (!place.Folder)
        return nullptr;
    const auto child = place.Folder->Children.find(tree_.Key(place.Name));
    return child == place.Folder->Children.end() ? nullptr : child->second;
}

int MemoryDisk::RefusedPlaces(const MemoryTree::Place& from, const MemoryTree::Place& to) const
{
    if (from.IsRoot())
        return diskDenied;
    const NodePtr node = ChildOf(from);
    if (!from.Folder || (IsWindows() && node && from.EndsInSeparator && !node->IsFolder()))
        return diskMissingFolder;
    if (!node)
        return IsWindows() ? codeSourceMissingWindows : diskMissing;
    if (to.IsRoot())
        return diskExists;
    if (!to.Folder)
        return diskMissingFolder;
    if (Holds(node, to.Folder))
        return IsWindows() ? codeIntoItselfWindows : codeIntoItselfPosix;
    return diskOk;
}

int MemoryDisk::RefusedByState(const MemoryTree::Place& from, const MemoryTree::Place& to,
                               const NodePtr& node) const
{
    const NodePtr taken = ChildOf(to);
    if (taken && (taken != node || from.Name == to.Name))
        return diskExists;
    if (from.Folder->Locked || to.Folder->Locked)
        return diskDenied;
    if (node->InUse)
        return diskInUse;
    return IsWindows() && HoldsInUse(node) ? diskDenied : diskOk;
}

void MemoryDisk::Relink(const MemoryTree::Place& from, const MemoryTree::Place& to)
{
    const NodePtr node = ChildOf(from);
    MemoryTree::Unlink(from.Folder, tree_.Key(from.Name));
    node->Name = to.Name;
    to.Folder->Children[tree_.Key(to.Name)] = node;
}

// -- Times and places

bool MemoryDisk::FileTimeToLocalSystemTime(FileTime time, SystemTime& out)
{
    constexpr std::int64_t ticksPerMinute = 60LL * 10000000LL;
    if (const int code = Enter("FileTimeToLocalSystemTime"))
        return Report(code);
    const FileTime local{time.Ticks + zoneMinutes_ * ticksPerMinute};
    return Report(Clock_TakeApart(local, out) ? diskOk : codeBadTime);
}

std::vector<RootPlace> MemoryDisk::RootPlaces()
{
    std::vector<RootPlace> places;
    if (!Report(Enter("RootPlaces")))
        return places;
    if (!IsWindows())
        places.push_back({"Home", specialFolders_[SpecialFolder::Home]});
    for (const NodePtr& root : tree_.Roots()) {
        const std::string path = root->Name + rules_.Separator;
        places.push_back({IsWindows() ? root->Name : "File System", path});
    }
    return places;
}

std::string MemoryDisk::SpecialFolderPath(SpecialFolder which)
{
    return Report(Enter("SpecialFolderPath")) ? specialFolders_[which] : "";
}

} // namespace tavo
