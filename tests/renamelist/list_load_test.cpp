#include "renamelist/rename_list.h"

#include "core/screens.h"
#include "platform/posix/posix_files.h"
#include "support/list_run.h"
#include "support/memory_clock.h"
#include "support/temp_folder.h"

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

class Load : public ListRun {
protected:
    // Fills the selection list; the rows of these positions are selected.
    void FillSource(const Texts& names, const std::vector<int>& selected)
    {
        const std::string path = ground.Full("d/");
        for (const std::string& name : names) {
            const std::string_view cells[] = {name, path, "         9KB", "TXT",
                                              "03/09/2001 01:05 PM"};
            f.lsvSelMain.AddRow(cells, 5, "F");
        }
        for (const int row : selected)
            f.lsvSelMain.SetSelected(row, true);
    }
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Load, bothDialects, Dialect_Name);

} // namespace

// -- From the selection.

TEST_P(Load, A_selected_row_is_copied_cell_by_cell)
{
    const std::string path = ground.Full("a b/");
    const std::string_view cells[] = {"Song.One.MP3", path, "     1,234KB", "MP3",
                                      "12/31/1999 11:59 PM"};
    f.lsvSelMain.AddRow(cells, 5, "M");
    f.lsvSelMain.SetTag(1, "7");
    f.lsvSelMain.SetSelected(1, true);
    Ren_List_FromSelection(p, f.lsvSelMain);
    EXPECT_EQ(ground.Cell(1, "Name"), "Song.One.MP3");
    EXPECT_EQ(ground.Cell(1, "Path"), path);
    EXPECT_EQ(ground.Cell(1, "Size"), "     1,234KB");
    EXPECT_EQ(ground.Cell(1, "Type"), "mp3");
    EXPECT_EQ(ground.Cell(1, "Modified"), "12/31/1999 11:59 PM");
    EXPECT_EQ(ground.Cell(1, "UndoName"), "");
    EXPECT_EQ(ground.Cell(1, "Errors"), "");
    EXPECT_EQ(ground.List.Icon(1), "M");
    EXPECT_EQ(ground.List.SmallIcon(1), "M");
    EXPECT_EQ(ground.List.Tag(1), "");
    EXPECT_EQ(ground.List.Key(1), "");
}

TEST_P(Load, Only_selected_rows_come_and_the_source_stays)
{
    FillSource({"a", "b", "c", "d", "e"}, {2, 4, 5});
    Ren_List_FromSelection(p, f.lsvSelMain);
    EXPECT_EQ(ground.Names(), (Texts{"b", "d", "e"}));
    EXPECT_EQ(f.lsvSelMain.Count(), 5);
    EXPECT_EQ(f.lsvSelMain.SelCount(), 3);
}

TEST_P(Load, The_list_comes_up_on_the_rename_screen_sorted_by_name)
{
    Screen_Show(p, screenSelection, false);
    FillSource({"b.txt", "C.txt", "a.txt"}, {1, 2, 3});
    ground.List.SetSortKey(3);
    ground.List.SetSortOrder(1);
    ground.List.SetColumnMark(3, SortMark::Down);
    ground.SetTemplates("<ON>_<#>", "<OE>");
    Ren_List_FromSelection(p, f.lsvSelMain);
    EXPECT_EQ(s.CurScreen, screenRename);
    EXPECT_TRUE(ground.List.IsShown());
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt", "C.txt"}));
    EXPECT_FALSE(ground.List.Sorted());
    EXPECT_EQ(ground.List.SortKey(), 0);
    EXPECT_EQ(ground.List.SortOrder(), 0);
    for (int column = 0; column < ground.List.ColumnCount(); ++column)
        EXPECT_EQ(ground.List.Column(column).Mark, SortMark::None) << column;
    EXPECT_EQ(ground.SelectedNames(), (Texts{"a.txt"}));
    EXPECT_EQ(ground.List.SelectedItem(), 1);
    EXPECT_EQ(s.RenCount, 3);
    EXPECT_EQ(ground.Panel(1), "Total Files: 3");
    EXPECT_EQ(ground.Panel(2), "a_1.txt");
    EXPECT_EQ(ground.Panel(3), "Selected: 1");
    EXPECT_EQ(f.Caption(), "Tavo - Name & Number");
    EXPECT_FALSE(p.Busy());
}

