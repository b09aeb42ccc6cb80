#include "platform/posix/mounts.h"

#include "platform/posix/posix_files.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <unistd.h>

namespace tavo {
namespace {

TEST(Mounts, A_line_is_taken_apart)
{
    const auto mounts =
        ParseMounts("22 27 0:21 / /proc rw,relatime - proc proc rw\n"
                    "31 27 0:50 /all /mnt/My\\040Files rw shared:7 master:2 - nfs4 nas:/x rw\n");
    ASSERT_EQ(mounts.size(), 2u);
    EXPECT_EQ(mounts[0].Point, "/proc");
    EXPECT_EQ(mounts[0].Type, "proc");
    EXPECT_EQ(mounts[1].Root, "/all");
    EXPECT_EQ(mounts[1].Point, "/mnt/My Files");
    EXPECT_EQ(mounts[1].Type, "nfs4");
    EXPECT_EQ(mounts[1].Source, "nas:/x");
}

TEST(Mounts, Broken_lines_are_passed_over)
{
    for (const char* text : {"", "\n\n", "40 27", "1 2 8:1 / /mnt rw - ", "1 2 8:1 / /mnt rw ext4",
                             "1 2 8:1 / mnt rw - ext4 /dev/sda rw"})
        EXPECT_TRUE(ParseMounts(text).empty()) << text;
    EXPECT_EQ(ParseMounts("40 27\n1 2 8:1 / /a rw - ext4 x rw\n- - -").size(), 1u);
}

struct TypeRow {
    const char* Type;
    bool Slow;
};

constexpr TypeRow typeRows[] = {
    {"nfs", true},
    {"nfs4", true},
    {"cifs", true},
    {"smb3", true},
    {"fuse.sshfs", true},
    {"fuse", true},
    {"fuse.gvfsd-fuse", true},
    {"autofs", true},
    {"davfs", true},
    {"9p", true},
    {"ceph", true},
    {"ext4", false},
    {"fuseblk", false},
    {"vfat", false},
    {"tmpfs", false},
    {"overlay", false},
    {"nfsd", false},
    {"btrfs", false},
};

std::string NoLinks(const std::string&)
{
    return {};
}

TEST(Mounts, What_comes_from_elsewhere_is_slow)
{
    for (const TypeRow& row : typeRows) {
        const auto mounts =
            ParseMounts(std::string("1 2 0:5 / /mnt/x rw - ") + row.Type + " source rw");
        EXPECT_EQ(SlowMountOn(mounts, "/mnt/x/", NoLinks), row.Slow ? "/mnt/x" : "") << row.Type;
    }
}

struct WayRow {
    const char *Path, *Slow;
};

// Links of this disk: a share by a link in a home, and links that lead on.
const std::map<std::string, std::string> links = {
    {"/home/ann/share", "/mnt/nas/ann"},
    {"/home/ann/near", "../bob"},
    {"/home/ann/far", "./near/../ann/share"},
    {"/home/ann/loop", "loop"},
    {"/srv", "mnt"},
};

constexpr WayRow wayRows[] = {
    {"/", ""},
    {"/mnt/", ""},
    {"/mnt/nas", "/mnt/nas"},
    {"/mnt/nas/", "/mnt/nas"},
    {"/mnt/nas/a/b/", "/mnt/nas"},
    {"/mnt/nas2/", ""},
    {"/mnt/nas/../usb/", "/mnt/nas"},
    {"/mnt/./usb/../nas/", "/mnt/nas"},
    {"/../mnt//nas", "/mnt/nas"},
    {"/home/ann/", ""},
    {"/home/ann/share/", "/mnt/nas"},
    {"/home/ann/near/", ""},
    {"/home/ann/far/x/", "/mnt/nas"},
    {"/home/ann/loop/", ""},
    {"/srv/nas/", "/mnt/nas"},
    {"/auto/", ""},
    {"/wait/", "/wait"},
    {"/wait/disk/", "/wait"},
};

TEST(Mounts, A_path_is_slow_where_it_leads_through_a_slow_mount)
{
    const auto mounts = ParseMounts("9 1 0:4 / /mnt/nas rw - nfs nas:/ rw\n" // before its parent
                                    "1 0 0:3 / / rw - 9p root rw\n"
                                    "2 1 8:1 / /mnt/usb rw - vfat /dev/sdb1 rw\n"
                                    "3 1 0:5 / /auto rw - autofs systemd-1 rw\n"
                                    "4 3 8:2 / /auto rw - ext4 /dev/sdc1 rw\n"
                                    "5 1 0:6 / /wait rw - autofs auto.net rw\n"
                                    "6 5 8:3 / /wait/disk rw - ext4 /dev/sdd1 rw\n");
    for (const WayRow& row : wayRows) {
        const auto readLink = [&](const std::string& path) {
            EXPECT_FALSE((path + "/").starts_with("/mnt/nas/")) << row.Path; // it may hang
            const auto link = links.find(path);
            return link == links.end() ? std::string() : link->second;
        };
        EXPECT_EQ(SlowMountOn(mounts, row.Path, readLink), row.Slow) << row.Path;
    }
}

TEST(Mounts, The_table_of_this_machine_has_its_root)
{
    MountTable table;
    const auto mounts = table.Now();
    EXPECT_TRUE(std::any_of(mounts.begin(), mounts.end(),
                            [](const Mount& mount) { return mount.Point == "/"; }));
    EXPECT_EQ(table.Now().size(), mounts.size());
    EXPECT_EQ(table.SlowMountOn("/"), "");
}

TEST(Mounts, The_folders_for_the_tree_are_listed_with_links_to_folders)
{
    TempFolder folder("tree_folders");
    for (const char* name : {"b", ".hidden", "a\xFF"})
        folder.MakeFolder(name);
    folder.Write("file");
    ASSERT_EQ(::symlink("b", folder.Path("link").c_str()), 0);
    ASSERT_EQ(::symlink("file", folder.Path("filelink").c_str()), 0);
    ASSERT_EQ(::symlink("gone", folder.Path("deadlink").c_str()), 0);
    PosixFiles files;
    auto listed = files.ListFolders(folder.Path(""));
    std::sort(listed.begin(), listed.end(),
              [](const auto& left, const auto& right) { return left.Name < right.Name; });
    const std::vector<ListedFolder> expected{
        {".hidden", true}, {"a\xFF", false}, {"b", false}, {"link", false}};
    EXPECT_EQ(listed, expected);
    EXPECT_EQ(files.LastError(), diskOk);
    EXPECT_TRUE(files.ListFolders(folder.Path("gone/")).empty());
    EXPECT_EQ(files.LastError(), diskMissing);
}

} // namespace
} // namespace tavo
