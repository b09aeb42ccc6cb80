#include "platform/posix/transfer.h"

#include "platform/posix/disk_error.h"
#include "support/transfer_ground.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace tavo {
namespace {

using Names = std::vector<std::string>;

struct stat StatOf(const std::string& path)
{
    struct stat data = {};
    EXPECT_EQ(::lstat(path.c_str(), &data), 0) << path;
    return data;
}

void SetText(const std::string& path, const char* name, const std::string& value)
{
    EXPECT_EQ(::lsetxattr(path.c_str(), name, value.data(), value.size(), 0), 0) << path;
}

class Transfers : public testing::Test {
protected:
    void FillTree()
    {
        ground.Here.Write("tree/below/a", "in a");
        ground.Here.SetMode("tree/below/a", 0440);
        ground.Here.MakeLink("tree/below/link", "/nowhere");
        ground.Here.MakeLink("tree/out", "..");
        ground.Here.MakeFolder("tree/empty");
        ground.Here.Write("tree/\xFF\n", "odd name");
        SetText(ground.Here.Path("tree/below"), "user.a", "1");
        const timespec times[] = {{1'000'000'000, 1}, {900'000'000, 123'456'789}};
        for (const char* name : {"tree/below/a", "tree/below/link", "tree/below", "tree"})
            ASSERT_EQ(
                ::utimensat(AT_FDCWD, ground.Here.Path(name).c_str(), times, AT_SYMLINK_NOFOLLOW),
                0);
    }

    TransferGround ground;
};

TEST_F(Transfers, A_tree_is_the_same_on_the_other_disk)
{
    FillTree();
    ground.There.MakeFolder("copies");
    const Names before = Described(ground.Here.Path("tree"), true);
    const auto top = StatOf(ground.Here.Path("tree"));
    EXPECT_EQ(ground.Run(foCopy, ground.Here.Path("tree"), ground.There.Path("copies/")), diskOk);
    EXPECT_EQ(Described(ground.Here.Path("tree"), true), before);
    EXPECT_EQ(Described(ground.There.Path("copies/tree"), true), before);
    EXPECT_EQ(ground.Run(foMove, ground.Here.Path("tree/"), ground.There.Path("moved")), diskOk);
    EXPECT_EQ(Described(ground.There.Path("moved"), true), before);
    EXPECT_EQ(ground.Here.Names(), Names{});
    EXPECT_EQ(ground.There.Names(), (Names{"copies", "moved"}));
    const auto moved = StatOf(ground.There.Path("moved"));
    EXPECT_EQ(moved.st_mtim.tv_sec, top.st_mtim.tv_sec);
    EXPECT_EQ(moved.st_mtim.tv_nsec, top.st_mtim.tv_nsec);
    EXPECT_EQ(moved.st_mode, top.st_mode);
}

TEST_F(Transfers, A_move_on_one_disk_is_one_rename)
{
    FillTree();
    const auto before = StatOf(ground.Here.Path("tree"));
    EXPECT_EQ(ground.Run(foMove, ground.Here.Path("tree"), ground.Here.Path("new")), diskOk);
    EXPECT_EQ(StatOf(ground.Here.Path("new")).st_ino, before.st_ino);
    EXPECT_EQ(ground.Script.Calls, Names{"MoveNoReplace"});
}

TEST_F(Transfers, All_times_stay_and_the_created_one_too)
{
    const std::string from = ground.Here.Path("a");
    for (const bool isStored : {false, true}) {
        ground.Here.Write("a", "1");
        const timespec times[] = {{1'000'000'000, 7}, {900'000'000, 123'456'789}};
        ASSERT_EQ(::utimensat(AT_FDCWD, from.c_str(), times, 0), 0);
        if (isStored)
            SetText(from, "user.tavo.created", "126227808000000000");
        SetText(from, "user.DOSATTRIB", "0x22");
        const auto before = ground.Files.Stat(from);
        ASSERT_TRUE(before);
        for (const FileOpFunc func : {foCopy, foMove}) {
            const std::string to = ground.There.Path(func == foCopy ? "copy" : "moved");
            ASSERT_EQ(ground.Run(func, from, to), diskOk);
            const auto after = ground.Files.Stat(to);
            ASSERT_TRUE(after);
            EXPECT_EQ(after->Created, before->Created);
            EXPECT_EQ(after->Accessed, before->Accessed);
            EXPECT_EQ(after->Written, before->Written);
            EXPECT_EQ(after->Attributes, before->Attributes);
            ground.There.Remove(func == foCopy ? "copy" : "moved");
        }
        EXPECT_EQ(before->Attributes, attrHidden | attrArchive);
    }
}

TEST_F(Transfers, Every_way_of_copying_gives_the_same_bytes)
{
    std::string bytes;
    for (int number = 0; bytes.size() < 1'000'000; ++number)
        bytes += std::to_string(number) + '\n';
    const char* lacking[] = {"", "Clone", "CopyRange", "SetAttribute", "SetOwner", "SetMode"};
    for (const std::string& content : {bytes, std::string(), std::string("x")}) {
        ground.Here.Write("a", content);
        for (const char* call : lacking) {
            ground.Script.FailAll = call;
            ground.Script.Error = ENOTSUP;
            EXPECT_EQ(ground.Run(foCopy, ground.Here.Path("a"), ground.There.Path("b")), diskOk)
                << call;
            EXPECT_TRUE(ground.There.Read("b") == content) << call;
            ground.There.Remove("b");
        }
        ground.Here.Remove("a");
    }
}

TEST_F(Transfers, Nothing_is_replaced_but_a_file_in_a_bare_folder)
{
    ground.Here.MakeFolder("f");
    for (const FileOpFunc func : {foCopy, foMove}) {
        for (const TempFolder* folder : {&ground.Here, &ground.There}) {
            const std::string there = folder->Path("to/");
            ground.Here.Write("a", "new");
            folder->MakeFolder("to/full");
            folder->Write("to/a", "old");
            EXPECT_EQ(ground.Run(func, ground.Here.Path("a"), there + "a"), diskExists);
            EXPECT_EQ(ground.Run(func, ground.Here.Path("a"), there + "full"), diskExists);
            EXPECT_EQ(folder->Read("to/a"), "old");
            // A folder replaces nothing, and no folder is replaced.
            folder->Write("to/f", "file");
            EXPECT_EQ(ground.Run(func, ground.Here.Path("f"), there), diskExists);
            folder->Remove("to/f");
            folder->MakeFolder("to/f");
            EXPECT_EQ(ground.Run(func, ground.Here.Path("f"), there), diskExists);
            folder->Remove("to/a");
            folder->MakeFolder("to/a");
            EXPECT_EQ(ground.Run(func, ground.Here.Path("a"), there), diskExists);
            folder->Remove("to/a");
            folder->MakeLink("to/a", "full");
            EXPECT_EQ(ground.Run(func, ground.Here.Path("a"), there), diskExists);
            folder->Remove("to/a");
            folder->MakeLink("to/a", "nowhere");
            EXPECT_EQ(ground.Run(func, ground.Here.Path("a"), there), diskOk);
            EXPECT_EQ(folder->Read("to/a"), "new");
            EXPECT_EQ(ground.Here.Has("a"), func == foCopy);
            EXPECT_EQ(folder->Names("to"), (Names{"a", "f", "full"}));
            for (const char* name : {"to/a", "to/f", "to/full", "to"})
                folder->Remove(name);
        }
    }
}

TEST_F(Transfers, The_very_file_in_a_bare_folder_stays_as_it_is)
{
    ground.Here.Write("a", "1");
    ground.Here.MakeFolder("twin");
    ground.Here.MakeHardLink("twin/a", "a");
    ground.Here.MakeFolder("f/below");
    const auto before = StatOf(ground.Here.Path("a"));
    for (const FileOpFunc func : {foCopy, foMove}) {
        EXPECT_EQ(ground.Run(func, ground.Here.Path("a"), ground.Here.Path()), diskOk);
        EXPECT_EQ(ground.Run(func, ground.Here.Path("a"), ground.Here.Path("twin/")), diskOk);
        EXPECT_EQ(ground.Run(func, ground.Here.Path("f"), ground.Here.Path()), diskOk);
    }
    EXPECT_EQ(StatOf(ground.Here.Path("a")).st_ino, before.st_ino);
    EXPECT_EQ(ground.Here.Names(), (Names{"a", "f", "twin"}));
}

TEST_F(Transfers, Special_files_move_on_their_disk_and_are_never_copied)
{
    ASSERT_EQ(::mkfifo(ground.Here.Path("pipe").c_str(), 0644), 0);
    ground.Here.Write("tree/a", "1");
    ASSERT_EQ(::mkfifo(ground.Here.Path("tree/pipe").c_str(), 0644), 0);
    for (const char* name : {"pipe", "tree"}) {
        EXPECT_EQ(ground.Run(foCopy, ground.Here.Path(name), ground.Here.Path("b")),
                  ownCodeBase + ENOTSUP);
        EXPECT_EQ(ground.Run(foMove, ground.Here.Path(name), ground.There.Path("b")),
                  ownCodeBase + ENOTSUP);
    }
    EXPECT_EQ(ground.Here.Names(), (Names{"pipe", "tree"}));
    EXPECT_EQ(ground.There.Names(), Names{});
    EXPECT_EQ(ground.Run(foMove, ground.Here.Path("pipe"), ground.Here.Path("b")), diskOk);
    EXPECT_EQ(ground.Run(foDelete, ground.Here.Path("b")), diskOk);
    EXPECT_EQ(ground.Run(foDelete, ground.Here.Path("tree")), diskOk);
    EXPECT_EQ(ground.Here.Names(), Names{});
}

TEST_F(Transfers, A_folder_never_comes_into_itself)
{
    ground.Here.MakeFolder("f/below");
    ground.There.MakeLink("way", ground.Here.Path("f"));
    constexpr int code = ownCodeBase + EINVAL;
    for (const FileOpFunc func : {foCopy, foMove}) {
        for (const std::string& to :
             {ground.Here.Path("f/new"), ground.Here.Path("f/below/new"), ground.Here.Path("f/"),
              ground.Here.Path("f/below/"), ground.There.Path("way/below/")})
            EXPECT_EQ(ground.Run(func, ground.Here.Path("f"), to), code) << func << ' ' << to;
    }
    EXPECT_EQ(Described(ground.Here.Path(), false).size(), 2u);
}

TEST(Transfer, Folders_deeper_than_any_path_go_as_well)
{
    constexpr int depth = 1500;
    TransferGround ground(TransferGround::Disks::MemoryAlone);
    Descriptor folder(::open(ground.Here.Path().c_str(), O_RDONLY | O_DIRECTORY));
    for (int level = 0; level < depth; ++level) {
        ASSERT_EQ(::mkdirat(folder.Number(), "deep", 0755), 0);
        folder = Descriptor(::openat(folder.Number(), "deep", O_RDONLY | O_DIRECTORY));
    }
    ASSERT_TRUE(folder.IsOpen());
    EXPECT_EQ(ground.Run(foMove, ground.Here.Path("deep"), ground.There.Path("moved")), diskOk);
    EXPECT_EQ(ground.Script.CountOf("MakeFolder"), std::size_t{depth});
    EXPECT_EQ(ground.Here.Names(), Names{});
    EXPECT_EQ(ground.Run(foDelete, ground.There.Path("moved")), diskOk);
    EXPECT_EQ(ground.There.Names(), Names{});
}

TEST_F(Transfers, What_changes_while_it_moves_is_not_lost)
{
    for (const char* name : {"file", "tree"}) {
        ground.Here.Write("file", "before");
        ground.Here.Write("tree/a", "before");
        ground.Script.Before = [&](std::string_view call) {
            if (call == "ListAttributes")
                ground.Here.Write(name == std::string("file") ? "file" : "tree/a", "changed");
        };
        EXPECT_EQ(ground.Run(foMove, ground.Here.Path(name), ground.There.Path("to")), diskInUse);
        EXPECT_EQ(ground.Here.Names(), (Names{"file", "tree"}));
        EXPECT_EQ(ground.Here.Read(name == std::string("file") ? "file" : "tree/a"), "changed");
        EXPECT_EQ(ground.There.Names(), Names{});
    }
}

TEST_F(Transfers, A_copy_is_on_the_disk_before_the_source_goes)
{
    ground.Here.Write("a", "1");
    EXPECT_EQ(ground.Run(foMove, ground.Here.Path("a"), ground.There.Path("a")), diskOk);
    const Names& calls = ground.Script.Calls;
    const auto at = [&](const char* call, std::size_t from) {
        return static_cast<std::size_t>(
            std::find(calls.begin() + static_cast<std::ptrdiff_t>(from), calls.end(), call)
            - calls.begin());
    };
    const std::size_t written = at("CopyRange", 0), synced = at("Sync", written);
    const std::size_t placed = at("MoveNoReplace", synced), listed = at("Sync", placed);
    EXPECT_LT(listed, at("Unlink", listed));
    EXPECT_LT(at("Unlink", listed), calls.size());
    EXPECT_EQ(ground.Script.CountOf("Unlink"), 1u);
}

struct DeleteRow {
    const char *What, *Name;
    int Code;
};

TEST_F(Transfers, Deleting_takes_what_it_was_told_and_no_more)
{
    ground.Here.Write("kept/a", "1");
    ground.Here.Write("file", "1");
    ground.Here.SetMode("file", 0444);
    ground.Here.MakeLink("link", "kept");
    ground.Here.MakeLink("link2", "kept");
    ground.Here.Write("tree/below/a", "1");
    ground.Here.MakeLink("tree/below/out", "../../kept");
    ground.Here.Write("*", "1");
    const DeleteRow rows[] = {
        {"missing", "missing", diskMissing},
        {"no such folder", "missing/a", diskMissingFolder},
        {"a file for a folder", "file/a", diskMissingFolder},
        {"dots", "kept/..", diskBadName},
        {"read-only", "file", diskOk},
        {"a link", "link", diskOk},
        {"a link with a slash", "link2/", diskOk},
        {"a tree", "tree", diskOk},
        {"a star", "*", diskOk},
    };
    for (const DeleteRow& row : rows)
        EXPECT_EQ(ground.Run(foDelete, ground.Here.Path(row.Name)), row.Code) << row.What;
    EXPECT_EQ(ground.Run(foDelete, "/"), diskBadName);
    EXPECT_EQ(ground.Run(foDelete, ""), diskMissingFolder);
    EXPECT_EQ(ground.Here.Names(), Names{"kept"});
    EXPECT_EQ(ground.Here.Read("kept/a"), "1");
}

TEST_F(Transfers, Recycling_hands_the_entry_to_the_trash_and_deletes_nothing)
{
    ground.Here.Write("a", "1");
    ground.Here.MakeFolder("f");
    EXPECT_EQ(ground.Run(foDelete, ground.Here.Path("a"), "", fofQuietRecycle), diskOk);
    EXPECT_EQ(ground.Run(foDelete, ground.Here.Path("f/"), "", fofQuietRecycle), diskOk);
    EXPECT_EQ(ground.Run(foDelete, ground.Here.Path("q"), "", fofQuietRecycle), diskMissing);
    EXPECT_EQ(ground.Recycled, (Names{ground.Here.Path("a"), ground.Here.Path("f")}));
    EXPECT_EQ(ground.Here.Names(), (Names{"a", "f"}));
}

struct TransferRow {
    const char* What;
    std::string From, To;
    int Code;
};

TEST_F(Transfers, Codes_tell_what_is_wrong)
{
    ground.Here.Write("a", "1");
    const TransferRow rows[] = {
        {"missing", "q", "to", diskMissing},
        {"its folder missing", "q/a", "to", diskMissingFolder},
        {"no such target folder", "a", "q/to", diskMissingFolder},
        {"no such bare folder", "a", "q/", diskMissingFolder},
        {"a file for a folder", "a", "a/", diskMissingFolder},
        {"dots", "a", "..", diskBadName},
        {"256 bytes", "a", std::string(256, 'x'), diskBadName},
        {"a NUL", "a", std::string("x\0y", 3), diskBadName},
        {"the root", "", "to", diskMissing},
    };
    for (const FileOpFunc func : {foCopy, foMove}) {
        for (const TransferRow& row : rows) {
            if (row.From.empty())
                EXPECT_EQ(ground.Run(func, "/", ground.Here.Path("to")), diskBadName);
            else
                EXPECT_EQ(ground.Run(func, ground.Here.Path(row.From), ground.Here.Path(row.To)),
                          row.Code)
                    << row.What;
        }
        EXPECT_EQ(ground.Run(func, "a", ground.Here.Path("to")), diskMissingFolder);
        EXPECT_EQ(ground.Run(func, ground.Here.Path("a"), ""), diskMissingFolder);
    }
    EXPECT_EQ(ground.Here.Names(), Names{"a"});
}

TEST_F(Transfers, A_source_that_may_not_go_is_not_even_copied)
{
    ground.Here.Write("closed/a", "1");
    ground.Here.SetMode("closed", 0555);
    ground.There.SetMode("", 0777);
    const int code = AsPlainUser([&] {
        const int result = ground.Run(foMove, ground.Here.Path("closed/a"), ground.There.Path("b"));
        return ground.Script.CountOf("MakeFile") == 0 ? result : 255;
    });
    EXPECT_EQ(code, diskDenied);
    EXPECT_EQ(ground.There.Names(), Names{});
    EXPECT_EQ(AsPlainUser([&] {
                  return ground.Run(foCopy, ground.Here.Path("closed/a"), ground.There.Path("b"));
              }),
              diskOk);
    EXPECT_EQ(ground.There.Read("b"), "1");
}

// A disk whose files have the attribute byte of FAT: those that are read, or
// those that are made.
class FatDisk : public FaultyTransferDisk {
public:
    FatDisk(CallScript& script, bool isSource) : FaultyTransferDisk(script), isSource_(isSource) {}

    std::uint32_t Byte = attrArchive;

    int ListAttributes(const Descriptor& entry, Names& names) override
    {
        return isSource_ ? ENOTSUP : FaultyTransferDisk::ListAttributes(entry, names);
    }
    int SetAttribute(const Descriptor& entry, const std::string& name,
                     std::string_view value) override
    {
        return isSource_ ? FaultyTransferDisk::SetAttribute(entry, name, value) : ENOTSUP;
    }
    int GetFat(const Descriptor&, std::uint32_t& attributes) override
    {
        attributes = Byte;
        return 0;
    }
    int SetFat(const Descriptor&, std::uint32_t attributes) override
    {
        Byte = attributes;
        return 0;
    }

private:
    bool isSource_;
};

TEST(Transfer, Archive_Hidden_and_System_come_along_to_FAT_and_from_it)
{
    TempFolder folder("fat");
    CallScript script;
    std::vector<std::string> recycled;
    FaultyRenameDisk names(script);
    Renamer renamer(names);
    ListingTrash trash(recycled);
    folder.Write("a", "1");
    SetText(folder.Path("a"), "user.DOSATTRIB", "0x6");

    FatDisk target(script, false);
    target.Byte = attrArchive | attrReadOnly;
    EXPECT_EQ(Transfer(target, names, renamer, trash)
                  .Run({foCopy, folder.Path("a"), folder.Path("b"), fofQuiet}),
              diskOk);
    EXPECT_EQ(target.Byte, attrHidden | attrSystem | attrReadOnly);

    FatDisk source(script, true);
    source.Byte = attrHidden | attrArchive | attrReadOnly;
    EXPECT_EQ(Transfer(source, names, renamer, trash)
                  .Run({foCopy, folder.Path("b"), folder.Path("c"), fofQuiet}),
              diskOk);
    EXPECT_EQ(PosixFiles().Stat(folder.Path("c"))->Attributes, attrHidden | attrArchive);
}

} // namespace
} // namespace tavo