TEST_P(Load, The_selection_screen_is_out_of_reach_meanwhile)
{
    FillSource({"a"}, {1});
    ASSERT_TRUE(f.fraSelect.Enabled);
    bool seen = false;
    ground.During(1, [&] {
        seen = true;
        EXPECT_FALSE(f.fraSelect.Enabled);
        EXPECT_FALSE(ground.ToolOf("ID_CreateList").Enabled);
        EXPECT_TRUE(p.Busy());
        EXPECT_EQ(ground.Panel(1), "");
        EXPECT_EQ(ground.Panel(2), "Loading Rename List...");
        EXPECT_EQ(ground.Panel(3), "");
        EXPECT_EQ(ground.List.Count(), 0);
        EXPECT_EQ(s.RenCount, 0);
    });
    Ren_List_FromSelection(p, f.lsvSelMain);
    EXPECT_TRUE(seen);
    EXPECT_TRUE(f.fraSelect.Enabled);
    EXPECT_TRUE(ground.ToolOf("ID_CreateList").Enabled);
}

TEST_P(Load, Status_and_events_come_with_every_thousandth_row)
{
    FillSource(Texts(2999, "x"), {});
    for (int row = 1; row <= 2999; row += 6)
        f.lsvSelMain.SetSelected(row, true);
    ASSERT_EQ(f.lsvSelMain.SelCount(), 500);
    Texts panels;
    const int turns = ground.Desktop.Turns();
    ground.Desktop.EachTurn = [&](int) {
        panels.push_back(ground.Panel(2));
        EXPECT_FALSE(ground.List.Frozen());
    };
    Ren_List_FromSelection(p, f.lsvSelMain);
    ground.Desktop.EachTurn = nullptr;
    // The share is of the selected rows, so a thin selection passes 100.
    ASSERT_GE(panels.size(), 4u);
    EXPECT_EQ(panels[0], "Loading Rename List...");
    EXPECT_EQ(panels[1], "Loading Rename List... (200%)");
    EXPECT_EQ(panels[2], "Loading Rename List... (400%)");
    EXPECT_EQ(panels[3], "Loading Rename List... (400%)");
    EXPECT_EQ(ground.Desktop.Turns() - turns, 4);
    EXPECT_EQ(ground.List.Count(), 500);
}

TEST_P(Load, A_cancelled_load_shows_what_it_has)
{
    FillSource(Texts(5000, "x"), {});
    f.lsvSelMain.SetAllSelected(true);
    ground.During(3, [&] { f.PersonKey(nullptr, Key{keyEscape, shiftNone, 0}); });
    Ren_List_FromSelection(p, f.lsvSelMain);
    EXPECT_EQ(ground.List.Count(), 2000);
    EXPECT_EQ(ground.Panel(1), "Total Files: 2000");
    EXPECT_EQ(s.CurScreen, screenRename);
}

TEST_P(Load, An_earlier_cancel_does_not_reach_a_load)
{
    FillSource({"a", "b"}, {1, 2});
    s.ActCancel = true;
    s.ActReady = false;
    bool ready = false;
    ground.During(1, [&] { ready = s.ActReady; });
    Ren_List_FromSelection(p, f.lsvSelMain);
    EXPECT_EQ(ground.List.Count(), 2);
    EXPECT_FALSE(s.ActCancel);
    EXPECT_TRUE(ready);
}

TEST_P(Load, A_new_list_takes_the_place_of_the_old_one_with_all_its_undo_data)
{
    ground.Load({"d/old.txt"});
    ground.List.SetCell(1, s.colUndoName, "first.txt");
    ground.List.SetCell(1, s.colErrors, "Missing");
    FillSource({"new"}, {1});
    Ren_List_FromSelection(p, f.lsvSelMain);
    EXPECT_EQ(ground.Names(), (Texts{"new"}));
    EXPECT_EQ(ground.Cell(1, "UndoName"), "");
    EXPECT_EQ(ground.Cell(1, "Errors"), "");
}

struct ModeCase {
    int Before, After;
};

TEST_P(Load, A_mode_that_is_none_falls_back_to_Name_and_Number)
{
    for (const ModeCase& test : {ModeCase{7, 4}, {-1, 4}, {8, 4}, {0, 0}, {4, 4}, {5, 5}, {6, 6}}) {
        SCOPED_TRACE(test.Before);
        s.RenMode = static_cast<std::int16_t>(test.Before);
        ground.Load({"d/a.txt"});
        EXPECT_EQ(s.RenMode, test.After);
        for (int mode = 0; mode <= 7; ++mode)
            EXPECT_EQ(f.ctlRbRenMode[mode].Visible.Get(), mode == test.After) << mode;
    }
}

