#include "support/faulty_content_disk.h"

#include <algorithm>
#include <cerrno>

namespace tavo {

int FaultyContentDisk::Look(const std::string& path, State& state)
{
    return Faults.Do("Look at the path", [&] { return system_->Look(path, state); });
}

int FaultyContentDisk::Open(const std::string& path, Access access, Descriptor& file)
{
    return Faults.Do("Open", [&] { return system_->Open(path, access, file); });
}

int FaultyContentDisk::Look(const Descriptor& file, State& state)
{
    return Faults.Do("Look", [&] { return system_->Look(file, state); });
}

int FaultyContentDisk::Read(const Descriptor& file, std::uint64_t offset, std::size_t count,
                            std::string& bytes)
{
    return Faults.Do(
        "Read", [&] { return system_->Read(file, offset, std::min(count, MostBytes), bytes); });
}

int FaultyContentDisk::Write(const Descriptor& file, std::uint64_t offset, std::string_view bytes,
                             std::size_t& written)
{
    return Faults.Do("Write", [&] {
        if (offset >= LongestFile)
            return ENOSPC;
        const auto room = std::min<std::uint64_t>(LongestFile - offset, MostBytes);
        return system_->Write(file, offset, bytes.substr(0, room), written);
    });
}

int FaultyContentDisk::Cut(const Descriptor& file, std::uint64_t length)
{
    return Faults.Do("Cut", [&] { return system_->Cut(file, length); });
}

} // namespace tavo
