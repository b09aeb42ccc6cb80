#include "platform/posix/open_files.h"

#include <cerrno>
#include <limits>

namespace tavo {

int OpenFiles::Open(const std::string& path, OpenMode mode, FileHandle& file)
{
    using Access = ContentDisk::Access;
    file = noFile;
    Opened opened{{}, mode};
    const int error =
        mode == OpenMode::Times
            ? entries_.Open(path, opened.File)
            : OpenContent(contents_, path,
                          mode == OpenMode::Read ? Access::Read : Access::ReadWrite, opened.File);
    if (error != 0)
        return error;
    do
        last_ = last_ == std::numeric_limits<FileHandle>::max() ? 1 : last_ + 1;
    while (files_.contains(last_));
    file = last_;
    files_.emplace(file, std::move(opened));
    return 0;
}

const OpenFiles::Opened* OpenFiles::Find(FileHandle file, bool forTimes) const
{
    const auto found = files_.find(file);
    const bool fits = found != files_.end() && forTimes == (found->second.Mode == OpenMode::Times);
    return fits ? &found->second : nullptr;
}

int OpenFiles::Close(FileHandle file)
{
    return files_.erase(file) == 1 ? 0 : EBADF;
}

int OpenFiles::SetTimes(FileHandle file, const EntryTimes& times)
{
    const Opened* const opened = Find(file, true);
    return opened ? SetEntryTimes(entries_, opened->File, times) : EBADF;
}

int OpenFiles::Length(FileHandle file, std::uint64_t& length)
{
    const Opened* const opened = Find(file, false);
    if (!opened)
        return EBADF;
    ContentDisk::State state;
    const int error = contents_.Look(opened->File, state);
    length = state.Length;
    return error;
}

int OpenFiles::Read(FileHandle file, std::uint64_t offset, std::size_t count, std::string& bytes)
{
    const Opened* const opened = Find(file, false);
    return opened ? ReadContent(contents_, opened->File, offset, count, bytes) : EBADF;
}

int OpenFiles::Write(FileHandle file, std::uint64_t offset, std::string_view bytes)
{
    const Opened* const opened = Find(file, false);
    if (!opened || opened->Mode != OpenMode::ReadWrite)
        return EBADF;
    return WriteContent(contents_, opened->File, offset, bytes);
}

} // namespace tavo