TEST_P(Load, The_boxes_are_filled_from_the_first_row_with_Auto_Fill)
{
    s.nnAutoFill = 1;
    s.ProExt = 0;
    ground.Load({"d/b.txt", "d/a.jpg"});
    EXPECT_EQ(f.txtNameNum[nnName].Text.Get(), "a");
    EXPECT_EQ(f.txtNameNum[nnExt].Text.Get(), "jpg");
}

TEST_P(Load, The_first_row_alone_is_selected_and_in_view)
{
    ShownRows shown(ground.List);
    ground.During(2, [&] { ground.List.SetAllSelected(true); });
    ground.Load({"d/c", "d/b", "d/a"});
    EXPECT_EQ(ground.SelectedNames(), (Texts{"a"}));
    EXPECT_EQ(ground.List.SelectedItem(), 1);
    EXPECT_EQ(shown.Last, 1);
}

// -- Create.

TEST_P(Load, Create_builds_the_list_of_the_selection)
{
    Screen_Show(p, screenSelection, false);
    FillSource({"a", "b"}, {2});
    s.SelFolderMode = 1;
    Ren_List_Create(p);
    EXPECT_EQ(ground.Names(), (Texts{"b"}));
    EXPECT_EQ(s.CurScreen, screenRename);
    EXPECT_FALSE(f.txtNameNum[nnExt].Enabled);
}

TEST_P(Load, Create_without_a_selection_goes_back_to_the_old_list)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    ground.List.SetCell(2, s.colUndoName, "kept");
    Screen_Show(p, screenSelection, false);
    ASSERT_FALSE(f.ctlRbRenMode[4].Visible);
    FillSource({"x"}, {});
    Ren_List_Create(p);
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"}));
    EXPECT_EQ(ground.Cell(2, "UndoName"), "kept");
    EXPECT_EQ(s.CurScreen, screenRename);
    EXPECT_EQ(s.RenMode, modeNameNumber);
    EXPECT_TRUE(f.ctlRbRenMode[4].Visible);
}

TEST_P(Load, Create_without_anything_shows_the_empty_state)
{
    Screen_Show(p, screenSelection, false);
    Ren_List_Create(p);
    EXPECT_EQ(s.CurScreen, screenRename);
    EXPECT_EQ(s.RenMode, modeEmpty);
    EXPECT_EQ(s.RenCount, 0);
    EXPECT_TRUE(f.ctlRbRenMode[7].Visible);
    EXPECT_TRUE(ground.List.IsShown());
    EXPECT_EQ(ground.Panel(1), "");
    EXPECT_EQ(ground.Panel(2), "Create a New List");
    EXPECT_EQ(ground.Panel(3), "");
    EXPECT_EQ(f.Caption(), "Tavo - Empty List");
}

TEST_P(Load, Clear_empties_the_list_whatever_it_was)
{
    ground.Load({"d/a.txt"});
    f.tmrDateTimeClock.Enabled = true;
    Ren_List_Clear(p);
    EXPECT_EQ(ground.List.Count(), 0);
    EXPECT_EQ(s.RenCount, 0);
    EXPECT_EQ(s.RenMode, modeEmpty);
    EXPECT_FALSE(f.tmrDateTimeClock.Enabled);
    EXPECT_FALSE(ground.ToolOf("ID_RenAll").Enabled);
    EXPECT_EQ(ground.Panel(2), "Create a New List");
}

TEST_P(Load, Folder_mode_and_the_controls_that_hang_on_it)
{
    TextBox& extension = f.txtNameNum[nnExt];
    Ren_FolderMode_Apply(p, 1);
    EXPECT_EQ(s.SelFolderMode, 1);
    EXPECT_FALSE(extension.Enabled);
    EXPECT_EQ(extension.BackColor.Get(), static_cast<std::int32_t>(0x8000000F));
    EXPECT_TRUE(f.optSearchMode[3].Value);
    EXPECT_FALSE(f.optSearchMode[1].Enabled);
    EXPECT_FALSE(f.optSearchMode[2].Enabled);
    Ren_FolderMode_Apply(p, 0);
    EXPECT_EQ(s.SelFolderMode, 0);
    EXPECT_TRUE(extension.Enabled);
    EXPECT_EQ(extension.BackColor.Get(), static_cast<std::int32_t>(0x80000005));
    EXPECT_TRUE(f.optSearchMode[3].Value);
    EXPECT_TRUE(f.optSearchMode[1].Enabled);
    EXPECT_TRUE(f.optSearchMode[2].Enabled);
}

// -- From a drop.

