#include "core/commands.h"

#include "core/screens.h"
#include "support/program_rig.h"
#include "viewer/frm_viewer.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

class CommandsCase : public testing::Test {
protected:
    ProgramRig rig{MemoryDisk::Flavour::Posix};

    Program& Start(const std::string& settings = "")
    {
        for (const char* file : {"/d/a.txt", "/d/b.txt", "/d/c.txt", "/d/sub/s.txt", "/e/x.txt"})
            rig.Disk.AddFile(file);
        return rig.Start("/d/", settings);
    }
    Program& StartWithList(const std::string& settings = "")
    {
        Program& p = Start(settings);
        rig.MakeList();
        return p;
    }

    Tool& T(const std::string& id) { return *rig.Main().atbMain.Find(id); }
    TextBox& BoxOf(const char* id) { return *T(id).Box; }
    void Press(Control& target, const char* name)
    {
        Key key;
        ASSERT_TRUE(Key_FromName(name, key)) << name;
        rig.Main().PersonKey(&target, key);
    }
    void Type(Control& target, const std::string& text)
    {
        for (const char c : text)
            rig.Main().PersonKey(&target, Key_FromChar(static_cast<unsigned char>(c)));
    }
};

// -- Selecting

TEST_F(CommandsCase, Select_all_and_invert_work_on_the_list_in_sight)
{
    Program& p = Start();
    rig.Click("ID_SelAll");
    EXPECT_EQ(p.main.lsvSelMain.SelCount(), 3);
    EXPECT_EQ(p.main.stbMain.Panel(3), "Selected: 3");
    p.main.lsvSelMain.PersonSelect({1}, 1);
    rig.Click("ID_SelInvert");
    EXPECT_EQ(p.main.lsvSelMain.SelCount(), 2);
    EXPECT_EQ(p.main.stbMain.Panel(3), "Selected: 2");

    rig.MakeList();
    rig.Click("ID_SelAll");
    EXPECT_EQ(p.main.lsvRename.SelCount(), 3);
    EXPECT_EQ(p.main.stbMain.Panel(3), "Selected: 3");
    p.main.lsvRename.PersonSelect({2}, 2);
    rig.Click("ID_SelInvert");
    EXPECT_EQ(p.main.lsvRename.SelCount(), 2);
    EXPECT_FALSE(p.main.lsvRename.Selected(2));
    EXPECT_EQ(p.main.stbMain.Panel(3), "Selected: 2");
}

TEST_F(CommandsCase, Ctrl_A_selects_all)
{
    Program& p = Start();
    Press(p.main.lsvSelMain, "Ctrl+A");
    EXPECT_EQ(p.main.lsvSelMain.SelCount(), 3);
}

TEST_F(CommandsCase, The_selection_stands_while_a_long_operation_is_under_way)
{
    Program& p = StartWithList();
    const LongOperation operation(p);
    rig.Click("ID_SelAll");
    EXPECT_EQ(p.main.lsvRename.SelCount(), 1);
}

TEST_F(CommandsCase, The_filter_box_filters_by_return_by_choice_and_by_its_button)
{
    Program& p = Start("[Filters]\nA only=a*\n");
    ComboBox& box = *T("ID_sFilter").Combo();
    EXPECT_EQ(box.Items(), (std::vector<std::string>{"All Files (*.*)", "A only (a*)"}));
    box.PersonText("b*");
    EXPECT_EQ(p.main.lsvSelMain.Count(), 3) << "typing alone walks nothing";
    Press(box, "Return");
    EXPECT_EQ(p.state.Filter, "b*");
    EXPECT_EQ(p.main.lsvSelMain.Count(), 1);
    box.PersonChoose(1);
    EXPECT_EQ(p.state.Filter, "a*");
    EXPECT_EQ(p.main.lsvSelMain.Count(), 1);
    box.PersonText("*.*");
    rig.Click("ID_SelUseFilter");
    EXPECT_EQ(p.main.lsvSelMain.Count(), 3);
}

