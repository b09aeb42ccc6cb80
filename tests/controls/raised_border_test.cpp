#include "controls/raised_border.h"

#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

constexpr auto highlight = static_cast<std::int32_t>(0x80000014);
constexpr auto shadow = static_cast<std::int32_t>(0x80000010);

TEST(RaisedBorder, Its_edge_is_light_above_and_left_and_in_shadow_below_and_right)
{
    struct Row {
        int Width, Height;
        std::array<EdgeLine, 4> Lines;
    };
    const Row rows[] = {
        {400,
         90,
         {{{0, 0, 400, 0, highlight},
           {0, 0, 0, 90, highlight},
           {0, 89, 400, 89, shadow},
           {399, 0, 399, 90, shadow}}}},
        {1,
         1,
         {{{0, 0, 1, 0, highlight},
           {0, 0, 0, 1, highlight},
           {0, 0, 1, 0, shadow},
           {0, 0, 0, 1, shadow}}}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(RaisedBorder_Lines(row.Width, row.Height), row.Lines) << row.Width;
}

TEST(RaisedBorder, What_lies_in_it_can_be_used_while_it_can)
{
    Form form("frmTest");
    RaisedBorder panel(form, "ctlRbTest");
    CommandButton button(form, "cmdTest");
    button.Container = &panel;
    EXPECT_TRUE(panel.Enabled);
    EXPECT_TRUE(button.IsUsable());
    panel.Enabled = false;
    EXPECT_FALSE(button.IsUsable());
    EXPECT_EQ(panel.PropertyText("Enabled"), "False");
}

TEST(RaisedBorder, The_panels_of_the_rename_modes_are_such)
{
    ProgramRig rig;
    rig.Start();
    for (const std::unique_ptr<RaisedBorder>& panel : rig.Main().ctlRbRenMode)
        EXPECT_TRUE(panel->Enabled) << panel->Index();
    EXPECT_EQ(rig.Main().ctlRbRenMode.High(), 7);
}

} // namespace
} // namespace tavo
