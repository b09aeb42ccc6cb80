#include "fileactions/move_copy.h"

#include "core/screens.h"
#include "fileactions/frm_delete.h"
#include "renamelist/act_run.h"
#include "support/list_run.h"

namespace tavo {
namespace {

using Texts = std::vector<std::string>;

class MoveCopy : public ListRun {
protected:
    void Begin(int option, const std::string& to)
    {
        Mode_Set(p, modeMoveCopy);
        f.optmcdMode[option].Value = true;
        f.txtmcdPath.Text = to;
        s.SupWarnRen = 1;
    }
    // Every row's status, while it was being written.
    Texts Statuses() { return ground.Column("Errors"); }
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, MoveCopy, bothDialects, Dialect_Name);

TEST_P(MoveCopy, Files_are_moved_and_the_rows_follow)
{
    LoadRows(3);
    ground.Disk.AddFolder(ground.Full("to"));
    Begin(1, ground.Full("to"));
    Act_Run(p, actAll);
    const std::string folder = ground.Full("to") + ground.Disk.Rules().Separator;
    EXPECT_EQ(ground.Column("Path"), (Texts{folder, folder, folder}));
    EXPECT_EQ(ground.ContentOf("to/a.txt"), "d/a.txt");
    EXPECT_EQ(ground.ContentOf("d/a.txt"), "");
    EXPECT_EQ(ground.Column("UndoName"), (Texts{"", "", ""}));
    EXPECT_EQ(Label(1), "Files Moved:");
    EXPECT_EQ(Value(1), "3");
    EXPECT_FALSE(f.lblAction[3].Visible);
}

TEST_P(MoveCopy, A_copy_leaves_the_file_and_the_row_goes_to_the_copy)
{
    LoadRows(1);
    ground.Disk.AddFolder(ground.Full("to"));
    Begin(2, ground.Full("to"));
    Act_Run(p, actAll);
    EXPECT_EQ(ground.ContentOf("d/a.txt"), "d/a.txt");
    EXPECT_EQ(ground.ContentOf("to/a.txt"), "d/a.txt");
    EXPECT_EQ(ground.Cell(1, "Path"), ground.Full("to") + ground.Disk.Rules().Separator);
    EXPECT_EQ(Label(1), "Files Copied:");
}

TEST_P(MoveCopy, A_taken_name_gets_the_first_free_number)
{
    LoadRows(1);
    for (const char* taken : {"to/a.txt", "to/Copy [1] a.txt"})
        ground.AddFile(taken);
    Begin(1, ground.Full("to"));
    Act_Run(p, actAll);
    EXPECT_EQ(ground.Names(), (Texts{"Copy [2] a.txt"}));
    EXPECT_EQ(ground.ContentOf("to/Copy [2] a.txt"), "d/a.txt");
    EXPECT_EQ(ground.ContentOf("to/a.txt"), "to/a.txt");
}

TEST_P(MoveCopy, A_move_into_its_own_folder_is_a_rename)
{
    LoadRows(1);
    Begin(1, ground.Full("d"));
    Act_Run(p, actAll);
    EXPECT_EQ(ground.Names(), (Texts{"Copy [1] a.txt"}));
    EXPECT_EQ(ground.ContentOf("d/a.txt"), "");
    EXPECT_EQ(ground.ContentOf("d/Copy [1] a.txt"), "d/a.txt");
}

// The hundredth name is not looked for: the file goes in under its own name and
// replaces what is there, while the row shows a name that does not fit.
TEST_P(MoveCopy, At_the_hundredth_name_the_file_of_that_name_is_replaced)
{
    LoadRows(1);
    ground.AddFile("to/a.txt");
    for (int number = 1; number <= 99; ++number)
        ground.AddFile("to/Copy [" + std::to_string(number) + "] a.txt");
    Begin(2, ground.Full("to"));
    Act_Run(p, actAll);
    EXPECT_EQ(ground.Names(), (Texts{"Copy [100] a.txt"}));
    EXPECT_EQ(ground.ContentOf("to/a.txt"), "d/a.txt");
    EXPECT_EQ(ground.ContentOf("to/Copy [99] a.txt"), "to/Copy [99] a.txt");
    EXPECT_EQ(ground.ContentOf("to/Copy [100] a.txt"), "");
}

TEST_P(MoveCopy, A_missing_source_is_unknown_here)
{
    LoadRows(2);
    ground.Disk.AddFolder(ground.Full("to"));
    ground.Disk.Remove(ground.Full("d/a.txt"));
    Begin(1, ground.Full("to"));
    Act_Run(p, actAll);
    EXPECT_EQ(Statuses(), (Texts{"Unknown", ""}));
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"}));
    EXPECT_EQ(Value(2), "1");
    EXPECT_EQ(ErrorsHeader(), "Errors: 1");
}

TEST_P(MoveCopy, The_destination_is_looked_at_before_anything_is_cleared)
{
    LoadRows(1);
    ground.List.SetCell(1, s.colUndoName, "kept");
    Begin(1, "");
    Act_Run(p, actAll);
    f.txtmcdPath.Text = ground.Full("nowhere");
    Act_Run(p, actAll);
    EXPECT_EQ(ground.Desktop.BoxTexts(), (Texts{"There is No Destination Path!",
                                                "The Destination Path Appears to be Invalid!"}));
    EXPECT_EQ(ground.Cell(1, "UndoName"), "kept");
}

TEST_P(MoveCopy, The_options_name_the_box_and_choose_the_work)
{
    f.optmcdMode[1].Value = true;
    EXPECT_EQ(f.lblmcd[0].Caption.Get(), "Move To");
    EXPECT_EQ(s.mcdMode, 1);
    f.optmcdMode[2].Value = true;
    EXPECT_EQ(f.lblmcd[0].Caption.Get(), "Copy To");
    EXPECT_EQ(s.mcdMode, 2);
}

TEST_P(MoveCopy, A_favourite_and_a_chosen_folder_go_into_the_box)
{
    s.Favorites = {{}, {"A", "/a/"}, {"B", "/b/"}};
    f.cbomcdPath.Clear();
    f.cbomcdPath.AddItem("A");
    f.cbomcdPath.AddItem("B");
    f.cbomcdPath.SetListIndex(1);
    EXPECT_EQ(f.txtmcdPath.Text.Get(), "/b/");
    f.cmdmcdPath.Click();
    EXPECT_EQ(f.txtmcdPath.Text.Get(), "/b/") << "nothing was chosen";
    ground.Desktop.FolderChoice = "/c";
    f.cmdmcdPath.Click();
    EXPECT_EQ(f.txtmcdPath.Text.Get(), "/c");
    EXPECT_EQ(ground.Desktop.FolderTitles, (Texts{"Select a Path", "Select a Path"}));
}

// -- Delete and Recycle

TEST_P(MoveCopy, Selected_files_are_deleted_with_their_rows)
{
    LoadRows(4);
    SelectRows({1, 3});
    Act_Run(p, actDelete);
    EXPECT_EQ(ground.Names(), (Texts{"b.txt", "d.txt"}));
    EXPECT_EQ(ground.ContentOf("d/a.txt"), "");
    EXPECT_EQ(ground.ContentOf("d/b.txt"), "d/b.txt");
    EXPECT_EQ(Label(1), "Files Deleted:");
    EXPECT_EQ(Value(1), "2");
    EXPECT_EQ(s.RenCount, 2);
}

// Delete with three rows of which the second fails. Its status goes to the row
// numbered 2, which by then is the third file; that one is deleted, and so the
// text is lost.
TEST_P(MoveCopy, A_failed_delete_keeps_its_row_selected)
{
    LoadRows(5);
    SelectRows({1, 2, 3});
    ground.Disk.FailWhen([](const MemoryDisk::Call& call) {
        const bool second =
            call.Name == "SHFileOperationA" && call.Path.find("b.txt") != std::string::npos;
        return second ? int{diskDenied} : 0;
    });
    Act_Run(p, actDelete);
    EXPECT_EQ(ground.Names(), (Texts{"b.txt", "d.txt", "e.txt"}));
    EXPECT_EQ(ground.SelectedNames(), (Texts{"b.txt"}));
    EXPECT_EQ(Value(1), "2");
    EXPECT_EQ(Value(2), "1");
    EXPECT_EQ(Statuses(), (Texts{"", "", ""}));
}

TEST_P(MoveCopy, A_status_goes_to_the_row_numbered_as_the_step)
{
    LoadRows(4);
    SelectRows({1, 2, 4});
    ground.Disk.Remove(ground.Full("d/b.txt"));
    Act_Run(p, actDelete);
    // Step 1 removes a. Step 2 finds b missing and writes into row 2, which is
    // c; step 3 is c's own, which is not selected: row 3 is d, and what was
    // written last stands there until d goes.
    EXPECT_EQ(ground.Names(), (Texts{"b.txt", "c.txt"}));
    EXPECT_EQ(Statuses(), (Texts{"", "Missing"}));
}

TEST_P(MoveCopy, Recycled_files_are_in_the_trash)
{
    LoadRows(2);
    SelectRows({1});
    Act_Run(p, actRecycle);
    EXPECT_EQ(ground.Names(), (Texts{"b.txt"}));
    EXPECT_EQ(ground.ContentOf("d/a.txt"), "");
    EXPECT_EQ(ground.Disk.Calls("SHFileOperationA"), 1);
}

TEST_P(MoveCopy, What_comes_in_through_the_pump_deletes_nothing_more)
{
    LoadRows(4);
    SelectRows({1, 2});
    ground.During(3, [this] {
        f.lsvRename.PersonSelectAll();
        p.main.PersonKey(&f.lsvRename, {keyDelete, shiftNone});
    });
    Act_Run(p, actDelete);
    EXPECT_EQ(ground.Names(), (Texts{"c.txt", "d.txt"}));
    EXPECT_EQ(ground.ContentOf("d/c.txt"), "d/c.txt");
}

TEST_P(MoveCopy, A_cancelled_delete_keeps_the_rest)
{
    LoadRows(3);
    SelectRows({1, 2, 3});
    ground.Desktop.EachTurn = [this](int) {
        if (ground.List.Count() == 2)
            s.ActCancel = true;
    };
    Act_Run(p, actDelete);
    EXPECT_EQ(ground.Names(), (Texts{"b.txt", "c.txt"}));
}

TEST_P(MoveCopy, The_last_row_gone_leaves_an_empty_list)
{
    LoadRows(1);
    SelectRows({1});
    Act_Run(p, actDelete);
    EXPECT_EQ(s.RenMode, modeEmpty);
    EXPECT_EQ(ground.Panel(2), "Create a New List");
}

TEST_P(MoveCopy, A_delete_leaves_the_last_run_to_be_undone)
{
    LoadRows(3);
    s.LastRows = 7;
    s.LastMode = modeCase;
    SelectRows({1, 2});
    Act_Run(p, actDelete);
    EXPECT_EQ(s.LastRows, 7);
    EXPECT_EQ(s.LastMode, modeCase);
}

} // namespace
} // namespace tavo
