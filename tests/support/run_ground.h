#pragma once

#include "support/disk_ground.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tavo {

// One file as a person finds it; times in seconds.
struct FileState {
    std::string Content;
    std::uint32_t Attributes = 0;
    std::int64_t Created = 0, Modified = 0, Accessed = 0;
    friend bool operator==(const FileState&, const FileState&) = default;
};

// All files of a ground, by paths written with slashes and without a root.
using FolderState = std::map<std::string, FileState>;

std::string State_Text(const FolderState& state);
// Puts the times of all files out of a comparison.
FolderState State_WithoutTimes(FolderState state);
FolderState State_WithoutAttributes(FolderState state);

// A program before files of folders "d", "e" and "to", on a disk in memory or
// a real one, which can be emptied and filled again: a program takes longer to
// start than a run over a few rows. Nothing of it asks or waits.
class RunGround {
    std::unique_ptr<MemoryListGround> memory_;
    std::unique_ptr<TempFolder> folder_, app_;
    std::unique_ptr<Files> files_;
    std::unique_ptr<ListGround> real_;

public:
    // On a real disk through these calls, if there are any.
    explicit RunGround(Ground kind, std::unique_ptr<Files> files = nullptr);
    ~RunGround();

    const Ground Kind;
    ListGround& G;
    Program& P;
    FrmMain& Main;
    ListView& List;

    // Null on a real disk.
    MemoryDisk* Memory() { return memory_ ? &memory_->Disk : nullptr; }
    std::string Full(const std::string& path) const;

    // Takes away all files and rows. A real disk has to be a new ground.
    void Clear();
    void AddFile(const std::string& path, const std::string& content);
    void AddFolder(const std::string& path);
    void SetAttributes(const std::string& path, std::uint32_t attributes);
    void SetTimes(const std::string& path, FileTime created, FileTime modified, FileTime accessed);
    // Makes these files the rename list, in this order.
    void Show(const std::vector<std::string>& paths);

    FolderState State();
    // Where a row says that its file is, written as above.
    std::string RowPath(int row) const;
    // The list as lines.
    std::string ListText() const;

    // Runs an action without a question; counts the turns of the pump in it.
    int Act(int action);
    // The same with `step` at the `turn`th turn of it.
    int Act(int action, int turn, const ScriptedDesktop::Step& step);

private:
    void Collect(const std::string& below, FolderState& out);
    FileState StateOf(const std::string& full);
};

} // namespace tavo
