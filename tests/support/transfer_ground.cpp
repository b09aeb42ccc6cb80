#include "support/transfer_ground.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tavo {

namespace {

namespace fs = std::filesystem;

// The memory that every Linux has mounted as a disk.
constexpr const char* memoryDisk = "/dev/shm";

std::string MemoryDiskFolder()
{
    return ::access(memoryDisk, W_OK) == 0 ? memoryDisk : "";
}

PosixCalls Calls(CallScript& script, std::vector<std::string>& recycled)
{
    PosixCalls calls;
    calls.Rename = std::make_unique<FaultyRenameDisk>(script);
    calls.Transfer = std::make_unique<FaultyTransferDisk>(script);
    calls.Bin = std::make_unique<ListingTrash>(recycled);
    return calls;
}

std::string AttributesOf(const std::string& path)
{
    std::array<char, 4096> names, value;
    const ssize_t bytes = ::llistxattr(path.c_str(), names.data(), names.size());
    std::vector<std::string> lines;
    for (ssize_t start = 0; start < bytes;) {
        const std::string name = names.data() + start;
        start += static_cast<ssize_t>(name.size()) + 1;
        const ssize_t size = ::lgetxattr(path.c_str(), name.c_str(), value.data(), value.size());
        // Each copy has one of its own, made of the time that it was born.
        if (name.starts_with("user.") && name != "user.tavo.created")
            lines.push_back(name + '=' + std::string(value.data(), static_cast<std::size_t>(size)));
    }
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const std::string& line : lines)
        text += ' ' + line;
    return text;
}

std::string PropertiesOf(const std::string& path)
{
    struct stat data = {};
    ::lstat(path.c_str(), &data);
    return ' ' + std::to_string(data.st_mode & 07777u) + ' ' + std::to_string(data.st_uid) + ' '
           + std::to_string(data.st_mtim.tv_sec) + '.' + std::to_string(data.st_mtim.tv_nsec)
           + AttributesOf(path);
}

std::string ContentOf(const fs::directory_entry& entry)
{
    if (entry.is_symlink())
        return " -> " + fs::read_symlink(entry.path()).string();
    if (entry.is_directory())
        return "/";
    if (!entry.is_regular_file())
        return " (special)";
    std::ifstream file(entry.path(), std::ios::binary);
    return " = " + std::string(std::istreambuf_iterator<char>(file), {});
}

} // namespace

TransferGround::TransferGround(Disks disks)
    : Here("here", disks == Disks::Two ? "" : MemoryDiskFolder()),
      There("there", MemoryDiskFolder()), Files(Calls(Script, Recycled))
{
    Script.OneDisk = Here.Path();
    Script.OtherDisk = There.Path();
}

bool TransferGround::HasTwoDisks() const
{
    struct stat here = {}, there = {};
    return ::stat(Here.Path().c_str(), &here) == 0 && ::stat(There.Path().c_str(), &there) == 0
           && here.st_dev != there.st_dev;
}

int TransferGround::Run(FileOpFunc func, const std::string& from, const std::string& to, int flags)
{
    Script.Calls.clear();
    return Files.SHFileOperationA({func, from, to, flags});
}

std::vector<std::string> Described(const std::string& folder, bool withProperties, bool hidden)
{
    std::vector<std::string> lines;
    for (auto entry = fs::recursive_directory_iterator(folder);
         entry != fs::recursive_directory_iterator(); ++entry) {
        if (!hidden && entry->path().filename().string().starts_with(".tavo-")) {
            entry.disable_recursion_pending();
            continue;
        }
        std::string line = fs::relative(entry->path().parent_path(), folder).string() + '/'
                           + entry->path().filename().string() + ContentOf(*entry);
        if (withProperties)
            line += PropertiesOf(entry->path());
        lines.push_back(std::move(line));
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

} // namespace tavo
