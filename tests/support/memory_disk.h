#pragma once

#include "platform/files.h"
#include "support/memory_tree.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tavo {

// A disk in memory. Windows: drives, backslashes, names blind to case that keep
// the case they were given, lose dots and blanks at their end and may be no
// device, wildcards honoured by an existence test. Posix: one root, exact
// names that may hold anything but a slash. PosixCaseBlind: the same with names
// blind to case, as on a stick in a Linux machine, of which Rules() says
// nothing. Text is UTF-8 in all of them.
//
// What tests do to the disk (the upper half of the class) is no call of the
// port: it is not counted and cannot fail by a wish.
class MemoryDisk : public Files {
public:
    enum class Flavour { Windows, Posix, PosixCaseBlind };
    explicit MemoryDisk(Flavour flavour = Flavour::Windows);

    // -- What lies on it. Paths are full names. Folders above an entry are
    // made as needed, and so is the entry itself by all that changes one. A
    // path without a root of this disk changes nothing.

    // "D:", or "\\server\share".
    void AddDrive(const std::string& drive);
    void AddFolder(const std::string& path);
    void AddFile(const std::string& path, const std::string& content = "");
    // A link to a full name that need not exist.
    void AddLink(const std::string& path, const std::string& to);
    void Remove(const std::string& path);
    // As another program would, replacing what lies at `to`.
    void MoveEntry(const std::string& from, const std::string& to);

    // Without a trash nothing can be sent there.
    void SetTrash(bool hasTrash) { hasTrash_ = hasTrash; }

    // Size without content behind it.
    void SetSize(const std::string& path, std::uint64_t size);
    void SetAttributes(const std::string& path, std::uint32_t attributes);
    void SetTimes(const std::string& path, FileTime written, FileTime created = {},
                  FileTime accessed = {});
    // Held open by somebody: renaming, moving and deleting fail with 32, and so does opening it for
    // more than reading.
    void SetInUse(const std::string& path, bool inUse = true);
    // A folder whose entries cannot be renamed, moved or deleted, and that takes
    // no new ones: 5.
    void SetLocked(const std::string& folder, bool locked = true);
    // A folder that cannot be listed, a file that cannot be read: 5.
    void SetUnreadable(const std::string& path, bool unreadable = true);

    bool Has(const std::string& path) const;
    std::optional<std::string> Content(const std::string& path) const;
    // The name as stored; empty when there is no such entry.
    std::string StoredName(const std::string& path) const;

    struct Entry {
        std::string Path; // full name; a folder's with its separator
        std::string Content;
        bool Folder = false;
    };
    // All entries but the roots, sorted by `Path`.
    std::vector<Entry> Entries() const;
    // The same as lines: `C:\a\`, `C:\a\x.txt = content`, `C:\a\l -> C:\b`.
    std::vector<std::string> Dump() const;
    // What was sent to the trash, by its names of then, in that order; behind a
    // folder all that is in it.
    std::vector<Entry> Trashed() const;

    // -- What the program does to it.

    // One call of the port. `To` is the second name of an operation that has
    // one. `Nth` counts the calls of this name, this one included.
    struct Call {
        std::string Name, Path, To;
        int Nth = 0;
    };
    using Hook = std::function<void(const Call&)>;
    using Fault = std::function<int(const Call&)>;

    // How often a call was made, by its name: "FindFirstFileA" ...; all calls
    // together without a name. Rules() is a value and LastError() a report, so
    // both are no calls.
    int Calls(const std::string& name = "") const;
    void ForgetCalls();
    // Searches that have been begun and not closed.
    int OpenSearches() const { return static_cast<int>(searches_.size()); }
    // Files that have been opened and not closed.
    int OpenFiles() const { return static_cast<int>(openFiles_.size() + outputs_.size()); }

    // Runs before each call that follows. May change the disk; calls of the
    // port from inside it run no hook and meet no fault.
    void BeforeEach(Hook hook);
    // Runs once, before the `nth` call of that name from now on.
    void Before(const std::string& name, int nth, Hook hook);
    // The `nth` call of that name from now on fails with the code.
    void Fail(const std::string& name, int nth, int code);
    // Asked at each call; any code but 0 makes it fail. A call that gives no
    // code of its own fails as it does otherwise, with the code in LastError.
    void FailWhen(Fault fault);

    // What local time is ahead of UTC, in minutes, at all times of the year.
    void SetZone(int minutes) { zoneMinutes_ = minutes; }
    void SetSpecialFolder(SpecialFolder which, const std::string& path);
    // From here on (a folder, with its separator) all is slow.
    void SetSlow(const std::string& path) { slow_ = path; }

    // Does the program stand in the "Send To" menus of this system?
    bool InSendTo = false;

    // -- The port.

    bool SendToStands() override { return InSendTo; }
    void SendToSet(bool on) override { InSendTo = on; }
    const PathRules& Rules() const override { return rules_; }
    FindHandle FindFirstFileA(const std::string& pattern, FindData& found) override;
    bool FindNextFileA(FindHandle handle, FindData& found) override;
    void FindClose(FindHandle handle) override;
    int LastError() const override { return lastError_; }
    bool Exists(const std::string& path) override;
    std::optional<FindData> Stat(const std::string& path) override;
    std::optional<FolderId> FolderIdentity(const std::string& path) override;
    int SHFileOperationA(const FileOperation& op) override;
    std::optional<std::string> ReadWhole(const std::string& path, std::uint64_t limit) override;

