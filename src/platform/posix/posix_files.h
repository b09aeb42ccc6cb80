#pragma once

#include "platform/files.h"
#include "platform/posix/local_clock.h"
#include "platform/posix/mounts.h"
#include "platform/posix/rename.h"
#include "platform/posix/search.h"

#include <map>
#include <memory>

namespace tavo {

// The disk of Linux. Paths and names are bytes, and they begin with a slash; a
// path that doesn't is in no folder (code 3). A NUL in a path is a bad name.
//
// A wildcard search gives the names byte by byte in order, `.` and `..` in
// front. It reads no extended attributes, which would cost a call a file:
// Archive, Hidden and System come only with Stat and with an exact name. A
// link is listed as the link it is, with attrDirectory beside attrReparse when
// it leads to a folder. A search that has come to its end holds nothing,
// closed or not. The root itself can be asked for (Exists, Stat), but as it
// has no name in a folder no search finds it.
//
// Of the changing calls this disk knows foRename; the others give
// ownCodeBase + ENOTSUP and change nothing.
class PosixFiles : public Files {
public:
    // Renames by the calls of `disk`; by those of the system when it is null.
    explicit PosixFiles(std::unique_ptr<RenameDisk> disk = nullptr);

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
        return code == diskOk;
    }
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
    std::unique_ptr<RenameDisk> disk_;
    Renamer renamer_;
    std::map<FindHandle, std::unique_ptr<Search>> searches_;
    FindHandle lastHandle_ = invalidFind;
    Search* current_ = nullptr; // the search of currentHandle_
    FindHandle currentHandle_ = invalidFind;
    int lastError_ = diskOk;
};

} // namespace tavo
