#include "toolkit/scroll_bar.h"

#include "toolkit/form.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

class ScrollBars : public testing::Test {
protected:
    ScrollBars()
    {
        bar.Min = 1;
        bar.Max = 10;
        bar.Value = 4;
        bar.Change = [this] { log += "change " + std::to_string(bar.Value) + ";"; };
        bar.Scroll = [this] { log += "scroll " + std::to_string(bar.Value) + ";"; };
    }
    std::string Take() { return std::exchange(log, {}); }

    Form form{"form"};
    ScrollBar bar{form, "bar"};
    std::string log;
};

TEST_F(ScrollBars, A_value_from_code_raises_Change_once)
{
    bar.Value = 7;
    bar.Value = 7;
    EXPECT_EQ(Take(), "change 7;");
}

TEST_F(ScrollBars, A_value_outside_is_refused)
{
    bar.Value = 11;
    EXPECT_EQ(bar.Value.Get(), 4);
    bar.Value = 0;
    EXPECT_EQ(bar.Value.Get(), 4);
    EXPECT_EQ(Take(), "");
}

TEST_F(ScrollBars, New_ends_pull_the_value_in)
{
    bar.Max = 3;
    EXPECT_EQ(bar.Value.Get(), 3);
    EXPECT_EQ(Take(), "change 3;");
    bar.Max = 20;
    EXPECT_EQ(Take(), "");
}

TEST_F(ScrollBars, A_drag_scrolls_and_changes_when_it_ends)
{
    bar.PersonDrag(6);
    bar.PersonDrag(8);
    EXPECT_EQ(Take(), "scroll 6;scroll 8;");
    bar.PersonScroll(9);
    EXPECT_EQ(Take(), "scroll 9;change 9;");
    bar.PersonDrag(2);
    bar.PersonScroll(9);
    EXPECT_EQ(Take(), "scroll 2;scroll 9;") << "let go where it was";
    bar.PersonScroll(99);
    EXPECT_EQ(bar.Value.Get(), 10);
}

TEST_F(ScrollBars, Code_that_sets_the_place_of_a_drag_raises_Change)
{
    bar.PersonDrag(6);
    Take();
    bar.Value = 7;
    EXPECT_EQ(Take(), "change 7;");
}

TEST_F(ScrollBars, Keys_go_by_steps)
{
    bar.LargeChange = 3;
    struct Row {
        int Key, Value;
    };
    for (const Row& row :
         {Row{keyRight, 5}, Row{keyDown, 6}, Row{keyPageDown, 9}, Row{keyEnd, 10}, Row{keyDown, 10},
          Row{keyUp, 9}, Row{keyPageUp, 6}, Row{keyHome, 1}, Row{keyLeft, 1}}) {
        bar.PersonKey({row.Key, shiftNone, 0});
        EXPECT_EQ(bar.Value.Get(), row.Value) << row.Key;
    }
}

TEST_F(ScrollBars, A_disabled_bar_stands_still)
{
    bar.Enabled = false;
    bar.PersonScroll(8);
    bar.PersonKey({keyEnd, shiftNone, 0});
    EXPECT_EQ(bar.Value.Get(), 4);
    EXPECT_EQ(Take(), "");
}

TEST_F(ScrollBars, Its_properties_print)
{
    EXPECT_EQ(bar.PropertyText("Value"), "4");
    EXPECT_EQ(bar.PropertyText("Max"), "10");
    EXPECT_EQ(bar.PropertyText("LargeChange"), "1");
}

} // namespace
} // namespace tavo