    // Windows opens no folders, nothing Read-Only for more than reading, and
    // for Times no path of 128 characters and more. The others open anything
    // for Times, a link as itself.
    std::optional<std::uint32_t> GetFileAttributesA(const std::string& path) override;
    bool SetFileAttributesA(const std::string& path, std::uint32_t attributes) override;
    std::string LastErrorText() const override;
    FileHandle OpenFile(const std::string& path, OpenMode mode) override;
    void CloseHandle(FileHandle file) override;
    bool SetFileTime(FileHandle file, FileTime created, FileTime accessed,
                     FileTime written) override;
    std::optional<std::uint64_t> FileLength(FileHandle file) override;
    std::optional<std::string> ReadBytes(FileHandle file, std::uint64_t offset,
                                         std::size_t count) override;
    bool WriteBytes(FileHandle file, std::uint64_t offset, std::string_view bytes) override;
    // A link is written through. Nothing Read-Only is replaced, and a locked
    // folder takes no new file.
    FileHandle OpenOutput(const std::string& path) override;
    bool WriteOutput(FileHandle file, std::string_view bytes) override;
    bool CloseOutput(FileHandle file) override;

    bool LocalSystemTimeToFileTime(const SystemTime& time, FileTime& out) override;
    bool FileTimeToLocalSystemTime(FileTime time, SystemTime& out) override;
    std::vector<RootPlace> RootPlaces() override;
    bool IsSlowFolder(const std::string& path) override
    {
        return !slow_.empty() && path.starts_with(slow_);
    }
    std::string SpecialFolderPath(SpecialFolder which) override;

private:
    // The names that a search has still to give. It holds on to the folder, so
    // that a folder removed meanwhile ends the search in peace.
    struct Search {
        std::string Pattern;
        NodePtr Folder;
        std::vector<std::string> Keys;
        std::size_t Next = 0;
    };
    // A file holds on to its entry, which may be renamed or removed meanwhile.
    struct Opened {
        std::string Path;
        NodePtr Node;
        OpenMode Mode = OpenMode::Read;
    };
    // What is written, until it takes its place.
    struct Output {
        std::string Path, Bytes;
        bool Failed = false;
    };
    // What happens once, at a call still to come.
    struct OneTime {
        std::string Name;
        int CallsLeft = 0;
        Fault Run;
    };

    bool IsWindows() const { return rules_.Separator == '\\'; }
    NodePtr MakeEntry(const std::string& path);

    // Counts the call, runs hooks, and gives the code that it is to fail with.
    int Enter(const std::string& name, const std::string& path = "", const std::string& to = "");
    int RunHooks(const Call& call);
    bool Report(int code);
    int CodeOf(int windows, int posix) const { return IsWindows() ? windows : posix; }

    Opened* EnterOpen(const std::string& call, FileHandle file, OpenMode needed);
    int FindToOpen(const std::string& path, OpenMode mode, NodePtr& node) const;
    int RefusedOpen(const MemoryNode& node, OpenMode mode) const;
    std::string Through(std::string path) const;
    int FindOutput(const std::string& path, NodePtr& node) const;
    Output* EnterOutput(const std::string& call, FileHandle file);

    int Begin(const std::string& pattern, Search& search) const;
    int BeginWildcards(const std::string& last, Search& search) const;
    bool Take(Search& search, FindData& found) const;
    int Lookup(const std::string& path, NodePtr& node) const;
    FindData DataOf(const MemoryNode& node) const;
    std::string LastPart(const std::string& path) const;
    bool IsTooLong(const std::string& path) const;

    int Operate(const FileOperation& op);
    int Rename(const std::string& from, const std::string& to);
    int MoveOrCopy(const FileOperation& op);
    int Delete(const FileOperation& op);
    bool IsFolderLike(const NodePtr& node) const;
    int RefusedToGo(const MemoryTree::Place& from, const NodePtr& node) const;
    int RefusedToCopy(const NodePtr& node) const;
    int RefusedName(const std::string& path) const;
    int RefusedPlaces(const MemoryTree::Place& from, const MemoryTree::Place& to) const;
    int RefusedByState(const MemoryTree::Place& from, const MemoryTree::Place& to,
                       const NodePtr& node) const;
    NodePtr ChildOf(const MemoryTree::Place& place) const;
    void Relink(const MemoryTree::Place& from, const MemoryTree::Place& to);
    void Collect(const NodePtr& folder, const std::string& path, std::vector<Entry>& out) const;

    PathRules rules_;
    MemoryTree tree_;
    std::map<FindHandle, Search> searches_;
    FindHandle lastHandle_ = invalidFind;
    std::map<FileHandle, Opened> openFiles_;
    std::map<FileHandle, Output> outputs_;
    FileHandle lastFile_ = noFile;
    int lastError_ = diskOk;
    int zoneMinutes_ = 0;
    std::vector<std::pair<std::string, NodePtr>> trash_;
    bool hasTrash_ = true;
    std::map<SpecialFolder, std::string> specialFolders_;
    std::string slow_;
    std::map<std::string, int> calls_;
    std::vector<Hook> hooks_;
    std::vector<Fault> faults_;
    std::vector<OneTime> oneTimes_;
    bool insideHook_ = false;
};

} // namespace tavo