TEST_F(CommandsCase, Clear_goes_back_to_all_files_in_one_walk)
{
    Program& p = Start();
    ComboBox& box = *T("ID_sFilter").Combo();
    box.PersonText("b*");
    Press(box, "Return");
    const int walks = rig.Disk.Calls("FindFirstFileA");
    rig.Click("ID_SelClear");
    EXPECT_EQ(p.state.Filter, "*.*");
    EXPECT_EQ(box.ListIndex(), 0);
    EXPECT_EQ(p.main.lsvSelMain.Count(), 3);
    EXPECT_EQ(rig.Disk.Calls("FindFirstFileA"), walks + 1);
}

TEST_F(CommandsCase, Subfolders_are_walked_once)
{
    Program& p = Start();
    rig.Click("ID_SelSubFiles");
    EXPECT_EQ(p.main.lsvSelMain.Count(), 4);
}

TEST_F(CommandsCase, Return_in_the_address_box_goes_there)
{
    Program& p = Start();
    BoxOf("ID_sAddress").PersonText("/e");
    Press(BoxOf("ID_sAddress"), "Return");
    EXPECT_EQ(p.state.StartPath, "/e/");
    EXPECT_EQ(p.main.lsvSelMain.Count(), 1);
    BoxOf("ID_sAddress").PersonText("/d");
    rig.Click("ID_SelUsePath");
    EXPECT_EQ(p.state.StartPath, "/d/");
}

TEST_F(CommandsCase, Refresh_walks_here_and_looks_at_the_rows_there)
{
    Program& p = Start();
    rig.Disk.AddFile("/d/late.txt");
    rig.Click("ID_RefreshList");
    EXPECT_EQ(p.main.lsvSelMain.Count(), 4);
    rig.MakeList();
    rig.Disk.Remove("/d/late.txt");
    rig.Click("ID_RefreshList");
    p.main.cmdActDone.PersonClick();
    EXPECT_EQ(p.main.lsvRename.Count(), 3);
}

// -- The rename list

TEST_F(CommandsCase, In_folder_mode_tags_and_times_are_out_of_reach)
{
    Program& p = Start();
    rig.Click("ID_SelFolder");
    EXPECT_EQ(T("ID_SelFolder").Caption.Get(), "Folders");
    rig.MakeList();
    EXPECT_EQ(p.main.lsvRename.Count(), 1);
    EXPECT_FALSE(T("ID_MP3Tag").Enabled);
    EXPECT_FALSE(T("ID_DateTime").Enabled);
    rig.Click("ID_NewList");
    rig.Click("ID_SelFolder");
    EXPECT_EQ(T("ID_SelFolder").Caption.Get(), "Files");
    rig.MakeList();
    EXPECT_TRUE(T("ID_MP3Tag").Enabled);
    EXPECT_TRUE(T("ID_DateTime").Enabled);
}

TEST_F(CommandsCase, The_tool_called_down_moves_rows_towards_the_end)
{
    Program& p = StartWithList();
    p.main.lsvRename.PersonSelect({1}, 1);
    rig.Click("ID_SelUp");
    EXPECT_EQ(rig.Column("Name"), (std::vector<std::string>{"b.txt", "a.txt", "c.txt"}));
    rig.Click("ID_SelDown");
    EXPECT_EQ(rig.Column("Name"), (std::vector<std::string>{"a.txt", "b.txt", "c.txt"}));
    p.main.lsvRename.PersonSelect({1, 3}, 3);
    rig.Click("ID_SelGroup");
    EXPECT_EQ(rig.Column("Name"), (std::vector<std::string>{"a.txt", "c.txt", "b.txt"}));
}

