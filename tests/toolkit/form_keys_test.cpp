#include "toolkit/buttons.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"
#include "toolkit/tool_bars.h"

#include "event_log.h"

#include <gtest/gtest.h>

#include <memory>

namespace tavo {
namespace {

Key KeyOf(const char* name)
{
    Key key;
    EXPECT_TRUE(Key_FromName(name, key)) << name;
    return key;
}

class FormKeys : public testing::Test {
protected:
    FormKeys()
    {
        ok.Caption = "&Ok";
        cancel.Caption = "&Cancel";
        check.Caption = "Sa&ve";
        option.Caption = "&Range";
        label.Caption = "&Name";
        form.DefaultButton = &ok;
        form.CancelButton = &cancel;
        copy = bars.AddTool("ID_Copy", ToolKind::Button);
        copy->Shortcut = KeyOf("Ctrl+C");
        log.On(form.KeyDown, "form");
        log.On(box.KeyDown, "down");
        log.On(bars.ToolClick, "tool");
        log.On(box.KeyPress, "press");
        log.On(box.Change, "change");
        log.On(box.KeyUp, "up");
        log.On(ok.Click, "ok");
        log.On(cancel.Click, "cancel");
        log.On(check.Click, "check");
        log.On(option.Click, "option");
        box.SetFocus();
    }
    void Press(const char* name, Control* target) { form.PersonKey(target, KeyOf(name)); }

