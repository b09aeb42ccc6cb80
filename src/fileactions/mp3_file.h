#pragma once

#include "fileactions/mp3_tag.h"
#include "platform/files.h"

#include <optional>
#include <string>

namespace tavo {

// A music file, open while this lives: for reading and writing, or for
// reading alone where it may not be written.
class MP3File {
public:
    MP3File(Files& files, const std::string& path);
    ~MP3File();
    MP3File(const MP3File&) = delete;
    MP3File& operator=(const MP3File&) = delete;

    bool IsOpen() const { return handle_ != noFile; }
    // `tag` stays as it came when the file can't be read.
    void Read(MP3Tag& tag);
    // Puts the tag behind the end, or over the last 128 bytes (from the front
    // in a shorter file). False when that failed; the file is then what it was.
    bool Write(const MP3Tag& tag, bool append);

private:
    Files& files_;
    FileHandle handle_;
    bool canWrite_;
    std::optional<std::uint64_t> length_; // as it was read
};

// The tag of a file that is only looked at. `tag` stays as it came when the
// file can't be read.
void MP3_Tag_Read(Files& files, const std::string& path, MP3Tag& tag);

} // namespace tavo
