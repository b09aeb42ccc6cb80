#pragma once

#include "platform/files.h"
#include "platform/posix/content_disk.h"
#include "platform/posix/entry_times.h"

#include <optional>
#include <vector>

namespace tavo {

// The files that are open, by their handles. All calls give 0 or the system's
// error number: EBADF for a handle that is none or was opened for something
// else.
//
// Read and ReadWrite open content, and so follow links; Times opens the entry,
// a link as itself.
class OpenFiles {
public:
    OpenFiles(EntryDisk& entries, ContentDisk& contents) : entries_(entries), contents_(contents) {}

    int Open(const std::string& path, OpenMode mode, FileHandle& file);
    int Close(FileHandle file);
    int SetTimes(FileHandle file, const EntryTimes& times);
    int Length(FileHandle file, std::uint64_t& length);
    int Read(FileHandle file, std::uint64_t offset, std::size_t count, std::string& bytes);
    int Write(FileHandle file, std::uint64_t offset, std::string_view bytes);

private:
    struct Opened {
        FileHandle Handle = noFile;
        Descriptor File;
        OpenMode Mode = OpenMode::Read;
        // Since it was opened; only until it is asked for, as others may write.
        std::optional<std::uint64_t> Length = {};
        KnownBytes Bytes = {}; // last read, until something is written
    };
    Opened* Find(FileHandle file);
    Opened* Find(FileHandle file, bool forTimes);

    EntryDisk& entries_;
    ContentDisk& contents_;
    std::vector<Opened> files_; // few at a time
    FileHandle last_ = noFile;
};

} // namespace tavo
