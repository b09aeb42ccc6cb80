#pragma once

#include "platform/posix/rename.h"
#include "platform/posix/transfer_disk.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// What is to happen at the calls of moves, copies and removals, and what has
// happened: one row of calls for the two disks below.
class CallScript {
public:
    // The names of all calls so far.
    std::vector<std::string> Calls;
    // The number of the call, from 1, that fails with this error, or at which
    // the process is killed: before anything is done, or behind it. 0 for none.
    std::size_t FailAt = 0, KillBefore = 0, KillBehind = 0;
    int Error = 0;
    // All calls of this name fail.
    std::string FailAll;
    // A rename from one of these folders to the other one is one to another
    // disk. Both end in a slash.
    std::string OneDisk, OtherDisk;
    // No call copies, reads or writes more bytes than this.
    std::size_t MostBytes = std::string::npos;
    // Leaves out what only a loss of power would show.
    bool IsHasty = true;
    // Called before each call.
    std::function<void(std::string_view name)> Before;

    std::size_t CountOf(std::string_view call) const;
    bool IsAcross(const std::string& from, const std::string& to) const;

    template <typename Call>
    int Do(std::string_view name, Call call);
};

class FaultyRenameDisk : public RenameDisk {
public:
    explicit FaultyRenameDisk(CallScript& script) : script_(script) {}

    int MoveNoReplace(const std::string& from, const std::string& to) override;
    int Move(const std::string& from, const std::string& to) override;
    int Link(const std::string& from, const std::string& to) override;
    int Unlink(const std::string& path) override;
    int Look(const std::string& path, Entry& entry) override;
    int HasName(const std::string& folder, const std::string& name, bool& has) override;

private:
    CallScript& script_;
    std::unique_ptr<RenameDisk> system_ = SystemRenameDisk();
};

class FaultyTransferDisk : public TransferDisk {
public:
    explicit FaultyTransferDisk(CallScript& script) : script_(script) {}

    int OpenFolder(const std::string& path, Descriptor& folder) override;
    int OpenFolder(const Descriptor& above, const std::string& name, Descriptor& folder) override;
    int OpenAbove(const Descriptor& folder, Descriptor& above) override;
    int Look(const Descriptor& open, Entry& entry) override;
    int Look(const Descriptor& folder, const std::string& name, Entry& entry) override;
    int MayChange(const Descriptor& folder) override;
    int List(const Descriptor& folder, std::vector<std::string>& names) override;
    int MakeUnique(std::string& text) override;
    int MakeFolder(const Descriptor& folder, const std::string& name) override;
    int MakeFile(const Descriptor& folder, const std::string& name, Descriptor& file) override;
    int MakeLink(const Descriptor& folder, const std::string& name,
                 const std::string& target) override;
    int ReadLink(const Descriptor& folder, const std::string& name, std::string& target) override;
    int OpenFile(const Descriptor& folder, const std::string& name, Descriptor& file) override;
    int Clone(const Descriptor& from, const Descriptor& to) override;
    int CopyRange(const Descriptor& from, const Descriptor& to, std::uint64_t offset,
                  std::size_t count, std::size_t& copied) override;
    int Read(const Descriptor& file, std::uint64_t offset, std::string& bytes) override;
    int Write(const Descriptor& file, std::uint64_t offset, std::string_view bytes,
              std::size_t& written) override;
    int Close(Descriptor& file) override;
    int ListAttributes(const Descriptor& entry, std::vector<std::string>& names) override;
    int GetAttribute(const Descriptor& entry, const std::string& name, std::string& value) override;
    int SetAttribute(const Descriptor& entry, const std::string& name,
                     std::string_view value) override;
    int GetFat(const Descriptor& entry, std::uint32_t& attributes) override;
    int SetFat(const Descriptor& entry, std::uint32_t attributes) override;
    int SetOwner(const Descriptor& entry, std::uint32_t owner, std::uint32_t group) override;
    int SetMode(const Descriptor& entry, std::uint32_t mode) override;
    int SetTimes(const Descriptor& entry, Stamp accessed, Stamp written) override;
    int SetLinkOwner(const Descriptor& folder, const std::string& name, std::uint32_t owner,
                     std::uint32_t group) override;
    int SetLinkTimes(const Descriptor& folder, const std::string& name, Stamp accessed,
                     Stamp written) override;
    int Sync(const Descriptor& entry) override;
    int SyncAll(const Descriptor& entry) override;
    int Unlink(const Descriptor& folder, const std::string& name) override;
    int RemoveFolder(const Descriptor& folder, const std::string& name) override;

private:
    CallScript& script_;
    std::unique_ptr<TransferDisk> system_ = SystemTransferDisk();
};

} // namespace tavo
