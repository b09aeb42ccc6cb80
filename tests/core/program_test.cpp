#include "core/program.h"

#include "core/windows.h"
#include "fileactions/frm_delete.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

class ProgramCase : public testing::Test {
protected:
    ProgramRig rig{MemoryDisk::Flavour::Posix};
    Program& p = rig.Start();
};

TEST_F(ProgramCase, A_box_bears_the_programs_name)
{
    p.Say("Well?", BoxIcon::Question, BoxButtons::OkCancel, BoxAnswer::Cancel);
    ASSERT_EQ(rig.Desktop.Boxes.size(), 1u);
    const MessageBox& box = rig.Desktop.Boxes[0].Box;
    EXPECT_EQ(box.Caption, "Tavo Says...");
    EXPECT_EQ(box.Text, "Well?");
    EXPECT_EQ(box.Default, BoxAnswer::Cancel);
}

TEST_F(ProgramCase, Where_no_default_is_told_it_is_the_first_button)
{
    struct Row {
        BoxButtons Buttons;
        BoxAnswer Default;
    };
    for (const Row& row :
         {Row{BoxButtons::Ok, BoxAnswer::Ok}, Row{BoxButtons::OkCancel, BoxAnswer::Ok},
          Row{BoxButtons::YesNo, BoxAnswer::Yes}}) {
        EXPECT_EQ(p.Say("?", BoxIcon::None, row.Buttons), row.Default);
        EXPECT_EQ(rig.Desktop.Boxes.back().Box.Default, row.Default);
    }
}

TEST_F(ProgramCase, One_long_operation_refuses_another)
{
    EXPECT_FALSE(p.Busy());
    {
        const LongOperation first(p);
        EXPECT_TRUE(first);
        EXPECT_TRUE(p.Busy());
        {
            const LongOperation second(p);
            EXPECT_FALSE(second);
        }
        EXPECT_TRUE(p.Busy());
    }
    EXPECT_FALSE(p.Busy());
}

TEST_F(ProgramCase, A_pending_close_waits_for_the_end_of_the_operation)
{
    {
        const LongOperation operation(p);
        p.main.PersonClose();
        p.Settle();
        EXPECT_TRUE(p.main.Loaded());
        EXPECT_TRUE(p.state.ActCancel);
    }
    EXPECT_TRUE(p.main.Loaded());
    p.Settle();
    EXPECT_FALSE(p.main.Loaded());
    EXPECT_FALSE(p.ClosePending);
}

TEST_F(ProgramCase, The_pointer_shows_that_the_program_is_busy)
{
    {
        const BusyPointer busy(p);
        EXPECT_EQ(rig.Desktop.PointerNow(), Pointer::Busy);
    }
    EXPECT_EQ(rig.Desktop.PointerNow(), Pointer::Default);
}

TEST_F(ProgramCase, Forms_are_made_when_first_asked_for)
{
    EXPECT_EQ(p.FindForm("frmDelete"), nullptr);
    EXPECT_EQ(p.FindForm("frmMain"), &p.main);
    FrmDelete& form = p.Delete();
    EXPECT_EQ(&form, &p.Delete());
    EXPECT_EQ(p.FindForm("frmDelete"), &form);
    EXPECT_EQ(p.LoadedForms(), std::vector<Form*>{&p.main});
    form.EnsureLoaded();
    EXPECT_EQ(p.LoadedForms(), (std::vector<Form*>{&p.main, &form}));
}

TEST_F(ProgramCase, Two_programs_in_two_dialects_know_nothing_of_each_other)
{
    ProgramRig other(MemoryDisk::Flavour::Windows);
    Program& q = other.Start("", "[Defaults]\nnnStart=7\n");
    EXPECT_EQ(q.state.AppFolder, "C:\\app\\");
    EXPECT_EQ(p.state.AppFolder, "/app/");
    EXPECT_EQ(q.main.txtNameNum[nnStartBox].Text.Get(), "7");
    EXPECT_EQ(p.main.txtNameNum[nnStartBox].Text.Get(), "1");
    EXPECT_EQ(q.main.lsvRename.Order, Collation::WordSort);
    EXPECT_EQ(p.main.lsvRename.Order, Collation::CodePoint);
}

TEST_F(ProgramCase, A_form_is_centred_on_the_screen_or_on_its_owner)
{
    Form form("frmTry");
    form.Move(0, 0, 800, 200);
    Win_CenterScreen(p, form);
    EXPECT_EQ(form.Left(), (1920 * 15 - 800) / 2.0);
    EXPECT_EQ(form.Top(), (1080 * 15 - 200) / 2.0);

    Form owner("frmOwner");
    owner.Move(1000, 500, 3000, 2000);
    Win_CenterOwner(owner, form);
    EXPECT_EQ(form.Left(), 1000 + (3000 - 800) / 2.0);
    EXPECT_EQ(form.Top(), 500 + (2000 - 200) / 2.0);
    EXPECT_EQ(form.Width(), 800);
    EXPECT_EQ(form.Height(), 200);
}

TEST_F(ProgramCase, A_locked_window_is_thawed_and_painted)
{
    int painted = 0;
    const Connection listener = p.main.Changed.Listen([&](Prop) { ++painted; });
    Win_Lock(p, true, p.main);
    EXPECT_TRUE(p.main.Frozen());
    Win_Lock(p, false, p.main);
    EXPECT_FALSE(p.main.Frozen());
    EXPECT_GT(painted, 0);
}

} // namespace
} // namespace tavo
