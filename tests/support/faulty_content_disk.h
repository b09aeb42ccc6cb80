#pragma once

#include "platform/posix/content_disk.h"
#include "support/faulty_disk_calls.h"

#include <limits>

namespace tavo {

// The system's disk for reading and writing bytes, with faults on demand.
class FaultyContentDisk : public ContentDisk {
public:
    FaultyCalls Faults;
    // No call reads or writes more bytes than this, as disks may do.
    std::size_t MostBytes = std::string::npos;
    // The disk is full: no file grows beyond this length.
    std::uint64_t LongestFile = std::numeric_limits<std::uint64_t>::max();

    int Look(const std::string& path, State& state) override;
    int Open(const std::string& path, Access access, Descriptor& file) override;
    int Look(const Descriptor& file, State& state) override;
    int Read(const Descriptor& file, std::uint64_t offset, std::size_t count,
             std::string& bytes) override;
    int Write(const Descriptor& file, std::uint64_t offset, std::string_view bytes,
              std::size_t& written) override;
    int Cut(const Descriptor& file, std::uint64_t length) override;

private:
    std::unique_ptr<ContentDisk> system_ = SystemContentDisk();
};

} // namespace tavo
