#include "platform/posix/open_files.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <utility>

namespace tavo {

namespace {

// What is read to be changed is small; of more no copy is kept.
constexpr std::size_t mostKnownBytes = 4096;

} // namespace

int OpenFiles::Open(const std::string& path, OpenMode mode, FileHandle& file)
{
    using Access = ContentDisk::Access;
    file = noFile;
    Opened opened;
    opened.Mode = mode;
    const Access access = mode == OpenMode::Read ? Access::Read : Access::ReadWrite;
    const int error = mode == OpenMode::Times ? entries_.Open(path, opened.File)
                                              : OpenContent(contents_, path, access, opened.File,
                                                            opened.Length.emplace());
    if (error != 0)
        return error;
    do
        last_ = last_ == std::numeric_limits<FileHandle>::max() ? 1 : last_ + 1;
    while (Find(last_));
    file = opened.Handle = last_;
    files_.push_back(std::move(opened));
    return 0;
}

OpenFiles::Opened* OpenFiles::Find(FileHandle file)
{
    const auto found = std::ranges::find(files_, file, &Opened::Handle);
    return found == files_.end() ? nullptr : &*found;
}

OpenFiles::Opened* OpenFiles::Find(FileHandle file, bool forTimes)
{
    Opened* const opened = Find(file);
    return opened && forTimes == (opened->Mode == OpenMode::Times) ? opened : nullptr;
}

int OpenFiles::Close(FileHandle file)
{
    Opened* const opened = Find(file);
    if (!opened)
        return EBADF;
    std::swap(*opened, files_.back());
    files_.pop_back();
    return 0;
}

int OpenFiles::SetTimes(FileHandle file, const EntryTimes& times)
{
    Opened* const opened = Find(file, true);
    return opened ? SetEntryTimes(entries_, opened->File, times) : EBADF;
}

int OpenFiles::Length(FileHandle file, std::uint64_t& length)
{
    Opened* const opened = Find(file, false);
    if (!opened)
        return EBADF;
    if (const auto known = std::exchange(opened->Length, std::nullopt)) {
        length = *known;
        return 0;
    }
    ContentDisk::State state;
    const int error = contents_.Look(opened->File, state);
    length = state.Length;
    return error;
}

int OpenFiles::Read(FileHandle file, std::uint64_t offset, std::size_t count, std::string& bytes)
{
    Opened* const opened = Find(file, false);
    if (!opened)
        return EBADF;
    opened->Bytes = {};
    const int error = ReadContent(contents_, opened->File, offset, count, bytes);
    if (error == 0 && opened->Mode == OpenMode::ReadWrite && bytes.size() <= mostKnownBytes)
        opened->Bytes = {offset, bytes};
    return error;
}

int OpenFiles::Write(FileHandle file, std::uint64_t offset, std::string_view bytes)
{
    Opened* const opened = Find(file, false);
    if (!opened || opened->Mode != OpenMode::ReadWrite)
        return EBADF;
    opened->Length.reset();
    const KnownBytes known = std::exchange(opened->Bytes, {});
    return WriteContent(contents_, opened->File, offset, bytes, known);
}

} // namespace tavo
