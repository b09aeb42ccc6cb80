#include "renamelist/executor.h"

#include "platform/posix/posix_files.h"
#include "renamelist/rename_list.h"
#include "support/list_ground.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace tavo {

namespace {

using Flavour = MemoryDisk::Flavour;
constexpr Flavour everyFlavour[] = {Flavour::Windows, Flavour::Posix, Flavour::PosixCaseBlind};

// One row and a request to rename it.
RenameRequest Request(const ListGround& ground, int row, const std::string& newName)
{
    RenameRequest request;
    const std::string path = ground.Cell(row, "Path");
    request.OrigName = ground.Cell(row, "Name");
    request.OldFull = path + request.OrigName;
    request.NewName = newName;
    request.NewFull = path + newName;
    const auto point = newName.rfind('.');
    request.NewExt = point == std::string::npos ? "" : newName.substr(point + 1);
    request.RowPos = row;
    return request;
}

// Renames row 1; gives its `Errors` cell, "" for success.
std::string Rename(ListGround& ground, const std::string& newName)
{
    RenameRequest request = Request(ground, 1, newName);
    RowCounters counters;
    Ren_File_Apply(ground.P, request, counters);
    EXPECT_EQ(counters.Done + counters.Errors, 1) << newName;
    EXPECT_EQ(ground.P.state.RenFailed, counters.Errors == 1) << newName;
    return ground.Cell(1, "Errors");
}

struct CodeCase {
    int Code;
    const char* Errors;
    int ErrCode;
};

constexpr CodeCase codeCases[] = {
    {2, "Missing", 53},         {3, "Missing", 53},        {1026, "Missing", 53},
    {5, "Access Denied", 75},   {32, "Access Denied", 75}, {123, "Name Conflict", 58},
    {183, "Name Conflict", 58}, {1, "UnKnown", 0},         {87, "UnKnown", 0},
    {2018, "UnKnown", 0},       {-1, "UnKnown", 0},
};

} // namespace

TEST(Executor, Success_shows_the_new_name_and_keeps_the_old_one_for_undo)
{
    for (const Flavour flavour : everyFlavour) {
        MemoryListGround ground(flavour);
        ground.Load({"d/a.txt"});
        ground.List.SetCell(1, ground.P.state.colErrors, "Missing");
        RenameRequest request = Request(ground, 1, "b.Jpg");
        RowCounters counters{4, 5, 6};
        ground.P.state.RenFailed = true;
        ground.P.state.RenErrCode = renConflict;
        const int turns = ground.Desktop.Turns();

        Ren_File_Apply(ground.P, request, counters);

        EXPECT_EQ(ground.Cell(1, "Name"), "b.Jpg");
        EXPECT_EQ(ground.Cell(1, "Path"), ground.Full("d/"));
        EXPECT_EQ(ground.Cell(1, "Type"), "Jpg");
        EXPECT_EQ(ground.Cell(1, "UndoName"), "a.txt");
        EXPECT_EQ(ground.Cell(1, "Errors"), "");
        EXPECT_EQ(counters.Done, 5);
        EXPECT_EQ(counters.Errors, 5);
        EXPECT_EQ(counters.Unchanged, 6);
        EXPECT_FALSE(ground.P.state.RenFailed);
        EXPECT_EQ(ground.P.state.RenErrCode, 0);
        EXPECT_EQ(ground.Desktop.Turns(), turns + 1);
        EXPECT_EQ(ground.ContentOf("d/b.Jpg"), "d/a.txt");
        EXPECT_FALSE(ground.Disk.Has(ground.Full("d/a.txt")));
    }
}

