#include "toolkit/control.h"

#include "toolkit/buttons.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"
#include "toolkit/text_box.h"

#include "event_log.h"

#include <gtest/gtest.h>

#include <memory>

namespace tavo {
namespace {

TEST(Control, A_property_set_to_the_value_it_has_raises_nothing)
{
    Form form("frm");
    Label label(form, "lbl");
    EventLog log;
    log.On(label.Changed, "changed");
    label.Caption = "x";
    EXPECT_EQ(log.Take(), "changed");
    label.Caption = "x";
    label.Enabled = true;
    label.Left = 0;
    EXPECT_EQ(log.Take(), "");
    label.Caption.SetQuietly("y");
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(label.Caption.Get(), "y");
}

struct NoticeCase {
    const char* What;
    void (*Change)(Label&);
    Prop Told;
};

const NoticeCase noticeCases[] = {
    {"Enabled", [](Label& l) { l.Enabled = false; }, Prop::Enabled},
    {"Visible", [](Label& l) { l.Visible = false; }, Prop::Visible},
    {"Left", [](Label& l) { l.Left = 3; }, Prop::Geometry},
    {"Top", [](Label& l) { l.Top = 3; }, Prop::Geometry},
    {"Width", [](Label& l) { l.Width = 3; }, Prop::Geometry},
    {"Height", [](Label& l) { l.Height = 3; }, Prop::Geometry},
    {"ToolTipText", [](Label& l) { l.ToolTipText = "t"; }, Prop::ToolTip},
    {"Tag", [](Label& l) { l.Tag = "t"; }, Prop::State},
    {"BackColor", [](Label& l) { l.BackColor = 5; }, Prop::Colours},
    {"ForeColor", [](Label& l) { l.ForeColor = 5; }, Prop::Colours},
    {"Caption", [](Label& l) { l.Caption = "c"; }, Prop::Caption},
    {"Alignment", [](Label& l) { l.Alignment = 2; }, Prop::Style},
};

TEST(Control, The_host_hears_once_what_has_changed)
{
    for (const NoticeCase& row : noticeCases) {
        Form form("frm");
        Label label(form, "lbl");
        std::vector<Prop> told;
        label.Changed = [&](Prop what) { told.push_back(what); };
        row.Change(label);
        ASSERT_EQ(told.size(), 1U) << row.What;
        EXPECT_EQ(told[0], row.Told) << row.What;
    }
}

TEST(Control, The_new_value_stands_when_the_notice_comes)
{
    Form form("frm");
    Label label(form, "lbl");
    std::string seen;
    label.Changed = [&](Prop) { seen = label.Caption; };
    label.Caption = "new";
    EXPECT_EQ(seen, "new");
}

struct ReachCase {
    bool OuterVisible, OuterEnabled, Visible, Enabled;
    bool Shown, Usable;
};

const ReachCase reachCases[] = {
    {true, true, true, true, true, true},   {false, true, true, true, false, true},
    {true, false, true, true, true, false}, {true, true, false, true, false, true},
    {true, true, true, false, true, false}, {false, false, true, true, false, false},
};

TEST(Control, It_is_shown_and_usable_when_all_that_holds_it_is)
{
    int number = 0;
    for (const ReachCase& row : reachCases) {
        ++number;
        Form form("frm");
        Frame outer(form, "outer"), inner(form, "inner");
        Label label(form, "lbl");
        inner.Container = &outer;
        label.Container = &inner;
        outer.Visible = row.OuterVisible;
        outer.Enabled = row.OuterEnabled;
        label.Visible = row.Visible;
        label.Enabled = row.Enabled;
        EXPECT_EQ(label.IsShown(), row.Shown) << "row " << number;
        EXPECT_EQ(label.IsUsable(), row.Usable) << "row " << number;
    }
}

TEST(Control, A_container_that_ends_holds_nothing_any_more)
{
    Form form("frm");
    Label label(form, "lbl");
    {
        Frame frame(form, "fra");
        frame.Visible = false;
        label.Container = &frame;
        EXPECT_FALSE(label.IsShown());
    }
    EXPECT_EQ(label.Container, nullptr);
    EXPECT_TRUE(label.IsShown());
}

TEST(Control, A_click_is_press_release_click_in_the_middle)
{
    Form form("frm");
    Label label(form, "lbl");
    label.Move(10, 20, 300, 100);
    EventLog log;
    double x = 0, y = 0;
    label.MouseDown = [&](const Control::Mouse& mouse) {
        x = mouse.X;
        y = mouse.Y;
    };
    log.On(label.MouseDown, "down");
    log.On(label.MouseUp, "up");
    log.On(label.Click, "click");
    label.PersonClick();
    EXPECT_EQ(log.Take(), "down up click");
    EXPECT_EQ(x, 150);
    EXPECT_EQ(y, 50);
}

TEST(Control, A_click_on_what_is_hidden_or_disabled_does_nothing)
{
    Form form("frm");
    Label label(form, "lbl");
    EventLog log;
    log.On(label.Click, "click");
    log.On(label.MouseDown, "down");
    label.Enabled = false;
    label.PersonClick();
    label.Enabled = true;
    label.Visible = false;
    label.PersonClick();
    EXPECT_EQ(log.Take(), "");
}

TEST(Control, A_click_ends_when_leaving_the_other_control_disables_this_one)
{
    Form form("frm");
    TextBox box(form, "txt");
    CommandButton button(form, "cmd");
    box.SetFocus();
    box.LostFocus = [&] { button.Enabled = false; };
    EventLog log;
    log.On(button.Click, "click");
    log.On(button.MouseDown, "down");
    button.PersonClick();
    EXPECT_EQ(log.Take(), "");
}

struct TextCase {
    const char *Property, *Text;
};

const TextCase textCases[] = {
    {"Name", "lbl"},
    {"Enabled", "True"},
    {"Visible", "False"},
    {"Left", "15"},
    {"Top", "7.5"},
    {"Width", "12000"},
    {"Height", "-20"},
    {"ToolTipText", "tip"},
    {"Tag", "tag"},
    {"BackColor", "16711680"},
    {"ForeColor", "-2147483640"},
    {"Caption", "cap"},
    {"Alignment", "2"},
};

TEST(Control, Properties_print_as_texts)
{
    Form form("frm");
    Label label(form, "lbl");
    label.Visible = false;
    label.Move(15, 7.5, 12000, -20);
    label.ToolTipText = "tip";
    label.Tag = "tag";
    label.BackColor = 0xFF0000;
    label.Caption = "cap";
    label.Alignment = 2;
    for (const TextCase& row : textCases)
        EXPECT_EQ(label.PropertyText(row.Property), row.Text) << row.Property;
    for (const char* unknown : {"", "caption", "Value", "Text", "Enabled "})
        EXPECT_EQ(label.PropertyText(unknown), std::nullopt) << unknown;
}

TEST(ControlArray, It_has_bounds_and_names_its_controls_by_index)
{
    Form form("frm");
    ControlArray<TextBox> boxes(form, "txtNum", 1, 3);
    EXPECT_EQ(boxes.Low(), 1);
    EXPECT_EQ(boxes.High(), 3);
    EXPECT_EQ(boxes.At(0), nullptr);
    EXPECT_EQ(boxes.At(4), nullptr);
    EXPECT_EQ(boxes.At(-1), nullptr);
    ASSERT_NE(boxes.At(2), nullptr);
    EXPECT_EQ(boxes.At(2), &boxes[2]);
    EXPECT_EQ(boxes[2].FullName(), "txtNum(2)");
    EXPECT_EQ(boxes[2].Index(), 2);
    EXPECT_EQ(&boxes[2].Owner(), &form);
    int count = 0;
    for (const auto& box : boxes)
        count += box->Name() == "txtNum";
    EXPECT_EQ(count, 3);
}

} // namespace
} // namespace tavo
