#include "renamelist/act_run.h"

#include "platform/posix/posix_files.h"
#include "renamelist/executor.h"
#include "renamelist/rename_list.h"
#include "support/list_run.h"
#include "support/temp_folder.h"

#include <algorithm>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

class Run : public ListRun {};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Run, bothDialects, Dialect_Name);

struct QuestionCase {
    const char* What;
    int Action, Rows;
    std::vector<int> Selected;
    int SupWarnRen;
    const char* Question; // "" for none
    bool Panel;
};

const QuestionCase questionCases[] = {
    {"all", actAll, 3, {2}, 0, "Update All the Files?", true},
    {"all, warnings off", actAll, 3, {2}, 1, "", true},
    {"all of one", actAll, 1, {1}, 0, "Update All the Files?", true},
    {"all of one, warnings off", actAll, 1, {1}, 1, "", true},
    {"two selected", actSelected, 3, {1, 3}, 0, "Update the Selected Files?", true},
    {"two selected, warnings off", actSelected, 3, {1, 3}, 1, "", true},
    {"one selected", actSelected, 3, {2}, 0, "", false},
    {"none selected", actSelected, 3, {}, 0, "", false},
    {"refresh", actRefresh, 3, {2}, 0, "", true},
    {"refresh of one", actRefresh, 1, {1}, 0, "", true},
    {"remove one", actRemove, 3, {2}, 0, "", false},
    {"remove two", actRemove, 3, {1, 2}, 0, "", true},
};

} // namespace

TEST_P(Run, Asks_and_shows_the_panel_as_the_action_and_the_rows_have_it)
{
    for (const QuestionCase& test : questionCases) {
        SCOPED_TRACE(test.What);
        MemoryListGround one(GetParam());
        Texts paths = {"d/a.txt", "d/b.txt", "d/c.txt"};
        paths.resize(static_cast<std::size_t>(test.Rows));
        one.Load(paths);
        one.SetTemplates("x<ON>", "<OE>");
        one.Select(test.Selected);
        one.P.state.SupWarnRen = static_cast<std::int16_t>(test.SupWarnRen);
        const std::string question = test.Question;
        if (!question.empty())
            one.Desktop.Answer(BoxAnswer::Ok);

        Act_Run(one.P, test.Action);

        EXPECT_EQ(one.Desktop.BoxTexts(), question.empty() ? Texts{} : Texts{question});
        EXPECT_EQ(one.P.state.ActShow, test.Panel);
        EXPECT_EQ(one.P.state.CurScreen, test.Panel ? screenAction : screenRename);
        EXPECT_EQ(one.Main.picAction.Visible.Get(), test.Panel);
        EXPECT_EQ(one.Main.lsvRename.Visible.Get(), !test.Panel);
    }
}

TEST_P(Run, The_question_has_Cancel_for_its_default)
{
    LoadRows(2);
    ground.List.SetCell(1, s.colUndoName, "kept");
    Act_Run(p, actAll);
    ASSERT_EQ(ground.Desktop.Boxes.size(), 1u);
    const MessageBox& box = ground.Desktop.Boxes[0].Box;
    EXPECT_EQ(box.Caption, "Tavo Says...");
    EXPECT_EQ(box.Icon, BoxIcon::Question);
    EXPECT_EQ(box.Buttons, BoxButtons::OkCancel);
    EXPECT_EQ(box.Default, BoxAnswer::Cancel);
    EXPECT_EQ(s.CurScreen, screenRename);
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"}));
    EXPECT_EQ(ground.Cell(1, "UndoName"), "kept");
    EXPECT_FALSE(p.Busy());
}