TEST(Executor, Each_code_of_the_disk_has_its_text)
{
    for (const Flavour flavour : everyFlavour)
        for (const CodeCase& wanted : codeCases) {
            SCOPED_TRACE(wanted.Code);
            MemoryListGround ground(flavour);
            ground.Load({"d/a.txt"});
            ground.List.SetCell(1, ground.P.state.colUndoName, "first.txt");
            ground.Disk.Fail("SHFileOperationA", 1, wanted.Code);
            RenameRequest request = Request(ground, 1, "b.jpg");
            RowCounters counters;
            const int turns = ground.Desktop.Turns();

            Ren_File_Apply(ground.P, request, counters);

            EXPECT_EQ(ground.Cell(1, "Errors"), wanted.Errors);
            EXPECT_EQ(ground.P.state.RenErrCode, wanted.ErrCode);
            EXPECT_TRUE(ground.P.state.RenFailed);
            EXPECT_EQ(counters.Errors, 1);
            EXPECT_EQ(counters.Done + counters.Unchanged, 0);
            EXPECT_EQ(ground.Cell(1, "Name"), "a.txt");
            EXPECT_EQ(ground.Cell(1, "Type"), "txt");
            EXPECT_EQ(ground.Cell(1, "UndoName"), "first.txt");
            EXPECT_EQ(ground.Desktop.Turns(), turns);
            EXPECT_EQ(ground.ContentOf("d/a.txt"), "d/a.txt");
        }
}

TEST(Executor, An_equal_name_is_unnecessary_and_leaves_the_last_failure_as_it_was)
{
    for (const Flavour flavour : everyFlavour) {
        MemoryListGround ground(flavour);
        ground.Load({"d/a.txt"});
        ground.P.state.RenFailed = true;
        ground.P.state.RenErrCode = renConflict;
        ground.Disk.ForgetCalls();
        const int turns = ground.Desktop.Turns();
        RenameRequest request = Request(ground, 1, "a.txt");
        RowCounters counters;

        Ren_File_Apply(ground.P, request, counters);

        EXPECT_EQ(counters.Unchanged, 1);
        EXPECT_EQ(counters.Done + counters.Errors, 0);
        EXPECT_TRUE(ground.P.state.RenFailed);
        EXPECT_EQ(ground.P.state.RenErrCode, renConflict);
        EXPECT_EQ(ground.Cell(1, "UndoName"), "");
        EXPECT_EQ(ground.Disk.Calls(), 0);
        EXPECT_EQ(ground.Desktop.Turns(), turns);
    }
}

// The caller may have kept the first name of a row that was moved aside.
TEST(Executor, The_first_name_is_what_counts_for_unnecessary_and_for_undo)
{
    MemoryListGround ground(Flavour::Posix);
    ground.Load({"d/0a.txt"});
    RenameRequest request = Request(ground, 1, "a.txt");
    request.OrigName = "a.txt";
    RowCounters counters;
    Ren_File_Apply(ground.P, request, counters);
    EXPECT_EQ(counters.Unchanged, 1);
    EXPECT_EQ(ground.Names(), (std::vector<std::string>{"0a.txt"}));

    request = Request(ground, 1, "b.txt");
    request.OrigName = "a.txt";
    Ren_File_Apply(ground.P, request, counters);
    EXPECT_EQ(counters.Done, 1);
    EXPECT_EQ(ground.Cell(1, "UndoName"), "a.txt");
}

TEST(Executor, The_texts_of_a_request_come_back_as_they_were)
{
    MemoryListGround ground(Flavour::Posix);
    ground.Load({"d/a.txt"});
    RenameRequest request = Request(ground, 1, "b.txt");
    RowCounters counters;
    Ren_File_Apply(ground.P, request, counters);
    EXPECT_EQ(request.OldFull, "/d/a.txt");
    EXPECT_EQ(request.NewFull, "/d/b.txt");
    EXPECT_EQ(request.NewName, "b.txt");
    EXPECT_EQ(request.NewExt, "txt");
    EXPECT_EQ(request.OrigName, "a.txt");
}

TEST(Executor, A_change_of_case_alone_passes_the_existence_test)
{
    for (const Flavour flavour : everyFlavour) {
        MemoryListGround ground(flavour);
        ground.Load({"d/a.txt"});
        EXPECT_EQ(Rename(ground, "A.TXT"), "");
        EXPECT_EQ(ground.Disk.StoredName(ground.Full("d/A.TXT")), "A.TXT");
        EXPECT_EQ(ground.Disk.Calls("SHFileOperationA"), 1);
        EXPECT_EQ(ground.ContentOf("d/A.TXT"), "d/a.txt");
    }
}