TEST_P(Load, A_dropped_file_is_a_row)
{
    ground.AddFile("d/Two.Points.JPG");
    ground.Disk.SetSize(ground.Full("d/Two.Points.JPG"), 1024);
    ground.Disk.SetTimes(ground.Full("d/Two.Points.JPG"), Clock_Moment(2001, 3, 9, 13, 5, 59));
    Ren_List_FromDrop(p, {ground.Full("d/Two.Points.JPG")});
    ASSERT_EQ(ground.List.Count(), 1);
    EXPECT_EQ(ground.Cell(1, "Name"), "Two.Points.JPG");
    EXPECT_EQ(ground.Cell(1, "Path"), ground.Full("d/"));
    EXPECT_EQ(ground.Cell(1, "Size"), "         2KB");
    EXPECT_EQ(ground.Cell(1, "Type"), "jpg");
    EXPECT_EQ(ground.Cell(1, "Modified"), "03/09/2001 01:05 PM");
    EXPECT_EQ(ground.List.Icon(1), "P");
    EXPECT_EQ(ground.List.SmallIcon(1), "P");
    EXPECT_EQ(ground.List.Tag(1), "");
}

struct SizeCase {
    std::uint64_t Bytes;
    const char* Text;
};

TEST_P(Load, Sizes_are_those_of_a_load)
{
    for (const SizeCase& test : {SizeCase{0, "         1KB"},
                                 {1023, "         1KB"},
                                 {1024, "         2KB"},
                                 {125 * 1024, "       126KB"},
                                 {1234567890, " 1,205,633KB"},
                                 {2147483648, "-2,097,152KB"}}) {
        ground.AddFile("d/a");
        ground.Disk.SetSize(ground.Full("d/a"), test.Bytes);
        Ren_List_FromDrop(p, {ground.Full("d/a")});
        EXPECT_EQ(ground.Cell(1, "Size"), test.Text) << test.Bytes;
    }
}

TEST_P(Load, Types_and_their_icons)
{
    s.Gif = 0;
    ground.Load({"d/none", "d/a.tar.gz", "d/.profile", "d/x.GIF", "d/y.mp3", "d/z."});
    EXPECT_EQ(ground.Names(), (Texts{".profile", "a.tar.gz", "none", "x.GIF", "y.mp3", "z."}));
    EXPECT_EQ(ground.Column("Type"), (Texts{"profile", "gz", "", "gif", "mp3", ""}));
    std::string icons;
    for (int row = 1; row <= 6; ++row)
        icons += ground.List.Icon(row);
    EXPECT_EQ(icons, "FFFFMF");
    s.Gif = 1;
    ground.Load({"d/x.GIF"});
    EXPECT_EQ(ground.List.Icon(1), "P");
}

TEST_P(Load, A_dropped_folder_gives_its_own_files_with_their_types_as_found)
{
    ground.AddFile("d/One.TXT");
    ground.AddFile("d/two");
    ground.AddFile("d/sub/three.txt");
    ground.AddFile("e/Four.TXT");
    Ren_List_FromDrop(p, {ground.Full("d"), ground.Full("e/Four.TXT"), ground.Full("e/")});
    EXPECT_EQ(ground.Names(), (Texts{"Four.TXT", "Four.TXT", "One.TXT", "two"}));
    EXPECT_EQ(ground.Column("Type"), (Texts{"txt", "TXT", "TXT", ""}));
    EXPECT_EQ(ground.Column("Path"),
              (Texts{ground.Full("e/"), ground.Full("e/"), ground.Full("d/"), ground.Full("d/")}));
}

TEST_P(Load, In_folder_mode_a_drop_takes_folders_and_nothing_else)
{
    ground.AddFile("d/my.data/inside");
    ground.AddFile("d/other/inside");
    ground.AddFile("d/file.txt");
    ground.Disk.SetTimes(ground.Full("d/my.data"), Clock_Moment(2010, 12, 31, 0, 30));
    s.SelFolderMode = 1;
    Ren_List_FromDrop(p, {ground.Full("d/other/"), ground.Full("d/file.txt"),
                          ground.Full("d/my.data"), ground.Full("gone")});
    EXPECT_EQ(ground.Names(), (Texts{"my.data", "other"}));
    EXPECT_EQ(ground.Column("Path"), (Texts{ground.Full("d/"), ground.Full("d/")}));
    EXPECT_EQ(ground.Column("Size"), (Texts{"-", "-"}));
    EXPECT_EQ(ground.Column("Type"), (Texts{"-", "-"}));
    EXPECT_EQ(ground.Cell(1, "Modified"), "12/31/2010 12:30 AM");
    EXPECT_EQ(ground.List.Icon(1), "D");
}

