#include "renamelist/rename_list.h"

#include "fileactions/frm_delete.h"
#include "support/list_run.h"

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

class Events : public ListRun {
protected:
    void Press(const char* name)
    {
        Key key;
        ASSERT_TRUE(Key_FromName(name, key)) << name;
        f.PersonKey(&ground.List, key);
    }

    // The next dialog is answered by its button, 0 for Cancel.
    void AnswerDialog(int button)
    {
        ground.Desktop.OnModal([button](Form& form) {
            auto& dialog = static_cast<FrmDelete&>(form);
            if (button == 0)
                dialog.cmdCancel.PersonClick();
            else
                dialog.cmdRemove[button].PersonClick();
        });
    }
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Events, bothDialects, Dialect_Name);

} // namespace

// -- Clicks and keys.

TEST_P(Events, A_click_on_a_row_shows_what_it_would_become)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    ground.SetTemplates("<#>_<ON>", "<OE>");
    ground.Select({2});
    EXPECT_EQ(ground.Panel(2), "2_b.txt");
    EXPECT_EQ(ground.Panel(3), "Selected: 1");
    EXPECT_EQ(s.CurRow, "2");
    EXPECT_EQ(s.OldName, "b");
}

TEST_P(Events, A_click_beside_the_rows_counts_anew)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    ground.Select({1, 2});
    EXPECT_EQ(ground.Panel(3), "Selected: 2");
    const std::string outcome = ground.Panel(2);
    ground.Select({});
    EXPECT_EQ(ground.Panel(3), "Selected: 0");
    EXPECT_EQ(ground.Panel(2), outcome);
    EXPECT_EQ(ground.List.SelectedItem(), 2);
}

TEST_P(Events, Up_and_Down_show_the_row_they_come_to)
{
    ground.Load({"d/a.txt", "d/b.txt", "d/c.txt"});
    ground.SetTemplates("x<ON>", "<OE>");
    ground.Select({1});
    Press("Down");
    EXPECT_EQ(ground.Panel(2), "xb.txt");
    EXPECT_EQ(ground.SelectedNames(), (Texts{"b.txt"}));
    Press("Shift+Down");
    EXPECT_EQ(ground.Panel(2), "xc.txt");
    EXPECT_EQ(ground.Panel(3), "Selected: 2");
    Press("Up");
    EXPECT_EQ(ground.Panel(2), "xb.txt");
    EXPECT_EQ(ground.Panel(3), "Selected: 1");
}

TEST_P(Events, A_click_on_a_header_sorts)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    ground.List.ColumnClick(s.colName);
    EXPECT_EQ(ground.Names(), (Texts{"b.txt", "a.txt"}));
    EXPECT_TRUE(ground.List.Sorted());
}

TEST_P(Events, Copy_and_cut_enter_Move_and_Copy)
{
    ground.Load({"d/a.txt"});
    Press("Ctrl+C");
    EXPECT_EQ(s.RenMode, modeMoveCopy);
    EXPECT_TRUE(f.optmcdMode[2].Value);
    EXPECT_FALSE(f.optmcdMode[1].Value);
    EXPECT_TRUE(f.ctlRbRenMode[3].Visible);
    EXPECT_EQ(f.Caption(), "Tavo - Move & Copy");
    Press("Ctrl+X");
    EXPECT_EQ(s.RenMode, modeMoveCopy);
    EXPECT_TRUE(f.optmcdMode[1].Value);
    EXPECT_FALSE(f.optmcdMode[2].Value);
}

TEST_P(Events, Other_keys_leave_the_mode_alone)
{
    ground.Load({"d/a.txt"});
    for (const char* key : {"c", "x", "Ctrl+V", "Alt+C", "Ctrl+Shift+X", "Home", "F5"})
        Press(key);
    EXPECT_EQ(s.RenMode, modeNameNumber);
    EXPECT_EQ(ground.Names(), (Texts{"a.txt"}));
}

// -- The dialog of the Delete key.

TEST_P(Events, Remove_takes_the_selected_rows_off_the_list)
{
    ground.Load({"d/a.txt", "d/b.txt", "d/c.txt"});
    ground.Select({2});
    AnswerDialog(1);
    Press("Delete");
    EXPECT_EQ(ground.Desktop.Forms.back().Name, "frmDelete");
    EXPECT_TRUE(ground.Desktop.Forms.back().Modal);
    EXPECT_EQ(ground.Desktop.ModalsLeft(), 0);
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "c.txt"}));
    EXPECT_EQ(s.CurScreen, screenRename);
    EXPECT_EQ(s.RenCount, 2);
    EXPECT_TRUE(ground.Disk.Has(ground.Full("d/b.txt")));
}