TEST_F(CommandsCase, Each_sorting_tool_sorts_by_its_column)
{
    Program& p = StartWithList();
    struct Row {
        const char *Id, *Key;
    };
    static constexpr Row rows[] = {{"ID_byPath", "Path"},         {"ID_byType", "Type"},
                                   {"ID_bySize", "Size"},         {"ID_byDate", "Modified"},
                                   {"ID_byUndoName", "UndoName"}, {"ID_byError", "Errors"},
                                   {"ID_byName", "Name"}};
    for (const Row& row : rows) {
        rig.Click(row.Id);
        const int column = p.main.lsvRename.ColumnByKey(row.Key);
        EXPECT_EQ(p.main.lsvRename.SortKey(), column) << row.Id;
        EXPECT_NE(p.main.lsvRename.Column(column).Mark, SortMark::None) << row.Id;
    }
}

TEST_F(CommandsCase, Auto_fill_fills_at_once_when_it_is_switched_on)
{
    Program& p = StartWithList("[Defaults]\nnnAutoFill=0\n");
    rig.Box(nnName, "mine");
    EXPECT_FALSE(T("ID_AutoFill").Checked);
    rig.Click("ID_AutoFill");
    EXPECT_EQ(p.state.nnAutoFill, 1);
    EXPECT_EQ(p.main.txtNameNum[nnName].Text.Get(), "a");
    rig.Box(nnName, "mine");
    rig.Click("ID_AutoFill");
    EXPECT_EQ(p.state.nnAutoFill, 0);
    EXPECT_EQ(p.main.txtNameNum[nnName].Text.Get(), "mine");
}

// -- The distance box

TEST_F(CommandsCase, The_distance_is_held_to_the_list_as_it_is_typed)
{
    struct Row {
        const char *Typed, *Text;
    };
    static constexpr Row rows[] = {{"2", "2"}, {"0", "1"}, {"9", "3"},   {"3", "3"},
                                   {"", "1"},  {"x", "1"}, {"2x9", "2"}, {"1.5", "1.5"}};
    StartWithList();
    for (const Row& row : rows) {
        BoxOf("ID_SelDistance").PersonText(row.Typed);
        EXPECT_EQ(BoxOf("ID_SelDistance").Text.Get(), row.Text) << row.Typed;
    }
}

TEST_F(CommandsCase, Without_rows_the_distance_runs_down_to_0)
{
    Start("[Settings]\nShowFile=0\n");
    BoxOf("ID_SelDistance").PersonText("5");
    EXPECT_EQ(BoxOf("ID_SelDistance").Text.Get(), "0");
}

TEST_F(CommandsCase, The_distance_box_takes_numbers_alone)
{
    StartWithList();
    TextBox& box = BoxOf("ID_SelDistance");
    box.SetFocus();
    Type(box, "a-2b");
    EXPECT_EQ(box.Text.Get(), "2") << "all of it was selected on entering";
}

TEST_F(CommandsCase, A_distance_from_the_settings_stands_until_the_box_is_left)
{
    Program& p = StartWithList("[Defaults]\nSortDis=250\n");
    TextBox& box = BoxOf("ID_SelDistance");
    EXPECT_EQ(box.Text.Get(), "250");
    box.SetFocus();
    EXPECT_EQ(box.SelText(), "250");
    p.main.lsvRename.SetFocus();
    EXPECT_EQ(box.Text.Get(), "3");
}

// -- Clipboard

TEST_F(CommandsCase, Cut_copy_paste_and_undo_work_on_the_box_in_hand)
{
    Program& p = StartWithList();
    TextBox& box = p.main.txtNameNum[nnName];
    rig.Box(nnName, "holiday");
    box.Select(0, 4);
    rig.Click("ID_Copy");
    EXPECT_EQ(rig.Desktop.Clipboard, "holi");
    EXPECT_EQ(box.Text.Get(), "holiday");
    box.Select(4, 3);
    rig.Click("ID_Cut");
    EXPECT_EQ(rig.Desktop.Clipboard, "day");
    EXPECT_EQ(box.Text.Get(), "holi");
    box.Select(0, 0);
    rig.Click("ID_Paste");
    EXPECT_EQ(box.Text.Get(), "dayholi");
    rig.Click("ID_Undo");
    EXPECT_EQ(box.Text.Get(), "holi");
}