    Form form{"frm"};
    ToolBars bars{form, "atb"};
    Label label{form, "lbl"};
    TextBox box{form, "txt"};
    CommandButton ok{form, "cmdOk"}, cancel{form, "cmdCancel"};
    CheckBox check{form, "chk"};
    OptionButton option{form, "opt"};
    Tool* copy = nullptr;
    EventLog log;
};

struct KeyCase {
    const char *Name, *Log;
};

const KeyCase boxCases[] = {
    {"a", "form down press change up"},
    {"Left", "form down up"},
    {"Backspace", "form down press change up"},
    {"Ctrl+C", "form down tool up"},
    {"Ctrl+X", "form down press up"},
    {"Return", "form down press ok up"},
    {"Escape", "form down press cancel up"},
    {"Alt+O", "form down ok up"},
    {"Alt+v", "form down check up"},
    {"Alt+R", "form down option up"},
    {"Alt+Q", "form down up"},
    {"Ctrl+Return", "form down up"},
    {"F5", "form down up"},
};

TEST_F(FormKeys, A_key_goes_its_way_in_order)
{
    for (const KeyCase& row : boxCases) {
        box.Text = "xyz";
        box.Select(3, 0);
        option.Value = false;
        box.SetFocus();
        log.Take();
        Press(row.Name, &box);
        EXPECT_EQ(log.Take(), row.Log) << row.Name;
    }
}

const KeyCase alone[] = {
    {"a", "form"},        {"Ctrl+C", "form tool"}, {"Return", "form ok"}, {"Escape", "form cancel"},
    {"Alt+O", "form ok"}, {"Tab", "form"},
};

TEST_F(FormKeys, A_key_for_the_form_alone_reaches_no_control)
{
    for (const KeyCase& row : alone) {
        box.SetFocus();
        log.Take();
        Press(row.Name, nullptr);
        EXPECT_EQ(log.Take(), row.Log) << row.Name;
    }
}

TEST_F(FormKeys, A_key_that_the_form_swallows_goes_no_further)
{
    form.KeyDown = [](Key& key) { key.Code = keyNone; };
    Press("a", &box);
    Press("Return", &box);
    Press("Alt+O", &box);
    EXPECT_EQ(log.Take(), "form up form up form up");
    EXPECT_EQ(box.Text.Get(), "");
}

TEST_F(FormKeys, A_key_that_the_control_swallows_goes_no_further)
{
    box.KeyDown = [](Key& key) { key.Code = keyNone; };
    Press("a", &box);
    Press("Ctrl+C", &box);
    EXPECT_EQ(log.Take(), "form down up form down up");
}

TEST_F(FormKeys, A_filter_that_sets_0_uses_the_key_up)
{
    int seen = 0;
    box.KeyPress = [&](int& key) {
        seen = key;
        key = 0;
    };
    const std::pair<const char*, int> rows[] = {
        {"x", 'x'},     {"Return", 13},     {"Escape", 27}, {"Backspace", 8},
        {"Ctrl+V", 22}, {"\xC3\xA4", 0xE4}, {"Space", 32},
    };
    for (const auto& [name, code] : rows) {
        seen = -1;
        Press(name, &box);
        EXPECT_EQ(seen, code) << name;
        EXPECT_TRUE(box.HasFocus()) << name;
        EXPECT_EQ(log.Take(), "form down press up") << name;
    }
    EXPECT_EQ(box.Text.Get(), "");
}

TEST_F(FormKeys, A_filter_may_change_the_character)
{
    box.KeyPress = [](int& key) { key = key == 'a' ? 'A' : key == 'b' ? 0xDF : key; };
    for (const char* name : {"a", "b", "c"})
        Press(name, &box);
    EXPECT_EQ(box.Text.Get(), "A\xC3\x9F"
                              "c");
}

TEST_F(FormKeys, Delete_and_the_arrows_run_no_filter)
{
    for (const char* name : {"Delete", "Left", "Right", "Home", "End", "Up", "F5", "Alt+D"})
        Press(name, &box);
    EXPECT_EQ(log.Take().find("press"), std::string::npos);
}

TEST_F(FormKeys, A_shortcut_out_of_reach_is_none)
{
    copy->Enabled = false;
    Press("Ctrl+C", &box);
    EXPECT_EQ(log.Take(), "form down press up");
}

TEST_F(FormKeys, A_default_button_out_of_reach_leaves_Return_to_the_control)
{
    ok.Enabled = false;
    cancel.Visible = false;
    Press("Return", &box);
    Press("Escape", &box);
    EXPECT_EQ(log.Take(), "form down press up form down press up");
}

TEST_F(FormKeys, Return_on_a_button_clicks_that_button)
{
    Press("Return", &cancel);
    EXPECT_EQ(log.Take(), "form cancel");
    Press("Space", &cancel);
    EXPECT_EQ(log.Take(), "form cancel");
    Press("Escape", &ok);
    EXPECT_EQ(log.Take(), "form cancel");
}

TEST_F(FormKeys, Space_toggles_a_check_box_and_chooses_an_option)
{
    Press("Space", &check);
    EXPECT_EQ(check.Value, 1);
    Press("Space", &check);
    EXPECT_EQ(check.Value, 0);
    Press("Space", &option);
    EXPECT_TRUE(option.Value);
    EXPECT_EQ(log.Take(), "form check form check form option");
}

TEST_F(FormKeys, Tab_goes_on_and_Shift_Tab_back)
{
    Press("Tab", &box);
    EXPECT_TRUE(ok.HasFocus());
    Press("Shift+Tab", &ok);
    EXPECT_TRUE(box.HasFocus());
    Press("Shift+Tab", &box);
    EXPECT_TRUE(option.HasFocus());
    Press("Ctrl+Tab", &option);
    EXPECT_TRUE(option.HasFocus());
}

TEST_F(FormKeys, The_letter_of_a_label_enters_the_control_behind_it)
{
    option.SetFocus();
    Press("Alt+N", &option);
    EXPECT_TRUE(box.HasFocus());
    label.Visible = false;
    option.SetFocus();
    Press("Alt+N", &option);
    EXPECT_TRUE(option.HasFocus());
}

TEST_F(FormKeys, Of_several_captions_with_a_letter_the_next_one_in_reach_is_meant)
{
    CommandButton other(form, "cmdOther");
    other.Caption = "&Other";
    log.On(other.Click, "other");
    log.Take();
    Press("Alt+O", &box);
    EXPECT_EQ(log.Take(), "form down ok up");
    Press("Alt+O", &ok);
    EXPECT_EQ(log.Take(), "form other");
    Press("Alt+O", &other);
    EXPECT_EQ(log.Take(), "form ok");
    ok.Enabled = false;
    Press("Alt+O", &box);
    EXPECT_EQ(log.Take(), "form down other up");
}

TEST_F(FormKeys, A_letter_with_Alt_types_nothing_though_a_host_tells_its_character)
{
    form.PersonKey(&box, {'Q', shiftAlt, 'q'});
    EXPECT_EQ(box.Text.Get(), "");
    form.PersonKey(&box, {keyOther, shiftCtrl | shiftAlt, '@'});
    EXPECT_EQ(box.Text.Get(), "@");
}

TEST_F(FormKeys, FilterKey_leaves_what_the_key_does_to_the_host)
{
    Key key = KeyOf("a");
    EXPECT_TRUE(form.FilterKey(&box, key));
    EXPECT_EQ(log.Take(), "form down press");
    key = KeyOf("Ctrl+C");
    EXPECT_FALSE(form.FilterKey(&box, key));
    box.KeyPress = [](int& code) { code = code == 'x' ? 0 : code; };
    key = KeyOf("x");
    EXPECT_FALSE(form.FilterKey(&box, key));
    key = KeyOf("Return");
    EXPECT_TRUE(form.FilterKey(&box, key));
    log.Take();
    EXPECT_TRUE(form.DialogKey(&box, key));
    EXPECT_EQ(log.Take(), "ok");
    EXPECT_FALSE(form.DialogKey(&box, KeyOf("a")));
    EXPECT_EQ(box.Text.Get(), "");
}

TEST_F(FormKeys, The_key_that_comes_up_is_the_one_that_was_pressed)
{
    int code = 0;
    box.KeyDown = [](Key& key) { key.Code = keyNone; };
    box.KeyUp = [&](Key& key) { code = key.Code; };
    Press("Down", &box);
    EXPECT_EQ(code, keyDown);
}

TEST_F(FormKeys, A_control_that_a_handler_ends_gets_nothing_more)
{
    auto gone = std::make_unique<TextBox>(form, "gone");
    form.KeyDown = [&](Key&) { gone.reset(); };
    log.Take();
    form.PersonKey(gone.get(), KeyOf("a"));
    EXPECT_EQ(log.Take(), "form");
    EXPECT_EQ(form.Find("gone"), nullptr);
}

} // namespace
} // namespace tavo