TEST(Executor, A_change_of_case_alone_replaces_no_other_file)
{
    MemoryListGround ground(Flavour::Posix);
    ground.Load({"d/a.txt"});
    ground.AddFile("d/A.TXT");
    EXPECT_EQ(Rename(ground, "A.TXT"), "Name Conflict");
    EXPECT_EQ(ground.P.state.RenErrCode, renConflict);
    EXPECT_EQ(ground.ContentOf("d/a.txt"), "d/a.txt");
    EXPECT_EQ(ground.ContentOf("d/A.TXT"), "d/A.TXT");
}

TEST(Executor, An_existing_target_is_a_conflict_without_any_call_that_changes)
{
    for (const Flavour flavour : everyFlavour) {
        MemoryListGround ground(flavour);
        ground.Load({"d/a.txt"});
        ground.AddFile("d/b.txt");
        ground.Disk.AddFolder(ground.Full("d/c.txt"));
        ground.Disk.ForgetCalls();
        EXPECT_EQ(Rename(ground, "b.txt"), "Name Conflict");
        EXPECT_EQ(Rename(ground, "c.txt"), "Name Conflict");
        EXPECT_EQ(ground.P.state.RenErrCode, renConflict);
        EXPECT_EQ(ground.Disk.Calls("SHFileOperationA"), 0);
        EXPECT_EQ(ground.ContentOf("d/b.txt"), "d/b.txt");
    }
}

TEST(Executor, A_target_made_by_another_program_in_between_stays_whole)
{
    for (const Flavour flavour : everyFlavour) {
        MemoryListGround ground(flavour);
        ground.Load({"d/a.txt"});
        ground.Disk.Before("SHFileOperationA", 1,
                           [&](const MemoryDisk::Call&) { ground.AddFile("d/b.txt"); });
        EXPECT_EQ(Rename(ground, "b.txt"), "Name Conflict");
        EXPECT_EQ(ground.ContentOf("d/a.txt"), "d/a.txt");
        EXPECT_EQ(ground.ContentOf("d/b.txt"), "d/b.txt");
    }
}

TEST(Executor, What_happens_to_a_file_before_its_turn)
{
    for (const Flavour flavour : everyFlavour) {
        MemoryListGround ground(flavour);
        ground.Load({"d/a.txt"});
        ground.Disk.SetInUse(ground.Full("d/a.txt"));
        EXPECT_EQ(Rename(ground, "b.txt"), "Access Denied");
        ground.Disk.SetInUse(ground.Full("d/a.txt"), false);
        ground.Disk.SetLocked(ground.Full("d"));
        EXPECT_EQ(Rename(ground, "b.txt"), "Access Denied");
        ground.Disk.SetLocked(ground.Full("d"), false);
        ground.Disk.SetAttributes(ground.Full("d/a.txt"), attrReadOnly);
        EXPECT_EQ(Rename(ground, "b.txt"), "");
        ground.Disk.Remove(ground.Full("d/b.txt"));
        EXPECT_EQ(Rename(ground, "c.txt"), "Missing");
        ground.Disk.Remove(ground.Full("d"));
        EXPECT_EQ(Rename(ground, "c.txt"), "Missing");
    }
}

TEST(Executor, A_folder_row_keeps_its_mark)
{
    for (const Flavour flavour : everyFlavour) {
        MemoryListGround ground(flavour);
        ground.AddFile("d/my.data/inside");
        ground.P.state.SelFolderMode = 1;
        Ren_List_FromDrop(ground.P, {ground.Full("d/my.data")});
        RenameRequest request = Request(ground, 1, "other.name");
        RowCounters counters;
        Ren_File_Apply(ground.P, request, counters);
        EXPECT_EQ(counters.Done, 1);
        EXPECT_EQ(request.NewExt, "-");
        EXPECT_EQ(ground.Cell(1, "Type"), "-");
        EXPECT_EQ(ground.ContentOf("d/other.name/inside"), "d/my.data/inside");
    }
}

struct NameCase {
    const char *What, *OldName, *UndoName, *NewName, *Errors;
};

