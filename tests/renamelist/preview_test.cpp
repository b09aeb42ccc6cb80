#include "renamelist/preview.h"

#include "core/screens.h"
#include "support/disk_ground.h"

#include <gtest/gtest.h>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

class Preview : public ::testing::TestWithParam<Ground> {
protected:
    Preview() : ground(GetParam()), p(ground.P), s(ground.P.state), f(ground.Main) {}

    // A person clicks a row.
    void ClickRow(int row) { ground.G.Select({row}); }
    std::string Outcome() const { return ground.G.Panel(2); }
    std::string Name() const { return f.txtNameNum[nnName].Text; }
    std::string Ext() const { return f.txtNameNum[nnExt].Text; }

    DiskGround ground;
    Program& p;
    SharedState& s;
    FrmMain& f;
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Preview, ::testing::Values(Ground::Windows, Ground::Linux),
                         [](const auto& test) { return Ground_Name(test.param); });

} // namespace

TEST_P(Preview, A_click_takes_the_row_in_hand)
{
    ground.Load({"d/a.txt", "d/b.tar.gz", "d/README"});
    s.nnAutoFill = 0;
    ground.G.SetTemplates("x<#>", "<OE>");
    ground.G.Select({1, 2});
    EXPECT_EQ(ground.G.Panel(3), "Selected: 2");
    EXPECT_EQ(s.CurRow, "2");
    EXPECT_EQ(s.OldName, "b.tar");
    EXPECT_EQ(s.OldExt, "gz");
    EXPECT_EQ(s.FullName, ground.Full("d/b.tar.gz"));
    EXPECT_EQ(Outcome(), "x2.gz");
    EXPECT_TRUE(s.PreviewOn);
    ClickRow(3);
    EXPECT_EQ(s.OldName, "README");
    EXPECT_EQ(s.OldExt, "");
    EXPECT_EQ(Outcome(), "x3");
}

TEST_P(Preview, A_click_on_an_empty_list_does_nothing)
{
    f.stbMain.SetPanel(3, "as it was");
    s.PreviewOn = false;
    Row_Click(p);
    Preview_Show(p);
    EXPECT_EQ(ground.G.Panel(3), "as it was");
    EXPECT_FALSE(s.PreviewOn);
}

TEST_P(Preview, Without_a_row_in_hand_only_the_count_is_shown)
{
    ground.Load({"d/a.txt"});
    f.lsvRename.SetAllSelected(false);
    f.lsvRename.SetSelectedItem(0);
    f.stbMain.SetPanel(2, "as it was");
    Row_Click(p);
    EXPECT_EQ(ground.G.Panel(3), "Selected: 0");
    EXPECT_EQ(Outcome(), "as it was");
}

struct OutcomeCase {
    const char *Name, *Ext;
    int Row;
    const char* Wanted;
};

TEST_P(Preview, The_outcome_counts_by_the_place_in_the_list)
{
    const OutcomeCase cases[] = {
        {"<#>", "", 1, "05"},       {"<#>", "<OE>", 3, "07.txt"},  {"<ON>_<#>", "", 2, "b_06"},
        {"<ON>", "<#>", 3, "c.07"}, {"plain", "", 2, "plain"},     {"", "", 1, ""},
        {"", "x", 1, ".x"},         {"<T>", "<OE>", 1, "<T>.txt"}, {"<on>", "", 1, "<on>"},
        {"<on><ON>", "", 1, "aa"},
    };
    ground.Load({"d/a.txt", "d/b.txt", "d/c.txt"});
    s.nnAutoFill = 0;
    ground.SetCounter("5", 2);
    for (const int preList : {0, 1})
        for (const OutcomeCase& wanted : cases) {
            s.PreList = static_cast<std::int16_t>(preList);
            ground.G.SetTemplates(wanted.Name, wanted.Ext);
            ClickRow(wanted.Row);
            EXPECT_EQ(Outcome(), wanted.Wanted) << wanted.Name << "." << wanted.Ext;
        }
}

TEST_P(Preview, The_outcome_has_the_style_of_the_counter)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    s.nnAutoFill = 0;
    ground.G.SetTemplates("<#>", "");
    ground.SetCounter("z", 3, 2);
    ClickRow(2);
    EXPECT_EQ(Outcome(), "aba");
    ground.SetCounter("Z", 3, 3);
    EXPECT_EQ(Outcome(), "ABA");
}

TEST_P(Preview, A_folder_name_is_kept_whole)
{
    ground.LoadFolders({"d/my.data"});
    s.nnAutoFill = 1;
    ClickRow(1);
    EXPECT_EQ(s.OldName, "my.data");
    EXPECT_EQ(s.OldExt, "");
    EXPECT_EQ(Name(), "my.data");
    EXPECT_EQ(Ext(), "");
    ground.G.SetTemplates("<ON>_<#>", "");
    EXPECT_EQ(Outcome(), "my.data_1");
}

TEST_P(Preview, Every_change_of_a_template_shows_its_outcome)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    s.nnAutoFill = 0;
    ClickRow(2);
    for (const int index : {nnName, nnExt}) {
        ground.G.SetTemplates("", "");
        TextBox& box = f.txtNameNum[index];
        box.SetFocus();
        for (const char* key : {"x", "y"})
            f.PersonKey(&box, Key_FromChar(static_cast<char32_t>(*key)));
        EXPECT_EQ(Outcome(), index == nnName ? "xy" : ".xy");
    }
}

