#pragma once

#include "platform/path_rules.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// A moment in UTC: hundreds of nanoseconds since 1601-01-01. 0 is "none".
struct FileTime {
    std::int64_t Ticks = 0;
    friend bool operator==(const FileTime&, const FileTime&) = default;
};

// A moment taken apart. Month and Day count from 1, DayOfWeek from Sunday = 0.
struct SystemTime {
    int Year = 0, Month = 0, DayOfWeek = 0, Day = 0;
    int Hour = 0, Minute = 0, Second = 0, Milliseconds = 0;
    friend bool operator==(const SystemTime&, const SystemTime&) = default;
};

enum FileAttribute : std::uint32_t {
    attrReadOnly = 1,
    attrHidden = 2,
    attrSystem = 4,
    attrDirectory = 16,
    attrArchive = 32,
    attrReparse = 1024, // a link; with attrDirectory: a link to a folder
};

// One entry of a folder. `Size` is in bytes. `Name` is the stored name without
// the folder, byte for byte as the disk keeps it.
struct FindData {
    std::uint32_t Attributes = 0;
    FileTime Created, Accessed, Written;
    std::uint64_t Size = 0;
    std::string Name;
};

// An open search. 0 is no search.
using FindHandle = std::uint32_t;
inline constexpr FindHandle invalidFind = 0;

// An open file. 0 is no file.
using FileHandle = std::int32_t;
inline constexpr FileHandle noFile = 0;

// What a file is opened for. Times can be set also where the content may not
// be written.
enum class OpenMode { Read, ReadWrite, Times };

// Codes that the disk calls give; 0 is success. Anything the platform knows
// beyond these is its own number above 2000.
enum DiskCode : int {
    diskOk = 0,
    diskMissing = 2,
    diskMissingFolder = 3,
    diskDenied = 5,
    diskNoMoreFiles = 18,
    diskInUse = 32,
    diskBadName = 123,
    diskExists = 183,
};

enum FileOpFunc { foMove = 1, foCopy = 2, foDelete = 3, foRename = 4 };
// FOF_SILENT + FOF_NOCONFIRMATION, and the same with FOF_ALLOWUNDO.
inline constexpr int fofQuiet = 20;
inline constexpr int fofQuietRecycle = 84;

// One disk operation on one path. `To` is empty for foDelete.
struct FileOperation {
    FileOpFunc Func = foRename;
    std::string From, To;
    int Flags = fofQuiet;
};

enum class SpecialFolder { Home, Temp, Trash };

// A place that the folder tree shows at its top.
struct RootPlace {
    std::string Caption; // what the tree shows, such as "Home"
    std::string Path;    // the folder, with its separator at the end
};

// A folder in another one, as the folder tree lists it.
struct ListedFolder {
    std::string Name;
    bool Hidden = false;
    friend bool operator==(const ListedFolder&, const ListedFolder&) = default;
};

// What two paths have in common when they are one folder on disk.
struct FolderId {
    std::uint64_t Device = 0, Node = 0;
    friend bool operator==(const FolderId&, const FolderId&) = default;
};

// The port to the disk. Every call takes full paths. No call throws, and none
// but FindFirstFileA ever takes `*` or `?` for a wildcard.
class Files {
public:
    virtual ~Files() = default;

    virtual const PathRules& Rules() const = 0;

    // Starts a search. Behind the last separator of `pattern` stands a name,
    // or a pattern with wildcards (see pattern.h). Gives the first entry in
    // `found` and a handle, or invalidFind with the reason in LastError: 2 no
    // such entry, 3 no such folder, 5 not readable. A name without wildcards is
    // looked up as the disk does it; one with them is always a pattern here,
    // also where an entry of that very name exists (Exists and Stat look that
    // up). Entries come in the order of their names. An entry that vanishes between
    // listing and reading is passed over.
    virtual FindHandle FindFirstFileA(const std::string& pattern, FindData& found) = 0;
    // The same search, for folders (and links to folders) alone. A disk that
    // can tell them by less than reading every entry does so; by itself it is
    // FindFirstFileA, and the caller looks at the attributes in any case.
    virtual FindHandle FindFirstFolder(const std::string& pattern, FindData& found)
    {
        return FindFirstFileA(pattern, found);
    }
    // The next entry; false at the end (LastError 18) or for a bad handle.
    virtual bool FindNextFileA(FindHandle handle, FindData& found) = 0;
    virtual void FindClose(FindHandle handle) = 0;
    // The code of the last call that failed; 0 after one that succeeded.
    virtual int LastError() const = 0;

    // Is there an entry of exactly this name (a link counts as itself)? On a
    // disk whose names may not hold wildcards, they are honoured here.
    virtual bool Exists(const std::string& path) = 0;
    // The data of one entry by its full name, without any wildcard meaning.
    virtual std::optional<FindData> Stat(const std::string& path) = 0;
    // Which folder this is, for seeing that two paths lead to the same one.
    // None when it is no folder or cannot be reached.
    virtual std::optional<FolderId> FolderIdentity(const std::string& path) = 0;

