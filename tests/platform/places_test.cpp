#include "platform/posix/places.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tavo {
namespace {

struct MountRow {
    const char* What;
    const char* Line;
    const char* Caption; // empty: it is not shown
    const char* Path;
};

constexpr MountRow mountRows[] = {
    {"the root", "27 1 8:1 / / rw,relatime - ext4 /dev/sda1 rw", "", ""},
    {"a pseudo file system", "22 27 0:21 / /proc rw - proc proc rw", "", ""},
    {"the system's own", "23 27 8:2 / /boot rw - ext4 /dev/sda2 rw", "", ""},
    {"and below it", "24 23 8:3 / /boot/efi rw - vfat /dev/sda3 rw", "", ""},
    {"all homes", "25 27 8:4 / /home rw - ext4 /dev/sda4 rw", "", ""},
    {"a disk in a home", "26 25 8:5 / /home/ann/data rw - ext4 /dev/sdb1 rw", "data",
     "/home/ann/data/"},
    {"a plugged-in stick", "30 27 8:17 / /media/ann/STICK rw shared:7 - vfat /dev/sdc1 rw", "STICK",
     "/media/ann/STICK/"},
    {"several tags", "30 27 8:17 / /run/media/ann/X rw shared:7 master:2 - vfat /dev/sdc1 rw", "X",
     "/run/media/ann/X/"},
    {"a share", "31 27 0:50 / /mnt/nas rw - nfs4 nas:/all rw", "nas", "/mnt/nas/"},
    {"/mnt itself", "31 27 8:33 / /mnt rw - ext4 /dev/sdd1 rw", "mnt", "/mnt/"},
    {"blanks and backslashes", "32 27 8:18 / /media/My\\040Disk\\134 rw - exfat /dev/sdd1 rw",
     "My Disk\\", "/media/My Disk\\/"},
    {"half an escape", "32 27 8:18 / /media/a\\04 rw - exfat /dev/sdd1 rw", "a\\04",
     "/media/a\\04/"},
    {"another disk", "33 27 8:19 / /data rw - xfs /dev/sde1 rw", "data", "/data/"},
    {"a folder mounted twice", "34 27 8:1 /etc/hosts /srv/hosts rw - ext4 /dev/sda1 rw", "", ""},
    {"part of a Btrfs disk", "35 27 0:33 /@photos /photos rw - btrfs /dev/sdf1 rw", "photos",
     "/photos/"},
    {"a snap", "36 27 7:1 / /snap/core/1 ro - squashfs /dev/loop1 ro", "", ""},
    {"what waits to be mounted", "37 27 0:40 / /mnt/auto rw - autofs systemd-1 rw", "", ""},
    {"a user's own files in /run", "38 27 0:41 / /run/user/1000/doc rw - fuse.portal portal rw", "",
     ""},
    {"memory", "39 27 0:42 / /scratch rw - tmpfs tmpfs rw", "", ""},
    {"a broken line", "40 27", "", ""},
};

TEST(Places, Volumes_are_told_by_where_and_what_they_are)
{
    for (const MountRow& row : mountRows) {
        const std::vector<RootPlace> volumes = MountedVolumes(ParseMounts(row.Line));
        if (*row.Path == '\0') {
            EXPECT_TRUE(volumes.empty()) << row.What;
            continue;
        }
        ASSERT_EQ(volumes.size(), 1u) << row.What;
        EXPECT_EQ(volumes[0].Caption, row.Caption) << row.What;
        EXPECT_EQ(volumes[0].Path, row.Path) << row.What;
    }
}

TEST(Places, Volumes_come_by_path_and_each_path_once)
{
    const auto volumes = MountedVolumes(ParseMounts("1 2 8:1 / /mnt/b rw - ext4 /dev/a rw\n"
                                                    "3 2 8:2 / /mnt/a rw - ext4 /dev/b rw\n"
                                                    "4 1 8:3 / /mnt/b rw - ext4 /dev/c rw"));
    ASSERT_EQ(volumes.size(), 2u);
    EXPECT_EQ(volumes[0].Path, "/mnt/a/");
    EXPECT_EQ(volumes[1].Path, "/mnt/b/");
    EXPECT_TRUE(MountedVolumes({}).empty());
}

// Sets a variable of the environment for one test; null takes it away.
class Variable {
public:
    Variable(const char* name, const char* value) : name_(name)
    {
        if (const char* old = std::getenv(name)) {
            had_ = true;
            old_ = old;
        }
        Set(value);
    }
    ~Variable() { Set(had_ ? old_.c_str() : nullptr); }

private:
    void Set(const char* value)
    {
        if (value)
            ::setenv(name_, value, 1);
        else
            ::unsetenv(name_);
    }

    const char* name_;
    bool had_ = false;
    std::string old_;
};

TEST(Places, Special_folders_come_from_the_environment_if_it_names_full_paths)
{
    const Variable home("HOME", "/home/ann"), temp("TMPDIR", "/var/scratch/");
    EXPECT_EQ(HomeFolder(), "/home/ann/");
    EXPECT_EQ(TempFolder(), "/var/scratch/");
    {
        const Variable data("XDG_DATA_HOME", "/data");
        EXPECT_EQ(TrashFolder(), "/data/Trash/files/");
    }
    const Variable data("XDG_DATA_HOME", "relative"), noTemp("TMPDIR", nullptr);
    EXPECT_EQ(TrashFolder(), "/home/ann/.local/share/Trash/files/");
    EXPECT_EQ(TempFolder(), "/tmp/");
}

TEST(Places, Without_HOME_the_list_of_users_tells_the_home)
{
    for (const char* value : {static_cast<const char*>(nullptr), "", "relative"}) {
        const Variable home("HOME", value);
        const std::string folder = HomeFolder();
        EXPECT_TRUE(folder.starts_with('/') && folder.ends_with('/')) << folder;
        EXPECT_EQ(folder.find("relative"), folder.npos);
    }
}

} // namespace
} // namespace tavo