TEST_F(CommandsCase, With_the_focus_on_the_list_the_clipboard_tools_do_nothing)
{
    Program& p = StartWithList();
    rig.Desktop.Clipboard = "kept";
    rig.Box(nnName, "mine");
    p.main.lsvRename.SetFocus();
    for (const char* id : {"ID_Cut", "ID_Copy", "ID_Paste", "ID_Undo"})
        rig.Click(id);
    EXPECT_EQ(rig.Desktop.Clipboard, "kept");
    EXPECT_EQ(p.main.txtNameNum[nnName].Text.Get(), "mine");
    EXPECT_EQ(rig.Column("Name"), (std::vector<std::string>{"a.txt", "b.txt", "c.txt"}));
}

TEST_F(CommandsCase, Undo_leaves_a_box_with_a_list_alone)
{
    Program& p = Start();
    ComboBox& box = *T("ID_sFilter").Combo();
    box.SetFocus();
    box.PersonText("x*");
    rig.Click("ID_Undo");
    EXPECT_EQ(box.Text.Get(), "x*");
    box.Select(0, 1);
    rig.Click("ID_Copy");
    EXPECT_EQ(rig.Desktop.Clipboard, "x");
    EXPECT_EQ(p.main.ActiveControl(), &box);
}

// -- Favourites and templates

TEST_F(CommandsCase, A_favourite_opens_its_folder)
{
    Program& p = StartWithList("[Favorites]\nE=/e/\nGone=/gone/\n");
    rig.Click("ID_Favorite1");
    EXPECT_EQ(p.state.StartPath, "/e/");
    EXPECT_EQ(p.state.CurScreen, screenSelection);
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
    rig.Click("ID_Favorite2");
    EXPECT_EQ(p.state.StartPath, "/e/");
    ASSERT_EQ(rig.Desktop.Boxes.size(), 1u);
    EXPECT_EQ(rig.Desktop.Boxes[0].Box.Text, "The Path for that Favorite appears Invalid!");
    EXPECT_EQ(rig.Desktop.Boxes[0].Box.Icon, BoxIcon::Exclamation);
    EXPECT_EQ(rig.Desktop.Boxes[0].Box.Caption, "Tavo Says...");
}

TEST_F(CommandsCase, A_template_becomes_the_current_one_and_is_applied)
{
    Program& p = StartWithList("[Templates]\nDay=day_<#>:<OE>\nOld=<ON>_x:jpg\n");
    rig.Click("ID_TmpLst2");
    const Label& label = p.main.lblTmpInsert[tmplCurrentLabel];
    EXPECT_EQ(p.state.nnAppTmpDef, 2);
    EXPECT_EQ(label.Caption.Get(), "Old");
    EXPECT_EQ(label.Tag.Get(), "2");
    EXPECT_EQ(p.main.txtNameNum[nnName].Text.Get(), "<ON>_x");
    EXPECT_EQ(p.main.txtNameNum[nnExt].Text.Get(), "jpg");
    rig.Box(nnName, "mine");
    rig.Click("ID_TmpApply");
    EXPECT_EQ(p.main.txtNameNum[nnName].Text.Get(), "<ON>_x");
    rig.Click("ID_TmpApplySel");
    EXPECT_EQ(p.state.nnAppTmp, 1);
    rig.Click("ID_TmpApplySel");
    EXPECT_EQ(p.state.nnAppTmp, 0);
}

