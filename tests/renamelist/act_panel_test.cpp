#include "renamelist/act_panel.h"

#include "support/list_ground.h"

#include <gtest/gtest.h>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

// Captions and values of the pairs that are shown, "caption|value".
Texts Pairs_Shown(const FrmMain& form)
{
    Texts pairs;
    for (int k = 1; k <= 3; ++k) {
        EXPECT_EQ(form.lblAction[k].Visible.Get(), form.lblActionInfo[k].Visible.Get()) << k;
        if (form.lblAction[k].Visible)
            pairs.push_back(form.lblAction[k].Caption.Get() + "|"
                            + form.lblActionInfo[k].Caption.Get());
    }
    return pairs;
}

struct SetupCase {
    const char *What, *Label1, *Label2, *Label3;
    Texts Shown;
};

} // namespace

TEST(ActPanel, Pairs_are_shown_up_to_the_last_caption)
{
    const SetupCase cases[] = {
        {"three", "A:", "B:", "C:", {"A:|", "B:|", "C:|"}},
        {"two", "A:", "B:", "", {"A:|", "B:|"}},
        {"one", "A:", "", "", {"A:|"}},
        {"a gap", "A:", "", "C:", {"A:|", "|", "C:|"}},
        {"the last alone", "", "", "C:", {"|", "|", "C:|"}},
        {"none", "", "", "", {}},
    };
    for (const SetupCase& test : cases) {
        SCOPED_TRACE(test.What);
        MemoryListGround ground(MemoryDisk::Flavour::Posix);
        Act_Panel_Setup(ground.P, false, "Old:", "Old:", "Old:");
        Act_Panel_Update(ground.P, 7, 8, 9);
        ground.Main.lblAction[1].ToolTipText = "An old tip";
        Act_Panel_Setup(ground.P, false, test.Label1, test.Label2, test.Label3);
        EXPECT_EQ(Pairs_Shown(ground.Main), test.Shown);
        EXPECT_EQ(ground.Main.lblAction[1].ToolTipText.Get(),
                  test.Shown.empty() ? "An old tip" : "");
    }
}

TEST(ActPanel, Hiding_writes_nothing)
{
    MemoryListGround ground(MemoryDisk::Flavour::Posix);
    Act_Panel_Setup(ground.P, false, "A:", "B:", "C:");
    Act_Panel_Update(ground.P, 1, 2, 3);
    Act_Panel_Setup(ground.P, true, "X:", "", "");
    EXPECT_EQ(Pairs_Shown(ground.Main), Texts{});
    EXPECT_EQ(ground.Main.lblAction[1].Caption.Get(), "A:");
    EXPECT_EQ(ground.Main.lblActionInfo[3].Caption.Get(), "3");
}

TEST(ActPanel, A_count_of_0_leaves_its_label_and_others_are_painted_at_once)
{
    MemoryListGround ground(MemoryDisk::Flavour::Posix);
    Act_Panel_Setup(ground.P, false, "A:", "B:", "C:");
    int painted[4] = {};
    std::vector<Connection> ears;
    for (int k = 1; k <= 3; ++k)
        ears.push_back(ground.Main.lblActionInfo[k].Changed.Listen(
            [&painted, k](Prop what) { painted[k] += what == Prop::Caption; }));

    Act_Panel_Update(ground.P, 0, 12, 0);
    EXPECT_EQ(Pairs_Shown(ground.Main), (Texts{"A:|", "B:|12", "C:|"}));
    EXPECT_EQ(painted[1], 0);
    EXPECT_GE(painted[2], 1);
    EXPECT_EQ(painted[3], 0);

    Act_Panel_Update(ground.P, 2147483647, 0, 1);
    EXPECT_EQ(Pairs_Shown(ground.Main), (Texts{"A:|2147483647", "B:|12", "C:|1"}));
    Act_Panel_Update(ground.P, 0, -1, 0);
    EXPECT_EQ(Pairs_Shown(ground.Main), (Texts{"A:|2147483647", "B:|12", "C:|1"}));
}

TEST(ActPanel, A_count_that_stands_already_paints_nothing)
{
    MemoryListGround ground(MemoryDisk::Flavour::Posix);
    Act_Panel_Setup(ground.P, false, "A:", "B:", "C:");
    Act_Panel_Update(ground.P, 5, 0, 0);
    int painted = 0;
    const Connection ear =
        ground.Main.lblActionInfo[1].Changed.Listen([&painted](Prop) { ++painted; });
    Act_Panel_Update(ground.P, 5, 0, 0);
    EXPECT_EQ(painted, 0);
}

struct ProgressCase {
    int Step, Count, Percent;
};

TEST(ActPanel, Progress_is_the_whole_percentage_in_bar_and_caption)
{
    const ProgressCase cases[] = {
        {1, 1, 100},
        {1, 2, 50},
        {1, 3, 33},
        {2, 3, 66},
        {999, 1000, 99},
        {1, 1000, 0},
        {100000000, 100000000, 100},
    };
    MemoryListGround ground(MemoryDisk::Flavour::Posix);
    for (const ProgressCase& test : cases) {
        Act_Progress(ground.P, test.Step, test.Count);
        EXPECT_EQ(ground.Main.prbAction.Value.Get(), test.Percent) << test.Step;
        EXPECT_EQ(ground.Main.Caption(), "Tavo " + std::to_string(test.Percent) + "%");
    }
}

TEST(ActPanel, Progress_of_nothing_changes_nothing)
{
    MemoryListGround ground(MemoryDisk::Flavour::Posix);
    const std::string before = ground.Main.Caption();
    Act_Progress(ground.P, 1, 0);
    EXPECT_EQ(ground.Main.Caption(), before);
}

TEST(ActPanel, The_caption_is_told_only_when_the_percentage_is_another)
{
    MemoryListGround ground(MemoryDisk::Flavour::Posix);
    int told = 0;
    const Connection ear = ground.Main.Changed.Listen([&told](Prop) { ++told; });
    for (int step = 1; step <= 1000; ++step)
        Act_Progress(ground.P, step, 1000);
    EXPECT_EQ(told, 101);
}

TEST(ActPanel, The_stage_is_the_text_of_the_first_label)
{
    MemoryListGround ground(MemoryDisk::Flavour::Posix);
    Act_Stage(ground.P, "Numbering Files...");
    EXPECT_EQ(ground.Main.lblActionInfo[0].Caption.Get(), "Numbering Files...");
}

} // namespace tavo
