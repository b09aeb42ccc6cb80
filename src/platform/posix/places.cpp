#include "platform/posix/places.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace tavo {

namespace {

// Here people mount what they plug in or share.
constexpr std::string_view volumeFolders[] = {"/media/", "/run/media/", "/mnt/"};

// Parts of the system, with all below them or alone.
struct SystemMount {
    std::string_view Path;
    bool WithBelow;
};
constexpr SystemMount systemMounts[] = {
    {"/", false},    {"/boot", true}, {"/dev", true},   {"/etc", true}, {"/home", false},
    {"/opt", false}, {"/proc", true}, {"/root", false}, {"/run", true}, {"/snap", true},
    {"/srv", false}, {"/sys", true},  {"/tmp", false},  {"/usr", true}, {"/var", true},
};

// These wait for somebody to look in before they mount anything.
constexpr std::string_view waitingType = "autofs";

bool IsSystem(const std::string& point)
{
    return std::any_of(std::begin(systemMounts), std::end(systemMounts), [&](const auto& row) {
        return point == row.Path
               || (row.WithBelow && point.starts_with(std::string(row.Path) + '/'));
    });
}

bool IsVolume(const Mount& mount)
{
    if (mount.Type == waitingType)
        return false;
    const std::string folder = mount.Point + '/';
    const bool inVolumeFolder =
        std::any_of(std::begin(volumeFolders), std::end(volumeFolders),
                    [&](std::string_view above) { return folder.starts_with(above); });
    if (inVolumeFolder)
        return true;
    // Only Btrfs mounts parts of a disk as a volume of their own.
    const bool wholeDisk = mount.Root == "/" || mount.Type == "btrfs";
    return mount.Source.starts_with("/dev/") && wholeDisk && !IsSystem(mount.Point);
}

std::string FolderFromEnvironment(const char* name)
{
    const char* value = std::getenv(name);
    if (!value || value[0] != '/')
        return {};
    std::string folder = value;
    if (!folder.ends_with('/'))
        folder.push_back('/');
    return folder;
}

} // namespace

std::vector<RootPlace> MountedVolumes(const std::vector<Mount>& mounts)
{
    std::vector<RootPlace> volumes;
    for (const Mount& mount : mounts) {
        if (!IsVolume(mount))
            continue;
        const std::string caption = mount.Point.substr(mount.Point.rfind('/') + 1);
        volumes.push_back({caption, mount.Point + '/'});
    }
    const auto byPath = [](const RootPlace& left, const RootPlace& right) {
        return left.Path < right.Path;
    };
    const auto samePath = [](const RootPlace& left, const RootPlace& right) {
        return left.Path == right.Path;
    };
    std::sort(volumes.begin(), volumes.end(), byPath);
    // What is mounted over another volume hides it.
    volumes.erase(std::unique(volumes.begin(), volumes.end(), samePath), volumes.end());
    return volumes;
}

std::string HomeFolder()
{
    std::string home = FolderFromEnvironment("HOME");
    if (!home.empty())
        return home;
    passwd data{};
    passwd* user = nullptr;
    std::array<char, 16384> text;
    if (getpwuid_r(getuid(), &data, text.data(), text.size(), &user) != 0 || !user)
        return "/";
    home = user->pw_dir;
    if (!home.starts_with('/'))
        return "/";
    return home.ends_with('/') ? home : home + '/';
}

std::string TempFolder()
{
    const std::string folder = FolderFromEnvironment("TMPDIR");
    return folder.empty() ? "/tmp/" : folder;
}

std::string DataHomeFolder()
{
    const std::string data = FolderFromEnvironment("XDG_DATA_HOME");
    return data.empty() ? HomeFolder() + ".local/share/" : data;
}

std::string ConfigHomeFolder()
{
    const std::string config = FolderFromEnvironment("XDG_CONFIG_HOME");
    return config.empty() ? HomeFolder() + ".config/" : config;
}

std::string TrashFolder()
{
    return DataHomeFolder() + "Trash/files/";
}

} // namespace tavo
