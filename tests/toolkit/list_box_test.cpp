#include "toolkit/list_box.h"

#include "toolkit/form.h"

#include "event_log.h"

#include <gtest/gtest.h>

#include <functional>

namespace tavo {
namespace {

class ListBoxes : public testing::Test {
protected:
    ListBoxes()
    {
        for (const char* text : {"alpha", "beta", "gamma"})
            list.AddItem(text);
        log.On(list.Click, "click");
        log.WatchNotice(list, Prop::Items, "items");
        log.WatchNotice(list, Prop::ListIndex, "index");
    }
    Form form{"frm"};
    ListBox list{form, "lst"};
    TextBox other{form, "txt"};
    EventLog log;
};

void Press(ListBox& list, const char* name)
{
    Key key;
    ASSERT_TRUE(Key_FromName(name, key)) << name;
    list.Owner().PersonKey(&list, key);
}

struct Case {
    const char* What;
    std::function<void(ListBox&)> Do;
    const char* Log;
    int ListIndex;
    const char* Text;
};

// Each row goes on from the one before.
const Case cases[] = {
    {"a row from code", [](ListBox& l) { l.SetListIndex(1); }, "index click", 1, "beta"},
    {"the same row from code", [](ListBox& l) { l.SetListIndex(1); }, "", 1, "beta"},
    {"no such row", [](ListBox& l) { EXPECT_FALSE(l.SetListIndex(3)); }, "", 1, "beta"},
    {"below -1", [](ListBox& l) { EXPECT_FALSE(l.SetListIndex(-2)); }, "", 1, "beta"},
    {"a row by a person", [](ListBox& l) { l.PersonChoose(2); }, "index click", 2, "gamma"},
    {"the same by a person", [](ListBox& l) { l.PersonChoose(2); }, "click", 2, "gamma"},
    {"no such row by a person", [](ListBox& l) { EXPECT_FALSE(l.PersonChoose(3)); }, "", 2,
     "gamma"},
    {"a row above goes", [](ListBox& l) { l.RemoveItem(0); }, "items", 1, "gamma"},
    {"a row more", [](ListBox& l) { l.AddItem("delta"); }, "items", 1, "gamma"},
    {"the chosen row goes", [](ListBox& l) { l.RemoveItem(1); }, "items", -1, ""},
    {"none goes", [](ListBox& l) { EXPECT_FALSE(l.RemoveItem(-1)); }, "", -1, ""},
    {"beyond the end", [](ListBox& l) { EXPECT_FALSE(l.RemoveItem(2)); }, "", -1, ""},
    {"Down begins at the top", [](ListBox& l) { Press(l, "Down"); }, "index click", 0, "beta"},
    {"Down", [](ListBox& l) { Press(l, "Down"); }, "index click", 1, "delta"},
    {"Down at the end", [](ListBox& l) { Press(l, "Down"); }, "click", 1, "delta"},
    {"Home", [](ListBox& l) { Press(l, "Home"); }, "index click", 0, "beta"},
    {"Up at the top", [](ListBox& l) { Press(l, "Up"); }, "click", 0, "beta"},
    {"End", [](ListBox& l) { Press(l, "End"); }, "index click", 1, "delta"},
    {"with Shift", [](ListBox& l) { Press(l, "Shift+Up"); }, "", 1, "delta"},
    {"the choice taken away", [](ListBox& l) { l.SetListIndex(-1); }, "index", -1, ""},
    {"chosen before all go", [](ListBox& l) { l.SetListIndex(0); }, "index click", 0, "beta"},
    {"all go", [](ListBox& l) { l.Clear(); }, "items", -1, ""},
    {"Down in nothing", [](ListBox& l) { Press(l, "Down"); }, "", -1, ""},
};

TEST_F(ListBoxes, Choosing_tells_once)
{
    for (const Case& row : cases) {
        row.Do(list);
        EXPECT_EQ(log.Take(), row.Log) << row.What;
        EXPECT_EQ(list.ListIndex(), row.ListIndex) << row.What;
        EXPECT_EQ(list.Text(), row.Text) << row.What;
    }
}

TEST_F(ListBoxes, A_persons_choice_takes_the_focus)
{
    other.SetFocus();
    EXPECT_TRUE(list.PersonChoose(0));
    EXPECT_TRUE(list.HasFocus());
}

TEST_F(ListBoxes, Out_of_reach_it_cannot_be_worked)
{
    list.Enabled = false;
    EXPECT_FALSE(list.PersonChoose(0));
    list.Enabled = true;
    list.Visible = false;
    EXPECT_FALSE(list.PersonChoose(0));
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxes, Properties_print)
{
    list.SetListIndex(2);
    EXPECT_EQ(list.PropertyText("Text"), "gamma");
    EXPECT_EQ(list.PropertyText("ListIndex"), "2");
    EXPECT_EQ(list.PropertyText("ListCount"), "3");
    EXPECT_EQ(list.PropertyText("Enabled"), "True");
    EXPECT_EQ(list.PropertyText("Value"), std::nullopt);
}

} // namespace
} // namespace tavo
