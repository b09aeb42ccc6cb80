#include "platform/posix/mounts.h"

#include "platform/posix/disk_entry.h"

#include <algorithm>
#include <array>
#include <climits>
#include <fcntl.h>
#include <poll.h>

namespace tavo {

namespace {

constexpr const char* mountFile = "/proc/self/mountinfo";
constexpr std::uint64_t mountFileLimit = 16 << 20;

// Files behind these types come from elsewhere. `fuseblk` is none of them: a
// program that reads a disk of this machine.
constexpr std::string_view slowTypes[] = {
    "9p",    "acfs",  "afs",   "autofs", "beegfs",   "ceph",     "cifs",
    "coda",  "davfs", "drvfs", "fuse",   "gfs2",     "gpfs",     "lustre",
    "ncpfs", "nfs",   "nfs4",  "ocfs2",  "orangefs", "panfs",    "prl_fs",
    "pvfs2", "smb3",  "smbfs", "sshfs",  "vboxsf",   "virtiofs", "vmhgfs",
};
// With the name of the program behind it.
constexpr std::string_view slowPrefix = "fuse.";

// As many as the system itself follows.
constexpr int mostLinks = 40;

std::string_view TakeField(std::string_view& line)
{
    const std::size_t blank = line.find(' ');
    const std::string_view field = line.substr(0, blank);
    line.remove_prefix(blank == line.npos ? line.size() : blank + 1);
    return field;
}

bool IsOctal(char c)
{
    return c >= '0' && c <= '7';
}

// Blanks, tabs, line ends and backslashes stand as `\` and three octal digits.
std::string Unescape(std::string_view field)
{
    std::string text;
    for (std::size_t pos = 0; pos < field.size(); ++pos) {
        const std::string_view digits = field.substr(pos + 1, 3);
        const bool escaped = field[pos] == '\\' && digits.size() == 3
                             && std::all_of(digits.begin(), digits.end(), IsOctal);
        if (!escaped) {
            text.push_back(field[pos]);
            continue;
        }
        const int byte = (digits[0] - '0') * 64 + (digits[1] - '0') * 8 + (digits[2] - '0');
        text.push_back(static_cast<char>(byte));
        pos += digits.size();
    }
    return text;
}

// id parent device root point options [tags...] - type source options
Mount ParseMount(std::string_view line)
{
    Mount mount;
    for (int skipped = 0; skipped < 3; ++skipped)
        TakeField(line);
    mount.Root = TakeField(line);
    mount.Point = Unescape(TakeField(line));
    while (!line.empty() && TakeField(line) != "-") {
    }
    mount.Type = TakeField(line);
    mount.Source = TakeField(line);
    return mount;
}

bool IsSlow(const Mount& mount)
{
    const bool listed =
        std::find(std::begin(slowTypes), std::end(slowTypes), mount.Type) != std::end(slowTypes);
    return mount.Point != "/" && (listed || mount.Type.starts_with(slowPrefix));
}

// What is mounted at this very point. Of several the last one lies on top.
const Mount* MountAt(const std::vector<Mount>& mounts, const std::string& point)
{
    const auto found = std::find_if(mounts.rbegin(), mounts.rend(),
                                    [&](const Mount& mount) { return mount.Point == point; });
    return found == mounts.rend() ? nullptr : &*found;
}

// Puts the parts of a path onto what is still to go, the first one on top.
void PushParts(std::vector<std::string>& parts, std::string_view path)
{
    while (!path.empty()) {
        const std::size_t slash = path.rfind('/');
        const std::size_t start = slash == path.npos ? 0 : slash + 1;
        if (start < path.size() && path.substr(start) != ".")
            parts.emplace_back(path.substr(start));
        path = path.substr(0, slash == path.npos ? 0 : slash);
    }
}

std::string ReadLinkOf(const std::string& path)
{
    std::array<char, PATH_MAX> target;
    const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
    return length > 0 ? std::string(target.data(), static_cast<std::size_t>(length)) : "";
}

} // namespace

std::vector<Mount> ParseMounts(std::string_view mountInfo)
{
    std::vector<Mount> mounts;
    while (!mountInfo.empty()) {
        const std::size_t end = std::min(mountInfo.find('\n'), mountInfo.size());
        Mount mount = ParseMount(mountInfo.substr(0, end));
        mountInfo.remove_prefix(std::min(end + 1, mountInfo.size()));
        if (mount.Point.starts_with('/') && !mount.Type.empty())
            mounts.push_back(std::move(mount));
    }
    return mounts;
}

std::string SlowMountOn(const std::vector<Mount>& mounts, const std::string& path,
                        const LinkReader& readLink)
{
    std::vector<std::string> parts;
    PushParts(parts, path);
    std::string reached; // without links, and without a slash at its end
    int links = 0;
    while (!parts.empty()) {
        const std::string part = std::move(parts.back());
        parts.pop_back();
        if (part == "..") {
            reached.resize(std::min(reached.rfind('/'), reached.size()));
            continue;
        }
        const std::string next = reached + '/' + part;
        const Mount* mount = MountAt(mounts, next);
        if (mount && IsSlow(*mount))
            return mount->Point;
        const std::string target = readLink(next);
        if (target.empty()) {
            reached = next;
            continue;
        }
        if (++links > mostLinks)
            return {};
        if (target.front() == '/')
            reached.clear();
        PushParts(parts, target);
    }
    return {};
}

const std::vector<Mount>& MountTable::Now()
{
    if (watch_.IsOpen() && !HasChanged())
        return mounts_;
    // Watched before it is read, so that no change falls between.
    if (!watch_.IsOpen())
        watch_ = Descriptor(::open(mountFile, O_RDONLY | O_CLOEXEC));
    std::string text;
    if (ReadRegularFile(mountFile, mountFileLimit, text) == 0)
        mounts_ = ParseMounts(text);
    return mounts_;
}

// The system tells of a change once, as an error of the open file.
bool MountTable::HasChanged() const
{
    pollfd watched{watch_.Number(), POLLPRI, 0};
    return ::poll(&watched, 1, 0) > 0 && (watched.revents & (POLLERR | POLLPRI)) != 0;
}

std::string MountTable::SlowMountOn(const std::string& path)
{
    return tavo::SlowMountOn(Now(), path, ReadLinkOf);
}

} // namespace tavo
