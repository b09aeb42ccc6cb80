#include "core/start_up.h"

#include "core/screens.h"
#include "renamelist/act_run.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

void Press(Program& p, const char* name, Control* target = nullptr)
{
    Key key;
    ASSERT_TRUE(Key_FromName(name, key)) << name;
    p.main.PersonKey(target, key);
}

class StartUp : public testing::Test {
protected:
    ProgramRig rig{MemoryDisk::Flavour::Posix};

    Program& StartWithFiles(const std::string& settings = "")
    {
        for (const char* file : {"/d/a.txt", "/d/b.txt", "/d/c.txt"})
            rig.Disk.AddFile(file);
        return rig.Start("/d/", settings);
    }
};

TEST_F(StartUp, The_program_is_made_without_loading_anything)
{
    Program p(rig.Disk, rig.Profile, rig.Desktop, StartInfo{"/app", ""});
    EXPECT_FALSE(p.main.Loaded());
    EXPECT_EQ(p.state.CurScreen, screenNone);
    EXPECT_EQ(rig.Profile.Calls(), 0);
    EXPECT_EQ(rig.Disk.Calls(), 0);
    p.Start();
    EXPECT_TRUE(p.main.Loaded());
    EXPECT_EQ(p.state.AppFolder, "/app/");
}

TEST_F(StartUp, A_first_run_comes_up_on_the_selection_screen_at_the_programs_folder)
{
    Program& p = rig.Start();
    EXPECT_EQ(p.state.CurScreen, screenSelection);
    EXPECT_EQ(p.state.StartPath, "/app/");
    EXPECT_EQ(p.main.ftvSelMain.Folder(), "/app/");
    EXPECT_EQ(p.main.Caption(), "Tavo");
    EXPECT_TRUE(p.main.Visible());
    EXPECT_EQ(p.state.RenMode, modeNameNumber);
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
}

TEST_F(StartUp, With_ShowFile_0_the_rename_screen_is_empty_and_nothing_is_walked)
{
    Program& p = rig.Start("", "[Settings]\nShowFile=0\n");
    EXPECT_EQ(p.state.CurScreen, screenRename);
    EXPECT_EQ(p.state.RenMode, modeEmpty);
    EXPECT_TRUE(p.main.lsvRename.Visible);
    EXPECT_EQ(p.main.lsvSelMain.Count(), 0);
    EXPECT_TRUE(p.main.ftvSelMain.Folder().empty());
    EXPECT_EQ(p.main.stbMain.Panel(1), "");
    EXPECT_EQ(p.main.stbMain.Panel(2), "Create a New List");
    EXPECT_EQ(p.main.stbMain.Panel(3), "");
    EXPECT_EQ(p.main.Caption(), "Tavo - Empty List");
    EXPECT_TRUE(p.main.Visible());
}

TEST_F(StartUp, The_seed_file_is_read_only_where_the_own_one_is_missing)
{
    rig.Disk.AddFile("/app/Default.ini", "x");
    rig.Profile.SetText("/app/Default.ini", "[Settings]\nSetDigits=1\n");
    EXPECT_EQ(rig.Start().state.SetDigits, 1);

    ProgramRig other(MemoryDisk::Flavour::Posix);
    other.Disk.AddFile("/app/Default.ini", "x");
    other.Profile.SetText("/app/Default.ini", "[Settings]\nSetDigits=1\n");
    EXPECT_EQ(other.Start("", "[Settings]\nProExt=1\n").state.SetDigits, 0);
}

TEST_F(StartUp, Sizes_come_from_the_screen_and_the_frame)
{
    Program p(rig.Disk, rig.Profile, rig.Desktop, StartInfo{"/app", ""});
    p.main.SetFrame(120, 900);
    p.main.stbMain.Height = 300;
    p.Start();
    EXPECT_EQ(p.state.WinDefaultW, 12000);
    EXPECT_EQ(p.state.WinDefaultH, 9000);
    EXPECT_EQ(p.state.MinWidth, 6732);
    EXPECT_EQ(p.state.MinHeight, 5250 - 900 - 300);
}

TEST_F(StartUp, The_columns_are_looked_up_by_their_keys)
{
    Program& p = rig.Start();
    const SharedState& s = p.state;
    EXPECT_EQ((std::vector<int>{s.colName, s.colPath, s.colSize, s.colType, s.colModified,
                                s.colUndoName, s.colErrors}),
              (std::vector<int>{0, 1, 2, 3, 4, 5, 6}));
}

// -- Keys of the form

TEST_F(StartUp, Escape_raises_the_cancel)
{
    Program& p = rig.Start();
    EXPECT_FALSE(p.state.ActCancel);
    Press(p, "Escape");
    EXPECT_TRUE(p.state.ActCancel);
}

TEST_F(StartUp, Alt_D_goes_to_the_address_box)
{
    Program& p = rig.Start();
    Press(p, "Alt+D");
    ASSERT_NE(p.main.ActiveControl(), nullptr);
    EXPECT_EQ(p.main.ActiveControl()->Name(), "ID_sAddress");
}

