#pragma once

#include "platform/posix/entry_disk.h"
#include "support/faulty_disk_calls.h"

namespace tavo {

// The system's disk for attributes and times, with faults on demand.
class FaultyEntryDisk : public EntryDisk {
public:
    FaultyCalls Faults;
    // Entries look as if the disk knew no birth times.
    bool HidesBirth = false;
    // The disk takes any mode and keeps none.
    bool LosesModes = false;
    // The attribute byte of a FAT disk, which keeps no extended attributes;
    // none for the disk as it is.
    std::optional<std::uint32_t> Fat;
    std::optional<std::uint32_t> Mask; // instead of the user's own

    int Open(const std::string& path, Descriptor& entry) override;
    int OpenFile(const std::string& path, Descriptor& entry) override;
    int Look(const Descriptor& entry, State& state) override;
    int GetText(const Descriptor& entry, const char* name, std::string& bytes) override;
    int SetText(const Descriptor& entry, const char* name, const std::string& bytes) override;
    int RemoveText(const Descriptor& entry, const char* name) override;
    int SetMode(const Descriptor& entry, std::uint32_t mode) override;
    int SetTimes(const Descriptor& entry, FileTime accessed, FileTime written) override;
    int Look(const std::string& path, State& state) override;
    int GetText(const std::string& path, const char* name, std::string& bytes) override;
    int SetText(const std::string& path, const char* name, const std::string& bytes) override;
    int RemoveText(const std::string& path, const char* name) override;
    int SetTimes(const std::string& path, FileTime accessed, FileTime written) override;
    int GetFat(const Descriptor& entry, std::uint32_t& attributes) override;
    int SetFat(const Descriptor& entry, std::uint32_t attributes) override;
    std::uint32_t UserMask() override;

private:
    std::unique_ptr<EntryDisk> system_ = SystemEntryDisk();
};

} // namespace tavo