TEST(Executor, A_new_name_brings_in_no_forbidden_character_on_Linux)
{
    const NameCase cases[] = {
        {"an open token", "a.txt", "", "<T>.txt", "Name Conflict"},
        {"a backslash", "a.txt", "", "a\\b", "Name Conflict"},
        {"a colon", "a.txt", "", "a:b", "Name Conflict"},
        {"an asterisk", "a.txt", "", "*", "Name Conflict"},
        {"a question mark", "a.txt", "", "a?", "Name Conflict"},
        {"a quotation mark", "a.txt", "", "\"a\"", "Name Conflict"},
        {"less than", "a.txt", "", "<", "Name Conflict"},
        {"greater than", "a.txt", "", ">", "Name Conflict"},
        {"a bar", "a.txt", "", "a|b", "Name Conflict"},
        {"other signs", "a.txt", "", "a'{}[]&%$#@!;,~`^ \n\x01.txt", ""},
        {"the old name has it", "a:b", "", "x:y:z", ""},
        {"the old name has another", "a:b", "", "x*", "Name Conflict"},
        {"one of two is new", "a:b", "", "x:?", "Name Conflict"},
        {"the first name had it", "ab", "a:b", "c:d", ""},
        {"both together", "a?", "a:b", "?:", ""},
        {"neither has it", "a?", "a:b", "a|", "Name Conflict"},
    };
    for (const NameCase& test : cases) {
        SCOPED_TRACE(test.What);
        MemoryListGround ground(Flavour::Posix);
        ground.Load({"d/" + std::string(test.OldName)});
        ground.List.SetCell(1, ground.P.state.colUndoName, test.UndoName);
        ground.Disk.ForgetCalls();
        EXPECT_EQ(Rename(ground, test.NewName), test.Errors);
        const bool good = std::string_view(test.Errors).empty();
        EXPECT_EQ(ground.P.state.RenErrCode, good ? 0 : renConflict);
        EXPECT_EQ(ground.Disk.Calls("SHFileOperationA"), good ? 1 : 0);
        EXPECT_EQ(ground.Cell(1, "Name"), good ? test.NewName : test.OldName);
    }
}

TEST(Executor, Windows_itself_refuses_a_bad_character)
{
    for (const char* name : {"<T>.txt", "a:b", "a\"", "a|", ">"}) {
        MemoryListGround ground(Flavour::Windows);
        ground.Load({"d/a.txt"});
        ground.Disk.ForgetCalls();
        EXPECT_EQ(Rename(ground, name), "Name Conflict") << name;
        EXPECT_EQ(ground.P.state.RenErrCode, renConflict);
        EXPECT_EQ(ground.Disk.Calls("SHFileOperationA"), 1) << name;
        EXPECT_EQ(ground.ContentOf("d/a.txt"), "d/a.txt");
    }
}

// There an existence test honours wildcards, so it finds the row's own file.
TEST(Executor, Windows_wildcards_find_a_file_and_are_a_conflict)
{
    for (const char* name : {"*", "?.txt"}) {
        MemoryListGround ground(Flavour::Windows);
        ground.Load({"d/a.txt"});
        ground.Disk.ForgetCalls();
        EXPECT_EQ(Rename(ground, name), "Name Conflict") << name;
        EXPECT_EQ(ground.Disk.Calls("SHFileOperationA"), 0) << name;
    }
}

TEST(Executor, A_name_that_would_leave_the_folder_is_a_conflict)
{
    for (const Flavour flavour : everyFlavour) {
        MemoryListGround ground(flavour);
        ground.Load({"d/a.txt"});
        ground.Disk.AddFolder(ground.Full("d/sub"));
        std::vector<std::string> names = {"sub/a.txt", "../a.txt", "/a.txt", "a/", ".", "..", ""};
        if (ground.IsWindows())
            names.push_back("sub\\a.txt");
        for (const std::string& name : names) {
            EXPECT_EQ(Rename(ground, name), "Name Conflict") << name;
            EXPECT_EQ(ground.ContentOf("d/a.txt"), "d/a.txt") << name;
        }
    }
}

TEST(Executor, The_longest_name_passes_and_one_longer_is_a_conflict)
{
    for (const Flavour flavour : everyFlavour) {
        MemoryListGround ground(flavour);
        ground.Load({"a"});
        EXPECT_EQ(Rename(ground, std::string(256, 'n')), "Name Conflict");
        EXPECT_EQ(Rename(ground, std::string(255, 'n')), "");
        EXPECT_EQ(ground.ContentOf(std::string(255, 'n')), "a");
    }
}