// Nothing of a run may happen, not even its question.
TEST_P(Run, The_empty_mode_and_unknown_actions_do_nothing)
{
    LoadRows(2);
    SelectRows({1, 2});
    ground.List.SetCell(1, s.colUndoName, "kept");
    const int turns = ground.Desktop.Turns();
    const auto nothing = [&](int action) {
        s.LastRows = 17;
        Act_Run(p, action);
        EXPECT_EQ(ground.Desktop.BoxTexts(), Texts{}) << action;
        EXPECT_EQ(ground.Desktop.Turns(), turns) << action;
        EXPECT_EQ(ground.Cell(1, "UndoName"), "kept") << action;
        EXPECT_EQ(s.CurScreen, screenRename) << action;
        EXPECT_EQ(s.LastRows, 17) << action;
    };
    for (const int mode : {int{modeEmpty}, 8, -1}) {
        SCOPED_TRACE(mode);
        s.RenMode = static_cast<std::int16_t>(mode);
        nothing(actAll);
        nothing(actSelected);
    }
    s.RenMode = modeNameNumber;
    for (const int action : {7, 99, -1})
        nothing(action);
}

TEST_P(Run, The_panel_comes_up_ready_before_anything_is_done)
{
    LoadRows(2);
    s.SupWarnRen = 1;
    f.prbAction.Value = 55;
    bool seen = false;
    ground.During(1, [&] {
        seen = true;
        EXPECT_EQ(s.CurScreen, screenAction);
        EXPECT_EQ(s.ActPrevView, screenRename);
        EXPECT_EQ(f.prbAction.Value.Get(), f.prbAction.Min.Get());
        EXPECT_EQ(Stage(), "Preparing to Start...");
        EXPECT_EQ(f.cmdActPause.Caption.Get(), "&Pause");
        EXPECT_TRUE(f.cmdActPause.Enabled);
        EXPECT_TRUE(f.cmdActCancel.Enabled);
        EXPECT_FALSE(f.cmdActDone.Enabled);
        for (int k = 1; k <= 3; ++k) {
            EXPECT_FALSE(f.lblAction[k].Visible) << k;
            EXPECT_FALSE(f.lblActionInfo[k].Visible) << k;
        }
        for (const char* id : {"ID_RenAll", "ID_RenSelected", "ID_SelDelete", "ID_NewList"})
            EXPECT_FALSE(ground.ToolOf(id).Enabled) << id;
        EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"}));
    });
    Act_Run(p, actAll);
    EXPECT_TRUE(seen);
}

TEST_P(Run, A_run_discards_the_last_one_in_all_rows_of_the_list)
{
    LoadRows(3);
    for (int row = 1; row <= 3; ++row) {
        ground.List.SetCell(row, s.colUndoName, "undo");
        ground.List.SetCell(row, s.colErrors, "Missing");
    }
    SelectRows({2});
    bool seen = false;
    ground.During(1, [&] {
        seen = true;
        EXPECT_EQ(Stage(), "Clearing UndoName and Error Columns...");
        EXPECT_EQ(ground.Column("UndoName"), (Texts{"", "", ""}));
        EXPECT_EQ(ground.Column("Errors"), (Texts{"", "", ""}));
        EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt", "c.txt"}));
    });
    Act_Run(p, actSelected);
    EXPECT_TRUE(seen);
    EXPECT_EQ(ground.Column("UndoName"), (Texts{"", "b.txt", ""}));
}

TEST_P(Run, All_runs_every_row_and_Selected_only_those)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    SelectRows({2, 4});
    Act_Run(p, actSelected);
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "xb.txt", "c.txt", "xd.txt"}));
    EXPECT_EQ(s.LastRows, 2);
    Act_Done(p);
    Act_Run(p, actAll);
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xxb.txt", "xc.txt", "xxd.txt"}));
    EXPECT_EQ(s.LastRows, 4);
    EXPECT_EQ(s.LastMode, modeNameNumber);
    EXPECT_EQ(ground.ContentOf("d/xxb.txt"), "d/b.txt");
}

TEST_P(Run, Labels_of_the_rename_modes)
{
    LoadRows(3);
    s.SupWarnRen = 1;
    ground.AddFile("d/xb.txt");
    Act_Run(p, actAll);
    EXPECT_EQ(Label(1), "Renamed:");
    EXPECT_EQ(Label(2), "Skipped due to Error:");
    EXPECT_EQ(Label(3), "Renaming Unnecessary:");
    EXPECT_EQ(f.lblAction[1].ToolTipText.Get(), "Number of Files Renamed");
    EXPECT_EQ(f.lblAction[2].ToolTipText.Get(),
              "Number of Files Skipped Due to Error during Rename Attempt");
    EXPECT_EQ(f.lblAction[3].ToolTipText.Get(), "Number of Files with Correct Name Already");
    EXPECT_EQ(Value(1), "2");
    EXPECT_EQ(Value(2), "1");
    EXPECT_EQ(Value(3), "");
    for (int k = 1; k <= 3; ++k)
        EXPECT_TRUE(f.lblAction[k].Visible) << k;
}

