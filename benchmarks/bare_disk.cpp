#include "bare_disk.h"

#include "measure.h"

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <sys/xattr.h>
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
    if (listing == nullptr)
        Fail(std::string("cannot read ") + name);
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

void Bare_Tags(const std::string& folder, const std::vector<std::string>& names,
               const std::string& tag)
{
    std::string path;
    std::vector<char> old(tag.size());
    for (const std::string& name : names) {
        path.assign(folder).append(name);
        const int file = open(path.c_str(), O_RDWR | O_CLOEXEC);
        const auto start = lseek(file, -static_cast<off_t>(tag.size()), SEEK_END);
        const bool isDone = file >= 0 && start >= 0
                            && read(file, old.data(), old.size()) == std::ssize(old)
                            && pwrite(file, tag.data(), tag.size(), start) == std::ssize(tag);
        Require(isDone, "cannot change " + path);
        close(file);
    }
}

void Bare_Times(const std::string& folder, const std::vector<std::string>& names,
                const std::string& created, long seconds)
{
    constexpr const char* stored = "user.tavo.created";
    const timespec times[2] = {{seconds, 0}, {seconds, 0}};
    std::string path;
    for (const std::string& name : names) {
        path.assign(folder).append(name);
        char text[32];
        struct statx data;
        Require(statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, wanted, &data) == 0,
                "cannot look at " + path);
        lgetxattr(path.c_str(), stored, text, sizeof text);
        if (!created.empty())
            Require(lsetxattr(path.c_str(), stored, created.data(), created.size(), 0) == 0,
                    "cannot store a time with " + path);
        Require(utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW) == 0,
                "cannot change the times of " + path);
    }
}

void Bare_Attributes(const std::string& folder, const std::vector<std::string>& names,
                     unsigned mode, const std::string& text)
{
    constexpr const char* stored = "user.DOSATTRIB";
    constexpr unsigned anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    std::string path;
    const auto setMode = [&] { Require(chmod(path.c_str(), mode) == 0, "no mode for " + path); };
    for (const std::string& name : names) {
        path.assign(folder).append(name);
        char old[32];
        struct statx data;
        Require(statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, wanted, &data) == 0,
                "cannot look at " + path);
        lgetxattr(path.c_str(), stored, old, sizeof old);
        // Only root may store a text while nobody may write.
        const bool isOpened = (mode & anyWrite) != 0;
        if (isOpened)
            setMode();
        Require(lsetxattr(path.c_str(), stored, text.data(), text.size(), 0) == 0,
                "cannot store attributes with " + path);
        if (!isOpened)
            setMode();
    }
}

void Files_Make(const std::string& folder, const std::vector<std::string>& names,
                const std::string& content)
{
    for (const std::string& name : names) {
        const int file =
            open((folder + name).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
        Require(file >= 0 && write(file, content.data(), content.size()) == std::ssize(content),
                "cannot make " + folder + name);
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
