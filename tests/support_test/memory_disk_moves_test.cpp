#include "support/memory_disk.h"

#include "support/memory_clock.h"

#include <gtest/gtest.h>

namespace tavo {

namespace {

using Flavour = MemoryDisk::Flavour;
using Texts = std::vector<std::string>;

int Do(Files& disk, FileOpFunc func, const std::string& from, const std::string& to = "",
       int flags = fofQuiet)
{
    return disk.SHFileOperationA({func, from, to, flags});
}

MemoryDisk WindowsDisk()
{
    MemoryDisk disk;
    disk.AddFile("C:\\a\\x", "1");
    disk.AddFile("C:\\a\\f\\y", "2");
    disk.AddFile("C:\\a\\held", "3");
    disk.SetInUse("C:\\a\\held");
    disk.AddFile("C:\\b\\x", "old");
    disk.AddFile("C:\\b\\f", "file");
    disk.AddFile("C:\\b\\g\\x");
    disk.AddFile("C:\\locked\\z");
    disk.SetLocked("C:\\locked");
    return disk;
}

struct OperationCase {
    const char* What;
    FileOpFunc Func;
    const char *From, *To;
    int Code;
};

} // namespace

TEST(MemoryDiskMoves, What_is_refused_changes_nothing)
{
    const OperationCase cases[] = {
        {"onto a file", foMove, "C:\\a\\x", "C:\\b\\x", 183},
        {"onto a folder", foMove, "C:\\a\\x", "C:\\b\\g", 183},
        {"onto itself", foMove, "C:\\a\\x", "C:\\a\\x", 183},
        {"missing", foMove, "C:\\a\\q", "C:\\b\\q", 1026},
        {"no such folder", foMove, "C:\\q\\q", "C:\\b\\q", 3},
        {"no such target", foMove, "C:\\a\\x", "C:\\q\\x", 3},
        {"no such bare folder", foMove, "C:\\a\\x", "C:\\q\\", 3},
        {"held", foMove, "C:\\a\\held", "C:\\b\\h", 32},
        {"a held one inside", foMove, "C:\\a", "C:\\c", 5},
        {"out of a locked folder", foMove, "C:\\locked\\z", "C:\\b\\z", 5},
        {"into a locked folder", foMove, "C:\\a\\x", "C:\\locked\\x", 5},
        {"a bad character", foMove, "C:\\a\\x", "C:\\b\\x?", 123},
        {"into itself", foMove, "C:\\a", "C:\\a\\f\\a", 87},
        {"a folder onto a file of its name", foMove, "C:\\a\\f", "C:\\b\\", 183},
        {"a file onto a folder of its name", foMove, "C:\\b\\f", "C:\\a\\", 183},
        {"no name", foMove, "", "C:\\b\\x", 5},
        {"no target", foMove, "C:\\a\\x", "", 87},
        {"onto a file", foCopy, "C:\\a\\x", "C:\\b\\x", 183},
        {"onto itself", foCopy, "C:\\a\\x", "C:\\a\\X", 183},
        {"missing", foCopy, "C:\\a\\q", "C:\\b\\q", 1026},
        {"held", foCopy, "C:\\a\\held", "C:\\b\\h", 32},
        {"into itself", foCopy, "C:\\a\\f", "C:\\a\\f\\g", 87},
        {"into a locked folder", foCopy, "C:\\a\\x", "C:\\locked\\", 5},
        {"missing", foDelete, "C:\\a\\q", "", 2},
        {"no such folder", foDelete, "C:\\q\\q", "", 124},
        {"no name", foDelete, "", "", 5},
        {"wildcards are not honoured", foDelete, "C:\\a\\*", "", 123},
        {"held", foDelete, "C:\\a\\held", "", 32},
        {"a held one inside", foDelete, "C:\\a", "", 32},
        {"out of a locked folder", foDelete, "C:\\locked\\z", "", 5},
        {"a locked folder", foDelete, "C:\\locked", "", 5},
        {"a root", foDelete, "C:\\", "", 5},
    };
    MemoryDisk disk = WindowsDisk();
    const Texts before = disk.Dump();
    for (const auto& row : cases) {
        EXPECT_EQ(Do(disk, row.Func, row.From, row.To), row.Code) << row.Func << ' ' << row.What;
        EXPECT_EQ(disk.LastError(), row.Code) << row.What;
        EXPECT_EQ(disk.Dump(), before) << row.What;
    }
}

TEST(MemoryDiskMoves, Codes_of_a_disk_without_drives)
{
    const OperationCase cases[] = {
        {"missing", foMove, "/a/q", "/b/q", 2},      {"into itself", foMove, "/a", "/a/f/a", 2022},
        {"missing", foCopy, "/a/q", "/b/q", 2},      {"missing", foDelete, "/a/q", "", 2},
        {"no such folder", foDelete, "/q/q", "", 3}, {"no name", foDelete, "", "", 3},
        {"the root", foDelete, "/", "", 123},        {"a star is a name", foDelete, "/a/*", "", 2},
        {"dots", foMove, "/a/x", "/a/..", 123},
    };
    MemoryDisk disk(Flavour::Posix);
    disk.AddFile("/a/f/x");
    disk.AddFile("/a/x");
    disk.AddFolder("/b");
    for (const auto& row : cases)
        EXPECT_EQ(Do(disk, row.Func, row.From, row.To), row.Code) << row.Func << ' ' << row.What;
}

TEST(MemoryDiskMoves, Files_and_folders_move_with_all_they_have)
{
    MemoryDisk disk(Flavour::Posix);
    disk.AddFile("/a/x", "1");
    disk.SetAttributes("/a/x", attrReadOnly | attrHidden);
    disk.SetTimes("/a/x", Clock_Moment(2001, 3, 7), Clock_Moment(2000, 1, 1));
    const auto before = disk.Stat("/a/x");
    disk.AddFolder("/b");
    EXPECT_EQ(Do(disk, foMove, "/a", "/b/c"), diskOk);
    EXPECT_EQ(Do(disk, foCopy, "/b/c", "/a"), diskOk);
    EXPECT_EQ(disk.Dump(), (Texts{"/a/", "/a/x = 1", "/b/", "/b/c/", "/b/c/x = 1"}));
    for (const char* path : {"/a/x", "/b/c/x"}) {
        const auto after = disk.Stat(path);
        EXPECT_EQ(after->Attributes, before->Attributes) << path;
        EXPECT_EQ(after->Written, before->Written) << path;
        EXPECT_EQ(after->Created, before->Created) << path;
    }
    disk.AddFile("/a/x", "changed");
    EXPECT_EQ(disk.Content("/b/c/x"), "1");
    EXPECT_NE(disk.FolderIdentity("/a"), disk.FolderIdentity("/b/c"));
}

TEST(MemoryDiskMoves, A_bare_folder_takes_the_entry_under_its_own_name)
{
    for (const FileOpFunc func : {foMove, foCopy}) {
        MemoryDisk disk = WindowsDisk();
        EXPECT_EQ(Do(disk, func, "C:\\a\\x", "C:\\a\\"), diskOk);
        EXPECT_EQ(disk.Content("C:\\a\\x"), "1");
        EXPECT_EQ(Do(disk, func, "c:\\A\\X", "C:\\b\\"), diskOk);
        EXPECT_EQ(disk.Content("C:\\b\\x"), "1");
        EXPECT_EQ(disk.Has("C:\\a\\x"), func == foCopy);
        EXPECT_EQ(Do(disk, func, "C:\\a\\f\\y", "C:\\b\\"), diskOk);
        EXPECT_EQ(disk.Content("C:\\b\\y"), "2");
        disk.SetInUse("C:\\b\\x");
        disk.AddFile("C:\\c\\x");
        EXPECT_EQ(Do(disk, func, "C:\\c\\x", "C:\\b\\"), 32);
    }
}

TEST(MemoryDiskMoves, Case_alone_can_be_moved_where_the_disk_is_blind_to_it)
{
    for (const Flavour flavour : {Flavour::Windows, Flavour::PosixCaseBlind}) {
        MemoryDisk disk(flavour);
        const std::string folder = flavour == Flavour::Windows ? "C:\\" : "/";
        disk.AddFile(folder + "name");
        EXPECT_EQ(Do(disk, foMove, folder + "name", folder + "NAME"), diskOk);
        EXPECT_EQ(disk.StoredName(folder + "name"), "NAME");
    }
}

TEST(MemoryDiskMoves, Links_go_as_links)
{
    MemoryDisk disk(Flavour::Posix);
    disk.AddFile("/f/x", "1");
    disk.AddLink("/l", "/f");
    disk.AddFolder("/b");
    EXPECT_EQ(Do(disk, foCopy, "/l", "/b/"), diskOk);
    EXPECT_EQ(Do(disk, foMove, "/l", "/m"), diskOk);
    EXPECT_EQ(Do(disk, foDelete, "/m"), diskOk);
    EXPECT_EQ(disk.Dump(), (Texts{"/b/", "/b/l -> /f", "/f/", "/f/x = 1"}));
    // What leads to a folder counts as one where something is replaced.
    disk.AddFile("/l", "2");
    EXPECT_EQ(Do(disk, foMove, "/l", "/b/"), diskExists);
}

TEST(MemoryDiskMoves, Deleted_for_good_is_gone_and_recycled_is_in_the_trash)
{
    MemoryDisk disk = WindowsDisk();
    disk.SetAttributes("C:\\b\\x", attrReadOnly | attrHidden);
    EXPECT_EQ(Do(disk, foDelete, "C:\\b\\x"), diskOk);
    EXPECT_EQ(Do(disk, foDelete, "C:\\a\\f", "", fofQuietRecycle), diskOk);
    EXPECT_EQ(Do(disk, foDelete, "C:\\a\\x", "", fofQuietRecycle), diskOk);
    EXPECT_FALSE(disk.Has("C:\\b\\x") || disk.Has("C:\\a\\f") || disk.Has("C:\\a\\x"));
    const auto trashed = disk.Trashed();
    ASSERT_EQ(trashed.size(), 3u);
    EXPECT_EQ(trashed[0].Path, "C:\\a\\f");
    EXPECT_TRUE(trashed[0].Folder);
    EXPECT_EQ(trashed[1].Path, "C:\\a\\f\\y");
    EXPECT_EQ(trashed[1].Content, "2");
    EXPECT_EQ(trashed[2].Path, "C:\\a\\x");
    EXPECT_EQ(trashed[2].Content, "1");
}

TEST(MemoryDiskMoves, Without_a_trash_nothing_is_recycled)
{
    for (const Flavour flavour : {Flavour::Windows, Flavour::Posix}) {
        MemoryDisk disk(flavour);
        const std::string path = flavour == Flavour::Windows ? "C:\\x" : "/x";
        disk.AddFile(path);
        disk.SetTrash(false);
        EXPECT_EQ(Do(disk, foDelete, path, "", fofQuietRecycle),
                  flavour == Flavour::Windows ? 50 : 2095);
        EXPECT_TRUE(disk.Has(path));
        EXPECT_TRUE(disk.Trashed().empty());
        EXPECT_EQ(Do(disk, foDelete, path), diskOk);
    }
}

TEST(MemoryDiskMoves, They_are_counted_hooked_and_failed_like_all_calls)
{
    MemoryDisk disk = WindowsDisk();
    std::string seen;
    disk.BeforeEach([&](const MemoryDisk::Call& call) { seen = call.Path + '>' + call.To; });
    disk.Fail("SHFileOperationA", 2, 1234);
    EXPECT_EQ(Do(disk, foCopy, "C:\\a\\x", "C:\\c"), diskOk);
    EXPECT_EQ(seen, "C:\\a\\x>C:\\c");
    EXPECT_EQ(Do(disk, foDelete, "C:\\a\\x"), 1234);
    EXPECT_TRUE(disk.Has("C:\\a\\x"));
    EXPECT_EQ(disk.Calls("SHFileOperationA"), 2);
}

} // namespace tavo
