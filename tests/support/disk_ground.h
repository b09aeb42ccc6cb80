#pragma once

#include "platform/posix/posix_files.h"
#include "support/list_ground.h"
#include "support/temp_folder.h"

#include <memory>
#include <string>
#include <vector>

namespace tavo {

// The disks that the program is tried on.
enum class Ground { Windows, Linux, CaseBlindStick, RealDisk };

inline constexpr Ground everyGround[] = {Ground::Windows, Ground::Linux, Ground::CaseBlindStick,
                                         Ground::RealDisk};
std::string Ground_Name(Ground kind);

// A program on one of these disks, with an empty rename screen. Paths are
// written with slashes and without a root: "d/a.txt" is C:\d\a.txt, /d/a.txt,
// or a file in a folder of the test. A file's content is its first path as
// written here, so that each file can be told wherever it goes.
class DiskGround {
    std::unique_ptr<MemoryListGround> memory_;
    std::unique_ptr<TempFolder> folder_, app_;
    std::unique_ptr<PosixFiles> files_;
    std::unique_ptr<ListGround> real_;

public:
    explicit DiskGround(Ground kind);
    ~DiskGround();

    const Ground Kind;
    ListGround& G;
    Program& P;
    FrmMain& Main;
    ListView& List;

    // Null on a real disk.
    MemoryDisk* Memory() { return memory_ ? &memory_->Disk : nullptr; }
    const TempFolder* Real() const { return folder_.get(); }

    std::string Full(const std::string& path) const;
    void AddFile(const std::string& path);
    void AddFolder(const std::string& path);
    // A link to an entry that need not exist.
    void AddLink(const std::string& path, const std::string& to);
    void Remove(const std::string& path);
    // Which file lies there now; empty for none.
    std::string ContentOf(const std::string& path) const;
    bool Has(const std::string& path) const;

    // Puts these files on the disk and into the rename list, in this order.
    void Load(const std::vector<std::string>& paths);
    // The same with folders, each with a file "mark" in it.
    void LoadFolders(const std::vector<std::string>& paths);

    // The counter's boxes.
    void SetCounter(const std::string& start, int digits, int style = 1);
    // Runs all rows or the selected ones, asking nothing and leaving the panel
    // at the end. The counts of the panel stand.
    void RunAll();
    void RunSelected(const std::vector<int>& rows);
    // What the panel shows for its three counts, parted by slashes.
    std::string Counts() const;

private:
    void Drop(const std::vector<std::string>& paths);
};

} // namespace tavo
