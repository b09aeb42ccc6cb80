// Attributes, times and bytes of the entries of the disk in memory.

#include "support/memory_disk.h"

#include "support/memory_clock.h"
#include "support/text_points.h"

#include <algorithm>
#include <system_error>

namespace tavo {

namespace {

constexpr std::uint32_t settable = attrReadOnly | attrHidden | attrSystem | attrArchive;
constexpr std::int64_t ticksPerMinute = 60LL * 10'000'000LL;

// How the two systems call the same thing.
struct CodePair {
    int Windows, Posix;
};
constexpr CodePair badHandle = {6, 2009};
constexpr CodePair badParameter = {87, 2022};
constexpr CodePair notSupported = {50, 2095};
constexpr int tooLongToOpen = 206;

// A file that is opened for its times may have no longer a path.
constexpr std::size_t longestOpenPath = 127; // characters

struct TextRow {
    int Code;
    const char *Windows, *Posix;
};
constexpr TextRow textTable[] = {
    {diskOk, "", ""},
    {diskMissing, "File not found", "No such file or directory"},
    {diskMissingFolder, "Path not found", "No such file or directory"},
    {diskDenied, "Access denied", "Permission denied"},
    {diskInUse, "Sharing violation", "Device or resource busy"},
    {diskExists, "File already exists", "File exists"},
    {badHandle.Windows, "Invalid handle", ""},
    {badParameter.Windows, "Invalid parameter", ""},
    {notSupported.Windows, "Not supported", ""},
    {tooLongToOpen, "Path too long", ""},
};

constexpr int posixBase = 2000;

// Only a moment that is put together and taken apart again without change was
// one at all.
bool IsMoment(const SystemTime& time, FileTime& moment)
{
    if (time.Year < 1601 || time.Year > 30'827 || time.Month < 1 || time.Month > 12)
        return false;
    moment = Clock_Moment(time.Year, time.Month, time.Day, time.Hour, time.Minute, time.Second,
                          time.Milliseconds);
    SystemTime again;
    const bool told = Clock_TakeApart(moment, again);
    again.DayOfWeek = time.DayOfWeek;
    return told && again == time;
}

bool Allows(OpenMode opened, OpenMode needed)
{
    return opened == needed || (opened == OpenMode::ReadWrite && needed == OpenMode::Read);
}

// What is larger than its content goes on with NULs.
std::string BytesOf(const MemoryNode& node, std::uint64_t offset, std::size_t count)
{
    if (offset >= node.Size)
        return {};
    const auto length =
        static_cast<std::size_t>(std::min<std::uint64_t>(count, node.Size - offset));
    std::string bytes;
    if (offset < node.Content.size())
        bytes = node.Content.substr(static_cast<std::size_t>(offset), length);
    bytes.resize(length, '\0');
    return bytes;
}

} // namespace

// -- Attributes

std::optional<std::uint32_t> MemoryDisk::GetFileAttributesA(const std::string& path)
{
    NodePtr node;
    int code = Enter("GetFileAttributesA", path);
    if (code == diskOk)
        code = Lookup(path, node);
    if (!Report(code))
        return std::nullopt;
    return DataOf(*node).Attributes;
}

bool MemoryDisk::SetFileAttributesA(const std::string& path, std::uint32_t attributes)
{
    NodePtr node;
    int code = Enter("SetFileAttributesA", path);
    if (code == diskOk)
        code = Lookup(path, node);
    if (code == diskOk && node->IsLink() && !IsWindows())
        code = notSupported.Posix;
    if (!Report(code))
        return false;
    node->Attributes = (node->Attributes & ~settable) | (attributes & settable);
    return true;
}

std::string MemoryDisk::LastErrorText() const
{
    if (lastError_ > posixBase)
        return std::generic_category().message(lastError_ - posixBase);
    for (const TextRow& row : textTable) {
        if (row.Code == lastError_)
            return IsWindows() ? row.Windows : row.Posix;
    }
    return "Error " + std::to_string(lastError_);
}

// -- Open files

FileHandle MemoryDisk::OpenFile(const std::string& path, OpenMode mode)
{
    NodePtr node;
    int code = Enter("OpenFile", path);
    if (code == diskOk)
        code = FindToOpen(path, mode, node);
    if (code == diskOk)
        code = RefusedOpen(*node, mode);
    if (!Report(code))
        return noFile;
    openFiles_[++lastFile_] = {path, node, mode};
    return lastFile_;
}

int MemoryDisk::FindToOpen(const std::string& path, OpenMode mode, NodePtr& node) const
{
    if (IsWindows() && mode == OpenMode::Times && points::Count(path) > longestOpenPath)
        return tooLongToOpen;
    if (const int code = Lookup(path, node))
        return IsWindows() && code == diskMissingFolder ? diskMissing : code;
    if (IsWindows() || mode != OpenMode::Times)
        node = tree_.Target(node);
    return node ? diskOk : diskMissing;
}

int MemoryDisk::RefusedOpen(const MemoryNode& node, OpenMode mode) const
{
    const bool plainTimes = mode == OpenMode::Times && !IsWindows();
    if (plainTimes)
        return diskOk;
    const bool isDenied = node.IsFolder() || (mode != OpenMode::Times && node.Unreadable)
                          || (mode != OpenMode::Read && (node.Attributes & attrReadOnly) != 0);
    if (isDenied)
        return diskDenied;
    return mode != OpenMode::Read && node.InUse ? diskInUse : diskOk;
}

// The file behind the handle; null when the call is to fail, which is then
// reported.
MemoryDisk::Opened* MemoryDisk::EnterOpen(const std::string& call, FileHandle file, OpenMode needed)
{
    const auto found = openFiles_.find(file);
    const bool isKnown = found != openFiles_.end();
    int code = Enter(call, isKnown ? found->second.Path : "");
    if (code == diskOk && !isKnown)
        code = CodeOf(badHandle.Windows, badHandle.Posix);
    if (code == diskOk && !Allows(found->second.Mode, needed))
        code = CodeOf(diskDenied, badHandle.Posix);
    return Report(code) ? &found->second : nullptr;
}

void MemoryDisk::CloseHandle(FileHandle file)
{
    const auto found = openFiles_.find(file);
    const bool isKnown = found != openFiles_.end();
    const int code = Enter("CloseHandle", isKnown ? found->second.Path : "");
    const int unknown = isKnown ? diskOk : CodeOf(badHandle.Windows, badHandle.Posix);
    Report(code != diskOk ? code : unknown);
    openFiles_.erase(file);
}

bool MemoryDisk::SetFileTime(FileHandle file, FileTime created, FileTime accessed, FileTime written)
{
    Opened* const opened = EnterOpen("SetFileTime", file, OpenMode::Times);
    if (!opened)
        return false;
    const auto set = [](FileTime& stamp, FileTime wanted) {
        if (wanted.Ticks != 0)
            stamp = wanted;
    };
    set(opened->Node->Created, created);
    set(opened->Node->Accessed, accessed);
    set(opened->Node->Written, written);
    return true;
}

std::optional<std::uint64_t> MemoryDisk::FileLength(FileHandle file)
{
    const Opened* const opened = EnterOpen("FileLength", file, OpenMode::Read);
    if (!opened)
        return std::nullopt;
    return opened->Node->Size;
}

std::optional<std::string> MemoryDisk::ReadBytes(FileHandle file, std::uint64_t offset,
                                                 std::size_t count)
{
    const Opened* const opened = EnterOpen("ReadBytes", file, OpenMode::Read);
    if (!opened)
        return std::nullopt;
    return BytesOf(*opened->Node, offset, count);
}

bool MemoryDisk::WriteBytes(FileHandle file, std::uint64_t offset, std::string_view bytes)
{
    Opened* const opened = EnterOpen("WriteBytes", file, OpenMode::ReadWrite);
    if (!opened)
        return false;
    MemoryNode& node = *opened->Node;
    if (offset > node.Size)
        return Report(CodeOf(badParameter.Windows, badParameter.Posix));
    const auto at = static_cast<std::size_t>(offset);
    if (node.Content.size() < at + bytes.size())
        node.Content.resize(at + bytes.size(), '\0');
    node.Content.replace(at, bytes.size(), bytes);
    node.Size = std::max<std::uint64_t>(node.Size, at + bytes.size());
    return true;
}

// -- Output

FileHandle MemoryDisk::OpenOutput(const std::string& path)
{
    NodePtr node;
    int code = Enter("OpenOutput", path);
    if (code == diskOk)
        code = FindOutput(Through(path), node);
    if (!Report(code))
        return noFile;
    outputs_[++lastFile_] = {Through(path), ""};
    return lastFile_;
}

// What the links at the end of a path lead to, which need not be there.
std::string MemoryDisk::Through(std::string path) const
{
    constexpr int mostLinks = 40;
    NodePtr node;
    for (int link = 0; link < mostLinks && Lookup(path, node) == diskOk && node->IsLink(); ++link)
        path = node->LinkTo;
    return path;
}

// The file to be replaced; null where there is none yet.
int MemoryDisk::FindOutput(const std::string& path, NodePtr& node) const
{
    if (const int code = RefusedName(path))
        return code;
    const int code = Lookup(path, node);
    if (code == diskOk)
        return RefusedOpen(*node, OpenMode::ReadWrite);
    if (code == diskMissing && tree_.Locate(path).Folder->Locked)
        return diskDenied;
    return code == diskMissing ? diskOk : code;
}

// The output behind the handle; null when the call is to fail, which is then
// reported and spoils the file.
MemoryDisk::Output* MemoryDisk::EnterOutput(const std::string& call, FileHandle file)
{
    const auto found = outputs_.find(file);
    const bool isKnown = found != outputs_.end();
    int code = Enter(call, isKnown ? found->second.Path : "");
    if (isKnown && code != diskOk)
        found->second.Failed = true;
    if (code == diskOk && !isKnown)
        code = CodeOf(badHandle.Windows, badHandle.Posix);
    return Report(code) ? &found->second : nullptr;
}

bool MemoryDisk::WriteOutput(FileHandle file, std::string_view bytes)
{
    Output* const output = EnterOutput("WriteOutput", file);
    if (output)
        output->Bytes += bytes;
    return output && !output->Failed;
}

bool MemoryDisk::CloseOutput(FileHandle file)
{
    Output* const open = EnterOutput("CloseOutput", file);
    const Output output = open ? *open : Output();
    outputs_.erase(file);
    NodePtr node;
    if (!open || output.Failed || !Report(FindOutput(output.Path, node)))
        return false;
    if (!node)
        node = MakeEntry(output.Path);
    node->Content = output.Bytes;
    node->Size = output.Bytes.size();
    return true;
}

// -- Local time

bool MemoryDisk::LocalSystemTimeToFileTime(const SystemTime& time, FileTime& out)
{
    int code = Enter("LocalSystemTimeToFileTime");
    FileTime local;
    if (code == diskOk && !IsMoment(time, local))
        code = CodeOf(badParameter.Windows, badParameter.Posix);
    const FileTime moment{local.Ticks - zoneMinutes_ * ticksPerMinute};
    if (code == diskOk && moment.Ticks <= 0)
        code = CodeOf(badParameter.Windows, badParameter.Posix);
    if (Report(code))
        out = moment;
    return code == diskOk;
}

} // namespace tavo
