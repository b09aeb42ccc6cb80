#include "core/screens.h"

#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

class Modes : public testing::Test {
protected:
    ProgramRig rig{MemoryDisk::Flavour::Posix};

    Program& StartWithList(const std::string& settings = "")
    {
        for (const char* file : {"/d/a.txt", "/d/b.txt", "/d/c.txt"})
            rig.Disk.AddFile(file);
        Program& p = rig.Start("/d/", settings);
        rig.MakeList();
        return p;
    }

    Tool& T(const char* id) { return *rig.Main().atbMain.Find(id); }
};

TEST(Titles, The_title_has_the_suffix_of_its_mode)
{
    struct Row {
        int Mode;
        const char* Title;
    };
    static constexpr Row rows[] = {
        {0, "Tavo - Attributes"},
        {1, "Tavo - Change Case"},
        {2, "Tavo - Date & Time"},
        {3, "Tavo - Move & Copy"},
        {4, "Tavo - Name & Number"},
        {5, "Tavo - Search & Replace"},
        {6, "Tavo - MP3 Tag (ID3v1.1)"},
        {7, "Tavo - Empty List"},
        {8, "Tavo"},
        {99, "Tavo"},
        {-1, "Tavo"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Title_Get(row.Mode), row.Title) << row.Mode;
}

TEST_F(Modes, Only_the_panel_of_the_mode_is_shown)
{
    Program& p = StartWithList();
    for (int mode = 0; mode <= 7; ++mode) {
        Mode_Set(p, mode);
        EXPECT_EQ(p.state.RenMode, mode);
        EXPECT_EQ(p.main.Caption(), Title_Get(mode));
        for (const auto& panel : p.main.ctlRbRenMode)
            EXPECT_EQ(panel->Visible.Get(), panel->Index() == mode)
                << "panel " << panel->Index() << " in mode " << mode;
    }
}

TEST_F(Modes, The_mode_before_is_written_only_when_it_was_another)
{
    Program& p = StartWithList();
    Mode_Set(p, modeCase);
    Mode_Set(p, modeMoveCopy);
    EXPECT_EQ(p.state.PrevMode, modeCase);
    Mode_Set(p, modeMoveCopy);
    EXPECT_EQ(p.state.PrevMode, modeCase);
}

TEST_F(Modes, The_templates_menu_goes_and_comes_with_modes_4_and_5)
{
    Program& p = StartWithList();
    for (const int mode : {0, 4, 1, 5, 2, 4, 3, 5, 6, 4, 7}) {
        Mode_Set(p, mode);
        EXPECT_EQ(T("ID_mnuTemplates").Visible.Get(), mode == 4 || mode == 5) << mode;
    }
}

TEST_F(Modes, The_clock_runs_in_date_and_time_alone)
{
    Program& p = StartWithList();
    rig.Desktop.Clock = {2001, 3, 3, 7, 21, 5, 9, 0};
    Timer& clock = p.main.tmrDateTimeClock;
    EXPECT_FALSE(clock.Enabled);
    EXPECT_EQ(clock.Interval, 1000);
    p.main.lsvRename.DeleteAllItems(); // no row that would speak in its place
    Mode_Set(p, modeDateTime);
    EXPECT_TRUE(clock.Enabled);
    EXPECT_EQ(p.main.stbMain.Panel(2), "Todays: 03/07/2001   09:05:09 PM");
    rig.Desktop.Clock.Second = 10;
    clock.Tick();
    EXPECT_EQ(p.main.stbMain.Panel(2), "Todays: 03/07/2001   09:05:10 PM");
    p.state.ClockFlag = true;
    clock.Tick();
    EXPECT_EQ(p.main.stbMain.Panel(2), "Todays: 03/07/2001   21:05:10");
    Mode_Set(p, modeCase);
    EXPECT_FALSE(clock.Enabled);
    Mode_Set(p, modeDateTime);
    Screen_Show(p, screenSelection, false);
    EXPECT_FALSE(clock.Enabled);
}

TEST_F(Modes, A_mode_shows_the_row_in_hand_and_leaves_the_boxes_alone)
{
    Program& p = StartWithList();
    p.main.lsvRename.PersonSelect({2}, 2);
    rig.Box(nnName, "mine");
    Mode_Set(p, modeMoveCopy);
    EXPECT_EQ(p.state.FullName, "/d/b.txt");
    Mode_Set(p, modeNameNumber);
    EXPECT_EQ(p.main.txtNameNum[nnName].Text.Get(), "mine");
    EXPECT_TRUE(p.main.lsvRename.Selected(2));
    EXPECT_TRUE(p.state.ActReady);
}

TEST_F(Modes, Digits_are_set_on_entering_where_that_is_wanted)
{
    Program& p = StartWithList("[Defaults]\nnnStart=100\n[Settings]\nSetDigits=1\n");
    rig.Box(nnDigitsBox, "9");
    Mode_Set(p, modeNameNumber);
    EXPECT_EQ(p.main.txtNameNum[nnDigitsBox].Text.Get(), "3");
    p.state.SetDigits = 0;
    rig.Box(nnDigitsBox, "9");
    Mode_Set(p, modeNameNumber);
    EXPECT_EQ(p.main.txtNameNum[nnDigitsBox].Text.Get(), "9");
}

TEST_F(Modes, The_tools_and_the_box_of_modes_lead_to_each_mode)
{
    Program& p = StartWithList();
    static constexpr const char* tools[] = {"ID_Attributes", "ID_ChangeCase", "ID_DateTime",
                                            "ID_MoveCopy",   "ID_NameNumber", "ID_SearchReplace",
                                            "ID_MP3Tag"};
    ComboBox& box = *T("ID_RenameList").Combo();
    for (int mode = 0; mode <= 6; ++mode) {
        rig.Click(tools[mode]);
        EXPECT_EQ(p.state.RenMode, mode) << tools[mode];
        EXPECT_EQ(box.ListIndex(), mode) << "the box follows";
    }
    for (int mode = 0; mode <= 6; ++mode) {
        box.PersonChoose(mode);
        EXPECT_EQ(p.state.RenMode, mode);
    }
}

TEST_F(Modes, A_mode_is_set_once_by_a_choice_or_a_tool)
{
    Program& p = StartWithList();
    int shown = 0;
    const Connection listener = p.RowShown.Listen([&](int) { ++shown; });
    T("ID_RenameList").Combo()->PersonChoose(modeCase);
    EXPECT_EQ(shown, 1);
    rig.Click("ID_MoveCopy");
    EXPECT_EQ(shown, 2) << "the box that follows sets nothing by itself";
}

TEST_F(Modes, Emptying_the_list_leads_to_name_and_number_whatever_was_before)
{
    Program& p = StartWithList();
    Mode_Set(p, modeSearchReplace);
    List_SetEmptyState(p);
    EXPECT_EQ(p.state.RenMode, modeEmpty);
    EXPECT_EQ(p.state.RenCount, 0);
    EXPECT_EQ(p.main.lsvRename.Count(), 0);
    EXPECT_TRUE(p.main.lsvRename.Visible);
    EXPECT_TRUE(p.main.ctlRbRenMode[modeEmpty].Visible);
    EXPECT_EQ(p.main.stbMain.Panel(2), "Create a New List");
    Screen_Show(p, screenSelection, false);
    rig.MakeList();
    EXPECT_EQ(p.state.RenMode, modeNameNumber);
    EXPECT_EQ(p.state.RenCount, 3);
}

TEST_F(Modes, A_new_list_keeps_a_mode_that_was_in_use)
{
    Program& p = StartWithList();
    Mode_Set(p, modeSearchReplace);
    Screen_Show(p, screenSelection, false);
    rig.MakeList();
    EXPECT_EQ(p.state.RenMode, modeSearchReplace);
}

// -- Views

TEST_F(Modes, The_view_is_remembered_but_for_the_thumbnails)
{
    Program& p = StartWithList();
    struct Row {
        int Code;
        const char* Checked;
        int View, LsvView;
    };
    static constexpr Row rows[] = {
        {2, "ID_ArrangeList", 2, 2}, {3, "ID_ArrangeDetails", 3, 3}, {254, "ID_ArrangeThumb", 3, 3},
        {2, "ID_ArrangeList", 2, 2}, {254, "ID_ArrangeThumb", 2, 2},
    };
    for (const Row& row : rows) {
        View_Set(p, row.Code);
        for (const char* id : {"ID_ArrangeList", "ID_ArrangeDetails", "ID_ArrangeThumb"})
            EXPECT_EQ(T(id).Checked.Get(), std::string_view(id) == row.Checked)
                << id << " at " << row.Code;
        EXPECT_EQ(static_cast<int>(p.main.lsvRename.View()), row.View) << row.Code;
        EXPECT_EQ(p.state.lsvView, row.LsvView) << row.Code;
        EXPECT_EQ(T("ID_Views").IconName.Get(), T(row.Checked).IconName.Get()) << row.Code;
    }
}

TEST_F(Modes, The_views_tool_goes_to_the_thumbnails_and_back_and_asks_nothing)
{
    Program& p = StartWithList("[Defaults]\nlsvView=2\n");
    rig.Click("ID_Views");
    EXPECT_EQ(p.state.CurScreen, screenThumbnails);
    EXPECT_TRUE(T("ID_ArrangeThumb").Checked);
    rig.Click("ID_Views");
    EXPECT_EQ(p.state.CurScreen, screenRename);
    EXPECT_TRUE(T("ID_ArrangeList").Checked);
    rig.Click("ID_ArrangeThumb");
    EXPECT_EQ(p.state.CurScreen, screenThumbnails);
    rig.Click("ID_ArrangeDetails");
    EXPECT_EQ(p.state.CurScreen, screenRename);
    EXPECT_EQ(p.state.lsvView, 3);
}

TEST_F(Modes, The_arrow_of_the_views_tool_opens_its_menu)
{
    Program& p = StartWithList();
    p.main.atbMain.PersonDropDown(T("ID_Views"));
    ASSERT_EQ(rig.Desktop.PopUps.size(), 1u);
    EXPECT_EQ(rig.Desktop.PopUps[0].Menu->Name(), "ID_mnuViews");
}

// -- Labels under the tools

TEST_F(Modes, Text_labels_go_and_some_tools_keep_a_readable_one)
{
    Program& p = StartWithList();
    struct Row {
        const char* Id;
        int On, Off;
    };
    static constexpr Row rows[] = {
        {"ID_NewList", 3, 0}, {"ID_RenAll", 3, 0}, {"ID_CreateList", 3, 0}, {"ID_sFilter", 3, 3},
        {"ID_FilAdd", 3, 2},  {"ID_SelAll", 3, 2}, {"ID_SelUsePath", 3, 3}, // on another band
    };
    for (const bool on : {false, true, false})
        for (const Row& row : rows) {
            Tools_SetLabels(p, on);
            EXPECT_EQ(static_cast<int>(T(row.Id).Style.Get()), on ? row.On : row.Off)
                << row.Id << (on ? " on" : " off");
        }
}

} // namespace
} // namespace tavo
