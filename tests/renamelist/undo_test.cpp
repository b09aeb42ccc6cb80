#include "renamelist/undo.h"

#include "core/screens.h"
#include "renamelist/act_run.h"
#include "renamelist/rename_list.h"
#include "support/list_run.h"

namespace tavo {
namespace {

using Texts = std::vector<std::string>;

class Undo : public ListRun {
protected:
    void Run()
    {
        s.SupWarnRen = 1;
        Act_Run(p, actAll);
        Act_Done(p);
    }
    void UndoLast()
    {
        s.SupWarnUndo = 1;
        Act_Run(p, actUndo);
        undone_ = Value(1);
        failed_ = Value(2);
        Act_Done(p);
    }
    // New names for all rows, one a row.
    void Replace(const char* find, const char* by)
    {
        Mode_Set(p, modeSearchReplace);
        f.txtSearchFind.Text = find;
        f.txtSearchReplace.Text = by;
        Run();
    }
    std::string undone_, failed_;
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Undo, bothDialects, Dialect_Name);

TEST_P(Undo, Names_come_back_and_a_second_undo_gives_the_new_ones_again)
{
    LoadRows(3);
    Run();
    ASSERT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt", "xc.txt"}));
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt", "c.txt"}));
    EXPECT_EQ(ground.ContentOf("d/a.txt"), "d/a.txt");
    EXPECT_EQ(ground.Column("UndoName"), (Texts{"xa.txt", "xb.txt", "xc.txt"}));
    EXPECT_EQ(undone_, "3");
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt", "xc.txt"}));
    EXPECT_EQ(ground.Column("Type"), (Texts{"txt", "txt", "txt"}));
}

TEST_P(Undo, A_chain_comes_back_over_temporary_names)
{
    ground.Load({"d/1.txt", "d/2.txt", "d/3.txt"});
    ground.SetTemplates("<#>", "<OE>");
    f.txtNameNum[nnStartBox].Text = "2";
    Run();
    ASSERT_EQ(ground.Names(), (Texts{"2.txt", "3.txt", "4.txt"}));
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"1.txt", "2.txt", "3.txt"}));
    for (const char* name : {"d/1.txt", "d/2.txt", "d/3.txt"})
        EXPECT_EQ(ground.ContentOf(name), name);
}

TEST_P(Undo, A_swap_comes_back)
{
    ground.Load({"d/1.txt", "d/2.txt"});
    Ren_Row_Move(p, 2, 1);
    ground.SetTemplates("<#>", "<OE>");
    Run();
    ASSERT_EQ(ground.ContentOf("d/1.txt"), "d/2.txt");
    UndoLast();
    EXPECT_EQ(ground.ContentOf("d/1.txt"), "d/1.txt");
    EXPECT_EQ(ground.ContentOf("d/2.txt"), "d/2.txt");
}

TEST_P(Undo, A_question_and_the_panel_come_from_two_rows_on)
{
    struct Row {
        int LastRows, Suppressed;
        bool Asks, Panel;
    };
    for (const Row& row : {Row{0, 0, false, false}, Row{1, 0, false, false}, Row{2, 0, true, true},
                           Row{2, 1, false, true}}) {
        MemoryListGround one(GetParam());
        LoadInto(one, 2);
        one.P.state.LastRows = row.LastRows;
        one.P.state.LastMode = modeNameNumber;
        one.P.state.SupWarnUndo = static_cast<std::int16_t>(row.Suppressed);
        if (row.Asks)
            one.Desktop.Answer(BoxAnswer::Ok);
        Act_Run(one.P, actUndo);
        EXPECT_EQ(one.Desktop.BoxTexts(),
                  row.Asks ? (Texts{"Undo the Last Rename Action?"}) : Texts{})
            << row.LastRows;
        EXPECT_EQ(one.P.state.ActShow, row.Panel) << row.LastRows;
    }
}

