#include "toolkit/tab_strip.h"

#include "toolkit/form.h"

#include "event_log.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

// Two pages with a box and a button each, and a button beside the pages.
class TabStrips : public testing::Test {
protected:
    TabStrips()
    {
        strip.AddPage("A", "&First", first);
        strip.AddPage("B", "&Second", second);
        inner.Container = &first;
        boxA.Container = &inner;
        addA.Container = &first;
        boxB.Container = addB.Container = &second;
        addA.Caption = addB.Caption = "&Add";
        log.On(strip.TabClick, "tab");
        log.On(strip.Leaving, "leaving");
        log.On(addA.Click, "A");
        log.On(addB.Click, "B");
        log.WatchNotice(strip, Prop::ListIndex, "page");
    }
    void Press(Control& target, const char* name)
    {
        Key key;
        ASSERT_TRUE(Key_FromName(name, key)) << name;
        form.PersonKey(&target, key);
    }

    Form form{"frm"};
    TabStrip strip{form, "tab"};
    Frame first{form, "fraA"}, second{form, "fraB"}, inner{form, "fraInner"};
    TextBox boxA{form, "txtA"};
    CommandButton addA{form, "cmdA"};
    TextBox boxB{form, "txtB"};
    CommandButton addB{form, "cmdB"};
    CommandButton ok{form, "cmdOk"};
    EventLog log;
};

TEST_F(TabStrips, The_first_page_is_in_front)
{
    EXPECT_EQ(strip.Selected(), 0);
    EXPECT_EQ(strip.SelectedKey(), "A");
    TabStrip none(form, "none");
    EXPECT_EQ(none.Selected(), -1);
    EXPECT_EQ(none.SelectedKey(), "");
}

TEST_F(TabStrips, From_code_a_page_is_only_shown)
{
    EXPECT_TRUE(strip.Show(1));
    EXPECT_EQ(log.Take(), "page");
    EXPECT_TRUE(strip.Show(1));
    EXPECT_FALSE(strip.Show(2));
    EXPECT_FALSE(strip.Show(-1));
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(strip.SelectedKey(), "B");
}

TEST_F(TabStrips, A_person_leaves_one_page_and_comes_to_the_other)
{
    EXPECT_TRUE(strip.PersonTab(1));
    EXPECT_EQ(log.Take(), "leaving page tab");
    EXPECT_TRUE(strip.PersonTab(1));
    EXPECT_FALSE(strip.PersonTab(2));
    EXPECT_FALSE(strip.PersonTab(-1));
    EXPECT_EQ(log.Take(), "");
}

TEST_F(TabStrips, The_box_in_hand_is_left_before_its_page)
{
    log.WatchFocus(boxA);
    boxA.SetFocus();
    log.Take();
    strip.PersonTab(1);
    EXPECT_EQ(log.Take(), "-txtA leaving page tab");
    EXPECT_TRUE(strip.HasFocus());
}

TEST_F(TabStrips, Out_of_reach_it_cannot_be_worked)
{
    strip.Enabled = false;
    EXPECT_FALSE(strip.PersonTab(1));
    strip.Enabled = true;
    strip.Visible = false;
    EXPECT_FALSE(strip.PersonTab(1));
    EXPECT_EQ(strip.Selected(), 0);
}

TEST_F(TabStrips, A_control_lies_on_the_page_that_holds_it_however_deep)
{
    EXPECT_EQ(strip.PageOf(boxA), 0);
    EXPECT_EQ(strip.PageOf(second), 1);
    EXPECT_EQ(strip.PageOf(addB), 1);
    EXPECT_EQ(strip.PageOf(ok), -1);
    EXPECT_EQ(strip.PageOf(strip), -1);
    EXPECT_EQ(strip.PageByKey("B"), 1);
    EXPECT_EQ(strip.PageByKey("b"), -1);
}

TEST_F(TabStrips, What_lies_on_a_page_behind_counts_as_visible)
{
    EXPECT_TRUE(boxB.IsShown());
    boxB.SetFocus();
    EXPECT_TRUE(boxB.HasFocus());
}

TEST_F(TabStrips, Arrows_and_ends_walk_the_pages)
{
    struct Row {
        const char* Key;
        int Page;
        const char* Log;
    };
    const Row rows[] = {
        {"Right", 1, "leaving page tab"},
        {"Right", 1, ""},
        {"Left", 0, "leaving page tab"},
        {"Left", 0, ""},
        {"End", 1, "leaving page tab"},
        {"Home", 0, "leaving page tab"},
        {"Ctrl+Right", 0, ""},
        {"Down", 0, ""},
    };
    strip.SetFocus();
    for (const Row& row : rows) {
        Press(strip, row.Key);
        EXPECT_EQ(strip.Selected(), row.Page) << row.Key;
        EXPECT_EQ(log.Take(), row.Log) << row.Key;
    }
}

TEST_F(TabStrips, Tab_walks_the_page_in_front_alone)
{
    strip.SetFocus();
    for (const Control* next : {static_cast<Control*>(&boxA), static_cast<Control*>(&addA),
                                static_cast<Control*>(&ok), static_cast<Control*>(&strip)}) {
        Press(*form.ActiveControl(), "Tab");
        EXPECT_EQ(form.ActiveControl(), next) << next->Name();
    }
    Press(strip, "Shift+Tab");
    Press(ok, "Shift+Tab");
    EXPECT_TRUE(addA.HasFocus());
    strip.Show(1);
    ok.SetFocus();
    Press(ok, "Shift+Tab");
    EXPECT_TRUE(addB.HasFocus());
}

TEST_F(TabStrips, Alt_and_a_letter_press_what_is_in_front)
{
    Press(ok, "Alt+A");
    EXPECT_EQ(log.Take(), "A");
    strip.Show(1);
    log.Take();
    Press(ok, "Alt+A");
    EXPECT_EQ(log.Take(), "B");
}

TEST_F(TabStrips, Alt_and_the_letter_of_a_page_bring_it_to_the_front)
{
    Press(ok, "Alt+S");
    EXPECT_EQ(log.Take(), "leaving page tab");
    EXPECT_EQ(strip.SelectedKey(), "B");
    Press(ok, "Alt+X");
    EXPECT_EQ(log.Take(), "");
}

TEST_F(TabStrips, Properties_print)
{
    EXPECT_EQ(strip.PropertyText("Selected"), "A");
    EXPECT_EQ(strip.PropertyText("Count"), "2");
    EXPECT_EQ(strip.PropertyText("Visible"), "True");
    EXPECT_EQ(strip.PropertyText("Value"), std::nullopt);
}

} // namespace
} // namespace tavo
