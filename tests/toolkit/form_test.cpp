#include "toolkit/form.h"

#include "toolkit/buttons.h"
#include "toolkit/control_array.h"
#include "toolkit/panels.h"
#include "toolkit/text_box.h"

#include "event_log.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace tavo {
namespace {

class FormSizes : public testing::Test {
protected:
    FormSizes()
    {
        form.Move(100, 200, 9000, 6000);
        form.SetFrame(120, 500);
        form.SetMaximisedSize(28800, 16200);
        form.EnsureLoaded();
        log.On(form.Resize, "resize");
    }
    Form form{"frmMain"};
    EventLog log;
};

struct SizeCase {
    const char* What;
    std::function<void(Form&)> Do;
    const char* Raised;
    double ScaleWidth, ScaleHeight;
};

const auto toBig = [](Form& f) { f.PersonState(WindowState::Maximised); };
const auto toSmall = [](Form& f) { f.PersonState(WindowState::Minimised); };
const auto toNormal = [](Form& f) { f.PersonState(WindowState::Normal); };

// Each row goes on from the one before.
const SizeCase sizeCases[] = {
    {"to the size it has", [](Form& f) { f.PersonResize(9000, 6000); }, "", 8880, 5500},
    {"moved only", [](Form& f) { f.PersonMove(5, 6); }, "", 8880, 5500},
    {"wider", [](Form& f) { f.PersonResize(9100, 6000); }, "resize", 8980, 5500},
    {"higher by code", [](Form& f) { f.Move(5, 6, 9100, 6100); }, "resize", 8980, 5600},
    {"minimised", toSmall, "", 8980, 5600},
    {"back as it was", toNormal, "", 8980, 5600},
    {"maximised", toBig, "resize", 28680, 15700},
    {"maximised again", toBig, "", 28680, 15700},
    {"resized while so", [](Form& f) { f.PersonResize(20000, 10000); }, "resize", 19880, 9500},
    {"moved while so", [](Form& f) { f.PersonMove(0, 0); }, "", 19880, 9500},
    {"minimised from there", toSmall, "", 19880, 9500},
    {"back to maximised", toBig, "", 19880, 9500},
    {"normal", toNormal, "resize", 8980, 5600},
    {"minimised anew", toSmall, "", 8980, 5600},
    {"other size meanwhile", [](Form& f) { f.Move(5, 6, 7000, 6100); }, "", 6880, 5600},
    {"back to another size", toNormal, "resize", 6880, 5600},
    {"bars take more", [](Form& f) { f.SetFrame(120, 900); }, "resize", 6880, 5200},
    {"smaller than its frame", [](Form& f) { f.PersonResize(100, 800); }, "resize", 0, 0},
};

TEST_F(FormSizes, Resize_comes_whenever_the_size_in_sight_is_another)
{
    for (const SizeCase& row : sizeCases) {
        row.Do(form);
        EXPECT_EQ(log.Take(), row.Raised) << row.What;
        EXPECT_EQ(form.ScaleWidth(), row.ScaleWidth) << row.What;
        EXPECT_EQ(form.ScaleHeight(), row.ScaleHeight) << row.What;
    }
}

TEST_F(FormSizes, A_maximised_window_keeps_its_normal_place_and_size)
{
    form.SetState(WindowState::Maximised);
    form.PersonResize(20000, 10000);
    form.PersonMove(1, 1);
    EXPECT_EQ(form.Left(), 100);
    EXPECT_EQ(form.Top(), 200);
    EXPECT_EQ(form.Width(), 9000);
    EXPECT_EQ(form.Height(), 6000);
}

TEST_F(FormSizes, Properties_print_as_texts)
{
    form.SetCaption("Tavo");
    form.SetState(WindowState::Maximised);
    const std::pair<const char*, const char*> rows[] = {
        {"Name", "frmMain"},  {"Caption", "Tavo"},     {"Visible", "False"},
        {"Left", "100"},      {"Top", "200"},          {"Width", "9000"},
        {"Height", "6000"},   {"ScaleWidth", "28680"}, {"ScaleHeight", "15700"},
        {"WindowState", "2"},
    };
    for (const auto& [property, text] : rows)
        EXPECT_EQ(form.PropertyText(property), text) << property;
    EXPECT_EQ(form.PropertyText("Tag"), std::nullopt);
}

TEST(Form, A_form_that_is_not_loaded_raises_no_Resize)
{
    Form form("frm");
    EventLog log;
    log.On(form.Resize, "resize");
    form.Move(0, 0, 500, 500);
    EXPECT_EQ(log.Take(), "");
}

TEST(Form, The_normal_size_does_until_the_host_tells_the_maximised_one)
{
    Form form("frm");
    form.Move(0, 0, 500, 400);
    form.SetState(WindowState::Maximised);
    EXPECT_EQ(form.ScaleWidth(), 500);
    EXPECT_EQ(form.ScaleHeight(), 400);
}

class FormLife : public testing::Test {
protected:
    FormLife()
    {
        log.On(form.Load, "load");
        log.On(form.QueryUnload, "query");
        log.On(form.Unloaded, "unloaded");
    }
    Form form{"frm"};
    EventLog log;
};

TEST_F(FormLife, Load_comes_once_a_life)
{
    form.EnsureLoaded();
    form.EnsureLoaded();
    EXPECT_EQ(log.Take(), "load");
    form.Unload();
    form.Unload();
    EXPECT_EQ(log.Take(), "query unloaded");
    form.EnsureLoaded();
    EXPECT_EQ(log.Take(), "load");
}

TEST_F(FormLife, A_refused_unload_changes_nothing)
{
    form.EnsureLoaded();
    form.SetVisible(true);
    form.QueryUnload = [](bool& keep) { keep = true; };
    log.Take();
    form.PersonClose();
    EXPECT_EQ(log.Take(), "query");
    EXPECT_TRUE(form.Loaded());
    EXPECT_TRUE(form.Visible());
    form.QueryUnload = nullptr;
    form.PersonClose();
    EXPECT_FALSE(form.Loaded());
}

TEST_F(FormLife, It_is_hidden_but_still_loaded_when_Unloaded_comes)
{
    form.EnsureLoaded();
    form.SetVisible(true);
    bool visible = true, loaded = false;
    form.Unloaded = [&] {
        visible = form.Visible();
        loaded = form.Loaded();
    };
    form.Unload();
    EXPECT_FALSE(visible);
    EXPECT_TRUE(loaded);
    EXPECT_FALSE(form.Loaded());
}

TEST_F(FormLife, To_unload_from_its_own_handlers_does_nothing_more)
{
    form.EnsureLoaded();
    log.Take();
    form.QueryUnload = [&](bool&) { form.Unload(); };
    form.Unloaded = [&] { form.Unload(); };
    form.Unload();
    EXPECT_EQ(log.Take(), "query unloaded");
}

TEST_F(FormLife, A_new_life_begins_without_focus)
{
    TextBox box(form, "txt");
    form.EnsureLoaded();
    box.SetFocus();
    form.Unload();
    EXPECT_EQ(form.ActiveControl(), nullptr);
}

TEST_F(FormLife, Activation_is_told_when_it_changes)
{
    log.On(form.Activate, "activate");
    log.On(form.Deactivate, "deactivate");
    form.PersonActivate(true);
    form.PersonActivate(true);
    form.PersonActivate(false);
    form.PersonActivate(false);
    EXPECT_EQ(log.Take(), "activate deactivate");
}

TEST(Form, The_host_hears_of_caption_visibility_and_freeze)
{
    Form form("frm");
    std::vector<Prop> told;
    form.Changed = [&](Prop what) { told.push_back(what); };
    form.SetCaption("x");
    form.SetCaption("x");
    form.SetVisible(true);
    form.SetVisible(true);
    EXPECT_EQ(told, (std::vector<Prop>{Prop::Caption, Prop::Visible}));
    told.clear();
    {
        const FreezeGuard outer(form);
        {
            const FreezeGuard inner(form);
            EXPECT_TRUE(form.Frozen());
        }
        EXPECT_TRUE(form.Frozen());
        EXPECT_EQ(told.size(), 1U);
    }
    EXPECT_FALSE(form.Frozen());
    EXPECT_EQ(told, (std::vector<Prop>{Prop::State, Prop::State}));
    form.Freeze(false);
    EXPECT_FALSE(form.Frozen());
    form.Freeze(true);
    EXPECT_TRUE(form.Frozen());
}

TEST(Form, Controls_are_found_by_name_and_index)
{
    Form form("frm");
    Label plain(form, "lbl");
    ControlArray<Label> array(form, "lblRow", 2, 4);
    EXPECT_EQ(form.Find("lbl"), &plain);
    EXPECT_EQ(form.Find("lbl", 0), nullptr);
    EXPECT_EQ(form.Find("lblRow"), nullptr);
    EXPECT_EQ(form.Find("lblRow", 3), &array[3]);
    EXPECT_EQ(form.Find("lblRow", 5), nullptr);
    EXPECT_EQ(form.Find("LBL"), nullptr);
    int low = 0, high = 0;
    EXPECT_TRUE(form.ArrayBounds("lblRow", low, high));
    EXPECT_EQ(low, 2);
    EXPECT_EQ(high, 4);
    EXPECT_FALSE(form.ArrayBounds("lbl", low, high));
    EXPECT_FALSE(form.ArrayBounds("none", low, high));
}

TEST(Form, A_control_that_ends_is_known_no_more)
{
    Form form("frm");
    auto button = std::make_unique<CommandButton>(form, "cmd");
    form.DefaultButton = form.CancelButton = button.get();
    button->SetFocus();
    ASSERT_EQ(form.ActiveControl(), button.get());
    button.reset();
    EXPECT_EQ(form.ActiveControl(), nullptr);
    EXPECT_EQ(form.DefaultButton, nullptr);
    EXPECT_EQ(form.CancelButton, nullptr);
    EXPECT_EQ(form.Find("cmd"), nullptr);
    EXPECT_TRUE(form.Controls().empty());
}

class FormFocus : public testing::Test {
protected:
    FormFocus()
    {
        for (Control* control : std::initializer_list<Control*>{&a, &b, &c, &label})
            log.WatchFocus(*control);
    }
    Form form{"frm"};
    TextBox a{form, "a"};
    Label label{form, "label"};
    TextBox b{form, "b"};
    CommandButton c{form, "c"};
    EventLog log;
};

TEST_F(FormFocus, The_old_control_is_left_before_the_new_one_is_entered)
{
    a.SetFocus();
    EXPECT_EQ(log.Take(), "+a");
    b.SetFocus();
    EXPECT_EQ(log.Take(), "-a +b");
    b.SetFocus();
    EXPECT_EQ(log.Take(), "");
    EXPECT_TRUE(b.HasFocus());
    EXPECT_FALSE(a.HasFocus());
}

TEST_F(FormFocus, What_takes_no_focus_or_is_out_of_reach_is_not_entered)
{
    a.SetFocus();
    log.Take();
    label.SetFocus();
    b.Enabled = false;
    b.SetFocus();
    c.Visible = false;
    c.SetFocus();
    EXPECT_EQ(log.Take(), "");
    EXPECT_TRUE(a.HasFocus());
}

TEST_F(FormFocus, A_control_that_is_hidden_keeps_the_focus_until_another_is_entered)
{
    a.SetFocus();
    a.Visible = false;
    a.Enabled = false;
    EXPECT_TRUE(a.HasFocus());
    log.Take();
    b.SetFocus();
    EXPECT_EQ(log.Take(), "-a +b");
}

TEST_F(FormFocus, A_handler_of_leaving_that_moves_the_focus_wins)
{
    a.SetFocus();
    a.LostFocus = [&] { c.SetFocus(); };
    log.Take();
    b.SetFocus();
    EXPECT_EQ(log.Take(), "+c -a");
    EXPECT_TRUE(c.HasFocus());
}

TEST_F(FormFocus, A_handler_of_leaving_can_keep_the_focus)
{
    a.SetFocus();
    a.LostFocus = [&] { a.SetFocus(); };
    log.Take();
    b.SetFocus();
    EXPECT_EQ(log.Take(), "+a -a");
    EXPECT_TRUE(a.HasFocus());
}

TEST_F(FormFocus, The_host_hears_of_both_controls)
{
    a.SetFocus();
    log.Take();
    log.WatchNotice(a, Prop::Focus, "a");
    log.WatchNotice(b, Prop::Focus, "b");
    b.SetFocus();
    EXPECT_EQ(log.Take(), "-a a b +b");
    b.LostFocus = [&] { b.SetFocus(); };
    a.SetFocus();
    EXPECT_EQ(log.Take(), "b +b -b b a");
}

TEST_F(FormFocus, Leaving_may_take_the_new_control_out_of_reach)
{
    a.SetFocus();
    a.LostFocus = [&] { b.Visible = false; };
    log.Take();
    b.SetFocus();
    EXPECT_EQ(log.Take(), "-a");
    EXPECT_EQ(form.ActiveControl(), nullptr);
}

TEST_F(FormFocus, Tab_walks_round_in_the_order_of_making)
{
    form.EnterNext(false);
    form.EnterNext(false);
    form.EnterNext(false);
    form.EnterNext(false);
    EXPECT_EQ(log.Take(), "+a -a +b -b +c -c +a");
    form.EnterNext(true);
    form.EnterNext(true);
    EXPECT_EQ(log.Take(), "-a +c -c +b");
    a.Enabled = false;
    form.EnterNext(true);
    EXPECT_EQ(log.Take(), "-b +c");
}

TEST_F(FormFocus, Backwards_from_nowhere_begins_at_the_end)
{
    form.EnterNext(true);
    EXPECT_EQ(log.Take(), "+c");
}

TEST_F(FormFocus, Tab_stays_where_nothing_else_can_be_entered)
{
    b.Enabled = c.Enabled = false;
    a.SetFocus();
    log.Take();
    form.EnterNext(false);
    EXPECT_EQ(log.Take(), "");
    EXPECT_TRUE(a.HasFocus());
}

} // namespace
} // namespace tavo
