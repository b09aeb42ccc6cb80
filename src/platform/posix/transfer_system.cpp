#include "platform/posix/entry_disk.h"
#include "platform/posix/transfer_disk.h"
#include "platform/posix/unique_text.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/xattr.h>

namespace tavo {

namespace {

using Stamp = TransferDisk::Stamp;
using Entry = TransferDisk::Entry;
using EntryKind = TransferDisk::EntryKind;

constexpr std::uint32_t modeBits = 07777;
constexpr mode_t ownFolder = 0700, ownFile = 0600;

template <typename Call>
int ErrorOf(Call call)
{
    return WithoutInterrupts(call) == 0 ? 0 : errno;
}

template <typename Call>
int Open(Call call, Descriptor& opened)
{
    opened = Descriptor(WithoutInterrupts(call));
    return opened.IsOpen() ? 0 : errno;
}

// Calls `call()`, which gives a count or -1 and errno.
template <typename Call>
int Count(Call call, std::size_t& count)
{
    const auto result = WithoutInterrupts(call);
    count = result < 0 ? 0 : static_cast<std::size_t>(result);
    return result < 0 ? errno : 0;
}

// Calls `call(bytes, room)` until the room is enough for what it fills in.
template <typename Call>
int Fill(Call call, std::string& bytes)
{
    for (;;) {
        std::size_t size = 0;
        bytes.clear();
        if (const int error = Count([&] { return call(nullptr, 0); }, size))
            return error;
        if (size == 0)
            return 0;
        bytes.resize(size);
        const int error = Count([&] { return call(bytes.data(), bytes.size()); }, size);
        bytes.resize(error == 0 ? size : 0);
        // It has grown since its size was asked for.
        if (error != ERANGE)
            return error;
    }
}

EntryKind KindOf(unsigned mode)
{
    if (S_ISREG(mode))
        return EntryKind::File;
    if (S_ISDIR(mode))
        return EntryKind::Folder;
    return S_ISLNK(mode) ? EntryKind::Link : EntryKind::Other;
}

Stamp StampOf(const struct statx_timestamp& time)
{
    return {time.tv_sec, time.tv_nsec};
}

timespec SpecOf(Stamp stamp)
{
    return {static_cast<time_t>(stamp.Seconds), static_cast<long>(stamp.Nanoseconds)};
}

int LookAt(int folder, const char* name, int flags, Entry& entry)
{
    constexpr unsigned wanted = STATX_BASIC_STATS | STATX_BTIME;
    struct statx data;
    flags |= AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
    if (const int error = ErrorOf([&] { return statx(folder, name, flags, wanted, &data); }))
        return error;
    entry.Kind = KindOf(data.stx_mode);
    entry.Id = {makedev(data.stx_dev_major, data.stx_dev_minor), data.stx_ino};
    entry.IsMount = (data.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
    entry.Size = data.stx_size;
    entry.Owner = data.stx_uid;
    entry.Group = data.stx_gid;
    entry.Mode = data.stx_mode & modeBits;
    entry.Accessed = StampOf(data.stx_atime);
    entry.Written = StampOf(data.stx_mtime);
    entry.Born.reset();
    if ((data.stx_mask & STATX_BTIME) != 0)
        entry.Born = StampOf(data.stx_btime);
    return 0;
}

// A folder that may be passed but not listed can still be worked in.
int OpenForNames(int above, const char* path, Descriptor& folder)
{
    constexpr int flags = O_DIRECTORY | O_CLOEXEC;
    const int error = Open([&] { return ::openat(above, path, flags | O_RDONLY); }, folder);
    if (error != EACCES)
        return error;
    return Open([&] { return ::openat(above, path, flags | O_PATH); }, folder);
}

// Only the owner may ask for the accessed time to stay as it is.
int OpenQuietly(int folder, const char* name, int flags, Descriptor& opened)
{
    flags |= O_RDONLY | O_NOFOLLOW | O_CLOEXEC;
    const int error = Open([&] { return ::openat(folder, name, flags | O_NOATIME); }, opened);
    if (error != EPERM)
        return error;
    return Open([&] { return ::openat(folder, name, flags); }, opened);
}

class SystemCalls : public TransferDisk {
public:
    int OpenFolder(const std::string& path, Descriptor& folder) override
    {
        return OpenForNames(AT_FDCWD, path.c_str(), folder);
    }

    int OpenFolder(const Descriptor& above, const std::string& name, Descriptor& folder) override
    {
        return OpenQuietly(above.Number(), name.c_str(), O_DIRECTORY, folder);
    }

    int OpenAbove(const Descriptor& folder, Descriptor& above) override
    {
        return OpenForNames(folder.Number(), "..", above);
    }

    int Look(const Descriptor& open, Entry& entry) override
    {
        return LookAt(open.Number(), "", AT_EMPTY_PATH, entry);
    }

    int Look(const Descriptor& folder, const std::string& name, Entry& entry) override
    {
        return LookAt(folder.Number(), name.c_str(), 0, entry);
    }

    int MayChange(const Descriptor& folder) override
    {
        return ErrorOf([&] { return ::faccessat(folder.Number(), ".", W_OK | X_OK, AT_EACCESS); });
    }

    int List(const Descriptor& folder, std::vector<std::string>& names) override
    {
        // To close the list closes its descriptor, and the folder stays open.
        Descriptor own;
        if (const int error =
                Open([&] { return ::fcntl(folder.Number(), F_DUPFD_CLOEXEC, 0); }, own))
            return error;
        const std::unique_ptr<DIR, int (*)(DIR*)> list(::fdopendir(own.Number()), ::closedir);
        if (!list)
            return errno;
        own.Release();
        ::rewinddir(list.get());
        names.clear();
        errno = 0;
        while (const dirent* entry = ::readdir(list.get())) {
            const std::string_view name = entry->d_name;
            if (name != "." && name != "..")
                names.emplace_back(name);
        }
        return errno;
    }

    int MakeUnique(std::string& text) override { return MakeUniqueText(text); }

    int MakeFolder(const Descriptor& folder, const std::string& name) override
    {
        return ErrorOf([&] { return ::mkdirat(folder.Number(), name.c_str(), ownFolder); });
    }

    int MakeFile(const Descriptor& folder, const std::string& name, Descriptor& file) override
    {
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        return Open([&] { return ::openat(folder.Number(), name.c_str(), flags, ownFile); }, file);
    }

    int MakeLink(const Descriptor& folder, const std::string& name,
                 const std::string& target) override
    {
        return ErrorOf([&] { return ::symlinkat(target.c_str(), folder.Number(), name.c_str()); });
    }

    int ReadLink(const Descriptor& folder, const std::string& name, std::string& target) override
    {
        target.resize(PATH_MAX);
        std::size_t length = 0;
        const int error = Count(
            [&] {
                return ::readlinkat(folder.Number(), name.c_str(), target.data(), target.size());
            },
            length);
        target.resize(length);
        return error;
    }

    int OpenFile(const Descriptor& folder, const std::string& name, Descriptor& file) override
    {
        // A pipe may have taken the name by now, and nobody may wait for it.
        return OpenQuietly(folder.Number(), name.c_str(), O_NONBLOCK | O_NOCTTY, file);
    }

    int Clone(const Descriptor& from, const Descriptor& to) override
    {
        return ErrorOf([&] { return ::ioctl(to.Number(), FICLONE, from.Number()); });
    }

    int CopyRange(const Descriptor& from, const Descriptor& to, std::uint64_t offset,
                  std::size_t count, std::size_t& copied) override
    {
        off64_t readAt = static_cast<off64_t>(offset), writeAt = readAt;
        return Count(
            [&] {
                return ::copy_file_range(from.Number(), &readAt, to.Number(), &writeAt, count, 0);
            },
            copied);
    }

    int Read(const Descriptor& file, std::uint64_t offset, std::string& bytes) override
    {
        std::size_t count = 0;
        const int error = Count(
            [&] {
                return ::pread(file.Number(), bytes.data(), bytes.size(),
                               static_cast<off_t>(offset));
            },
            count);
        bytes.resize(count);
        return error;
    }

    int Write(const Descriptor& file, std::uint64_t offset, std::string_view bytes,
              std::size_t& written) override
    {
        return Count(
            [&] {
                return ::pwrite(file.Number(), bytes.data(), bytes.size(),
                                static_cast<off_t>(offset));
            },
            written);
    }

    int Close(Descriptor& file) override
    {
        // Interrupted or not, the descriptor is gone and must not be closed again.
        const int result = ::close(file.Release());
        return result == 0 || errno == EINTR ? 0 : errno;
    }

    int ListAttributes(const Descriptor& entry, std::vector<std::string>& names) override
    {
        std::string list;
        names.clear();
        const auto call = [&](char* bytes, std::size_t room) {
            return ::flistxattr(entry.Number(), bytes, room);
        };
        if (const int error = Fill(call, list))
            return error;
        for (std::size_t start = 0; start < list.size();) {
            names.emplace_back(list.c_str() + start);
            start += names.back().size() + 1;
        }
        return 0;
    }

    int GetAttribute(const Descriptor& entry, const std::string& name, std::string& value) override
    {
        const auto call = [&](char* bytes, std::size_t room) {
            return ::fgetxattr(entry.Number(), name.c_str(), bytes, room);
        };
        return Fill(call, value);
    }

    int SetAttribute(const Descriptor& entry, const std::string& name,
                     std::string_view value) override
    {
        return ErrorOf([&] {
            return ::fsetxattr(entry.Number(), name.c_str(), value.data(), value.size(), 0);
        });
    }

    int GetFat(const Descriptor& entry, std::uint32_t& attributes) override
    {
        return entries_->GetFat(entry, attributes);
    }

    int SetFat(const Descriptor& entry, std::uint32_t attributes) override
    {
        return entries_->SetFat(entry, attributes);
    }

    int SetOwner(const Descriptor& entry, std::uint32_t owner, std::uint32_t group) override
    {
        return ErrorOf([&] { return ::fchown(entry.Number(), owner, group); });
    }

    int SetMode(const Descriptor& entry, std::uint32_t mode) override
    {
        return ErrorOf([&] { return ::fchmod(entry.Number(), mode); });
    }

    int SetTimes(const Descriptor& entry, Stamp accessed, Stamp written) override
    {
        const timespec times[] = {SpecOf(accessed), SpecOf(written)};
        return ErrorOf([&] { return ::futimens(entry.Number(), times); });
    }

    int SetLinkOwner(const Descriptor& folder, const std::string& name, std::uint32_t owner,
                     std::uint32_t group) override
    {
        return ErrorOf([&] {
            return ::fchownat(folder.Number(), name.c_str(), owner, group, AT_SYMLINK_NOFOLLOW);
        });
    }

    int SetLinkTimes(const Descriptor& folder, const std::string& name, Stamp accessed,
                     Stamp written) override
    {
        const timespec times[] = {SpecOf(accessed), SpecOf(written)};
        return ErrorOf(
            [&] { return ::utimensat(folder.Number(), name.c_str(), times, AT_SYMLINK_NOFOLLOW); });
    }

    int Sync(const Descriptor& entry) override
    {
        return ErrorOf([&] { return ::fsync(entry.Number()); });
    }

    int SyncAll(const Descriptor& entry) override
    {
        return ErrorOf([&] { return ::syncfs(entry.Number()); });
    }

    int Unlink(const Descriptor& folder, const std::string& name) override
    {
        return ErrorOf([&] { return ::unlinkat(folder.Number(), name.c_str(), 0); });
    }

    int RemoveFolder(const Descriptor& folder, const std::string& name) override
    {
        return ErrorOf([&] { return ::unlinkat(folder.Number(), name.c_str(), AT_REMOVEDIR); });
    }

private:
    std::unique_ptr<EntryDisk> entries_ = SystemEntryDisk();
};

} // namespace

std::unique_ptr<TransferDisk> SystemTransferDisk()
{
    return std::make_unique<SystemCalls>();
}

} // namespace tavo
