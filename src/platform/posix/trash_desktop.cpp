#include "platform/posix/trash.h"

#include "platform/files.h"
#include "platform/posix/disk_error.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <gio/gio.h>

namespace tavo {

namespace {

template <auto Free>
struct FreedBy {
    template <typename Thing>
    void operator()(Thing* thing) const
    {
        Free(thing);
    }
};
using FileObject = std::unique_ptr<GFile, FreedBy<g_object_unref>>;
using ErrorObject = std::unique_ptr<GError, FreedBy<g_error_free>>;
using SystemText = std::unique_ptr<char, FreedBy<std::free>>;

struct ErrorRow {
    int Library, Code;
};

constexpr ErrorRow errorTable[] = {
    {G_IO_ERROR_NOT_FOUND, diskMissing},
    {G_IO_ERROR_NOT_DIRECTORY, diskMissingFolder},
    {G_IO_ERROR_PERMISSION_DENIED, diskDenied},
    {G_IO_ERROR_READ_ONLY, diskDenied},
    {G_IO_ERROR_BUSY, diskInUse},
    {G_IO_ERROR_EXISTS, diskExists},
    {G_IO_ERROR_FILENAME_TOO_LONG, diskBadName},
    {G_IO_ERROR_INVALID_FILENAME, diskBadName},
    {G_IO_ERROR_NO_SPACE, ownCodeBase + ENOSPC},
    {G_IO_ERROR_NOT_SUPPORTED, ownCodeBase + ENOTSUP},
};

int CodeOf(const GError& error)
{
    for (const ErrorRow& row : errorTable) {
        if (error.domain == G_IO_ERROR && error.code == row.Library)
            return row.Code;
    }
    return ownCodeBase + EIO;
}

class GioTrash : public Trash {
public:
    int Take(const std::string& path) override
    {
        // The library shortens `..` by the text alone, which behind a link
        // would be another folder.
        const SystemText folder(::realpath(FolderPart(path).c_str(), nullptr));
        if (!folder)
            return errno == ENOENT ? diskMissingFolder : DiskCodeOf(errno);
        const std::string full = std::string(folder.get()) + '/' + std::string(NamePart(path));
        // The local file system by itself needs neither a session bus nor the
        // desktop's own modules.
        const FileObject file(g_vfs_get_file_for_path(g_vfs_get_local(), full.c_str()));
        GError* error = nullptr;
        if (g_file_trash(file.get(), nullptr, &error))
            return diskOk;
        return CodeOf(*ErrorObject(error));
    }
};

} // namespace

std::unique_ptr<Trash> DesktopTrash()
{
    return std::make_unique<GioTrash>();
}

} // namespace tavo
