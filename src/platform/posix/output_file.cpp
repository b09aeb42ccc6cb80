#include "platform/posix/output_file.h"

#include "platform/posix/disk_error.h"

#include <cerrno>
#include <optional>
#include <sys/stat.h>

namespace tavo {

namespace {

constexpr std::size_t mostGathered = std::size_t{64} << 10;

// Does the folder refuse to take another file, or to let this one go? The last
// is what the system says of a file that something is mounted on.
bool IsClosedFolder(int error)
{
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY;
}

} // namespace

int OutputFile::Open(const std::string& path)
{
    ContentDisk::State state;
    const int error = contents_.Look(path, state);
    if (error != 0 && error != ENOENT)
        return error;
    isThere_ = error == 0;
    if (isThere_ && S_ISDIR(state.Mode))
        return EISDIR;
    if (isThere_ && !S_ISREG(state.Mode)) {
        way_ = Way::Device;
        return device_.Open(path);
    }
    path_ = path;
    if (const int links = FollowLinks(disk_, path_))
        return links;
    return MakeFile();
}

int OutputFile::MakeFile()
{
    std::optional<EditDisk::Rights> rights;
    if (isThere_) {
        if (const int error = disk_.MayWrite(path_))
            return error;
        if (const int error = disk_.Look(path_, rights.emplace()))
            return error;
    }
    const int error = file_.Make(path_, rights);
    if (!isThere_ || !IsClosedFolder(error))
        return error;
    file_.Remove();
    way_ = Way::Over;
    Descriptor old;
    std::uint64_t length = 0;
    return OpenContent(contents_, path_, ContentDisk::Access::ReadWrite, old, length);
}

int OutputFile::Write(std::string_view bytes)
{
    if (error_ != 0)
        return error_;
    gathered_ += bytes;
    if (way_ != Way::Over && gathered_.size() >= mostGathered)
        Flush();
    return error_;
}

void OutputFile::Flush()
{
    if (error_ == 0)
        error_ = way_ == Way::Device ? device_.Write(gathered_) : file_.Write(gathered_);
    gathered_.clear();
}

int OutputFile::Close()
{
    if (way_ == Way::Over)
        return error_ = WriteOver(gathered_);
    Flush();
    if (error_ == 0 && way_ == Way::Beside)
        error_ = PutInPlace();
    file_.Remove();
    return error_;
}

int OutputFile::PutInPlace()
{
    if (const int error = file_.Sync())
        return error;
    const int error = file_.PutInPlace();
    if (error != 0 && isThere_ && IsClosedFolder(error)) {
        std::string bytes;
        const int readError = disk_.Read(file_.Temporary(), bytes);
        return readError != 0 ? readError : WriteOver(bytes);
    }
    // It is there from now on, whatever comes of its name on the disk.
    Descriptor folder;
    if (error == 0 && disk_.OpenFolder(FolderPart(path_), folder) == 0)
        SyncFolder(disk_, folder);
    return error;
}

int OutputFile::WriteOver(std::string_view bytes)
{
    Descriptor old;
    std::uint64_t length = 0;
    if (const int error =
            OpenContent(contents_, path_, ContentDisk::Access::ReadWrite, old, length))
        return error;
    KnownBytes replaced;
    const bool isShorter = bytes.size() < length;
    if (isShorter)
        if (const int error = ReadContent(contents_, old, 0, bytes.size(), replaced.Bytes))
            return error;
    if (const int error = WriteContent(contents_, old, 0, bytes, replaced))
        return error;
    if (const int error = isShorter ? contents_.Cut(old, bytes.size()) : 0) {
        WriteContent(contents_, old, 0, replaced.Bytes);
        return error;
    }
    return disk_.Sync(old);
}

} // namespace tavo
