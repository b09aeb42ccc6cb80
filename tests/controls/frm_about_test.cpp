#include "controls/frm_about.h"

#include "core/commands.h"
#include "support/program_rig.h"
#include "thumbnails/frm_thumb_editor.h"
#include "viewer/frm_viewer.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

class About : public testing::Test {
protected:
    About() { rig.Start(); }

    FrmAbout& f() { return rig.P().About(); }

    ProgramRig rig{MemoryDisk::Flavour::Posix};
};

TEST_F(About, It_tells_version_copyright_and_web_site)
{
    f().EnsureLoaded();
    EXPECT_EQ(f().Caption(), "About Tavo");
    EXPECT_EQ(f().lblVersion.Caption.Get(), "Tavo v1.0.0");
    EXPECT_EQ(f().lblCopyright.Caption.Get(), "Copyright © 2026 the developers of Tavo");
    EXPECT_EQ(f().lblWebSite.Caption.Get(), "Web:");
    EXPECT_EQ(f().cmdClose.Caption.Get(), "&Close");
    EXPECT_EQ(f().ctlWebSite.PropertyText("LinkText"), "www.tavo.example");
    EXPECT_EQ(f().ctlWebSite.PropertyText("LinkAddress"), "https://www.tavo.example/");
}

TEST_F(About, Its_text_can_be_read_and_not_changed)
{
    f().EnsureLoaded();
    EXPECT_TRUE(f().txtInfo.Locked);
    EXPECT_TRUE(f().txtInfo.MultiLine);
    const std::string text = f().txtInfo.Text;
    EXPECT_TRUE(text.starts_with("Tavo renames and changes many files at once."));
    f().txtInfo.PersonText("mine");
    f().PersonKey(&f().txtInfo, Key_FromChar('x'));
    EXPECT_EQ(f().txtInfo.Text.Get(), text);
}

TEST_F(About, The_text_fills_what_the_logo_and_the_lines_leave)
{
    f().EnsureLoaded();
    const PictureBox& info = f().picInfo;
    EXPECT_GT(info.Left, f().imgLogo.Left + f().imgLogo.Width);
    EXPECT_LT(info.Left + info.Width, f().Width());
    EXPECT_LT(info.Top + info.Height, f().cmdClose.Top);
    EXPECT_EQ(f().txtInfo.Container, &info);
    EXPECT_EQ(f().txtInfo.Width, info.ScaleWidth());
    EXPECT_EQ(f().txtInfo.Top + f().txtInfo.Height, info.ScaleHeight());
    EXPECT_GT(f().txtInfo.Top, f().ctlWebSite.Top + f().ctlWebSite.Height);
}

TEST_F(About, The_link_opens_the_web_site)
{
    f().EnsureLoaded();
    f().ctlWebSite.PersonClick();
    ASSERT_EQ(rig.Desktop.Executions.size(), 1u);
    EXPECT_EQ(rig.Desktop.Executions[0].Address, "https://www.tavo.example/");
    EXPECT_TRUE(f().Loaded());
}

TEST_F(About, It_closes_by_its_button_by_return_and_by_escape)
{
    const std::function<void()> ends[] = {
        [this] { f().cmdClose.PersonClick(); },
        [this] { f().PersonKey(nullptr, Key_FromChar(keyReturn)); },
        [this] { f().PersonKey(nullptr, Key_FromChar(keyEscape)); }, [this] { f().PersonClose(); }};
    for (const auto& end : ends) {
        f().EnsureLoaded();
        end();
        EXPECT_FALSE(f().Loaded());
    }
}

// Opens it over `owner`, which is not in the middle of the screen.
void Expect_Over(ProgramRig& rig, Form& owner, ToolBars& bars)
{
    owner.Move(1500, 900, 9000, 6000);
    rig.Desktop.OnModal([&](Form& form) {
        EXPECT_EQ(form.Name(), "frmAbout");
        EXPECT_EQ(form.Left(), 1500 + (9000 - form.Width()) / 2) << owner.Name();
        EXPECT_EQ(form.Top(), 900 + (6000 - form.Height()) / 2) << owner.Name();
        rig.P().About().cmdClose.PersonClick();
    });
    bars.PersonClick(*bars.Find("ID_About"));
    EXPECT_EQ(rig.Desktop.ModalsLeft(), 0) << owner.Name();
}

TEST_F(About, It_comes_up_in_the_middle_of_each_window_that_has_its_tool)
{
    Expect_Over(rig, rig.Main(), rig.Main().atbMain);
    FrmViewer& viewer = rig.P().Viewer();
    viewer.EnsureLoaded();
    Expect_Over(rig, viewer, viewer.atbView);
    FrmThumbEditor& editor = rig.P().ThumbEditor();
    editor.EnsureLoaded();
    Expect_Over(rig, editor, editor.atbThumbs);
}

} // namespace
} // namespace tavo
