#include "controls/hyper_link.h"

#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

class Link : public testing::Test {
protected:
    void Release(int button) { link.lblHyperLink.MouseUp({button, shiftNone, 30, 30}); }

    ProgramRig rig{MemoryDisk::Flavour::Posix};
    Program& program{rig.Start()};
    Form form{"frmTest"};
    HyperLink link{program, form, "ctlTest"};
};

TEST_F(Link, From_the_start_it_leads_to_the_web_site)
{
    EXPECT_EQ(link.LinkText.Get(), "www.tavo.example");
    EXPECT_EQ(link.LinkAddress.Get(), "https://www.tavo.example/");
    EXPECT_TRUE(link.LinkTipEcho);
    EXPECT_EQ(link.lblHyperLink.Caption.Get(), "www.tavo.example");
    EXPECT_EQ(link.lblHyperLink.ToolTipText.Get(), "https://www.tavo.example/");
    EXPECT_EQ(link.lblHyperLink.Container, &link);
}

TEST_F(Link, The_label_follows_the_properties)
{
    link.LinkText = "Here";
    EXPECT_EQ(link.lblHyperLink.Caption.Get(), "Here");
    link.LinkAddress = "https://here.example/";
    EXPECT_EQ(link.lblHyperLink.ToolTipText.Get(), "https://here.example/");
    link.LinkTipEcho = false;
    EXPECT_EQ(link.lblHyperLink.ToolTipText.Get(), "");
    link.LinkAddress = "https://there.example/";
    EXPECT_EQ(link.lblHyperLink.ToolTipText.Get(), "");
    link.LinkTipEcho = true;
    EXPECT_EQ(link.lblHyperLink.ToolTipText.Get(), "https://there.example/");
    link.Move(100, 200, 1500, 300);
    EXPECT_EQ(link.lblHyperLink.Width, 1500);
    EXPECT_EQ(link.lblHyperLink.Height, 300);
}

TEST_F(Link, Its_properties_are_read_by_their_names)
{
    EXPECT_EQ(link.PropertyText("LinkText"), "www.tavo.example");
    EXPECT_EQ(link.PropertyText("LinkAddress"), "https://www.tavo.example/");
    EXPECT_EQ(link.PropertyText("LinkTipEcho"), "True");
    EXPECT_EQ(link.PropertyText("Visible"), "True");
    EXPECT_EQ(link.PropertyText("Text"), std::nullopt);
}

TEST_F(Link, Each_change_is_announced_once)
{
    int told = 0;
    const Connection listening = link.Changed.Listen([&](Prop) { ++told; });
    link.LinkText = "a";
    EXPECT_EQ(told, 1);
    link.LinkAddress = "b";
    EXPECT_EQ(told, 2);
    link.LinkTipEcho = false;
    EXPECT_EQ(told, 3);
    link.LinkTipEcho = false;
    EXPECT_EQ(told, 3);
}

TEST_F(Link, The_left_button_opens_the_address_under_the_busy_pointer)
{
    link.LinkAddress = "https://here.example/";
    rig.Desktop.Pointers.clear();
    Release(1);
    ASSERT_EQ(rig.Desktop.Executions.size(), 1u);
    EXPECT_EQ(rig.Desktop.Executions[0].Verb, "open");
    EXPECT_EQ(rig.Desktop.Executions[0].Address, "https://here.example/");
    EXPECT_EQ(rig.Desktop.Pointers, (std::vector<Pointer>{Pointer::Busy, Pointer::Default}));
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
}

TEST_F(Link, Other_buttons_do_nothing)
{
    for (const int button : {0, 2, 3, 4})
        Release(button);
    EXPECT_TRUE(rig.Desktop.Executions.empty());
}

TEST_F(Link, A_click_on_either_opens_it_once)
{
    form.EnsureLoaded();
    link.lblHyperLink.PersonClick();
    EXPECT_EQ(rig.Desktop.Executions.size(), 1u);
    link.PersonClick();
    EXPECT_EQ(rig.Desktop.Executions.size(), 2u);
    link.Enabled = false;
    link.PersonClick();
    EXPECT_EQ(rig.Desktop.Executions.size(), 2u);
}

TEST_F(Link, A_failure_is_told_to_the_letter)
{
    rig.Desktop.ShellRefusal = "There is no browser.";
    Release(1);
    ASSERT_EQ(rig.Desktop.Boxes.size(), 1u);
    const MessageBox& box = rig.Desktop.Boxes[0].Box;
    EXPECT_EQ(box.Text, "Unable to open https://www.tavo.example/ due to: There is no browser.");
    EXPECT_EQ(box.Caption, "Error...");
    EXPECT_EQ(box.Icon, BoxIcon::Information);
    EXPECT_EQ(box.Buttons, BoxButtons::Ok);
    EXPECT_EQ(rig.Desktop.PointerNow(), Pointer::Default);
}

} // namespace
} // namespace tavo
