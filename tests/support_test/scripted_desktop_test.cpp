#include "support/scripted_desktop.h"

#include "toolkit/form.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

MessageBox Box(const std::string& text, BoxButtons buttons, BoxAnswer preset = BoxAnswer::Ok)
{
    return {text, "Tavo Says...", BoxIcon::Question, buttons, preset};
}

} // namespace

TEST(ScriptedDesktop, Boxes_get_their_answers_and_then_the_default_button)
{
    ScriptedDesktop desktop;
    desktop.Answer(BoxAnswer::Cancel);
    EXPECT_EQ(desktop.MsgBox(Box("1", BoxButtons::OkCancel)), BoxAnswer::Cancel);
    EXPECT_EQ(desktop.MsgBox(Box("2", BoxButtons::OkCancel)), BoxAnswer::Ok);
    EXPECT_EQ(desktop.MsgBox(Box("3", BoxButtons::OkCancel, BoxAnswer::Cancel)), BoxAnswer::Cancel);
    EXPECT_EQ(desktop.MsgBox(Box("4", BoxButtons::YesNo)), BoxAnswer::Yes);
    EXPECT_EQ(desktop.MsgBox(Box("5", BoxButtons::YesNo, BoxAnswer::No)), BoxAnswer::No);
    EXPECT_EQ(desktop.MsgBox(Box("6", BoxButtons::Ok)), BoxAnswer::Ok);
    EXPECT_EQ(desktop.BoxTexts(), (Texts{"1", "2", "3", "4", "5", "6"}));
    EXPECT_EQ(desktop.Boxes[0].Answer, BoxAnswer::Cancel);
    EXPECT_EQ(desktop.AnswersLeft(), 0);
}

TEST(ScriptedDesktop, An_answer_without_a_button_fails_the_test)
{
    ScriptedDesktop desktop;
    desktop.Answer(BoxAnswer::Yes);
    EXPECT_NONFATAL_FAILURE(desktop.MsgBox(Box("Go on?", BoxButtons::OkCancel)), "Go on?");
}

TEST(ScriptedDesktop, Steps_run_at_their_turns_and_nested_turns_count)
{
    ScriptedDesktop desktop;
    std::vector<int> order;
    desktop.At(2, [&] {
        order.push_back(2);
        desktop.DoEvents();
        order.push_back(-2);
    });
    desktop.At(3, [&] { order.push_back(3); });
    desktop.At(3, [&] { order.push_back(33); });
    desktop.At(4, [&] { order.push_back(4); });
    for (int i = 0; i < 3; ++i)
        desktop.DoEvents();
    EXPECT_EQ(order, (std::vector<int>{2, 3, 33, -2, 4}));
    EXPECT_EQ(desktop.Turns(), 4);
}

TEST(ScriptedDesktop, A_step_for_this_turn_may_be_added_in_it)
{
    ScriptedDesktop desktop;
    int runs = 0;
    desktop.At(1, [&] { desktop.At(1, [&] { ++runs; }); });
    desktop.DoEvents();
    EXPECT_EQ(runs, 1);
}

TEST(ScriptedDesktop, Each_turn_is_told_but_not_those_inside)
{
    ScriptedDesktop desktop;
    std::vector<int> turns;
    desktop.EachTurn = [&](int turn) {
        turns.push_back(turn);
        desktop.DoEvents();
    };
    desktop.DoEvents();
    desktop.DoEvents();
    EXPECT_EQ(turns, (std::vector<int>{1, 3}));
}

TEST(ScriptedDesktopDeathTest, A_wait_without_end_is_stopped)
{
    ScriptedDesktop desktop;
    desktop.MostTurns = 5;
    const auto wait = [&] {
        for (;;)
            desktop.DoEvents();
    };
    EXPECT_DEATH(wait(), "waited for 5 turns");
}