TEST_P(Run, Rows_that_have_their_name_already_are_unnecessary)
{
    LoadRows(3);
    s.SupWarnRen = 1;
    ground.SetTemplates("<ON>", "<OE>");
    s.RenFailed = true;
    s.RenErrCode = renConflict;
    Act_Run(p, actAll);
    EXPECT_EQ(Value(1) + "/" + Value(2) + "/" + Value(3), "//3");
    EXPECT_EQ(ground.Column("UndoName"), (Texts{"", "", ""}));
    EXPECT_FALSE(s.RenFailed);
    EXPECT_EQ(s.RenErrCode, 0);
}

TEST_P(Run, The_header_counts_the_failures)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    for (const char* name : {"d/a.txt", "d/c.txt", "d/d.txt"})
        ground.Disk.Remove(ground.Full(name));
    Act_Run(p, actAll);
    EXPECT_EQ(ErrorsHeader(), "Errors: 3");
    EXPECT_EQ(ground.Column("Errors"), (Texts{"Missing", "", "Missing", "Missing"}));
    Act_Done(p);

    ground.SelectNames({"xb.txt"});
    Act_Run(p, actSelected);
    EXPECT_EQ(ErrorsHeader(), "Errors: ");
}

TEST_P(Run, Refresh_and_remove_leave_the_header_and_the_last_run_alone)
{
    LoadRows(3);
    ground.Disk.Remove(ground.Full("d/b.txt"));
    s.SupWarnRen = 1;
    Act_Run(p, actAll);
    Act_Done(p);
    ASSERT_EQ(ErrorsHeader(), "Errors: 1");
    Act_Run(p, actRefresh);
    EXPECT_EQ(Label(1), "Removed:");
    EXPECT_EQ(Label(2), "Updated:");
    EXPECT_FALSE(f.lblAction[3].Visible);
    EXPECT_EQ(f.lblAction[1].ToolTipText.Get(), "");
    EXPECT_EQ(Value(1) + "/" + Value(2), "1/2");
    EXPECT_EQ(ErrorsHeader(), "Errors: 1");
    EXPECT_EQ(s.LastRows, 3);
    EXPECT_EQ(ground.Column("UndoName"), (Texts{"a.txt", "c.txt"}));
    Act_Done(p);

    SelectRows({1, 2});
    Act_Run(p, actRemove);
    EXPECT_EQ(Label(1), "Removed:");
    EXPECT_FALSE(f.lblAction[2].Visible);
    EXPECT_EQ(Value(1), "2");
}

TEST_P(Run, The_end_waits_for_Done)
{
    LoadRows(2);
    s.SupWarnRen = 1;
    s.ActReady = false;
    Act_Run(p, actAll);
    EXPECT_EQ(Stage(), "Finished! Click Done to Continue...");
    EXPECT_EQ(f.Caption(), "Tavo - Name & Number");
    EXPECT_FALSE(f.cmdActPause.Enabled);
    EXPECT_FALSE(f.cmdActCancel.Enabled);
    EXPECT_TRUE(f.cmdActDone.Enabled);
    EXPECT_TRUE(f.cmdActDone.HasFocus());
    EXPECT_EQ(f.prbAction.Value.Get(), 100);
    EXPECT_TRUE(s.ActReady);
    EXPECT_FALSE(p.Busy());
    EXPECT_EQ(s.CurScreen, screenAction);
    EXPECT_FALSE(ground.ToolOf("ID_RenAll").Enabled);

    f.cmdActDone.PersonClick();
    EXPECT_EQ(s.CurScreen, screenRename);
    EXPECT_TRUE(ground.ToolOf("ID_RenAll").Enabled);
    EXPECT_EQ(ground.Panel(1), "Total Files: 2");
    EXPECT_EQ(s.RenCount, 2);
    // The preview shows what the row in hand would become next.
    EXPECT_EQ(ground.Panel(2), "xxa.txt");
}

