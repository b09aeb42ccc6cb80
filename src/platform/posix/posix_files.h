#pragma once

#include "platform/files.h"
#include "platform/posix/local_clock.h"
#include "platform/posix/mounts.h"
#include "platform/posix/open_files.h"
#include "platform/posix/output_file.h"
#include "platform/posix/rename.h"
#include "platform/posix/search.h"
#include "platform/posix/transfer.h"

#include <map>
#include <memory>

namespace tavo {

// The calls of the system that the disk goes by; those of the system itself
// stand in for what is null.
struct PosixCalls {
    std::unique_ptr<RenameDisk> Rename = nullptr;
    std::unique_ptr<EntryDisk> Entries = nullptr;
    std::unique_ptr<ContentDisk> Contents = nullptr;
    std::unique_ptr<TransferDisk> Transfer = nullptr;
    std::unique_ptr<Trash> Bin = nullptr;
    std::unique_ptr<EditDisk> Edit = nullptr;
};

// The disk of Linux. Paths and names are bytes, and they begin with a slash; a
// path that doesn't is in no folder (code 3). A NUL in a path is a bad name.
//
// A wildcard search gives the names byte by byte in order, `.` and `..` in
// front. It reads no extended attributes, which would cost calls for each file:
// Archive, Hidden, System and a Created that was set come only with Stat and
// with an exact name. A link is listed as the link it is, with attrDirectory
// beside attrReparse when it leads to a folder. A search that has come to its
// end holds nothing, closed or not. The root itself can be asked for (Exists,
// Stat), but as it has no name in a folder no search finds it.
class PosixFiles : public Files {
public:
    explicit PosixFiles(PosixCalls calls = {});

    const PathRules& Rules() const override { return rules_; }

    FindHandle FindFirstFileA(const std::string& pattern, FindData& found) override;
    FindHandle FindFirstFolder(const std::string& pattern, FindData& found) override;
    bool FindNextFileA(FindHandle handle, FindData& found) override;
    void FindClose(FindHandle handle) override;
    int LastError() const override { return lastError_; }

    bool Exists(const std::string& path) override;
    std::optional<FindData> Stat(const std::string& path) override;
    std::optional<FolderId> FolderIdentity(const std::string& path) override;

    int SHFileOperationA(const FileOperation& op) override;

    std::optional<std::string> ReadWhole(const std::string& path, std::uint64_t limit) override;

    // A link has none of the four, and none can be set.
    std::optional<std::uint32_t> GetFileAttributesA(const std::string& path) override;
    bool SetFileAttributesA(const std::string& path, std::uint32_t attributes) override;
    std::string LastErrorText() const override;

    // Read and ReadWrite are for regular files alone and follow links: the
    // bytes are those of what a link leads to, as with all that reads files.
    FileHandle OpenFile(const std::string& path, OpenMode mode) override;
    void CloseHandle(FileHandle file) override;
    bool SetFileTime(FileHandle file, FileTime created, FileTime accessed,
                     FileTime written) override;
    // What StatTimes saw last is what ChangeTimes of the same path goes by.
    std::optional<FindData> StatTimes(const std::string& path) override;
    bool ChangeTimes(const std::string& path, FileTime created, FileTime accessed,
                     FileTime written) override;
    std::optional<std::uint64_t> FileLength(FileHandle file) override;
    std::optional<std::string> ReadBytes(FileHandle file, std::uint64_t offset,
                                         std::size_t count) override;
    bool WriteBytes(FileHandle file, std::uint64_t offset, std::string_view bytes) override;

    // Bytes are gathered, so that a failure may only show with a later call.
    // The handles are none of the calls above.
    FileHandle OpenOutput(const std::string& path) override;
    bool WriteOutput(FileHandle file, std::string_view bytes) override;
    bool CloseOutput(FileHandle file) override;

    bool SendToStands() override;
    void SendToSet(bool on) override;

    bool LocalSystemTimeToFileTime(const SystemTime& time, FileTime& out) override;
    bool FileTimeToLocalSystemTime(FileTime time, SystemTime& out) override;

    std::vector<RootPlace> RootPlaces() override;
    std::vector<ListedFolder> ListFolders(const std::string& folder) override;
    bool IsSlowFolder(const std::string& path) override;
    // With its slash at the end; the Trash need not exist yet.
    std::string SpecialFolderPath(SpecialFolder which) override;

private:
    // Keeps the code and tells whether it is success.
    bool Done(int code)
    {
        lastError_ = code;
        systemError_ = 0;
        return code == diskOk;
    }
    // The same for an error of the system, at the entry of this path or at an
    // open file.
    bool DoneSystem(int error, const std::string& path = {});
    int StatExact(const std::string& path, FindData& found);
    FindHandle FindFirst(const std::string& pattern, ListScope scope, FindData& found);
    FindHandle FindOne(const std::string& path, ListScope scope, FindData& found);
    FindHandle Keep(std::unique_ptr<Search> search);
    void LimitHeldFolders();

    bool LeadsToFolder(const std::string& path, int folder, const char* name,
                       const std::string& slowAbove);

    PathRules rules_ = PosixRules();
    MountTable mounts_;
    LocalClock clock_;
    PosixCalls calls_;
    Renamer renamer_;
    Transfer transfer_;
    OpenFiles openFiles_;
    std::map<FileHandle, std::unique_ptr<OutputFile>> outputs_;
    FileHandle lastOutput_ = noFile; // they count down
    std::string filePath_;           // a file was the last whose attributes were read
    std::string timesPath_;          // of what is in knownTimes_
    std::optional<KnownTimes> knownTimes_;
    std::map<FindHandle, std::unique_ptr<Search>> searches_;
    FindHandle lastHandle_ = invalidFind;
    Search* current_ = nullptr; // the search of currentHandle_
    FindHandle currentHandle_ = invalidFind;
    int lastError_ = diskOk;
    int systemError_ = 0; // what lastError_ stands for, where that is known
};

} // namespace tavo
