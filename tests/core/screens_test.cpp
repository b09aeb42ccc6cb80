#include "core/screens.h"

#include "core/start_up.h"
#include "renamelist/act_run.h"
#include "renamelist/rename_list.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

class Screens : public testing::Test {
protected:
    ProgramRig rig{MemoryDisk::Flavour::Posix};

    Program& Start(const std::string& settings = "")
    {
        for (const char* file : {"/d/a.txt", "/d/b.txt", "/d/c.txt"})
            rig.Disk.AddFile(file);
        return rig.Start("/d/", settings);
    }

    Tool& T(const char* id) { return *rig.Main().atbMain.Find(id); }
    bool BandShown(const char* name) { return rig.Main().atbMain.FindBand(name)->Visible(); }
};

// -- What can be reached in each state

enum State {
    Selection,
    Empty,
    Rows,
    Thumbnails,
    Running,
    FromThumbnails,
    SelectionAgain,
    RowsAgain
};
constexpr const char* stateNames[] = {
    "selection",    "rename, empty",        "rename, rows",    "thumbnails",
    "during a run", "back from thumbnails", "selection again", "back to the old list"};

// x usable, d shown but not usable, - not shown.
struct Reach {
    const char* Id;
    const char* ByState; // a letter for each state, in their order
};

constexpr Reach reaches[] = {{"ID_ExportList", "xdddddxd"},   {"ID_tbAddress", "xdddddxd"},
                             {"ID_mnuRenMode", "dxxxdxdx"},   {"ID_mnuArrange", "dxxxdxdx"},
                             {"ID_ArrangeList", "dxxxdxdx"},  {"ID_ArrangeThumb", "dxxxdxdx"},
                             {"ID_RenAll", "-dxxdx-x"},       {"ID_RenSelected", "-dxxdx-x"},
                             {"ID_RenUndo", "-dxxdx-x"},      {"ID_SelDelete", "-dxxdx-x"},
                             {"ID_SelGroup", "-dxxdx-x"},     {"ID_SelUp", "-dxxdx-x"},
                             {"ID_SelDown", "-dxxdx-x"},      {"ID_SelDistance", "-dxxdx-x"},
                             {"ID_Views", "-dxxdx-x"},        {"ID_AutoFill", "-dxxdx-x"},
                             {"ID_RenameList", "-dxxdx-x"},   {"ID_Viewer", "-dxxdx-x"},
                             {"ID_ViewerUp", "-dxxdx-x"},     {"ID_RefreshList", "xdxxdxxx"},
                             {"ID_mnuThumbnail", "--xxdx-x"}, {"ID_mnuTSchemes", "--xxd--x"},
                             {"ID_mnuTemplates", "--xxdx-x"}, {"ID_ThumbCaption", "--dxdd-d"},
                             {"ID_mnuCapAlign", "--dxdd-d"},  {"ID_CreateList", "x-----x-"},
                             {"ID_SelSubFiles", "x-----x-"},  {"ID_NewList", "-xxxdx-x"},
                             {"ID_mnuEdit", "xxxxdxxx"},      {"ID_mnuView", "xxxxdxxx"},
                             {"ID_mnuFavorites", "xxxxdxxx"}, {"ID_mnuFile", "xxxxxxxx"},
                             {"ID_Exit", "xxxxxxxx"}};

void Reaches_Check(FrmMain& main, State state)
{
    for (const Reach& reach : reaches) {
        const Tool& tool = *main.atbMain.Find(reach.Id);
        const char found = !tool.IsShown() ? '-' : tool.IsUsable() ? 'x' : 'd';
        EXPECT_EQ(found, reach.ByState[state]) << reach.Id << ", " << stateNames[state];
    }
}