TEST_P(Run, ActClose_goes_back_by_itself)
{
    LoadRows(2);
    s.SupWarnRen = 1;
    s.actClose = 1;
    Act_Run(p, actAll);
    EXPECT_EQ(s.CurScreen, screenRename);
    EXPECT_TRUE(ground.ToolOf("ID_RenAll").Enabled);
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt"}));
    EXPECT_EQ(ground.Panel(1), "Total Files: 2");
}

TEST_P(Run, Progress_reaches_bar_and_caption_row_by_row)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    Texts captions;
    ground.Desktop.EachTurn = [&](int) {
        if (captions.empty() || captions.back() != f.Caption())
            captions.push_back(f.Caption());
        if (f.Caption().ends_with("%")) {
            EXPECT_EQ(f.Caption(), "Tavo " + std::to_string(int(f.prbAction.Value.Get())) + "%");
        }
    };
    Act_Run(p, actAll);
    ground.Desktop.EachTurn = nullptr;
    const Texts wanted = {"Tavo 25%", "Tavo 50%", "Tavo 75%", "Tavo 100%"};
    EXPECT_NE(std::search(captions.begin(), captions.end(), wanted.begin(), wanted.end()),
              captions.end());
    EXPECT_EQ(f.Caption(), "Tavo - Name & Number");
}

// -- Order.

TEST_P(Run, Sorted_is_off_while_names_change_and_on_again_after)
{
    LoadRows(3);
    s.SupWarnRen = 1;
    ground.SetTemplates("<#>", "<OE>");
    Ren_List_Sort(p, ground.List, s.colName);
    ASSERT_TRUE(ground.List.Sorted());
    const Texts before = ground.Names();
    int rowsSeen = 0;
    ground.Desktop.EachTurn = [&](int) {
        if (!ground.Cell(1, "UndoName").empty()) {
            ++rowsSeen;
            EXPECT_FALSE(ground.List.Sorted());
            EXPECT_EQ(ground.Cell(1, "UndoName"), before[0]);
        }
    };
    Act_Run(p, actAll);
    ground.Desktop.EachTurn = nullptr;
    EXPECT_GT(rowsSeen, 0);
    EXPECT_TRUE(ground.List.Sorted());
    // Descending by name: the numbers were given from the top, and no row
    // moves for its new name.
    EXPECT_EQ(ground.Names(), (Texts{"1.txt", "2.txt", "3.txt"}));
    EXPECT_EQ(ground.Column("UndoName"), before);
}

TEST_P(Run, After_a_run_of_one_row_the_list_is_no_longer_sorted)
{
    LoadRows(3);
    Ren_List_Sort(p, ground.List, s.colName);
    SelectRows({1});
    Act_Run(p, actSelected);
    EXPECT_FALSE(ground.List.Sorted());
    EXPECT_EQ(s.LastRows, 1);
    EXPECT_EQ(ground.Names(), (Texts{"xc.txt", "b.txt", "a.txt"}));
}

// -- One row.

TEST_P(Run, One_selected_row_runs_at_once_and_the_next_one_comes_up)
{
    LoadRows(3);
    s.AutoSelNext = 1;
    SelectRows({1});
    s.NameBoxFocus = nnName;
    ShownRows shown(ground.List);
    Act_Run(p, actSelected);
    EXPECT_EQ(shown.Last, 2);
    EXPECT_EQ(ground.Desktop.BoxTexts(), Texts{});
    EXPECT_EQ(s.CurScreen, screenRename);
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "b.txt", "c.txt"}));
    EXPECT_EQ(ground.SelectedNames(), (Texts{"b.txt"}));
    EXPECT_EQ(ground.List.SelectedItem(), 2);
    EXPECT_EQ(s.CurRow, "2");
    EXPECT_EQ(ground.Panel(2), "xb.txt");
    EXPECT_EQ(ground.Panel(3), "Selected: 1");
    TextBox& box = f.txtNameNum[nnName];
    EXPECT_TRUE(box.HasFocus());
    EXPECT_EQ(box.SelText(), "x<ON>");
    EXPECT_EQ(f.Caption(), "Tavo - Name & Number");
    EXPECT_FALSE(p.Busy());
}

