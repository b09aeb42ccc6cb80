#pragma once

#include "platform/posix/file_edit.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// The system's disk for the change of files, which writes down its calls and
// can fail, or end the whole process, at any of them.
class FaultyEditDisk : public EditDisk {
public:
    // The names of all calls so far.
    std::vector<std::string> Calls;
    // The number of the call, from 1, that fails with this error, or at which
    // the process is killed: before anything is done, or behind it. 0 for none.
    std::size_t FailAt = 0, KillBefore = 0, KillBehind = 0;
    int Error = 0;
    // All calls of this name fail.
    std::string FailAll;
    // No call writes more bytes than this, as disks may do.
    std::size_t MostWritten = std::string::npos;
    // Leaves out what only a loss of power would show, for tests that save
    // thousands of times.
    bool IsHasty = false;
    // How often a lock was waited for, and what is done instead of waiting.
    int Pauses = 0;
    std::function<void()> Waited;

    std::size_t CountOf(std::string_view call) const;
    // Waits for locks on this folder for as long as it takes: a test that
    // saves all the time on a busy machine must not run out of patience.
    void WaitForEver(const std::string& folder);

    int ReadLink(const std::string& path, std::string& target) override;
    int OpenFolder(const std::string& path, Descriptor& folder) override;
    int Lock(const Descriptor& folder) override;
    void Pause() override;
    int Read(const std::string& path, std::string& bytes) override;
    int Look(const std::string& path, Rights& rights) override;
    int MayWrite(const std::string& path) override;
    int MakeUnique(std::string& text) override;
    int Create(const std::string& path, std::uint32_t mode, Descriptor& file) override;
    int Look(const Descriptor& file, Rights& rights) override;
    int SetOwner(const Descriptor& file, std::uint32_t owner, std::uint32_t group) override;
    int SetMode(const Descriptor& file, std::uint32_t mode) override;
    int Write(const Descriptor& file, std::string_view bytes, std::size_t& written) override;
    int Sync(const Descriptor& entry) override;
    int Move(const std::string& from, const std::string& to) override;
    int Unlink(const std::string& path) override;

private:
    template <typename Call>
    int Do(std::string_view name, Call call);

    std::unique_ptr<EditDisk> system_ = SystemEditDisk();
};

} // namespace tavo