namespace {

// A real folder with one file in it, and a list of that file.
struct RealGround {
    explicit RealGround(const std::string& name) : Ground(Disk, Folder.Path())
    {
        Folder.Write(name, "content");
        Ren_List_FromDrop(Ground.P, {Folder.Path(name)});
    }
    TempFolder Folder{"executor"};
    PosixFiles Disk;
    ListGround Ground;
};

} // namespace

TEST(ExecutorOnDisk, Names_of_any_bytes_go_and_come)
{
    const char* names[] = {"b.txt",      "two\nlines", " blank ",         "\xff\xfe raw",
                           "caf\u00e9",  "cafe\u0301", "tab\there",       ".hidden",
                           "trailing. ", "con",        "\u65e5\u672c.txt"};
    for (const char* name : names) {
        RealGround real("a.txt");
        EXPECT_EQ(Rename(real.Ground, name), "") << name;
        EXPECT_EQ(real.Folder.Names(), (std::vector<std::string>{name}));
        EXPECT_EQ(real.Folder.Read(name), "content");
        EXPECT_EQ(real.Ground.Cell(1, "Name"), name);

        EXPECT_EQ(Rename(real.Ground, "a.txt"), "") << name;
        EXPECT_EQ(real.Folder.Names(), (std::vector<std::string>{"a.txt"}));
    }
}

TEST(ExecutorOnDisk, A_file_with_forbidden_characters_can_be_renamed_and_can_keep_them)
{
    RealGround real("what?*.txt");
    EXPECT_EQ(Rename(real.Ground, "why?*.txt"), "");
    EXPECT_EQ(Rename(real.Ground, "plain.txt"), "");
    EXPECT_EQ(real.Ground.Cell(1, "UndoName"), "why?*.txt");
    EXPECT_EQ(Rename(real.Ground, "back?*.txt"), "");
    EXPECT_EQ(Rename(real.Ground, "new|.txt"), "Name Conflict");
    EXPECT_EQ(real.Folder.Names(), (std::vector<std::string>{"back?*.txt"}));
}

TEST(ExecutorOnDisk, Nothing_is_ever_replaced)
{
    RealGround real("a.txt");
    real.Folder.Write("b.txt", "other");
    real.Folder.Write("A.TXT", "upper");
    real.Folder.MakeFolder("c.txt");
    real.Folder.MakeLink("d.txt", "nowhere");
    for (const char* name : {"b.txt", "A.TXT", "c.txt", "d.txt"})
        EXPECT_EQ(Rename(real.Ground, name), "Name Conflict") << name;
    EXPECT_EQ(real.Folder.Names(),
              (std::vector<std::string>{"A.TXT", "a.txt", "b.txt", "c.txt", "d.txt"}));
    EXPECT_EQ(real.Folder.Read("a.txt"), "content");
    EXPECT_EQ(real.Folder.Read("b.txt"), "other");
    EXPECT_EQ(real.Folder.Read("A.TXT"), "upper");
}

TEST(ExecutorOnDisk, A_link_is_renamed_as_the_link_it_is)
{
    RealGround real("a.txt");
    real.Folder.MakeLink("link", "nowhere");
    Ren_List_FromDrop(real.Ground.P, {real.Folder.Path("link")});
    EXPECT_EQ(Rename(real.Ground, "moved"), "");
    EXPECT_EQ(real.Folder.LinkTarget("moved"), "nowhere");
}

TEST(ExecutorOnDisk, A_vanished_file_is_missing_and_a_long_name_a_conflict)
{
    RealGround real("a.txt");
    EXPECT_EQ(Rename(real.Ground, std::string(256, 'n')), "Name Conflict");
    EXPECT_EQ(Rename(real.Ground, std::string("nul\0.txt", 8)), "Name Conflict");
    real.Folder.Remove("a.txt");
    EXPECT_EQ(Rename(real.Ground, "b.txt"), "Missing");
}

TEST(ExecutorOnDisk, A_folder_that_takes_no_changes_denies_access)
{
    const int wrong = AsPlainUser([] {
        RealGround real("a.txt");
        real.Folder.SetMode(".", 0555);
        const std::string errors = Rename(real.Ground, "b.txt");
        real.Folder.SetMode(".", 0755);
        return errors == "Access Denied" && real.Folder.Read("a.txt") == "content" ? 0 : 1;
    });
    EXPECT_EQ(wrong, 0);
}

} // namespace tavo