TEST_F(Screens, Tools_are_in_reach_by_the_state)
{
    Program& p = Start();
    Reaches_Check(p.main, Selection);

    rig.Click("ID_CreateList"); // nothing selected
    Reaches_Check(p.main, Empty);

    rig.Click("ID_NewList");
    rig.MakeList();
    Reaches_Check(p.main, Rows);

    rig.Box(nnName, "x<ON>");
    rig.Box(nnExt, "<OE>");
    rig.Desktop.Answer(BoxAnswer::Ok);
    bool looked = false;
    rig.Desktop.EachTurn = [&](int) {
        if (p.state.CurScreen == screenAction && !looked)
            Reaches_Check(p.main, Running);
        looked = looked || p.state.CurScreen == screenAction;
    };
    rig.Click("ID_RenAll");
    EXPECT_TRUE(looked);
    Reaches_Check(p.main, Running); // "Finished!" still stands
    p.main.cmdActDone.PersonClick();
    Reaches_Check(p.main, Rows);

    rig.Click("ID_ArrangeThumb");
    Reaches_Check(p.main, Thumbnails);
    rig.Click("ID_ArrangeDetails");
    Reaches_Check(p.main, FromThumbnails);
    rig.Click("ID_NewList");
    Reaches_Check(p.main, SelectionAgain);
    rig.Click("ID_CreateList");
    Reaches_Check(p.main, RowsAgain);
}

TEST_F(Screens, A_run_from_the_thumbnails_comes_back_to_them_with_their_menus)
{
    Program& p = Start();
    rig.MakeList();
    rig.Click("ID_ArrangeThumb");
    rig.Box(nnName, "x<ON>");
    rig.Desktop.Answer(BoxAnswer::Ok);
    rig.Click("ID_RenAll");
    EXPECT_EQ(p.state.CurScreen, screenAction);
    EXPECT_FALSE(T("ID_ThumbCaption").Enabled);
    p.main.cmdActDone.PersonClick();
    EXPECT_EQ(p.state.CurScreen, screenThumbnails);
    Reaches_Check(p.main, Thumbnails);
}

// -- What each screen shows

struct Shown {
    int Screen;
    const char* Control;
};

TEST_F(Screens, Each_screen_shows_its_own_control)
{
    Program& p = Start();
    rig.MakeList();
    for (const Shown& row :
         {Shown{screenAction, "picAction"}, Shown{screenSelection, "fraSelect"},
          Shown{screenThumbnails, "picThumbnails"}, Shown{screenRename, "lsvRename"}}) {
        Screen_Show(p, row.Screen, false);
        for (const char* name : {"picAction", "fraSelect", "picThumbnails", "lsvRename"})
            EXPECT_EQ(p.main.Find(name)->Visible.Get(), std::string_view(name) == row.Control)
                << name << " on screen " << row.Screen;
        EXPECT_EQ(p.state.CurScreen, row.Screen);
    }
}

TEST_F(Screens, Bands_follow_the_screen)
{
    Program& p = Start();
    EXPECT_TRUE(BandShown("Selection"));
    EXPECT_TRUE(BandShown("Address"));
    EXPECT_FALSE(BandShown("Standard"));
    Screen_Show(p, screenRename, false);
    EXPECT_FALSE(BandShown("Selection"));
    EXPECT_FALSE(BandShown("Address"));
    EXPECT_TRUE(BandShown("Standard"));
    EXPECT_TRUE(BandShown("Menu"));
    Screen_Show(p, screenSelection, false);
    EXPECT_TRUE(BandShown("Address"));
}

TEST_F(Screens, The_address_band_stays_away_when_it_is_switched_off)
{
    Program& p = Start("[Defaults]\ntbsAddress=0\n");
    EXPECT_FALSE(BandShown("Address"));
    Screen_Show(p, screenRename, false);
    Screen_Show(p, screenSelection, false);
    EXPECT_FALSE(BandShown("Address"));
}

TEST_F(Screens, One_of_the_two_preview_tools_is_shown)
{
    Start("[Defaults]\nSelPreview=1\n");
    EXPECT_FALSE(T("ID_SelPreviewOn").Visible);
    EXPECT_TRUE(T("ID_SelPreviewOff").Visible);

    ProgramRig off(MemoryDisk::Flavour::Posix);
    off.Start();
    EXPECT_TRUE(off.Main().atbMain.Find("ID_SelPreviewOn")->Visible);
    EXPECT_FALSE(off.Main().atbMain.Find("ID_SelPreviewOff")->Visible);
}