TEST_F(CommandsCase, An_entry_without_a_row_does_nothing)
{
    Program& p = StartWithList("[Templates]\nDay=day_<#>:<OE>\n");
    rig.Box(nnName, "mine");
    for (const char* id :
         {"ID_TmpLst0", "ID_TmpLst7", "ID_TmpLst", "ID_Favorite0", "ID_Favorite1"}) {
        Tool* tool = p.main.atbMain.AddTool(id, ToolKind::Button);
        ASSERT_NE(tool, nullptr) << id;
        Tool_Click(p, *tool);
        EXPECT_EQ(p.main.txtNameNum[nnName].Text.Get(), "mine") << id;
        EXPECT_EQ(p.state.nnAppTmpDef, 0) << id;
        EXPECT_EQ(p.state.CurScreen, screenRename) << id;
        EXPECT_TRUE(rig.Desktop.Boxes.empty()) << id;
    }
}

// -- Bands and windows

TEST_F(CommandsCase, The_address_band_is_switched)
{
    Program& p = Start();
    const Band& band = *p.main.atbMain.FindBand("Address");
    EXPECT_TRUE(T("ID_tbAddress").Checked);
    for (const bool on : {false, true}) {
        rig.Click("ID_tbAddress");
        EXPECT_EQ(band.Visible(), on);
        EXPECT_EQ(p.state.tbsAddress, on ? 1 : 0);
        EXPECT_EQ(T("ID_tbAddress").Checked.Get(), on);
    }
}

TEST_F(CommandsCase, The_text_labels_are_switched)
{
    Program& p = Start();
    for (const bool on : {false, true}) {
        rig.Click("ID_tbTextLabels");
        EXPECT_EQ(p.state.tbsTextLabels, on ? 1 : 0);
        EXPECT_EQ(T("ID_tbTextLabels").Checked.Get(), on);
        EXPECT_EQ(T("ID_CreateList").Style.Get(),
                  on ? ToolStyle::PictureAndText : ToolStyle::Picture);
    }
}

TEST_F(CommandsCase, The_default_size_brings_the_window_to_the_middle_of_the_screen)
{
    Program& p = Start("[Position]\nMain=100,200,5000,4000,2\n");
    EXPECT_EQ(p.main.State(), WindowState::Maximised);
    rig.Click("ID_DefaultSize");
    EXPECT_EQ(p.main.State(), WindowState::Normal);
    EXPECT_EQ(p.main.Width(), 12000);
    EXPECT_EQ(p.main.Height(), 9000);
    EXPECT_EQ(p.main.Left(), (28800 - 12000) / 2.0);
    EXPECT_EQ(p.main.Top(), (16200 - 9000) / 2.0);
    EXPECT_EQ(rig.Desktop.Foregrounds, std::vector<std::string>{"frmMain"});
}

TEST_F(CommandsCase, The_default_size_makes_a_viewer_in_sight_a_square_beside_the_window)
{
    Program& p = StartWithList();
    rig.Click("ID_Viewer");
    p.Viewer().SetState(WindowState::Maximised);
    rig.Click("ID_DefaultSize");
    EXPECT_EQ(p.Viewer().State(), WindowState::Normal);
    EXPECT_EQ(p.Viewer().Left(), p.main.Left());
    EXPECT_EQ(p.Viewer().Top(), p.main.Top() - 360);
    EXPECT_EQ(p.Viewer().Width(), 9000);
    EXPECT_EQ(p.Viewer().Height(), 9000);
    EXPECT_EQ(rig.Desktop.Foregrounds, std::vector<std::string>{"frmMain"});
    p.Viewer().PersonClose();
    p.Viewer().Move(150, 300, 4500, 3000);
    rig.Click("ID_DefaultSize");
    EXPECT_EQ(p.Viewer().Width(), 4500) << "out of sight it stays";
}

TEST_F(CommandsCase, The_default_size_leaves_a_minimised_viewer_minimised)
{
    Program& p = StartWithList();
    rig.Click("ID_Viewer");
    p.Viewer().SetState(WindowState::Minimised);
    rig.Click("ID_DefaultSize");
    EXPECT_EQ(p.Viewer().State(), WindowState::Minimised);
    EXPECT_EQ(p.Viewer().Width(), 9000);
}

