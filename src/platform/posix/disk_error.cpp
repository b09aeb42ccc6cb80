#include "platform/posix/disk_error.h"

#include "platform/files.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace tavo {

namespace {

struct ErrorRow {
    int System, Code;
};

constexpr ErrorRow errorTable[] = {
    {0, diskOk},
    {ENOENT, diskMissing},
    {ENOTDIR, diskMissingFolder},
    {EACCES, diskDenied},
    {EPERM, diskDenied},
    {EROFS, diskDenied},
    {EBUSY, diskInUse},
    {ETXTBSY, diskInUse},
    {EEXIST, diskExists},
    {ENOTEMPTY, diskExists},
    {EISDIR, diskExists},
    {ENAMETOOLONG, diskBadName},
    {EILSEQ, diskBadName},
};

} // namespace

int DiskCodeOf(int systemError)
{
    for (const ErrorRow& row : errorTable) {
        if (row.System == systemError)
            return row.Code;
    }
    return ownCodeBase + systemError;
}

int MissingCodeOf(const std::string& folder)
{
    struct statx data;
    if (statx(AT_FDCWD, folder.c_str(), AT_NO_AUTOMOUNT, STATX_TYPE, &data) == 0)
        return S_ISDIR(data.stx_mode) ? diskMissing : diskMissingFolder;
    return errno == EACCES ? diskDenied : diskMissingFolder;
}

int CheckPath(std::string_view path)
{
    if (path.find('\0') != path.npos)
        return diskBadName;
    return path.starts_with('/') ? diskOk : diskMissingFolder;
}

std::string FolderPart(std::string_view path)
{
    return std::string(path.substr(0, path.rfind('/') + 1));
}

std::string_view NamePart(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

} // namespace tavo
