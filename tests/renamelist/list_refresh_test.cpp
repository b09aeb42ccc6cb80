#include "renamelist/rename_list.h"

#include "platform/posix/posix_files.h"
#include "renamelist/act_run.h"
#include "support/list_run.h"
#include "support/memory_clock.h"
#include "support/temp_folder.h"

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

class Refresh : public ListRun {};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Refresh, bothDialects, Dialect_Name);

struct SizeCase {
    std::uint64_t Bytes;
    const char *Loaded, *Refreshed;
};

} // namespace

// The two formats differ by the blank, and by what they make of large files.
TEST_P(Refresh, Sizes_read_otherwise_after_a_refresh_than_after_a_load)
{
    const SizeCase cases[] = {
        {0, "         1KB", "        1 KB"},          {1023, "         1KB", "        1 KB"},
        {1024, "         2KB", "        2 KB"},       {122 * 1024, "       123KB", "      123 KB"},
        {2147483648, "-2,097,152KB", "2,097,153 KB"}, {4294967296, "         1KB", "4,194,305 KB"},
    };
    for (const SizeCase& test : cases) {
        SCOPED_TRACE(test.Bytes);
        ground.AddFile("d/a.txt");
        ground.Disk.SetSize(ground.Full("d/a.txt"), test.Bytes);
        Ren_List_FromDrop(p, {ground.Full("d/a.txt")});
        EXPECT_EQ(ground.Cell(1, "Size"), test.Loaded);
        Ren_List_Refresh(p);
        EXPECT_EQ(ground.Cell(1, "Size"), test.Refreshed);
    }
}

TEST_P(Refresh, Type_size_and_date_are_read_anew_and_nothing_else)
{
    ground.Load({"d/a.TAR.GZ"});
    ground.List.SetCell(1, s.colType, "old");
    ground.List.SetCell(1, s.colUndoName, "undo");
    ground.List.SetCell(1, s.colErrors, "Missing");
    ground.List.SetTag(1, "7");
    ground.Disk.SetTimes(ground.Full("d/a.TAR.GZ"), Clock_Moment(2024, 2, 29, 0, 7));
    Ren_List_Refresh(p);
    EXPECT_EQ(ground.Cell(1, "Name"), "a.TAR.GZ");
    EXPECT_EQ(ground.Cell(1, "Type"), "gz");
    EXPECT_EQ(ground.Cell(1, "Modified"), "02/29/2024 12:07 AM");
    EXPECT_EQ(ground.Cell(1, "UndoName"), "undo");
    EXPECT_EQ(ground.Cell(1, "Errors"), "Missing");
    EXPECT_EQ(ground.List.Tag(1), "7");
    EXPECT_EQ(ground.List.Icon(1), "F");
}

TEST_P(Refresh, A_folder_row_loses_its_marks)
{
    ground.AddFile("d/My.Data/inside");
    ground.AddFile("d/plain/inside");
    s.SelFolderMode = 1;
    Ren_List_FromDrop(p, {ground.Full("d/My.Data"), ground.Full("d/plain")});
    Ren_List_Refresh(p);
    EXPECT_EQ(ground.Column("Type"), (Texts{"data", ""}));
    EXPECT_NE(ground.Cell(1, "Size"), "-");
    EXPECT_TRUE(ground.Cell(1, "Size").ends_with(" KB"));
}

TEST_P(Refresh, Rows_whose_file_is_gone_go)
{
    ground.Load({"d/a", "d/b", "d/c", "d/d", "d/e"});
    for (const char* name : {"d/a", "d/b", "d/e"})
        ground.Disk.Remove(ground.Full(name));
    const int turns = ground.Desktop.Turns();
    Ren_List_Refresh(p);
    EXPECT_EQ(ground.Names(), (Texts{"c", "d"}));
    EXPECT_EQ(Value(1), "3");
    EXPECT_EQ(Value(2), "2");
    EXPECT_EQ(f.prbAction.Value.Get(), 100);
    EXPECT_EQ(ground.Desktop.Turns(), turns + 5);
}

TEST_P(Refresh, All_gone_leaves_an_empty_list)
{
    ground.Load({"d/a", "d/b"});
    ground.Disk.Remove(ground.Full("d"));
    Ren_List_Refresh(p);
    EXPECT_EQ(ground.List.Count(), 0);
    Ren_List_Refresh(p);
    EXPECT_EQ(ground.List.Count(), 0);
}

TEST_P(Refresh, Cancel_stops_it_behind_the_row_in_progress)
{
    ground.Load({"d/a", "d/b", "d/c"});
    ground.Disk.Remove(ground.Full("d/a"));
    ground.Disk.Remove(ground.Full("d/c"));
    ground.During(2, [&] { s.ActCancel = true; });
    Ren_List_Refresh(p);
    EXPECT_EQ(ground.Names(), (Texts{"b", "c"}));
    EXPECT_EQ(Value(1), "1");
    EXPECT_EQ(Value(2), "1");
}

