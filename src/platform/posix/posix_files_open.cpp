// Attributes, times and bytes: what the disk changes of an entry but its name.

#include "platform/posix/posix_files.h"

#include "platform/posix/attributes.h"
#include "platform/posix/disk_entry.h"
#include "platform/posix/disk_error.h"

#include <cerrno>
#include <fcntl.h>
#include <utility>

namespace tavo {

namespace {

// The calls take a path as it stands, and a slash behind it would lead through
// a link.
int CheckEntryPath(const std::string& path)
{
    if (const int code = CheckPath(path))
        return code;
    return path != "/" && path.ends_with('/') ? MissingCodeOf(path) : diskOk;
}

} // namespace

bool PosixFiles::DoneSystem(int error, const std::string& path)
{
    int code = DiskCodeOf(error);
    if (error == ENOENT && !path.empty())
        code = MissingCodeOf(FolderPart(path));
    // A folder that is to be read as a file, which is no name that is taken.
    if (error == EISDIR)
        code = diskDenied;
    lastError_ = code;
    systemError_ = error;
    return error == 0;
}

std::string PosixFiles::LastErrorText() const
{
    return ErrorText(systemError_ != 0 ? systemError_ : SystemErrorOf(lastError_));
}

std::optional<std::uint32_t> PosixFiles::GetFileAttributesA(const std::string& path)
{
    if (!Done(CheckEntryPath(path)))
        return std::nullopt;
    FindData found;
    bool isFile = false;
    filePath_.clear();
    int error = ReadEntry(AT_FDCWD, path.c_str(), found, &isFile);
    if (error == 0 && (found.Attributes & attrReparse) == 0)
        error = AddStoredAttributes(*calls_.Entries, path, found.Attributes);
    if (!DoneSystem(error, path))
        return std::nullopt;
    if (isFile)
        filePath_ = path;
    return found.Attributes;
}

bool PosixFiles::SetFileAttributesA(const std::string& path, std::uint32_t attributes)
{
    const bool isFile = filePath_ == path;
    filePath_.clear();
    return Done(CheckEntryPath(path))
           && DoneSystem(SetAttributes(*calls_.Entries, path, attributes, isFile), path);
}

FileHandle PosixFiles::OpenFile(const std::string& path, OpenMode mode)
{
    FileHandle file = noFile;
    if (Done(CheckEntryPath(path)))
        DoneSystem(openFiles_.Open(path, mode, file), path);
    return file;
}

void PosixFiles::CloseHandle(FileHandle file)
{
    DoneSystem(openFiles_.Close(file));
}

bool PosixFiles::SetFileTime(FileHandle file, FileTime created, FileTime accessed, FileTime written)
{
    return DoneSystem(openFiles_.SetTimes(file, {created, accessed, written}));
}

std::optional<FindData> PosixFiles::StatTimes(const std::string& path)
{
    knownTimes_.reset();
    if (!Done(CheckEntryPath(path)))
        return std::nullopt;
    EntryTimes times;
    KnownTimes known;
    if (!DoneSystem(GetEntryTimes(*calls_.Entries, path, times, known), path))
        return std::nullopt;
    timesPath_ = path;
    knownTimes_ = std::move(known);
    FindData found;
    found.Created = times.Created;
    found.Accessed = times.Accessed;
    found.Written = times.Written;
    return found;
}

bool PosixFiles::ChangeTimes(const std::string& path, FileTime created, FileTime accessed,
                             FileTime written)
{
    const auto known = std::exchange(knownTimes_, std::nullopt);
    const EntryTimes times = {created, accessed, written};
    if (known && timesPath_ == path && SetKnownTimes(*calls_.Entries, path, times, *known) == 0)
        return Done(diskOk);
    // With the owner's rights, or to tell what is in the way.
    return Files::ChangeTimes(path, created, accessed, written);
}

std::optional<std::uint64_t> PosixFiles::FileLength(FileHandle file)
{
    std::uint64_t length = 0;
    if (!DoneSystem(openFiles_.Length(file, length)))
        return std::nullopt;
    return length;
}

std::optional<std::string> PosixFiles::ReadBytes(FileHandle file, std::uint64_t offset,
                                                 std::size_t count)
{
    std::string bytes;
    if (!DoneSystem(openFiles_.Read(file, offset, count, bytes)))
        return std::nullopt;
    return bytes;
}

bool PosixFiles::WriteBytes(FileHandle file, std::uint64_t offset, std::string_view bytes)
{
    return DoneSystem(openFiles_.Write(file, offset, bytes));
}

FileHandle PosixFiles::OpenOutput(const std::string& path)
{
    if (!Done(CheckEntryPath(path)))
        return noFile;
    auto output = std::make_unique<OutputFile>(*calls_.Edit, *calls_.Contents);
    if (!DoneSystem(output->Open(path), path))
        return noFile;
    outputs_[--lastOutput_] = std::move(output);
    return lastOutput_;
}

bool PosixFiles::WriteOutput(FileHandle file, std::string_view bytes)
{
    const auto output = outputs_.find(file);
    return DoneSystem(output == outputs_.end() ? EBADF : output->second->Write(bytes));
}

bool PosixFiles::CloseOutput(FileHandle file)
{
    const auto output = outputs_.find(file);
    if (output == outputs_.end())
        return DoneSystem(EBADF);
    const int error = output->second->Close();
    outputs_.erase(output);
    return DoneSystem(error);
}

bool PosixFiles::LocalSystemTimeToFileTime(const SystemTime& time, FileTime& out)
{
    return DoneSystem(clock_.FromLocal(time, out) ? 0 : EINVAL);
}

} // namespace tavo