TEST_P(Load, What_cannot_be_read_leaves_no_row)
{
    ground.AddFile("d/a.txt");
    ground.AddFile("locked/b.txt");
    ground.Disk.SetUnreadable(ground.Full("locked"));
    Ren_List_FromDrop(p, {ground.Full("gone.txt"), ground.Full("locked"), "", "x",
                          ground.Full("nowhere/c.txt"), ground.Full("d/a.txt")});
    EXPECT_EQ(ground.Names(), (Texts{"a.txt"}));
    EXPECT_EQ(ground.Disk.OpenSearches(), 0);
}

TEST_P(Load, A_drop_of_nothing_readable_clears_the_list)
{
    ground.Load({"d/a.txt"});
    Ren_List_FromDrop(p, {ground.Full("gone.txt")});
    EXPECT_EQ(ground.List.Count(), 0);
    EXPECT_EQ(s.RenMode, modeEmpty);
    EXPECT_EQ(ground.Panel(2), "Create a New List");
    Ren_List_FromDrop(p, {});
    EXPECT_EQ(s.RenMode, modeEmpty);
}

TEST_P(Load, A_file_that_vanishes_between_two_looks_leaves_no_row)
{
    ground.AddFile("d/a.txt");
    ground.AddFile("d/b.txt");
    ground.Disk.Before(
        "Stat", 1, [&](const MemoryDisk::Call&) { ground.Disk.Remove(ground.Full("d/a.txt")); });
    Ren_List_FromDrop(p, {ground.Full("d/a.txt"), ground.Full("d/b.txt")});
    EXPECT_EQ(ground.Names(), (Texts{"b.txt"}));
}

TEST_P(Load, A_stamp_that_cannot_be_told_shows_the_one_before_it)
{
    ground.AddFile("d/a.txt");
    ground.AddFile("d/b.txt");
    ground.Disk.SetTimes(ground.Full("d/a.txt"), Clock_Moment(2001, 3, 9, 13, 5));
    ground.Disk.Fail("FileTimeToLocalSystemTime", 2, 87);
    Ren_List_FromDrop(p, {ground.Full("d/a.txt"), ground.Full("d/b.txt")});
    EXPECT_EQ(ground.Column("Modified"), (Texts{"03/09/2001 01:05 PM", "03/09/2001 01:05 PM"}));
}

TEST_P(Load, The_same_file_dropped_twice_is_two_rows)
{
    ground.AddFile("d/a.txt");
    Ren_List_FromDrop(p, {ground.Full("d/a.txt"), ground.Full("d/a.txt")});
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "a.txt"}));
}

TEST(LoadOnDisk, Names_of_any_bytes_are_rows)
{
    TempFolder folder("list_load");
    const Texts names = {"*",          "?",    "a*b?.txt", "two\nlines.txt",     "\xff\xfe",
                         "ca\u0301.x", "cá.x", " blank ",  std::string(255, 'n')};
    PosixFiles disk;
    ListGround ground(disk, folder.Path());
    Texts paths;
    for (const std::string& name : names) {
        folder.Write(name);
        paths.push_back(folder.Path(name));
    }
    folder.MakeLink("nowhere", "gone");
    paths.push_back(folder.Path("nowhere"));
    Ren_List_FromDrop(ground.P, paths);
    EXPECT_EQ(ground.List.Count(), static_cast<int>(names.size()) + 1);
    for (const std::string& name : names)
        EXPECT_NE(ground.RowOf(name), 0) << name;
    EXPECT_NE(ground.RowOf("nowhere"), 0);
}

TEST(LoadOnDisk, A_link_to_a_folder_is_a_folder)
{
    TempFolder folder("list_load");
    folder.Write("real/a.txt");
    folder.MakeLink("link", "real");
    folder.MakeLink("real/loop", "..");
    PosixFiles disk;
    ListGround ground(disk, folder.Path());
    Ren_List_FromDrop(ground.P, {folder.Path("link")});
    EXPECT_EQ(ground.Names(), (Texts{"a.txt"}));
    EXPECT_EQ(ground.Column("Path"), (Texts{folder.Path("link/")}));
    ground.P.state.SelFolderMode = 1;
    Ren_List_FromDrop(ground.P, {folder.Path("link"), folder.Path("real")});
    EXPECT_EQ(ground.Names(), (Texts{"link", "real"}));
    Ren_List_FromDrop(ground.P, {"/"});
    EXPECT_EQ(ground.List.Count(), 0);
}

} // namespace tavo
