#include "toolkit/buttons.h"

#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"

#include "event_log.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

void Press(Control& control, const char* name)
{
    Key key;
    ASSERT_TRUE(Key_FromName(name, key)) << name;
    control.Owner().PersonKey(&control, key);
}

TEST(CommandButton, A_click_focuses_it_and_raises_Click)
{
    Form form("frm");
    CommandButton button(form, "cmd");
    EventLog log;
    log.WatchFocus(button);
    log.On(button.MouseDown, "down");
    log.On(button.MouseUp, "up");
    log.On(button.Click, "click");
    button.PersonClick();
    EXPECT_EQ(log.Take(), "+cmd down up click");
    Press(button, "Ctrl+Return");
    Press(button, "x");
    EXPECT_EQ(log.Take(), "");
}

TEST(CheckBox, Its_value_from_code_raises_Click_as_a_person_does)
{
    Form form("frm");
    CheckBox box(form, "chk");
    EventLog log;
    log.WatchNotice(box, Prop::Value, "notice");
    log.On(box.MouseUp, "up");
    log.On(box.Click, "click");
    box.Value = 1;
    EXPECT_EQ(log.Take(), "notice click");
    box.Value = 1;
    EXPECT_EQ(log.Take(), "");
    box.PersonClick();
    EXPECT_EQ(box.Value, 0);
    EXPECT_EQ(log.Take(), "up notice click");
    box.Enabled = false;
    box.PersonClick();
    EXPECT_EQ(box.Value, 0);
    EXPECT_EQ(log.Take(), "");
}

TEST(CheckBox, A_handler_may_take_its_value_back)
{
    Form form("frm");
    CheckBox box(form, "chk");
    box.Click = [&] { box.Value = 0; };
    box.PersonClick();
    EXPECT_EQ(box.Value, 0);
}

class OptionButtons : public testing::Test {
protected:
    OptionButtons()
    {
        for (auto* array : {&mode, &style})
            for (const auto& option : *array) {
                option->Container = &frame;
                log.On(option->Click, option->FullName());
            }
        mode[1].Value = true;
        style[0].Value = true;
        log.Take();
    }
    std::string Values() const
    {
        std::string values;
        for (const auto* array : {&mode, &style})
            for (const auto& option : *array)
                values += option->Value ? '1' : '0';
        return values;
    }
    Form form{"frm"};
    Frame frame{form, "fra"};
    ControlArray<OptionButton> mode{form, "mode", 1, 3};
    ControlArray<OptionButton> style{form, "style", 0, 1};
    EventLog log;
};

TEST_F(OptionButtons, Choosing_one_takes_the_choice_from_its_own_group_alone)
{
    EXPECT_EQ(Values(), "10010");
    mode[3].Value = true;
    EXPECT_EQ(Values(), "00110");
    EXPECT_EQ(log.Take(), "mode(3)");
    style[1].PersonClick();
    EXPECT_EQ(Values(), "00101");
    EXPECT_EQ(log.Take(), "style(1)");
}

TEST_F(OptionButtons, Only_becoming_chosen_raises_Click)
{
    mode[1].Value = true;
    mode[1].PersonClick();
    mode[1].Value = false;
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(Values(), "00010");
}

TEST_F(OptionButtons, The_others_have_lost_the_choice_when_Click_comes)
{
    std::string seen;
    mode[2].Click = [&] { seen = Values(); };
    mode[2].PersonClick();
    EXPECT_EQ(seen, "01010");
}

TEST_F(OptionButtons, Other_containers_hold_other_groups)
{
    mode[3].Container = nullptr;
    mode[3].Value = true;
    EXPECT_EQ(Values(), "10110");
}

TEST_F(OptionButtons, Options_of_no_array_are_a_group)
{
    OptionButton all(form, "optAll"), some(form, "optSome");
    all.Container = some.Container = &frame;
    all.Value = true;
    some.Value = true;
    EXPECT_FALSE(all.Value);
    EXPECT_EQ(Values(), "10010");
}

struct ArrowCase {
    const char *Name, *Values;
};

// Each row goes on from the one before.
const ArrowCase arrowCases[] = {
    {"Down", "01010"}, {"Right", "00110"}, {"Down", "10010"},
    {"Up", "00110"},   {"Left", "01010"},  {"Home", "01010"},
};

TEST_F(OptionButtons, Arrows_go_round_their_group)
{
    mode[1].SetFocus();
    for (const ArrowCase& row : arrowCases) {
        Press(*form.ActiveControl(), row.Name);
        EXPECT_EQ(Values(), row.Values) << row.Name;
        EXPECT_EQ(form.ActiveControl()->Name(), "mode") << row.Name;
    }
    mode[3].Enabled = false;
    mode[2].SetFocus();
    Press(mode[2], "Down");
    EXPECT_EQ(Values(), "10010");
    EXPECT_TRUE(mode[1].HasFocus());
}

TEST_F(OptionButtons, Properties_of_buttons_print_as_texts)
{
    CommandButton command(form, "cmd");
    CheckBox check(form, "chk");
    command.Caption = "&Go";
    check.Caption = "&Tick";
    check.Value = 1;
    mode[1].Caption = "One";
    EXPECT_EQ(command.PropertyText("Caption"), "&Go");
    EXPECT_EQ(command.PropertyText("Value"), std::nullopt);
    EXPECT_EQ(check.PropertyText("Caption"), "&Tick");
    EXPECT_EQ(check.PropertyText("Value"), "1");
    EXPECT_EQ(mode[1].PropertyText("Caption"), "One");
    EXPECT_EQ(mode[1].PropertyText("Value"), "1");
    EXPECT_EQ(mode[2].PropertyText("Value"), "0");
    EXPECT_EQ(mode[2].PropertyText("Enabled"), "True");
}

} // namespace
} // namespace tavo
