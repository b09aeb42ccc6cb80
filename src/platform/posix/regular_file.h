#pragma once

#include "platform/posix/descriptor.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace tavo {

// A regular file open for reading, with the size that it had when it was
// opened: what grows behind that is not seen, so that reading has an end.
class RegularFile {
public:
    // None for what is missing, closed to this user or no regular file. Links
    // are followed; a pipe or a device is not even opened, for that may wait
    // or do something. `path` is bytes, of any kind.
    static std::optional<RegularFile> Open(const std::string& path);
    // Takes over a file that somebody else has opened.
    static std::optional<RegularFile> Take(int number);

    std::uint64_t Size() const { return size_; }
    int Number() const { return file_.Number(); }
    // Up to `count` bytes from the place `at`: fewer only where the file ends
    // or cannot be read.
    std::size_t Read(std::uint64_t at, char* bytes, std::size_t count) const;

private:
    RegularFile(Descriptor file, std::uint64_t size) : file_(std::move(file)), size_(size) {}

    Descriptor file_;
    std::uint64_t size_ = 0;
};

} // namespace tavo
