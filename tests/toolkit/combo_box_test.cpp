#include "toolkit/combo_box.h"

#include "toolkit/form.h"

#include "event_log.h"

#include <gtest/gtest.h>

#include <functional>

namespace tavo {
namespace {

class ComboBoxes : public testing::Test {
protected:
    ComboBoxes()
    {
        for (ComboBox* box : {&edit, &list}) {
            for (const char* text : {"Alpha", "Beta", "Gamma", "beta two"})
                box->AddItem(text);
            log.On(box->Click, "click");
            log.On(box->Change, "change");
            log.WatchNotice(*box, Prop::ListIndex, "index");
        }
    }
    void Press(ComboBox& box, const char* name)
    {
        Key key;
        ASSERT_TRUE(Key_FromName(name, key)) << name;
        form.PersonKey(&box, key);
    }
    Form form{"frm"};
    ComboBox edit{form, "cboEdit"};
    ComboBox list{form, "cboList", -1, ComboKind::List};
    EventLog log;
};

struct Case {
    const char* What;
    std::function<void(ComboBox&)> Do;
    const char* Log;
    int ListIndex;
    const char* Text;
};

// Each row goes on from the one before.
const Case editCases[] = {
    {"a row from code", [](ComboBox& b) { b.SetListIndex(1); }, "index click", 1, "Beta"},
    {"the same row from code", [](ComboBox& b) { b.SetListIndex(1); }, "", 1, "Beta"},
    {"a row by a person", [](ComboBox& b) { b.PersonChoose(2); }, "index click", 2, "Gamma"},
    {"the same row by a person", [](ComboBox& b) { b.PersonChoose(2); }, "click", 2, "Gamma"},
    {"no such row", [](ComboBox& b) { b.SetListIndex(4); }, "", 2, "Gamma"},
    {"below -1", [](ComboBox& b) { b.SetListIndex(-2); }, "", 2, "Gamma"},
    {"no such row by a person", [](ComboBox& b) { b.PersonChoose(-1); }, "", 2, "Gamma"},
    {"pasted", [](ComboBox& b) { b.PersonText("*.txt"); }, "index change", -1, "*.txt"},
    {"a row again", [](ComboBox& b) { b.SetListIndex(0); }, "index click", 0, "Alpha"},
    {"its own text pasted", [](ComboBox& b) { b.PersonText("Alpha"); }, "index", -1, "Alpha"},
    {"its row chosen", [](ComboBox& b) { b.PersonChoose(0); }, "index click", 0, "Alpha"},
    {"text from code", [](ComboBox& b) { b.Text = "Beta"; }, "index change", -1, "Beta"},
    {"no row is none", [](ComboBox& b) { b.SetListIndex(-1); }, "", -1, "Beta"},
    {"the last row", [](ComboBox& b) { b.SetListIndex(3); }, "index click", 3, "beta two"},
    {"the choice taken away", [](ComboBox& b) { b.SetListIndex(-1); }, "index", -1, ""},
    {"edited in a widget", [](ComboBox& b) { b.PersonEdited("q", 1, 0); }, "change", -1, "q"},
    {"cleared", [](ComboBox& b) { b.Clear(); }, "", -1, ""},
};

TEST_F(ComboBoxes, Choosing_raises_Click_and_editing_Change)
{
    for (const Case& row : editCases) {
        row.Do(edit);
        EXPECT_EQ(log.Take(), row.Log) << row.What;
        EXPECT_EQ(edit.ListIndex(), row.ListIndex) << row.What;
        EXPECT_EQ(edit.Text.Get(), row.Text) << row.What;
    }
    EXPECT_EQ(edit.ListCount(), 0);
}

const Case listCases[] = {
    {"a row", [](ComboBox& b) { b.SetListIndex(1); }, "index click", 1, "Beta"},
    {"pasted", [](ComboBox& b) { b.PersonText("x"); }, "", 1, "Beta"},
    {"edited", [](ComboBox& b) { b.PersonEdited("x", 0, 0); }, "", 1, "Beta"},
    {"replaced", [](ComboBox& b) { b.SetSelText("x"); }, "", 1, "Beta"},
    {"a row's text from code", [](ComboBox& b) { b.Text = "Gamma"; }, "index click", 2, "Gamma"},
    {"another text from code", [](ComboBox& b) { b.Text = "x"; }, "", 2, "Gamma"},
    {"cleared", [](ComboBox& b) { b.Clear(); }, "index", -1, ""},
    {"text without rows", [](ComboBox& b) { b.Text = "x"; }, "", -1, ""},
};

TEST_F(ComboBoxes, A_list_has_the_text_of_its_rows_and_no_other)
{
    for (const Case& row : listCases) {
        row.Do(list);
        EXPECT_EQ(log.Take(), row.Log) << row.What;
        EXPECT_EQ(list.ListIndex(), row.ListIndex) << row.What;
        EXPECT_EQ(list.Text.Get(), row.Text) << row.What;
    }
}

struct KeyCase {
    const char* Name;
    int EditIndex, ListIndex;
};

// Each row goes on from the one before; -1 at first.
const KeyCase keyCases[] = {
    {"Up", -1, -1}, {"Down", 0, 0}, {"Down", 1, 1}, {"Up", 0, 0},         {"Up", 0, 0},
    {"End", 0, 3},  {"Down", 1, 3}, {"Home", 1, 0}, {"Ctrl+Down", 1, 0},  {"b", -1, 1},
    {"b", -1, 3},   {"B", -1, 1},   {"z", -1, 1},   {"Backspace", -1, 1},
};

TEST_F(ComboBoxes, Keys_go_through_the_rows)
{
    int number = 0;
    for (const KeyCase& row : keyCases) {
        ++number;
        Press(edit, row.Name);
        Press(list, row.Name);
        EXPECT_EQ(edit.ListIndex(), row.EditIndex) << number << " " << row.Name;
        EXPECT_EQ(list.ListIndex(), row.ListIndex) << number << " " << row.Name;
    }
}

TEST_F(ComboBoxes, Typing_a_rows_text_chooses_no_row)
{
    for (const char* name : {"B", "e", "t", "a"})
        Press(edit, name);
    EXPECT_EQ(edit.Text.Get(), "Beta");
    EXPECT_EQ(edit.ListIndex(), -1);
    EXPECT_EQ(log.Take(), "change change change change");
}

TEST_F(ComboBoxes, Row_and_text_stand_when_Click_comes)
{
    std::string seen;
    edit.Click = [&] { seen = edit.Text.Get() + std::to_string(edit.ListIndex()); };
    edit.SetListIndex(2);
    EXPECT_EQ(seen, "Gamma2");
}

TEST_F(ComboBoxes, A_listener_that_sets_the_text_meanwhile_has_edited_it)
{
    const auto upper = edit.Changed.Listen([&](Prop what) {
        if (what == Prop::Text)
            edit.Text = "GAMMA";
    });
    edit.SetListIndex(2);
    EXPECT_EQ(edit.Text.Get(), "GAMMA");
    EXPECT_EQ(edit.ListIndex(), -1);
    EXPECT_NE(log.Take().find("change"), std::string::npos);
}

TEST_F(ComboBoxes, Rows_and_properties_are_told)
{
    EXPECT_EQ(edit.Items()[3], "beta two");
    edit.SetListIndex(1);
    const std::pair<const char*, const char*> rows[] = {
        {"Text", "Beta"},  {"ListIndex", "1"}, {"ListCount", "4"},
        {"SelStart", "0"}, {"MaxLength", "0"}, {"Visible", "True"},
    };
    for (const auto& [property, text] : rows)
        EXPECT_EQ(edit.PropertyText(property), text) << property;
    EXPECT_EQ(edit.PropertyText("Caption"), std::nullopt);
}

} // namespace
} // namespace tavo