TEST_F(StartUp, Return_runs_the_mode_on_the_one_selected_row)
{
    Program& p = StartWithFiles();
    rig.MakeList();
    rig.Box(nnName, "x<ON>");
    rig.Box(nnExt, "<OE>");
    Press(p, "Return", &p.main.txtNameNum[nnName]);
    EXPECT_TRUE(rig.Disk.Has("/d/xa.txt"));
    EXPECT_TRUE(rig.Disk.Has("/d/b.txt"));
    EXPECT_EQ(p.state.CurScreen, screenRename);
}

TEST_F(StartUp, Return_does_nothing_but_with_one_row_and_its_setting)
{
    struct Row {
        const char* What;
        const char* Settings;
        std::vector<int> Selected;
        bool Renames;
    };
    const Row rows[] = {
        {"one row", "", {1}, true},
        {"two rows", "", {1, 2}, false},
        {"no row", "", {}, false},
        {"RetRename 0", "[Settings]\nRetRename=0\n", {1}, false},
        {"RetRename 2", "[Settings]\nRetRename=2\n", {1}, false},
    };
    for (const Row& row : rows) {
        ProgramRig one(MemoryDisk::Flavour::Posix);
        for (const char* file : {"/d/a.txt", "/d/b.txt"})
            one.Disk.AddFile(file);
        Program& p = one.Start("/d/", row.Settings);
        one.MakeList();
        one.Box(nnName, "x<ON>");
        one.Box(nnExt, "<OE>");
        p.main.lsvRename.PersonSelect(row.Selected, row.Selected.empty() ? 0 : 1);
        one.Box(nnName, "x<ON>");
        Press(p, "Return", &p.main.txtNameNum[nnName]);
        EXPECT_EQ(one.Disk.Has("/d/xa.txt"), row.Renames) << row.What;
        EXPECT_TRUE(one.Disk.Has("/d/b.txt")) << row.What;
    }
}

TEST_F(StartUp, Return_on_the_selection_screen_renames_nothing)
{
    Program& p = StartWithFiles();
    rig.MakeList();
    rig.Box(nnName, "x<ON>");
    rig.Click("ID_NewList");
    Press(p, "Return", &p.main.lsvSelMain);
    EXPECT_EQ(rig.Disk.Calls("SHFileOperationA"), 0);
}

// -- The end

TEST_F(StartUp, The_end_asks_nothing_and_marks_the_main_window_as_gone)
{
    Program& p = rig.Start();
    rig.Click("ID_Exit");
    EXPECT_FALSE(p.main.Loaded());
    EXPECT_FALSE(p.main.Visible());
    EXPECT_FALSE(p.state.MainAlive);
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
}

TEST_F(StartUp, A_close_in_the_midst_of_a_run_cancels_it_and_waits)
{
    Program& p = StartWithFiles();
    rig.MakeList();
    rig.Box(nnName, "x<ON>");
    rig.Box(nnExt, "<OE>");
    rig.Desktop.Answer(BoxAnswer::Ok);
    bool closed = false;
    rig.Desktop.EachTurn = [&](int) {
        if (closed || !rig.Disk.Has("/d/xa.txt"))
            return;
        closed = true;
        p.main.PersonClose();
        EXPECT_TRUE(p.main.Loaded());
        EXPECT_TRUE(p.ClosePending);
    };
    rig.Click("ID_RenAll");
    EXPECT_TRUE(closed);
    EXPECT_TRUE(p.main.Loaded()) << "the host has not settled yet";
    EXPECT_TRUE(rig.Disk.Has("/d/c.txt")) << "the run went on to its end";
    p.Settle();
    EXPECT_FALSE(p.main.Loaded());
    EXPECT_FALSE(p.state.MainAlive);
}

TEST_F(StartUp, A_close_ends_a_pause)
{
    Program& p = StartWithFiles();
    rig.MakeList();
    rig.Box(nnName, "x<ON>");
    rig.Desktop.Answer(BoxAnswer::Ok);
    int turns = 0;
    rig.Desktop.EachTurn = [&](int) {
        if (++turns == 3)
            rig.Desktop.At(rig.Desktop.Turns() + 1, [&] { p.main.PersonClose(); });
        if (turns == 3)
            p.main.cmdActPause.PersonClick();
    };
    rig.Click("ID_RenAll");
    EXPECT_TRUE(p.ClosePending);
    EXPECT_FALSE(p.state.ActPaused);
    p.Settle();
    EXPECT_FALSE(p.main.Loaded());
}

TEST_F(StartUp, Settling_with_nothing_pending_keeps_the_program)
{
    Program& p = rig.Start();
    p.Settle();
    EXPECT_TRUE(p.main.Loaded());
    EXPECT_TRUE(p.state.MainAlive);
}

} // namespace
} // namespace tavo
