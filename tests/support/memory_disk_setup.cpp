// The tests' side of the disk: what lies on it, and what is to happen to the
// calls of the port.

#include "support/memory_disk.h"

#include <algorithm>

namespace tavo {

namespace {

// What the program is told.
PathRules Rules_Of(MemoryDisk::Flavour flavour)
{
    PathRules rules = flavour == MemoryDisk::Flavour::Windows ? WindowsRules() : PosixRules();
    rules.Utf8 = true;
    return rules;
}

// What the disk goes by. A stick in a Linux machine is blind to case, and
// nobody knows.
PathRules TreeRules_Of(MemoryDisk::Flavour flavour)
{
    PathRules rules = Rules_Of(flavour);
    rules.CaseBlind = flavour != MemoryDisk::Flavour::Posix;
    return rules;
}

} // namespace

MemoryDisk::MemoryDisk(Flavour flavour) : rules_(Rules_Of(flavour)), tree_(TreeRules_Of(flavour))
{
    tree_.AddRoot(IsWindows() ? "C:" : "");
    specialFolders_[SpecialFolder::Home] = IsWindows() ? "C:\\Users\\me\\" : "/home/me/";
    specialFolders_[SpecialFolder::Temp] = IsWindows() ? "C:\\Temp\\" : "/tmp/";
}

void MemoryDisk::AddDrive(const std::string& drive)
{
    tree_.AddRoot(drive);
}

NodePtr MemoryDisk::MakeEntry(const std::string& path)
{
    const std::uint32_t attributes = IsWindows() ? attrArchive : 0u;
    NodePtr node = tree_.Make(path, attributes);
    return node ? node : std::make_shared<MemoryNode>();
}

void MemoryDisk::AddFolder(const std::string& path)
{
    tree_.Make(path, attrDirectory);
}

void MemoryDisk::AddFile(const std::string& path, const std::string& content)
{
    const NodePtr node = MakeEntry(path);
    node->Content = content;
    node->Size = content.size();
}

void MemoryDisk::AddLink(const std::string& path, const std::string& to)
{
    const NodePtr node = MakeEntry(path);
    node->Attributes = 0;
    node->LinkTo = to;
}

void MemoryDisk::Remove(const std::string& path)
{
    const auto place = tree_.Locate(path);
    MemoryTree::Unlink(place.Folder, tree_.Key(place.Name));
}

void MemoryDisk::MoveEntry(const std::string& from, const std::string& to)
{
    const auto source = tree_.Locate(from), target = tree_.Locate(to);
    if (ChildOf(source) && target.Folder && !target.Name.empty())
        Relink(source, target);
}

void MemoryDisk::SetSize(const std::string& path, std::uint64_t size)
{
    MakeEntry(path)->Size = size;
}

void MemoryDisk::SetAttributes(const std::string& path, std::uint32_t attributes)
{
    const NodePtr node = MakeEntry(path);
    node->Attributes = (attributes & ~attrDirectory) | (node->Attributes & attrDirectory);
}

void MemoryDisk::SetTimes(const std::string& path, FileTime written, FileTime created,
                          FileTime accessed)
{
    const NodePtr node = MakeEntry(path);
    node->Written = written;
    node->Created = created;
    node->Accessed = accessed;
}

void MemoryDisk::SetInUse(const std::string& path, bool inUse)
{
    MakeEntry(path)->InUse = inUse;
}

void MemoryDisk::SetLocked(const std::string& folder, bool locked)
{
    AddFolder(folder);
    MakeEntry(folder)->Locked = locked;
}

void MemoryDisk::SetUnreadable(const std::string& path, bool unreadable)
{
    MakeEntry(path)->Unreadable = unreadable;
}

bool MemoryDisk::Has(const std::string& path) const
{
    return tree_.Find(path) != nullptr;
}

std::optional<std::string> MemoryDisk::Content(const std::string& path) const
{
    const NodePtr node = tree_.FindTarget(path);
    if (!node || node->IsFolder())
        return std::nullopt;
    return node->Content;
}

std::string MemoryDisk::StoredName(const std::string& path) const
{
    const NodePtr node = tree_.Find(path);
    return node ? node->Name : "";
}

void MemoryDisk::Collect(const NodePtr& folder, const std::string& path,
                         std::vector<Entry>& out) const
{
    for (const auto& [key, node] : folder->Children) {
        const bool isFolder = node->IsFolder();
        const std::string full = path + node->Name;
        out.push_back({isFolder ? full + rules_.Separator : full, node->Content, isFolder});
        Collect(node, full + rules_.Separator, out);
    }
}

std::vector<MemoryDisk::Entry> MemoryDisk::Entries() const
{
    std::vector<Entry> entries;
    for (const NodePtr& root : tree_.Roots())
        Collect(root, root->Name + rules_.Separator, entries);
    std::sort(entries.begin(), entries.end(),
              [](const Entry& left, const Entry& right) { return left.Path < right.Path; });
    return entries;
}

std::vector<std::string> MemoryDisk::Dump() const
{
    std::vector<std::string> lines;
    for (const Entry& entry : Entries()) {
        const NodePtr node = tree_.Find(entry.Path);
        if (node->IsLink())
            lines.push_back(entry.Path + " -> " + node->LinkTo);
        else
            lines.push_back(entry.Folder ? entry.Path : entry.Path + " = " + entry.Content);
    }
    return lines;
}

void MemoryDisk::SetSpecialFolder(SpecialFolder which, const std::string& path)
{
    specialFolders_[which] = path;
}

// -- Calls

int MemoryDisk::Calls(const std::string& name) const
{
    int all = 0;
    for (const auto& [call, count] : calls_)
        if (name.empty() || call == name)
            all += count;
    return all;
}

void MemoryDisk::ForgetCalls()
{
    calls_.clear();
}

void MemoryDisk::BeforeEach(Hook hook)
{
    hooks_.push_back(std::move(hook));
}

void MemoryDisk::Before(const std::string& name, int nth, Hook hook)
{
    oneTimes_.push_back({name, nth, [hook = std::move(hook)](const Call& call) {
                             hook(call);
                             return 0;
                         }});
}

void MemoryDisk::Fail(const std::string& name, int nth, int code)
{
    oneTimes_.push_back({name, nth, [code](const Call&) { return code; }});
}

void MemoryDisk::FailWhen(Fault fault)
{
    faults_.push_back(std::move(fault));
}

int MemoryDisk::Enter(const std::string& name, const std::string& path, const std::string& to)
{
    const Call call{name, path, to, ++calls_[name]};
    if (insideHook_)
        return diskOk;
    insideHook_ = true;
    const int code = RunHooks(call);
    insideHook_ = false;
    return code;
}

// A hook may ask for more hooks, so each list is walked as it stood.
int MemoryDisk::RunHooks(const Call& call)
{
    for (const Hook& hook : std::vector<Hook>(hooks_))
        hook(call);

    std::vector<Fault> asked;
    for (OneTime& once : oneTimes_)
        if (once.Name == call.Name && --once.CallsLeft == 0)
            asked.push_back(once.Run);
    std::erase_if(oneTimes_, [](const OneTime& once) { return once.CallsLeft <= 0; });
    asked.insert(asked.end(), faults_.begin(), faults_.end());

    int code = diskOk;
    for (const Fault& fault : asked) {
        const int wanted = fault(call);
        if (code == diskOk)
            code = wanted;
    }
    return code;
}

bool MemoryDisk::Report(int code)
{
    lastError_ = code;
    return code == diskOk;
}

} // namespace tavo