TEST_P(Run, Return_in_a_box_renames_row_by_row_and_the_box_is_ready_for_the_next)
{
    LoadRows(3);
    s.AutoSelNext = 1;
    s.RetRename = 1;
    SelectRows({1});
    TextBox& box = f.txtNameNum[nnName];
    box.SetFocus();
    for (int row = 1; row <= 3; ++row) {
        box.Select(2, 0);
        f.PersonKey(&box, Key{keyReturn, shiftNone, 13});
        EXPECT_EQ(box.SelText(), row < 3 ? "x<ON>" : "") << row;
        EXPECT_TRUE(box.HasFocus());
    }
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt", "xc.txt"}));
    EXPECT_EQ(ground.Desktop.BoxTexts(), Texts{});
}

TEST_P(Run, The_extension_box_gets_the_focus_back_when_it_had_it_last)
{
    LoadRows(3);
    s.AutoSelNext = 1;
    SelectRows({2});
    f.txtNameNum[nnExt].SetFocus();
    ASSERT_EQ(s.NameBoxFocus, nnExt);
    Act_Run(p, actSelected);
    EXPECT_EQ(ground.SelectedNames(), (Texts{"c.txt"}));
    EXPECT_TRUE(f.txtNameNum[nnExt].HasFocus());
    EXPECT_EQ(f.txtNameNum[nnExt].SelText(), "<OE>");
}

TEST_P(Run, The_next_row_fills_the_boxes_with_Auto_Fill)
{
    LoadRows(2);
    s.AutoSelNext = 1;
    s.nnAutoFill = 1;
    SelectRows({1});
    ground.SetTemplates("z", "txt");
    Act_Run(p, actSelected);
    EXPECT_EQ(ground.Names(), (Texts{"z.txt", "b.txt"}));
    EXPECT_EQ(f.txtNameNum[nnName].Text.Get(), "b");
    EXPECT_EQ(f.txtNameNum[nnName].SelText(), "b");
}

TEST_P(Run, The_selection_stays_on_the_last_row_and_without_AutoSelNext)
{
    LoadRows(3);
    s.AutoSelNext = 1;
    SelectRows({3});
    Act_Run(p, actSelected);
    EXPECT_EQ(ground.SelectedNames(), (Texts{"xc.txt"}));
    s.AutoSelNext = 0;
    SelectRows({1});
    Act_Run(p, actSelected);
    EXPECT_EQ(ground.SelectedNames(), (Texts{"xa.txt"}));
}

TEST_P(Run, Several_rows_never_move_the_selection)
{
    LoadRows(3);
    s.AutoSelNext = 1;
    s.SupWarnRen = 1;
    s.actClose = 1;
    SelectRows({1, 2});
    Act_Run(p, actSelected);
    EXPECT_EQ(ground.SelectedNames(), (Texts{"xa.txt", "xb.txt"}));
}

TEST_P(Run, A_failed_single_row_is_counted_and_the_next_one_comes_up)
{
    LoadRows(2);
    s.AutoSelNext = 1;
    ground.Disk.Remove(ground.Full("d/a.txt"));
    SelectRows({1});
    Act_Run(p, actSelected);
    EXPECT_EQ(ground.Cell(1, "Errors"), "Missing");
    EXPECT_EQ(ErrorsHeader(), "Errors: 1");
    EXPECT_EQ(ground.SelectedNames(), (Texts{"b.txt"}));
}

TEST_P(Run, Without_a_selected_row_nothing_is_renamed)
{
    LoadRows(2);
    SelectRows({});
    Act_Run(p, actSelected);
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"}));
    EXPECT_EQ(s.LastRows, 0);
    EXPECT_EQ(s.CurScreen, screenRename);
}

// -- What a run keeps out.

