#include "fileactions/mp3_file.h"

#include <utility>

namespace tavo {

namespace {

// Where a tag at the end begins; the front of a file that is shorter.
std::uint64_t Tag_Offset(std::uint64_t length)
{
    return length < mp3TagSize ? 0 : length - mp3TagSize;
}

// Gives the file's length.
std::optional<std::uint64_t> Tag_ReadFrom(Files& files, FileHandle file, MP3Tag& tag)
{
    const auto length = files.FileLength(file);
    if (!length)
        return length;
    if (const auto bytes = files.ReadBytes(file, Tag_Offset(*length), mp3TagSize))
        tag = MP3_Tag_Decode(*bytes);
    return length;
}

} // namespace

MP3File::MP3File(Files& files, const std::string& path)
    : files_(files), handle_(files.OpenFile(path, OpenMode::ReadWrite)),
      canWrite_(handle_ != noFile)
{
    if (!canWrite_)
        handle_ = files_.OpenFile(path, OpenMode::Read);
}

MP3File::~MP3File()
{
    if (IsOpen())
        files_.CloseHandle(handle_);
}

void MP3File::Read(MP3Tag& tag)
{
    if (IsOpen())
        length_ = Tag_ReadFrom(files_, handle_, tag);
}

// A new tag replaces the one that was read, where that was; but nothing that
// came behind the end meanwhile.
bool MP3File::Write(const MP3Tag& tag, bool append)
{
    if (!canWrite_)
        return false;
    auto length = std::exchange(length_, std::nullopt);
    if (!length || append)
        length = files_.FileLength(handle_);
    return length
           && files_.WriteBytes(handle_, append ? *length : Tag_Offset(*length),
                                MP3_Tag_Encode(tag));
}

void MP3_Tag_Read(Files& files, const std::string& path, MP3Tag& tag)
{
    const FileHandle file = files.OpenFile(path, OpenMode::Read);
    if (file == noFile)
        return;
    Tag_ReadFrom(files, file, tag);
    files.CloseHandle(file);
}

} // namespace tavo