TEST_P(Refresh, A_stamp_that_cannot_be_told_stays)
{
    ground.AddFile("d/a");
    ground.Disk.SetTimes(ground.Full("d/a"), Clock_Moment(2001, 3, 9, 13, 5));
    Ren_List_FromDrop(p, {ground.Full("d/a")});
    ground.Disk.Fail("FileTimeToLocalSystemTime", 1, 87);
    Ren_List_Refresh(p);
    EXPECT_EQ(ground.Cell(1, "Modified"), "03/09/2001 01:05 PM");
    EXPECT_EQ(Value(2), "1");
}

TEST_P(Refresh, As_an_action_it_keeps_the_order_of_a_sorted_list)
{
    ground.Load({"d/a", "d/b", "d/c"});
    Ren_List_Sort(p, ground.List, s.colName);
    ground.Disk.Remove(ground.Full("d/b"));
    Act_Run(p, actRefresh);
    EXPECT_EQ(ground.Names(), (Texts{"c", "a"}));
    EXPECT_TRUE(ground.List.Sorted());
    Act_Done(p);
    EXPECT_EQ(ground.Panel(1), "Total Files: 2");
    EXPECT_EQ(s.RenCount, 2);
}

// -- Removing.

namespace {

struct RemoveCase {
    const char* What;
    std::vector<int> Selected;
    Texts Left;
    const char* Removed;
};

const RemoveCase removeCases[] = {
    {"one", {3}, {"a", "b", "d", "e"}, "1"},
    {"neighbours", {2, 3}, {"a", "d", "e"}, "2"},
    {"first and last", {1, 5}, {"b", "c", "d"}, "2"},
    {"every other", {1, 3, 5}, {"b", "d"}, "3"},
    {"all", {1, 2, 3, 4, 5}, {}, "5"},
    {"none", {}, {"a", "b", "c", "d", "e"}, ""},
};

} // namespace

TEST_P(Refresh, Selected_rows_are_removed_and_no_file_is_touched)
{
    for (const RemoveCase& test : removeCases) {
        SCOPED_TRACE(test.What);
        MemoryListGround one(GetParam());
        one.Load({"d/a", "d/b", "d/c", "d/d", "d/e"});
        one.Select(test.Selected);
        one.Disk.ForgetCalls();
        const int turns = one.Desktop.Turns();
        Ren_List_RemoveSelected(one.P);
        EXPECT_EQ(one.Names(), test.Left);
        EXPECT_EQ(one.Main.lblActionInfo[1].Caption.Get(), test.Removed);
        EXPECT_EQ(one.Main.prbAction.Value.Get(), 100);
        EXPECT_EQ(one.Desktop.Turns(), turns + 5);
        EXPECT_EQ(one.Disk.Calls(), 0);
    }
}

TEST_P(Refresh, Rows_selected_on_the_way_stay_and_rows_unselected_on_the_way_go)
{
    ground.Load({"d/a", "d/b", "d/c", "d/d"});
    ground.Select({1, 3});
    ground.During(1, [&] {
        ground.List.SetAllSelected(false);
        ground.List.SetSelected(1, true);
    });
    Ren_List_RemoveSelected(p);
    EXPECT_EQ(ground.Names(), (Texts{"b", "d"}));
}

TEST_P(Refresh, Cancel_keeps_the_rows_that_are_still_to_go)
{
    ground.Load({"d/a", "d/b", "d/c", "d/d"});
    ground.Select({1, 2, 4});
    ground.During(2, [&] { s.ActCancel = true; });
    Ren_List_RemoveSelected(p);
    EXPECT_EQ(ground.Names(), (Texts{"c", "d"}));
    EXPECT_EQ(Value(1), "2");
}

TEST(RefreshOnDisk, Files_are_seen_as_they_are_now)
{
    TempFolder folder("list_refresh");
    PosixFiles disk;
    ListGround ground(disk, folder.Path());
    Texts paths;
    for (const char* name : {"grows", "gone", "a*?", "link"}) {
        folder.Write(name, "x");
        paths.push_back(folder.Path(name));
    }
    Ren_List_FromDrop(ground.P, paths);
    folder.Write("grows", std::string(5000, 'x'));
    folder.Remove("gone");
    folder.Remove("link");
    folder.MakeLink("link", "nowhere");
    Ren_List_Refresh(ground.P);
    EXPECT_EQ(ground.Names(), (Texts{"a*?", "grows", "link"}));
    EXPECT_EQ(ground.Cell(2, "Size"), "        5 KB");
}

} // namespace tavo