TEST(ScriptedDesktop, A_modal_form_lives_as_long_as_its_step)
{
    ScriptedDesktop desktop;
    Form form("frmDelete");
    bool wasVisible = false;
    desktop.OnModal([&](Form& shown) {
        wasVisible = shown.Visible() && shown.Loaded();
        shown.Unload();
    });
    desktop.ShowModal(form);
    EXPECT_TRUE(wasVisible);
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(desktop.ModalsLeft(), 0);
    ASSERT_EQ(desktop.Forms.size(), 1u);
    EXPECT_EQ(desktop.Forms[0].Name, "frmDelete");
    EXPECT_TRUE(desktop.Forms[0].Modal);
}

TEST(ScriptedDesktop, A_modal_form_inside_another_takes_the_next_step)
{
    ScriptedDesktop desktop;
    Form outer("frmOuter"), inner("frmInner");
    Texts order;
    desktop.OnModal([&](Form& shown) {
        order.push_back(shown.Name());
        desktop.ShowModal(inner);
        shown.Unload();
    });
    desktop.OnModal([&](Form& shown) {
        order.push_back(shown.Name());
        shown.Unload();
    });
    desktop.ShowModal(outer);
    EXPECT_EQ(order, (Texts{"frmOuter", "frmInner"}));
}

TEST(ScriptedDesktop, A_modal_form_that_stays_or_that_nobody_expects_fails_the_test)
{
    ScriptedDesktop desktop;
    Form form("frmStays");
    desktop.OnModal([](Form&) {});
    EXPECT_NONFATAL_FAILURE(desktop.ShowModal(form), "frmStays");
    EXPECT_FALSE(form.Loaded());
    EXPECT_NONFATAL_FAILURE(desktop.ShowModal(form), "Nobody expected");
    EXPECT_FALSE(form.Loaded());
}

TEST(ScriptedDesktop, A_picture_has_the_size_it_was_given)
{
    ScriptedDesktop desktop;
    desktop.Pictures["/a.jpg"] = {640, 480};
    EXPECT_EQ(desktop.LoadPicture("/b.jpg", {}), nullptr);
    const BitmapPtr picture = desktop.LoadPicture("/a.jpg", {64, 64});
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->Width(), 640);
    EXPECT_EQ(picture->Height(), 480);
    EXPECT_EQ(desktop.PictureWishes, (Texts{"/b.jpg", "/a.jpg"}));
}

TEST(ScriptedDesktop, Everything_else_is_written_down)
{
    ScriptedDesktop desktop;
    Form form("frmMain");
    desktop.Show(form);
    EXPECT_TRUE(form.Visible());
    EXPECT_FALSE(desktop.Forms[0].Modal);
    desktop.SetForegroundWindow(form);
    EXPECT_EQ(desktop.Foregrounds, (Texts{"frmMain"}));

    EXPECT_EQ(desktop.PointerNow(), Pointer::Default);
    desktop.SetPointer(Pointer::Busy);
    EXPECT_EQ(desktop.PointerNow(), Pointer::Busy);

    desktop.SetClipboardText("text");
    EXPECT_EQ(desktop.ClipboardText(), "text");

    std::string why;
    EXPECT_TRUE(desktop.ShellExecuteA("open", "/help", why));
    desktop.ShellRefusal = "No program opens this.";
    EXPECT_FALSE(desktop.ShellExecuteA("open", "/other", why));
    EXPECT_EQ(why, "No program opens this.");
    EXPECT_EQ(desktop.Executions[1].Address, "/other");

    desktop.StillAlive();
    EXPECT_EQ(desktop.StillAlives(), 1);
    desktop.Clock.Year = 2001;
    EXPECT_EQ(desktop.Now().Year, 2001);
    EXPECT_EQ(desktop.ScreenWidth(), 28800);
    EXPECT_EQ(desktop.ScreenHeight(), 16200);

    Control list(form, "lsvRename");
    bool during = false;
    desktop.OnDrag = [&] { during = desktop.Drags.size() == 1; };
    desktop.DragFiles(list, {"/a", "/b"});
    EXPECT_TRUE(during);
    EXPECT_EQ(desktop.Drags[0].Source, &list);
    EXPECT_EQ(desktop.Drags[0].Paths, (Texts{"/a", "/b"}));
}

} // namespace tavo
