#include "platform/posix/rename.h"

#include "platform/posix/disk_error.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace tavo {
namespace {

using Names = std::vector<std::string>;

// The system's disk, with single calls that fail as they do on file systems
// that lack them.
class LackingDisk : public RenameDisk {
public:
    int NoReplaceError = 0, LinkError = 0, UnlinkError = 0;
    int PlainMoves = 0;

    int MoveNoReplace(const std::string& from, const std::string& to) override
    {
        return NoReplaceError ? NoReplaceError : system_->MoveNoReplace(from, to);
    }
    int Move(const std::string& from, const std::string& to) override
    {
        ++PlainMoves;
        return system_->Move(from, to);
    }
    int Link(const std::string& from, const std::string& to) override
    {
        return LinkError ? LinkError : system_->Link(from, to);
    }
    int Unlink(const std::string& path) override
    {
        // Only the first name refuses to go.
        return UnlinkError ? std::exchange(UnlinkError, 0) : system_->Unlink(path);
    }
    int Look(const std::string& path, Entry& entry) override { return system_->Look(path, entry); }
    int HasName(const std::string& folder, const std::string& name, bool& has) override
    {
        return system_->HasName(folder, name, has);
    }

private:
    std::unique_ptr<RenameDisk> system_ = SystemRenameDisk();
};

// The ways a rename goes on different file systems; each must keep the rules.
struct Way {
    const char* What;
    int NoReplaceError, LinkError;
};
constexpr Way ways[] = {
    {"in one call", 0, 0},
    {"by a link", EINVAL, 0},
    {"by a link, old system", ENOSYS, 0},
    {"by a look", EINVAL, EPERM},
    {"by a look, no such call", ENOTSUP, ENOTSUP},
};

class Renaming : public testing::TestWithParam<Way> {
protected:
    Renaming()
    {
        disk.NoReplaceError = GetParam().NoReplaceError;
        disk.LinkError = GetParam().LinkError;
    }
    int Rename(const std::string& from, const std::string& to)
    {
        return renamer.Rename(folder.Path(from), folder.Path(to));
    }