TEST_P(Undo, It_names_its_counts_and_its_stages)
{
    LoadRows(2);
    Run();
    Texts stages;
    ground.Desktop.EachTurn = [&](int) {
        if (stages.empty() || stages.back() != Stage())
            stages.push_back(Stage());
    };
    s.SupWarnUndo = 1;
    Act_Run(p, actUndo);
    EXPECT_EQ(stages,
              (Texts{"Preparing to Start...", "Building Undo List...",
                     "Undoing Last Rename (1 of 2)...", "Undoing Last Rename (2 of 2)..."}));
    EXPECT_EQ(Label(1), "Undo Successful:");
    EXPECT_EQ(Label(2), "Skipped due to Error:");
    EXPECT_FALSE(f.lblAction[3].Visible);
    EXPECT_EQ(ErrorsHeader(), "Errors: 0");
}

TEST_P(Undo, Change_case_goes_back_in_one_pass_and_writes_the_type)
{
    ground.Load({"d/One.TXT", "d/two.txt"});
    Mode_Set(p, modeCase);
    f.optCase[1].Value = true;
    Run();
    ASSERT_EQ(ground.Names(), (Texts{"ONE.TXT", "TWO.TXT"}));
    ASSERT_EQ(ground.Column("Type"), (Texts{"", ""}));
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"One.TXT", "two.txt"}));
    EXPECT_EQ(ground.Column("Type"), (Texts{"TXT", "txt"}));
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"ONE.TXT", "TWO.TXT"}));
}

// The letters before decide, so one row can take the name that another leaves.
TEST_P(Undo, A_chain_of_change_case_comes_back_too)
{
    if (GetParam() == MemoryDisk::Flavour::Windows)
        GTEST_SKIP() << "two such names cannot lie in one folder there";
    ground.Load({"d/Ab", "d/aB"});
    Mode_Set(p, modeCase);
    f.optCase[3].Value = true;
    f.chkCaseFirst.Value = 1;
    for (int i = 1; i <= 6; ++i)
        f.txtCasePreCap[i].Text = "";
    f.txtCasePreCap[1].Text = "A";
    Run();
    ASSERT_EQ(ground.Names(), (Texts{"AB", "Ab"}));
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"Ab", "aB"}));
    EXPECT_EQ(ground.ContentOf("d/Ab"), "d/Ab");
    EXPECT_EQ(failed_, "1") << "the label keeps the first try's count";
    EXPECT_EQ(ErrorsHeader(), "Errors: 0");
}

TEST_P(Undo, A_name_taken_meanwhile_is_a_conflict_and_keeps_its_temporary_name)
{
    LoadRows(2);
    Run();
    ground.AddFile("d/a.txt");
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"~xa.txt", "b.txt"}));
    EXPECT_EQ(ground.Column("Errors"), (Texts{"Name Conflict", ""}));
    EXPECT_EQ(ground.Cell(1, "UndoName"), "a.txt");
    EXPECT_EQ(ErrorsHeader(), "Errors: 1");
    ground.Disk.Remove(ground.Full("d/a.txt"));
    UndoLast();
    EXPECT_EQ(ground.Names()[0], "a.txt") << "a further undo clears it";
}

TEST_P(Undo, A_row_that_cannot_step_aside_is_tried_from_its_present_name)
{
    LoadRows(2);
    Run();
    ground.Disk.Fail("SHFileOperationA", 1, diskDenied);
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"}));
    EXPECT_EQ(ground.Cell(1, "UndoName"), "xa.txt");
    EXPECT_EQ(ErrorsHeader(), "Errors: 0");
}

TEST_P(Undo, A_name_that_is_its_own_temporary_one_comes_back_and_goes_again)
{
    ground.Load({"d/~a"});
    Replace("~", "");
    ASSERT_EQ(ground.Names(), (Texts{"a"}));
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"~a"}));
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"a"}));
}

TEST_P(Undo, A_name_of_the_greatest_length_comes_back_and_its_redo_is_shortened)
{
    if (GetParam() == MemoryDisk::Flavour::Windows)
        GTEST_SKIP() << "its path would be longer than that disk allows";
    const std::string shortName = "d/" + std::string(200, 'q') + ".txt";
    ground.Load({shortName});
    const std::string longest(255, 'n');
    ground.SetTemplates(longest.substr(4), "txt");
    Run();
    ASSERT_EQ(ground.Names()[0].size(), 255u);
    UndoLast();
    EXPECT_EQ("d/" + ground.Names()[0], shortName);
    EXPECT_EQ(ground.Cell(1, "UndoName").size(), 254u);
}