    // Renames, moves, copies or deletes one path; gives a DiskCode. foRename
    // never replaces: an existing target of another file gives diskExists,
    // in one atomic step wherever the disk has one. A change of case alone
    // works on disks that are blind to case.
    //
    // foMove and foCopy take a full target name and do not replace it either.
    // A `To` that ends in the separator is a folder to put the entry into under
    // its own name: there alone a file of that name is replaced, and where that
    // is the very file, nothing happens. Folders go with all that is in them.
    // What fails leaves the source whole and nothing half done at the target.
    //
    // foDelete deletes for good, or with fofQuietRecycle sends to the trash;
    // where there is none that fails, and the entry stays.
    virtual int SHFileOperationA(const FileOperation& op) = 0;

    // The whole of a file; none when it cannot be read or is larger than
    // `limit` bytes.
    virtual std::optional<std::string> ReadWhole(const std::string& path, std::uint64_t limit) = 0;

    // Archive, Read-Only, Hidden, System and Directory (16) of one entry, a
    // link as itself; none when they cannot be read.
    virtual std::optional<std::uint32_t> GetFileAttributesA(const std::string& path) = 0;
    // Gives the entry exactly those of the four bits that are in `attributes`;
    // other bits are ignored. False when that failed, and then no bit that
    // can be kept has changed.
    virtual bool SetFileAttributesA(const std::string& path, std::uint32_t attributes) = 0;
    // What the system says of the last call that failed, for a user to read.
    virtual std::string LastErrorText() const = 0;

    // Opens a file, or for Times an entry of any kind (a link as itself).
    // noFile when that failed.
    virtual FileHandle OpenFile(const std::string& path, OpenMode mode) = 0;
    virtual void CloseHandle(FileHandle file) = 0;
    // Sets the three times of a file opened for them; a time of 0 is left
    // alone. False when one that was to change could not be set.
    virtual bool SetFileTime(FileHandle file, FileTime created, FileTime accessed,
                             FileTime written) = 0;
    // Reading the times of one entry, and then setting them: as Stat, of which
    // only the times are given, and as OpenFile, SetFileTime and CloseHandle. A
    // disk that can do so by less does it.
    virtual std::optional<FindData> StatTimes(const std::string& path) { return Stat(path); }
    virtual bool ChangeTimes(const std::string& path, FileTime created, FileTime accessed,
                             FileTime written)
    {
        const FileHandle file = OpenFile(path, OpenMode::Times);
        if (file == noFile)
            return false;
        const bool done = SetFileTime(file, created, accessed, written);
        CloseHandle(file);
        return done;
    }
    // In bytes; none when it cannot be told.
    virtual std::optional<std::uint64_t> FileLength(FileHandle file) = 0;
    // `count` bytes from `offset` on, or as many as there are.
    virtual std::optional<std::string> ReadBytes(FileHandle file, std::uint64_t offset,
                                                 std::size_t count) = 0;
    // Writes all of the bytes from `offset` on, which is no greater than the
    // length. When that failed, content and length are what they were.
    virtual bool WriteBytes(FileHandle file, std::uint64_t offset, std::string_view bytes) = 0;

    // A file that is written from its beginning. It takes the place of `path`
    // only when it is closed: one that could not be written whole leaves the
    // old file, or none. Something there that is no file (a device) is written
    // to at once. noFile when it cannot be opened.
    virtual FileHandle OpenOutput(const std::string&) { return noFile; }
    // False when the bytes did not all find room.
    virtual bool WriteOutput(FileHandle, std::string_view) { return false; }
    // False when the file is not whole, and is not there.
    virtual bool CloseOutput(FileHandle) { return false; }

    // The program's entry in the "Send To" menus of the system: does it stand
    // in all of them, and put it there or take it away. Only what is ours is
    // taken away.
    virtual bool SendToStands() { return false; }
    virtual void SendToSet(bool) {}

    // A local time, by the rule that the zone has for that date, to UTC. A
    // time that occurs twice is the first one. False for what is no time; `out`
    // then stays as it was.
    virtual bool LocalSystemTimeToFileTime(const SystemTime& time, FileTime& out) = 0;
    // UTC to the local time of that very moment, taken apart. False when the
    // moment cannot be told; `out` then stays as it was.
    virtual bool FileTimeToLocalSystemTime(FileTime time, SystemTime& out) = 0;

    // The top level of the folder tree, in order.
    virtual std::vector<RootPlace> RootPlaces() = 0;
    // The folders, and links to folders, in this folder (which ends in the
    // separator), without `.` and `..`, in no certain order; none when it
    // cannot be read. Those that are slow by themselves are listed without a
    // look at them, so that one dead server holds nobody up.
    virtual std::vector<ListedFolder> ListFolders(const std::string& folder);
    // May a look into this folder wait for a network or for another program?
    // Told without a look at it.
    virtual bool IsSlowFolder(const std::string&) { return false; }
    virtual std::string SpecialFolderPath(SpecialFolder which) = 0;
};

} // namespace tavo
