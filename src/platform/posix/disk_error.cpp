#include "platform/posix/disk_error.h"

#include "platform/files.h"

#include <cerrno>
#include <cstring>
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

std::string ErrorText(int systemError)
{
    if (systemError == 0)
        return {};
    const char* const text = ::strerrordesc_np(systemError);
    return text ? text : "Unknown error " + std::to_string(systemError);
}

int SystemErrorOf(int code)
{
    if (code > ownCodeBase)
        return code - ownCodeBase;
    // What a code stands for by itself is the first row that has it, but a
    // folder that is missing is no file in its place.
    if (code == diskMissingFolder)
        return ENOENT;
    for (const ErrorRow& row : errorTable) {
        if (row.Code == code)
            return row.System;
    }
    return EINVAL;
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

std::string_view WithoutSlashes(std::string_view path)
{
    const std::size_t last = path.find_last_not_of('/');
    return path.substr(0, last == path.npos ? 0 : last + 1);
}

bool IsUsableName(std::string_view name)
{
    constexpr std::size_t longestName = 255;
    return !name.empty() && name.size() <= longestName && name != "." && name != "..";
}

} // namespace tavo