TEST_F(CommandsCase, The_saved_defaults_are_loaded_from_the_own_file_alone)
{
    Program& p = StartWithList("[Defaults]\nnnStart=5\nRenMode=5\n[Settings]\nProExt=1\n");
    rig.Box(nnStartBox, "9");
    Mode_Set(p, modeCase);
    p.state.ProExt = 0;
    rig.Click("ID_DefLoad");
    EXPECT_EQ(p.main.txtNameNum[nnStartBox].Text.Get(), "5");
    EXPECT_EQ(p.state.nnStart, "5");
    EXPECT_EQ(p.state.RenMode, modeSearchReplace);
    EXPECT_TRUE(p.main.ctlRbRenMode[modeSearchReplace].Visible) << "the screen follows";
    EXPECT_EQ(p.state.ProExt, 0) << "another section";
}

TEST_F(CommandsCase, Loading_the_defaults_brings_up_no_panel_on_the_selection_screen)
{
    Program& p = Start();
    rig.Click("ID_DefLoad");
    EXPECT_TRUE(p.main.fraSelect.Visible);
    for (const auto& panel : p.main.ctlRbRenMode)
        EXPECT_FALSE(panel->Visible) << panel->Index();
    EXPECT_EQ(p.main.Caption(), "Tavo");
}

TEST_F(CommandsCase, Loading_the_defaults_waits_until_the_action_panel_is_gone)
{
    Program& p = StartWithList("[Defaults]\nRenMode=5\n");
    Mode_Set(p, modeNameNumber);
    rig.Box(nnName, "x<ON>");
    rig.Desktop.Answer(BoxAnswer::Ok);
    rig.Desktop.EachTurn = [&](int) { rig.Click("ID_DefLoad"); };
    rig.Click("ID_RenAll");
    rig.Click("ID_DefLoad");
    EXPECT_EQ(p.state.RenMode, modeNameNumber);
}

TEST_F(CommandsCase, Both_help_commands_open_the_first_page)
{
    Program& p = Start();
    rig.Click("ID_HelpContents");
    Tool_Click(p, T("ID_HelpIndex"));
    ASSERT_EQ(rig.Desktop.Executions.size(), 2u);
    for (const auto& execution : rig.Desktop.Executions) {
        EXPECT_EQ(execution.Verb, "open");
        EXPECT_EQ(execution.Address, "/app/help/index.htm");
    }
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
}

TEST_F(CommandsCase, Help_that_cannot_be_opened_says_why)
{
    Start();
    rig.Desktop.ShellRefusal = "There is no such page";
    rig.Click("ID_HelpContents");
    ASSERT_EQ(rig.Desktop.Boxes.size(), 1u);
    const MessageBox& box = rig.Desktop.Boxes[0].Box;
    EXPECT_EQ(box.Text, "There is no such page");
    EXPECT_EQ(box.Caption, "Tavo Says...");
    EXPECT_EQ(box.Icon, BoxIcon::Information);
}

TEST_F(CommandsCase, A_scheme_of_the_menu_becomes_the_one_in_force)
{
    Program& p = StartWithList("[ThumbSchemes]\nA=100,90\nB=60,60\n");
    rig.Click("ID_Scheme2");
    EXPECT_EQ(p.state.Scheme, "B");
}

TEST_F(CommandsCase, An_inert_tool_does_nothing)
{
    Program& p = StartWithList();
    const std::string caption = p.main.Caption();
    for (const Command& command : Commands())
        if (!command.Run && command.Kind != ToolKind::Combo && command.Kind != ToolKind::Edit)
            Tool_Click(p, T(std::string(command.Id)));
    EXPECT_EQ(p.main.Caption(), caption);
    EXPECT_EQ(p.state.CurScreen, screenRename);
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
    EXPECT_EQ(rig.Desktop.Forms.size(), 1u) << "the main window alone";
}

} // namespace
} // namespace tavo