    TempFolder folder{"rename"};
    LackingDisk disk;
    Renamer renamer{disk};
};

INSTANTIATE_TEST_SUITE_P(Ways, Renaming, testing::ValuesIn(ways),
                         [](const auto& row) { return "way_" + std::to_string(row.index); });

TEST_P(Renaming, Any_name_becomes_any_name_byte_for_byte)
{
    const std::string longest(255, 'x');
    const std::string names[] = {"a",        "b c",         "new\nline", "\xFF\xFE", "a\xCC\x88",
                                 "\xC3\xA4", "-rf",         "a*b?",      "  ",       "a. ",
                                 longest,    "back\\slash", "..."};
    std::string last = "first";
    folder.Write(last, "content");
    for (const std::string& name : names) {
        ASSERT_EQ(Rename(last, name), diskOk) << last << " to " << name;
        EXPECT_EQ(folder.Names(), Names{name});
        EXPECT_EQ(folder.Read(name), "content");
        last = name;
    }
}

TEST_P(Renaming, It_never_replaces_anything)
{
    folder.Write("file", "1");
    folder.MakeFolder("folder");
    folder.MakeFolder("full/below");
    folder.MakeLink("link", "file");
    folder.MakeLink("nowhere", "missing");
    folder.Write("other", "2");
    folder.MakeHardLink("hard", "other");
    const Names before = folder.Names();
    for (const std::string& from : before) {
        for (const std::string& to : before)
            EXPECT_EQ(Rename(from, to), diskExists) << from << " to " << to;
    }
    EXPECT_EQ(folder.Names(), before);
    EXPECT_EQ(folder.Read("file"), "1");
    EXPECT_EQ(folder.Read("other"), "2");
    EXPECT_EQ(folder.LinkTarget("nowhere"), "missing");
}

TEST_P(Renaming, A_link_is_renamed_as_the_link_it_is)
{
    folder.Write("file", "content");
    folder.MakeFolder("folder");
    const Names targets = {"file", "folder", "missing", "loop2"};
    for (const std::string& target : targets) {
        folder.MakeLink("link", target);
        EXPECT_EQ(Rename("link", "loop2"), diskOk) << target;
        EXPECT_EQ(folder.LinkTarget("loop2"), target);
        EXPECT_FALSE(folder.Has("link"));
        folder.Remove("loop2");
    }
    EXPECT_EQ(folder.Names(), (Names{"file", "folder"}));
    folder.MakeLink("link", "folder");
    EXPECT_EQ(renamer.Rename(folder.Path("link/"), folder.Path("renamed")), diskOk);
    EXPECT_EQ(folder.LinkTarget("renamed"), "folder");
}

TEST_P(Renaming, Folders_keep_what_is_in_them_and_files_may_change_their_folder)
{
    folder.Write("old/a", "1");
    folder.MakeFolder("other");
    EXPECT_EQ(Rename("old", "new"), diskOk);
    EXPECT_EQ(folder.Read("new/a"), "1");
    EXPECT_EQ(Rename("new/", "newer"), diskOk);
    EXPECT_EQ(Rename("newer/a", "other/b"), diskOk);
    EXPECT_EQ(folder.Read("other/b"), "1");
    EXPECT_EQ(folder.Names("newer"), Names{});
}

TEST_P(Renaming, A_read_only_file_keeps_its_mode_and_a_hard_link_its_other_name)
{
    folder.Write("a", "1");
    folder.SetMode("a", 0444);
    folder.MakeHardLink("b", "a");
    EXPECT_EQ(Rename("a", "c"), diskOk);
    EXPECT_EQ(folder.Names(), (Names{"b", "c"}));
    struct stat data;
    ASSERT_EQ(::stat(folder.Path("c").c_str(), &data), 0);
    EXPECT_EQ(data.st_mode & 07777u, 0444u);
    EXPECT_EQ(data.st_nlink, 2u);
}

TEST_P(Renaming, Case_alone_is_another_name_on_this_disk)
{
    folder.Write("name", "1");
    EXPECT_EQ(Rename("name", "NAME"), diskOk);
    EXPECT_EQ(folder.Names(), Names{"NAME"});
    folder.Write("name", "2");
    EXPECT_EQ(Rename("NAME", "name"), diskExists);
    EXPECT_EQ(folder.Read("NAME"), "1");
    folder.MakeHardLink("Hard", "name");
    folder.MakeHardLink("hard", "name");
    EXPECT_EQ(Rename("Hard", "hard"), diskExists);
    EXPECT_EQ(folder.Names(), (Names{"Hard", "NAME", "hard", "name"}));
}

struct CodeRow {
    const char* What;
    std::string From, To;
    int Code;
};

TEST_P(Renaming, Codes_tell_what_is_wrong)
{
    folder.Write("file", "1");
    folder.MakeFolder("folder/below");
    using namespace std::string_literals;
    const CodeRow rows[] = {
        {"source missing", "missing", "new", diskMissing},
        {"its folder missing", "missing/a", "new", diskMissingFolder},
        {"its folder is a file", "file/a", "new", diskMissingFolder},
        {"target's folder missing", "file", "missing/a", diskMissingFolder},
        {"target's folder is a file", "folder", "file/a", diskMissingFolder},
        {"target exists", "file", "folder", diskExists},
        {"the same name", "file", "file", diskExists},
        {"empty name", "file", "", diskBadName},
        {"empty name in a folder", "file", "folder/", diskBadName},
        {"dot", "file", ".", diskBadName},
        {"two dots", "file", "folder/..", diskBadName},
        {"256 bytes", "file", std::string(256, 'x'), diskBadName},
        {"128 characters of two bytes", "file",
         [] {
             std::string name;
             for (int count = 0; count < 128; ++count)
                 name += "\xC3\xA4";
             return name;
         }(),
         diskBadName},
        {"NUL in the new name", "file", "a\0b"s, diskBadName},
        {"NUL in the old name", "file\0"s, "new", diskBadName},
        {"source is two dots", "folder/..", "new", diskBadName},
        {"folder into itself", "folder", "folder/below/new", ownCodeBase + EINVAL},
        {"path too long", "file",
         [] {
             std::string path;
             for (int count = 0; count < 1000; ++count)
                 path += "long/";
             return path + "x";
         }(),
         diskBadName},
    };
    for (const CodeRow& row : rows)
        EXPECT_EQ(Rename(row.From, row.To), row.Code) << row.What;
    EXPECT_EQ(renamer.Rename("relative", folder.Path("x")), diskMissingFolder);
    EXPECT_EQ(renamer.Rename(folder.Path("file"), "relative"), diskMissingFolder);
    EXPECT_EQ(renamer.Rename("/", folder.Path("x")), diskBadName);
    EXPECT_EQ(folder.Names(), (Names{"file", "folder"}));
}

TEST_P(Renaming, Without_the_right_to_the_folder_it_is_denied)
{
    folder.Write("closed/file", "1");
    folder.SetMode("closed", 0555);
    folder.Write("shut/file", "2");
    folder.SetMode("shut", 0000);
    EXPECT_EQ(AsPlainUser([&] { return Rename("closed/file", "closed/new"); }), diskDenied);
    EXPECT_EQ(AsPlainUser([&] { return Rename("shut/file", "shut/new"); }), diskDenied);
    folder.SetMode("shut", 0755);
    EXPECT_EQ(folder.Names("closed"), Names{"file"});
    EXPECT_EQ(folder.Names("shut"), Names{"file"});
}

TEST(Rename, An_old_name_that_cannot_go_takes_the_new_one_back)
{
    TempFolder folder("takeback");
    LackingDisk disk;
    Renamer renamer(disk);
    folder.Write("a", "1");
    disk.NoReplaceError = EINVAL;
    disk.UnlinkError = EBUSY;
    EXPECT_EQ(renamer.Rename(folder.Path("a"), folder.Path("b")), diskInUse);
    EXPECT_EQ(folder.Names(), Names{"a"});
    EXPECT_EQ(disk.PlainMoves, 0);
}

TEST(Rename, A_file_is_renamed_plainly_only_where_links_are_lacking_too)
{
    TempFolder folder("plainly");
    LackingDisk disk;
    Renamer renamer(disk);
    folder.Write("a", "1");
    EXPECT_EQ(renamer.Rename(folder.Path("a"), folder.Path("b")), diskOk);
    disk.NoReplaceError = EINVAL;
    EXPECT_EQ(renamer.Rename(folder.Path("b"), folder.Path("c")), diskOk);
    EXPECT_EQ(disk.PlainMoves, 0);
    disk.LinkError = EPERM;
    EXPECT_EQ(renamer.Rename(folder.Path("c"), folder.Path("d")), diskOk);
    EXPECT_EQ(disk.PlainMoves, 1);
    EXPECT_EQ(folder.Names(), Names{"d"});
}

struct ErrorRow {
    int System, Code;
};

TEST(Rename, Errors_of_the_system_have_their_codes)
{
    const ErrorRow rows[] = {
        {EACCES, diskDenied},
        {EPERM, diskDenied},
        {EROFS, diskDenied},
        {EBUSY, diskInUse},
        {ETXTBSY, diskInUse},
        {ENOTEMPTY, diskExists},
        {EILSEQ, diskBadName},
        {ENAMETOOLONG, diskBadName},
        {EXDEV, ownCodeBase + EXDEV},
        {ENOSPC, ownCodeBase + ENOSPC},
        {EDQUOT, ownCodeBase + EDQUOT},
        {EIO, ownCodeBase + EIO},
    };
    TempFolder folder("errors");
    folder.Write("a", "1");
    for (const ErrorRow& row : rows) {
        LackingDisk disk;
        disk.NoReplaceError = row.System;
        EXPECT_EQ(Renamer(disk).Rename(folder.Path("a"), folder.Path("b")), row.Code)
            << "system error " << row.System;
    }
    EXPECT_EQ(folder.Names(), Names{"a"});
}

} // namespace
} // namespace tavo