TEST_P(Run, Nothing_that_works_on_the_list_starts_inside_a_run)
{
    LoadRows(3);
    s.SupWarnRen = 1;
    int tries = 0;
    ground.Desktop.EachTurn = [&](int) {
        if (!p.Busy())
            return;
        ++tries;
        const int turns = ground.Desktop.Turns();
        Act_Run(p, actAll);
        Act_Run(p, actRemove);
        Act_Run(p, actRefresh);
        Ren_List_Sort(p, ground.List, s.colName);
        Ren_List_Arrange(p, "Up");
        Ren_List_FromDrop(p, {ground.Full("d/a.txt")});
        Ren_List_Create(p);
        Ren_Delete_Ask(p);
        ground.List.FilesDropped({ground.Full("d/a.txt")});
        ground.List.DragStarted();
        EXPECT_EQ(ground.Desktop.Turns(), turns);
        EXPECT_EQ(ground.List.Count(), 3);
    };
    Act_Run(p, actAll);
    ground.Desktop.EachTurn = nullptr;
    EXPECT_GT(tries, 3);
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt", "xc.txt"}));
    EXPECT_EQ(ground.Desktop.BoxTexts(), Texts{});
    EXPECT_TRUE(ground.Desktop.Drags.empty());
    EXPECT_TRUE(ground.Desktop.Forms.size() == 1);
}

TEST_P(Run, The_rows_are_those_that_were_selected_at_the_start)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    SelectRows({1, 3});
    ground.Desktop.EachTurn = [&](int) {
        if (!ground.Cell(1, "UndoName").empty())
            ground.List.SetAllSelected(true);
    };
    Act_Run(p, actSelected);
    ground.Desktop.EachTurn = nullptr;
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "b.txt", "xc.txt", "d.txt"}));
}

TEST_P(Run, The_list_emptied_by_a_run_falls_back_to_the_empty_state)
{
    LoadRows(2);
    SelectRows({1, 2});
    Act_Run(p, actRemove);
    ASSERT_EQ(s.CurScreen, screenAction);
    f.cmdActDone.PersonClick();
    EXPECT_EQ(s.CurScreen, screenRename);
    EXPECT_EQ(s.RenMode, modeEmpty);
    EXPECT_EQ(s.RenCount, 0);
    EXPECT_EQ(ground.Panel(1), "");
    EXPECT_EQ(ground.Panel(2), "Create a New List");
    EXPECT_FALSE(ground.ToolOf("ID_RenAll").Enabled);
    EXPECT_TRUE(ground.Disk.Has(ground.Full("d/a.txt")));
}

TEST(RunOnDisk, What_has_happened_since_the_load_ends_in_its_own_row)
{
    TempFolder folder("act_run");
    PosixFiles disk;
    ListGround ground(disk, folder.Path());
    Texts paths;
    for (const char* name : {"a.txt", "b.txt", "c.txt", "d.txt", "e.txt"}) {
        folder.Write(name, name);
        paths.push_back(folder.Path(name));
    }
    Ren_List_FromDrop(ground.P, paths);
    ground.SetTemplates("new_<#>", "<OE>");
    ground.P.state.SupWarnRen = 1;
    folder.Remove("b.txt");
    folder.Write("new_3.txt", "another program's");
    folder.Remove("e.txt");
    folder.MakeFolder("e.txt");

    Act_Run(ground.P, actAll);

    EXPECT_EQ(ground.Names(), (Texts{"new_1.txt", "b.txt", "new_2.txt", "d.txt", "e.txt"}));
    EXPECT_EQ(ground.Column("Errors"),
              (Texts{"", "Missing", "", "Name Conflict", "Name Conflict"}));
    EXPECT_EQ(ground.Column("UndoName"), (Texts{"a.txt", "", "c.txt", "", ""}));
    EXPECT_EQ(folder.Names(), (Texts{"d.txt", "e.txt", "new_1.txt", "new_2.txt", "new_3.txt"}));
    EXPECT_EQ(folder.Read("new_1.txt"), "a.txt");
    EXPECT_EQ(folder.Read("new_2.txt"), "c.txt");
    EXPECT_EQ(folder.Read("new_3.txt"), "another program's");
}

} // namespace tavo