TEST_F(Screens, Asking_for_the_screen_in_hand_changes_nothing)
{
    Program& p = Start();
    p.main.lsvSelMain.PersonSelectAll();
    rig.Disk.AddFile("/d/later.txt");
    const int walks = rig.Disk.Calls("FindFirstFileA");
    Screen_Show(p, screenSelection, true);
    EXPECT_EQ(rig.Disk.Calls("FindFirstFileA"), walks);
    EXPECT_EQ(p.main.lsvSelMain.Count(), 3);
    EXPECT_EQ(p.main.lsvSelMain.SelCount(), 3);
}

TEST_F(Screens, Refill_walks_the_folder_again_and_else_only_the_selection_goes)
{
    Program& p = Start();
    p.main.lsvSelMain.PersonSelectAll();
    rig.Disk.AddFile("/d/later.txt");
    Screen_Show(p, screenRename, false);
    Screen_Show(p, screenSelection, false);
    EXPECT_EQ(p.main.lsvSelMain.Count(), 3);
    EXPECT_EQ(p.main.lsvSelMain.SelCount(), 0);
    EXPECT_EQ(p.main.stbMain.Panel(1), "Total: 3");
    EXPECT_EQ(p.main.stbMain.Panel(2), "Select Files for New List");
    EXPECT_EQ(p.main.stbMain.Panel(3), "Selected: 0");
    Screen_Show(p, screenRename, false);
    Screen_Show(p, screenSelection, true);
    EXPECT_EQ(p.main.lsvSelMain.Count(), 4);
    EXPECT_EQ(p.main.stbMain.Panel(1), "Total: 4");
}

TEST_F(Screens, A_second_change_inside_the_first_is_refused)
{
    Program& p = Start();
    Screen_Show(p, screenRename, false);
    bool tried = false;
    rig.Desktop.EachTurn = [&](int) {
        tried = true;
        Screen_Show(p, screenThumbnails, false);
    };
    Screen_Show(p, screenSelection, true);
    EXPECT_TRUE(tried);
    EXPECT_EQ(p.state.CurScreen, screenSelection);
    EXPECT_TRUE(p.main.fraSelect.Visible);
    EXPECT_FALSE(p.main.picThumbnails.Visible);
    rig.Desktop.EachTurn = nullptr;
    Screen_Show(p, screenThumbnails, false);
    EXPECT_EQ(p.state.CurScreen, screenThumbnails) << "the guard was left standing";
}

TEST_F(Screens, The_filter_in_force_does_not_survive_a_visit_to_the_rename_screen)
{
    Program& p = Start();
    ComboBox& box = *T("ID_sFilter").Combo();
    box.PersonText("a*");
    rig.Click("ID_SelUseFilter");
    EXPECT_EQ(p.main.lsvSelMain.Count(), 1);
    Screen_Show(p, screenRename, false);
    Screen_Show(p, screenSelection, true);
    EXPECT_EQ(p.main.lsvSelMain.Count(), 1) << "filled before the filter goes back";
    EXPECT_EQ(p.state.Filter, "*.*");
    EXPECT_EQ(box.ListIndex(), 0);
    EXPECT_EQ(box.Text.Get(), "All Files (*.*)");
}

TEST_F(Screens, The_screens_leave_the_window_thawed)
{
    Program& p = Start();
    for (const int screen : {1, 2, 3, 1, 0}) {
        Screen_Show(p, screen, false);
        EXPECT_FALSE(p.main.Frozen()) << screen;
        EXPECT_TRUE(p.state.ResizeOn) << screen;
    }
}

TEST_F(Screens, The_thumbnails_are_told_to_draw)
{
    Program& p = Start();
    rig.MakeList();
    int told = 0;
    const Connection listener = p.RowsRedrawn.Listen([&] { ++told; });
    Screen_Show(p, screenThumbnails, false);
    EXPECT_EQ(told, 1);
}

TEST_F(Screens, In_folder_mode_a_walk_does_not_give_the_subfolders_back)
{
    Program& p = Start();
    T("ID_SelFolder").PersonClick();
    EXPECT_FALSE(T("ID_SelSubFiles").Enabled);
    Tools_SelEnable(p, true);
    EXPECT_FALSE(T("ID_SelSubFiles").Enabled);
    T("ID_SelFolder").PersonClick();
    EXPECT_TRUE(T("ID_SelSubFiles").Enabled);
}

} // namespace
} // namespace tavo