TEST_P(Preview, A_click_and_its_outcome_never_touch_the_disk)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    ground.Memory()->ForgetCalls();
    ClickRow(2);
    ground.G.SetTemplates("<ON>_<#>", "<OE>");
    EXPECT_EQ(ground.Memory()->Calls(), 0);
}

// -- Auto Fill.

struct FillCase {
    const char* What;
    int AutoFill, ProExt, AppTmp;
    const char *Name, *Ext;
};

TEST_P(Preview, Auto_Fill_brings_the_row_into_the_boxes)
{
    const FillCase cases[] = {
        {"off", 0, 0, 0, "t", "e"},
        {"off, with a template", 0, 1, 1, "t", "e"},
        {"on", 1, 0, 0, "b1", "Jpg"},
        {"on, extensions kept", 1, 1, 0, "b1", "<OE>"},
        {"on, with a template", 1, 0, 1, "b1_<#>", "bak.Jpg"},
        {"on, extensions kept, with a template", 1, 1, 1, "b1_<#>", "bak.<OE>"},
    };
    ground.Load({"d/a.txt", "d/b1.Jpg"});
    s.Templates.push_back({"mine", "<E>_<#>:bak.<E>"});
    s.nnAppTmpDef = 1;
    for (const FillCase& wanted : cases) {
        s.nnAutoFill = 0;
        ClickRow(1);
        ground.G.SetTemplates("t", "e");
        s.nnAutoFill = static_cast<std::uint8_t>(wanted.AutoFill);
        s.ProExt = static_cast<std::uint8_t>(wanted.ProExt);
        s.nnAppTmp = static_cast<std::uint8_t>(wanted.AppTmp);
        ClickRow(2);
        EXPECT_EQ(Name(), wanted.Name) << wanted.What;
        EXPECT_EQ(Ext(), wanted.Ext) << wanted.What;
        EXPECT_TRUE(s.PreviewOn);
    }
}

TEST_P(Preview, Kept_extensions_do_not_hold_for_folders)
{
    ground.LoadFolders({"d/my.data"});
    s.nnAutoFill = 1;
    s.ProExt = 1;
    ground.G.SetTemplates("t", "e");
    ClickRow(1);
    EXPECT_EQ(Name(), "my.data");
    EXPECT_EQ(Ext(), "");
}

TEST_P(Preview, Auto_Fill_shows_one_outcome_when_both_boxes_stand)
{
    ground.Load({"d/a.txt", "d/b.jpg"});
    s.nnAutoFill = 1;
    s.ProExt = 0;
    ClickRow(1);
    Texts shown;
    const Connection listener = f.stbMain.PanelChanged.Listen([&](int panel) {
        if (panel == 2)
            shown.push_back(Outcome());
    });
    ClickRow(2);
    EXPECT_EQ(shown, (Texts{"b.jpg"}));
}

TEST_P(Preview, A_run_after_Auto_Fill_keeps_all_extensions)
{
    ground.Load({"d/a.txt", "d/b.jpg", "d/c"});
    s.nnAutoFill = 1;
    s.ProExt = 1;
    ClickRow(1);
    EXPECT_EQ(Ext(), "<OE>");
    f.txtNameNum[nnName].Text = "x<#>";
    ground.RunAll();
    EXPECT_EQ(ground.G.Names(), (Texts{"x1.txt", "x2.jpg", "x3"}));
}

// The row is shown, but its name does not get into the boxes.
TEST_P(Preview, Entering_the_mode_leaves_the_boxes_as_they_are)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    s.nnAutoFill = 1;
    ClickRow(2);
    ground.G.SetTemplates("t<#>", "e");
    Mode_Set(p, modeAttributes);
    Mode_Set(p, modeNameNumber);
    EXPECT_EQ(Name(), "t<#>");
    EXPECT_EQ(Ext(), "e");
    EXPECT_EQ(Outcome(), "t2.e");
    EXPECT_TRUE(s.ActReady);
}

TEST_P(Preview, Switching_Auto_Fill_on_fills_at_once)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    s.nnAutoFill = 0;
    ground.G.ToolOf("ID_AutoFill").Checked = false;
    ClickRow(2);
    ground.G.SetTemplates("t", "e");
    ground.G.ToolOf("ID_AutoFill").PersonClick();
    EXPECT_EQ(s.nnAutoFill, 1);
    EXPECT_EQ(Name(), "b");
    ground.G.SetTemplates("t", "e");
    ground.G.ToolOf("ID_AutoFill").PersonClick();
    EXPECT_EQ(s.nnAutoFill, 0);
    EXPECT_EQ(Name(), "t");
}

TEST_P(Preview, Moving_and_copying_shows_the_name_when_it_is_asked_to)
{
    ground.Load({"d/a.txt", "d/b.txt"});
    ClickRow(2);
    s.RenMode = modeMoveCopy;
    f.stbMain.SetPanel(2, "");
    Preview_Show(p);
    EXPECT_EQ(Outcome(), "b.txt");
}

TEST_P(Preview, A_whole_box_is_selected_by_characters)
{
    TextBox& box = f.txtNameNum[nnName];
    box.Text = "\u00e4\u65e5x";
    Box_SelectAll(box);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 3);
}

} // namespace tavo
