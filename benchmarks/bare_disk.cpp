#include "bare_disk.h"

#include "measure.h"

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace tavo::bench {

namespace {

constexpr unsigned wanted =
    STATX_TYPE | STATX_MODE | STATX_SIZE | STATX_ATIME | STATX_MTIME | STATX_BTIME;

int WalkAt(int parent, const char* name)
{
    const int folder = openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    Require(folder >= 0, std::string("cannot open ") + name);
    DIR* listing = fdopendir(folder);
    Require(listing != nullptr, std::string("cannot read ") + name);
    int count = 0;
    while (const dirent* entry = readdir(listing)) {
        if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0)
            continue;
        struct statx data;
        Require(statx(folder, entry->d_name, AT_SYMLINK_NOFOLLOW, wanted, &data) == 0,
                std::string("cannot look at ") + entry->d_name);
        ++count;
        if (S_ISDIR(data.stx_mode))
            count += WalkAt(folder, entry->d_name);
    }
    closedir(listing);
    return count;
}

} // namespace

int Bare_Walk(const std::string& folder)
{
    return WalkAt(AT_FDCWD, folder.c_str());
}

void Bare_Rename(const std::string& folder, std::vector<std::string>& names,
                 const std::vector<std::string>& newNames)
{
    std::string from, to;
    for (std::size_t index = 0; index < names.size(); ++index) {
        from.assign(folder).append(names[index]);
        to.assign(folder).append(newNames[index]);
        struct statx data;
        Require(statx(AT_FDCWD, from.c_str(), AT_SYMLINK_NOFOLLOW, wanted, &data) == 0,
                "cannot look at " + from);
        Require(renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0,
                "cannot rename " + from);
    }
    names = newNames;
}

void Files_Make(const std::string& folder, const std::vector<std::string>& names)
{
    for (const std::string& name : names) {
        const int file =
            open((folder + name).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
        Require(file >= 0, "cannot make " + folder + name);
        close(file);
    }
}

void Folder_Make(const std::string& folder)
{
    Require(mkdir(folder.c_str(), 0755) == 0, "cannot make " + folder);
}

void Folder_Remove(const std::string& folder)
{
    std::error_code error;
    std::filesystem::remove_all(folder, error);
    Require(!error, "cannot remove " + folder);
}

} // namespace tavo::bench