TEST_P(Events, Cancel_and_the_frame_of_the_dialog_change_nothing)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    ground.Select({1, 2});
    // An answer of an earlier time must not come into effect again.
    s.DeleteChoice = 1;
    AnswerDialog(0);
    Press("Delete");
    s.DeleteChoice = 1;
    ground.Desktop.OnModal([](Form& form) { form.PersonClose(); });
    Ren_Delete_Ask(p);
    EXPECT_EQ(ground.Desktop.ModalsLeft(), 0);
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"}));
    EXPECT_EQ(s.CurScreen, screenRename);
}

TEST_P(Events, Answers_that_take_files_away_do_so)
{
    for (const int choice : {2, 3}) {
        MemoryListGround one(GetParam());
        one.Load({"d/a.txt", "d/b.txt"});
        one.Select({1});
        one.Desktop.OnModal([&](Form& form) {
            one.P.state.DeleteChoice = static_cast<std::int16_t>(choice);
            form.Unload();
        });
        Ren_Delete_Ask(one.P);
        EXPECT_EQ(one.Names(), (Texts{"b.txt"})) << choice;
        EXPECT_FALSE(one.Disk.Has(one.Full("d/a.txt"))) << choice;
        EXPECT_EQ(one.P.state.CurScreen, screenRename);
    }
}

TEST_P(Events, The_delete_command_asks_the_same)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    ground.Select({1});
    AnswerDialog(1);
    f.atbMain.PersonClick(ground.ToolOf("ID_SelDelete"));
    EXPECT_EQ(ground.Desktop.ModalsLeft(), 0);
    EXPECT_EQ(ground.Names(), (Texts{"b.txt"}));
}

// -- Drag and drop.

TEST_P(Events, Selected_rows_are_dragged_out_as_their_files)
{
    ground.Load({"d/a.txt", "d/b.txt", "e/c.txt"});
    ground.Select({1, 3});
    bool dragging = false;
    ground.Desktop.OnDrag = [&] { dragging = s.ListDragging; };
    ground.List.DragStarted();
    ASSERT_EQ(ground.Desktop.Drags.size(), 1u);
    EXPECT_EQ(ground.Desktop.Drags[0].Source, &ground.List);
    EXPECT_EQ(ground.Desktop.Drags[0].Paths,
              (Texts{ground.Full("d/a.txt"), ground.Full("e/c.txt")}));
    EXPECT_TRUE(dragging);
    EXPECT_FALSE(s.ListDragging);
}

TEST_P(Events, Without_a_selected_row_nothing_is_dragged)
{
    ground.Load({"d/a.txt"});
    ground.Select({});
    ground.List.DragStarted();
    EXPECT_TRUE(ground.Desktop.Drags.empty());
}

TEST_P(Events, A_list_cannot_be_dropped_on_itself)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    ground.Select({1});
    ground.Desktop.OnDrag = [&] { ground.List.FilesDropped({ground.Full("d/a.txt")}); };
    ground.List.DragStarted();
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"}));
    EXPECT_EQ(ground.Desktop.BoxTexts(), Texts{});
    EXPECT_TRUE(ground.Desktop.Foregrounds.empty());
}

TEST_P(Events, A_drop_asks_before_it_clears_the_list)
{
    ground.Load({"d/a.txt"});
    ground.AddFile("e/b.txt");
    ground.Desktop.Answer(BoxAnswer::Cancel);
    ground.List.FilesDropped({ground.Full("e/b.txt")});
    ASSERT_EQ(ground.Desktop.Boxes.size(), 1u);
    const MessageBox& box = ground.Desktop.Boxes[0].Box;
    EXPECT_EQ(box.Text, "This will Clear the current File List!");
    EXPECT_EQ(box.Caption, "Tavo Says...");
    EXPECT_EQ(box.Icon, BoxIcon::Exclamation);
    EXPECT_EQ(box.Buttons, BoxButtons::OkCancel);
    EXPECT_EQ(ground.Desktop.Foregrounds, (Texts{"frmMain"}));
    EXPECT_EQ(ground.Names(), (Texts{"a.txt"}));

    // The first button is the default.
    ground.List.FilesDropped({ground.Full("e/b.txt"), ground.Full("d/a.txt")});
    EXPECT_EQ(ground.Names(), (Texts{"a.txt", "b.txt"}));
    EXPECT_EQ(ground.Panel(1), "Total Files: 2");
}

TEST_P(Events, A_drop_on_an_empty_list_builds_one)
{
    ground.AddFile("e/b.txt");
    ground.Desktop.Answer(BoxAnswer::Ok);
    ground.List.FilesDropped({ground.Full("e/b.txt")});
    EXPECT_EQ(ground.Names(), (Texts{"b.txt"}));
    EXPECT_EQ(s.RenMode, modeNameNumber);
    EXPECT_TRUE(ground.ToolOf("ID_RenAll").Enabled);
}

} // namespace tavo