TEST_P(Undo, Sorting_and_moving_in_between_takes_nothing_away)
{
    ground.Load({"d/1.txt", "d/2.txt", "d/3.txt"});
    ground.SetTemplates("<#>", "<OE>");
    f.txtNameNum[nnStartBox].Text = "2";
    Run();
    Ren_Row_Move(p, 3, 1);
    Ren_List_Sort(p, ground.List, s.colUndoName);
    UndoLast();
    for (const char* name : {"d/1.txt", "d/2.txt", "d/3.txt"})
        EXPECT_EQ(ground.ContentOf(name), name);
}

TEST_P(Undo, A_cancelled_run_is_undone_for_the_rows_it_did)
{
    LoadRows(3);
    s.SupWarnRen = 1;
    ground.Desktop.EachTurn = [this](int) {
        if (ground.Names()[1] == "xb.txt")
            s.ActCancel = true;
    };
    Act_Run(p, actAll);
    ground.Desktop.EachTurn = nullptr;
    Act_Done(p);
    ASSERT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt", "c.txt"}));
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt", "c.txt"}));
    EXPECT_EQ(undone_, "2");
}

class UndoCancel : public Undo {
protected:
    // Cancels once the first row has its temporary name.
    void CancelHalfWay(BoxAnswer answer)
    {
        LoadRows(2);
        Run();
        bool cancelled = false;
        ground.Desktop.EachTurn = [this, cancelled](int) mutable {
            if (!cancelled && ground.Names()[0] == "~xa.txt")
                s.ActCancel = cancelled = true;
        };
        ground.Desktop.Answer(answer);
        UndoLast();
    }
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, UndoCancel, bothDialects, Dialect_Name);

TEST_P(UndoCancel, No_goes_on_to_the_end)
{
    CancelHalfWay(BoxAnswer::No);
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"}));
    ASSERT_EQ(ground.Desktop.Boxes.size(), 1u);
    const MessageBox& box = ground.Desktop.Boxes[0].Box;
    EXPECT_EQ(box.Text, "Some Files have Temporary File Names!\nDo You Still Wish to Cancel?");
    EXPECT_EQ(box.Icon, BoxIcon::Question);
    EXPECT_EQ(box.Buttons, BoxButtons::YesNo);
    EXPECT_EQ(box.Default, BoxAnswer::No);
}

TEST_P(UndoCancel, Yes_leaves_temporary_names_that_the_rows_show)
{
    CancelHalfWay(BoxAnswer::Yes);
    EXPECT_EQ(ground.Names(), (Texts{"~xa.txt", "xb.txt"}));
    EXPECT_EQ(ground.Column("UndoName"), (Texts{"a.txt", "b.txt"}));
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"})) << "a further undo ends it";
}

TEST_P(Undo, Moves_have_no_way_back)
{
    LoadRows(2);
    s.LastRows = 2;
    s.LastMode = modeMoveCopy;
    ground.List.SetCell(1, s.colUndoName, "other.txt");
    const int calls = ground.Disk.Calls("SHFileOperationA");
    UndoLast();
    EXPECT_EQ(ground.Disk.Calls("SHFileOperationA"), calls);
}

TEST_P(Undo, Row_1_is_selected_at_the_end_and_others_keep_their_state)
{
    LoadRows(3);
    Run();
    SelectRows({3});
    UndoLast();
    EXPECT_EQ(ground.SelectedNames(), (Texts{"a.txt", "c.txt"}));
}

TEST_P(Undo, An_undo_of_nothing_changes_nothing)
{
    LoadRows(2);
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"}));
    EXPECT_EQ(undone_, "");
}

TEST_P(Undo, A_person_who_clicks_on_in_the_pump_changes_nothing)
{
    LoadRows(3);
    Run();
    ground.Desktop.EachTurn = [this](int) {
        f.lsvRename.PersonSelectAll();
        Act_Run(p, actDelete);
        Ren_List_Arrange(p, "Group");
    };
    UndoLast();
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt", "c.txt"}));
}

} // namespace
} // namespace tavo
