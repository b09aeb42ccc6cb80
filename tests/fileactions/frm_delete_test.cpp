#include "fileactions/frm_delete.h"

#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

class DeleteDialog : public testing::Test {
protected:
    DeleteDialog()
    {
        for (const char* file : {"/d/a.txt", "/d/b.txt", "/d/c.txt"})
            rig.Disk.AddFile(file);
        rig.Start("/d/");
        rig.MakeList();
    }

    ProgramRig rig{MemoryDisk::Flavour::Posix};
};

TEST_F(DeleteDialog, Its_texts_read_to_the_letter)
{
    FrmDelete& form = rig.P().Delete();
    EXPECT_EQ(form.Caption(), "Remove Selected Items or Delete Selected Files");
    EXPECT_EQ(form.cmdRemove[1].Caption.Get(), "&Remove");
    EXPECT_EQ(form.cmdRemove[2].Caption.Get(), "Re&cycle");
    EXPECT_EQ(form.cmdRemove[3].Caption.Get(), "&Delete");
    EXPECT_EQ(form.cmdCancel.Caption.Get(), "Cancel");
    EXPECT_EQ(form.lblRemove[2].Caption.Get(),
              "Click this Button to move the Seleted Files to the Recycle Bin. Removable Drives "
              "may not support this feature.");
}

TEST_F(DeleteDialog, Each_button_leaves_its_answer_and_goes)
{
    Program& p = rig.P();
    FrmDelete& form = p.Delete();
    struct Row {
        CommandButton& Button;
        int Answer;
    };
    for (const Row& row : {Row{form.cmdRemove[3], 3}, Row{form.cmdRemove[1], 1},
                           Row{form.cmdRemove[2], 2}, Row{form.cmdCancel, 0}}) {
        p.state.DeleteChoice = 9;
        form.EnsureLoaded();
        EXPECT_EQ(p.state.DeleteChoice, 0) << "on loading";
        row.Button.PersonClick();
        EXPECT_EQ(p.state.DeleteChoice, row.Answer);
        EXPECT_FALSE(form.Loaded());
    }
}

TEST_F(DeleteDialog, It_opens_over_the_middle_of_the_main_window)
{
    Program& p = rig.P();
    p.main.Move(1500, 900, 9000, 7000);
    FrmDelete& form = p.Delete();
    form.EnsureLoaded();
    EXPECT_EQ(form.Left(), 1500 + (9000 - form.Width()) / 2);
    EXPECT_EQ(form.Top(), 900 + (7000 - form.Height()) / 2);
}

TEST_F(DeleteDialog, Remove_takes_rows_off_the_list_and_no_file)
{
    rig.Main().lsvRename.PersonSelect({1, 3}, 3);
    rig.Desktop.OnModal(
        [](Form& form) { static_cast<FrmDelete&>(form).cmdRemove[1].PersonClick(); });
    rig.Click("ID_SelDelete");
    rig.Main().cmdActDone.PersonClick();
    EXPECT_EQ(rig.Column("Name"), std::vector<std::string>{"b.txt"});
    EXPECT_TRUE(rig.Disk.Has("/d/a.txt"));
    EXPECT_TRUE(rig.Disk.Has("/d/c.txt"));
}

TEST_F(DeleteDialog, Cancel_and_escape_and_the_frame_change_nothing)
{
    using Step = void (*)(FrmDelete & form);
    static constexpr Step steps[] = {
        [](FrmDelete& form) { form.cmdCancel.PersonClick(); },
        [](FrmDelete& form) {
            form.PersonKey(&form.cmdRemove[1], {keyEscape, shiftNone, 27});
        },
        [](FrmDelete& form) { form.PersonClose(); },
    };
    for (const Step step : steps) {
        rig.Desktop.OnModal([step](Form& form) { step(static_cast<FrmDelete&>(form)); });
        rig.Click("ID_SelDelete");
        EXPECT_EQ(rig.P().state.DeleteChoice, 0);
        EXPECT_EQ(rig.Main().lsvRename.Count(), 3);
    }
}

TEST_F(DeleteDialog, The_dialog_itself_touches_no_file)
{
    for (const int answer : {2, 3}) {
        ProgramRig one;
        one.Start();
        FrmDelete& form = one.P().Delete();
        form.EnsureLoaded();
        form.cmdRemove[answer].Click();
        EXPECT_EQ(one.P().state.DeleteChoice, answer);
        EXPECT_EQ(one.Disk.Calls("SHFileOperationA"), 0) << answer;
    }
}

} // namespace
} // namespace tavo
