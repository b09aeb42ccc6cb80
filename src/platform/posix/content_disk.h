#pragma once

#include "platform/posix/descriptor.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace tavo {

// What reading and writing of bytes asks of the system. Links are followed
// here. Every call gives 0 or the system's error number.
class ContentDisk {
public:
    enum class Access { Read, ReadWrite };
    struct State {
        std::uint32_t Mode = 0; // with the kind of the entry
        std::uint64_t Length = 0;
    };

    virtual ~ContentDisk() = default;

    virtual int Look(const std::string& path, State& state) = 0;
    // Waits for nobody: opening a pipe comes back at once.
    virtual int Open(const std::string& path, Access access, Descriptor& file) = 0;
    virtual int Look(const Descriptor& file, State& state) = 0;
    // At most `count` bytes, and none at the end of the file. Reading and
    // writing may do less than was asked for.
    virtual int Read(const Descriptor& file, std::uint64_t offset, std::size_t count,
                     std::string& bytes) = 0;
    virtual int Write(const Descriptor& file, std::uint64_t offset, std::string_view bytes,
                      std::size_t& written) = 0;
    virtual int Cut(const Descriptor& file, std::uint64_t length) = 0;
};

// The calls of the system itself.
std::unique_ptr<ContentDisk> SystemContentDisk();

// Opens a regular file; what the path names may be a link to one, since the
// bytes are those of what it leads to. A file that nobody may write is not
// opened for writing for anyone. Gives 0 or the system's error number: EISDIR
// for a folder, EINVAL for what else is no regular file, and neither is opened.
// `length` is what the file has then.
int OpenContent(ContentDisk& disk, const std::string& path, ContentDisk::Access access,
                Descriptor& file, std::uint64_t& length);

// `count` bytes from `offset` on, or as many as there are.
int ReadContent(ContentDisk& disk, const Descriptor& file, std::uint64_t offset, std::size_t count,
                std::string& bytes);

// A part of a file as it was last read.
struct KnownBytes {
    std::uint64_t Offset = 0;
    std::string Bytes;
};

// Writes all of the bytes; EINVAL when `offset` lies behind the end. After an
// error the old bytes and the old length are put back; they are not read again
// where they are known.
int WriteContent(ContentDisk& disk, const Descriptor& file, std::uint64_t offset,
                 std::string_view bytes, const KnownBytes& known = {});

} // namespace tavo
