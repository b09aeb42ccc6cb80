#include "toolkit/tool_bars.h"

#include "toolkit/form.h"

#include "event_log.h"

#include <gtest/gtest.h>

#include <functional>

namespace tavo {
namespace {

Key KeyOf(const char* name)
{
    Key key;
    EXPECT_TRUE(Key_FromName(name, key)) << name;
    return key;
}

// Two bands, a menu within a menu, and one that only pops up.
struct House {
    House()
    {
        standard.Add(run);
        menuBand.Add(file);
        fileMenu.Add(recent);
        recentMenu.Add(deep);
        popUpMenu.Add(inPopUp);
        both.Shortcut = KeyOf("Ctrl+B");
        standard.Add(both);
        fileMenu.Add(both);
    }
    Tool& Make(const char* id, ToolKind kind) { return *bars.AddTool(id, kind); }

    Form form{"frmMain"};
    ToolBars bars{form, "atbMain"};
    Tool& run = Make("ID_Run", ToolKind::Button);
    Tool& free = Make("ID_Free", ToolKind::Toggle);
    Tool& both = Make("ID_Both", ToolKind::Button);
    Tool& file = Make("ID_mnuFile", ToolKind::Menu);
    Tool& recent = Make("ID_mnuRecent", ToolKind::Menu);
    Tool& deep = Make("ID_Deep", ToolKind::Button);
    Tool& popUp = Make("ID_mnuPopUp", ToolKind::Menu);
    Tool& inPopUp = Make("ID_InPopUp", ToolKind::Button);
    Band& menuBand = bars.AddBand("Menu");
    Band& standard = bars.AddBand("Standard");
    Band& fileMenu = bars.AddBand("ID_mnuFile");
    Band& recentMenu = bars.AddBand("ID_mnuRecent");
    Band& popUpMenu = bars.AddBand("ID_mnuPopUp");
};

class ToolBarHouse : public testing::Test, protected House {};

struct ReachCase {
    const char* What;
    std::function<void(ToolBars&)> Do;
    // run, free, both, deep, inPopUp: s shown, u usable, b both, - neither
    const char* Reach;
};

void Hide(ToolBars& bars, const char* band)
{
    bars.FindBand(band)->SetVisible(false);
}

const ReachCase reachCases[] = {
    {"all at first", [](ToolBars&) {}, "bbbbb"},
    {"band hidden", [](ToolBars& b) { Hide(b, "Standard"); }, "-bbbb"},
    {"menu band hidden", [](ToolBars& b) { Hide(b, "Menu"); }, "bbb-b"},
    {"both hidden",
     [](ToolBars& b) {
         Hide(b, "Menu");
         Hide(b, "Standard");
     },
     "-b--b"},
    {"menu disabled", [](ToolBars& b) { b.Find("ID_mnuFile")->Enabled = false; }, "bbbsb"},
    {"menu hidden", [](ToolBars& b) { b.Find("ID_mnuFile")->Visible = false; }, "bbb-b"},
    {"inner menu disabled", [](ToolBars& b) { b.Find("ID_mnuRecent")->Enabled = false; }, "bbbsb"},
    {"inner menu hidden", [](ToolBars& b) { b.Find("ID_mnuRecent")->Visible = false; }, "bbb-b"},
    {"pop-up disabled", [](ToolBars& b) { b.Find("ID_mnuPopUp")->Enabled = false; }, "bbbbs"},
    {"disabled menu, hidden band",
     [](ToolBars& b) {
         b.Find("ID_mnuFile")->Enabled = false;
         Hide(b, "Standard");
     },
     "-bssb"},
    {"own state",
     [](ToolBars& b) {
         b.Find("ID_Run")->Visible = false;
         b.Find("ID_Free")->Enabled = false;
     },
     "usbbb"},
    {"menus in a ring",
     [](ToolBars& b) {
         b.FindBand("ID_mnuRecent")->Add(*b.Find("ID_mnuFile"));
         b.FindBand("Menu")->RemoveAt(1);
     },
     "bbb-b"},
};

TEST(ToolBars, A_tool_is_in_reach_by_any_band_or_menu_that_is)
{
    for (const ReachCase& row : reachCases) {
        House house;
        row.Do(house.bars);
        std::string reach;
        for (const Tool* tool :
             {&house.run, &house.free, &house.both, &house.deep, &house.inPopUp}) {
            const bool shown = tool->IsShown(), usable = tool->IsUsable();
            EXPECT_EQ(shown, house.bars.IsShown(*tool)) << row.What;
            reach += shown && usable ? 'b' : shown ? 's' : usable ? 'u' : '-';
        }
        EXPECT_EQ(reach, row.Reach) << row.What;
    }
}

TEST_F(ToolBarHouse, An_id_is_given_once)
{
    EXPECT_EQ(bars.AddTool("ID_Run", ToolKind::Edit), nullptr);
    EXPECT_EQ(bars.Find("ID_Run"), &run);
    EXPECT_EQ(bars.Find("id_run"), nullptr);
    EXPECT_EQ(&bars.AddBand("Standard"), &standard);
    EXPECT_EQ(bars.FindBand("standard"), nullptr);
    EXPECT_EQ(bars.Tools().size(), 8U);
    EXPECT_EQ(form.Bars, &bars);
    EXPECT_EQ(form.Find("ID_Run"), &run);
}

struct ClickCase {
    ToolKind Kind;
    const char* Log;
    bool Checked;
};

const ClickCase clickCases[] = {
    {ToolKind::Button, "click", false},   {ToolKind::Toggle, "click", true},
    {ToolKind::DropDown, "click", false}, {ToolKind::Combo, "", false},
    {ToolKind::Edit, "", false},          {ToolKind::Label, "", false},
    {ToolKind::Menu, "", false},          {ToolKind::Separator, "", false},
};

TEST_F(ToolBarHouse, A_click_is_for_buttons_and_changes_a_toggle_first)
{
    EventLog log;
    bool checked = false;
    bars.ToolClick = [&](Tool& tool) { checked = tool.Checked; };
    log.On(bars.ToolClick, "click");
    for (const ClickCase& row : clickCases) {
        Tool& tool = Make("ID_Test", row.Kind);
        checked = false;
        tool.PersonClick();
        EXPECT_EQ(log.Take(), row.Log) << static_cast<int>(row.Kind);
        EXPECT_EQ(checked, row.Checked) << static_cast<int>(row.Kind);
        bars.RemoveTool("ID_Test");
        EXPECT_EQ(bars.Find("ID_Test"), nullptr);
    }
}

TEST_F(ToolBarHouse, A_tool_out_of_reach_answers_neither_click_nor_shortcut)
{
    EventLog log;
    log.On(bars.ToolClick, "click");
    EXPECT_EQ(bars.ForShortcut(KeyOf("Ctrl+b")), &both);
    EXPECT_EQ(bars.ForShortcut(KeyOf("b")), nullptr);
    EXPECT_EQ(bars.ForShortcut(KeyOf("Ctrl+Shift+b")), nullptr);
    standard.SetVisible(false);
    file.Enabled = false;
    bars.PersonClick(both);
    bars.PersonClick(run);
    bars.PersonClick(deep);
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(bars.ForShortcut(KeyOf("Ctrl+b")), nullptr);
    file.Enabled = true;
    bars.PersonClick(both);
    EXPECT_EQ(log.Take(), "click");
}

TEST_F(ToolBarHouse, Only_a_drop_down_drops_down)
{
    EventLog log;
    log.On(bars.ToolDropDown, "drop");
    Tool& views = Make("ID_Views", ToolKind::DropDown);
    bars.PersonDropDown(views);
    bars.PersonDropDown(run);
    EXPECT_EQ(log.Take(), "drop");
    views.Enabled = false;
    bars.PersonDropDown(views);
    EXPECT_EQ(log.Take(), "");
}

TEST_F(ToolBarHouse, A_click_may_take_away_the_tool_that_was_clicked)
{
    bars.ToolClick = [&](Tool& tool) { bars.RemoveTool(tool.Name()); };
    bars.PersonClick(both);
    EXPECT_EQ(bars.Find("ID_Both"), nullptr);
    EXPECT_EQ(standard.Tools(), std::vector<Tool*>{&run});
    EXPECT_EQ(fileMenu.Tools(), std::vector<Tool*>{&recent});
    EXPECT_EQ(form.Find("ID_Both"), nullptr);
    bars.RemoveTool("ID_Both");
}

TEST_F(ToolBarHouse, The_host_hears_of_bands_that_hold_others)
{
    EventLog log;
    const auto listener = bars.BandChanged.Listen([&](const Band& band) { log.Add(band.Name()); });
    standard.Add(free);
    fileMenu.RemoveAt(1);
    fileMenu.RemoveAt(9);
    fileMenu.RemoveAt(0);
    standard.SetVisible(false);
    standard.SetVisible(false);
    EXPECT_EQ(log.Take(), "Standard ID_mnuFile Standard");
    bars.RemoveTool("ID_mnuFile");
    EXPECT_EQ(log.Take(), "Menu ID_mnuFile");
    EXPECT_FALSE(fileMenu.Visible());
}

class ToolBoxes : public ToolBarHouse {
protected:
    ToolBoxes()
    {
        combo.Combo()->AddItem("All");
        combo.Combo()->AddItem("Text");
        const std::pair<Event<Tool&>*, const char*> events[] = {
            {&bars.ToolChange, "change"},
            {&bars.ToolComboClick, "choose"},
            {&bars.ToolGotFocus, "got"},
            {&bars.ToolLostFocus, "lost"},
        };
        for (const auto& [event, word] : events)
            log.On(*event, word);
        log.On(bars.ToolKeyPress, "press");
        log.On(bars.ToolKeyDown, "down");
    }
    Tool& combo = Make("ID_Filter", ToolKind::Combo);
    Tool& edit = Make("ID_Number", ToolKind::Edit);
    EventLog log;
};

TEST_F(ToolBoxes, Edit_and_combo_tools_hold_a_box_of_their_name)
{
    ASSERT_NE(edit.Box, nullptr);
    EXPECT_EQ(edit.Combo(), nullptr);
    EXPECT_EQ(edit.Box->Name(), "ID_Number");
    EXPECT_EQ(edit.Box->Container, &edit);
    EXPECT_EQ(&edit.Box->Owner(), &form);
    ASSERT_NE(combo.Combo(), nullptr);
    EXPECT_EQ(combo.Box.get(), combo.Combo());
    EXPECT_EQ(combo.Combo()->Style(), ComboKind::Editable);
    EXPECT_EQ(run.Box, nullptr);
}

TEST_F(ToolBoxes, What_happens_in_a_box_happens_to_its_tool)
{
    combo.Box->SetFocus();
    EXPECT_EQ(log.Take(), "got");
    form.PersonKey(combo.Box.get(), KeyOf("x"));
    EXPECT_EQ(log.Take(), "down press change");
    combo.Combo()->PersonChoose(1);
    EXPECT_EQ(log.Take(), "choose");
    edit.Box->SetFocus();
    EXPECT_EQ(log.Take(), "lost got");
    edit.Box->PersonText("5");
    EXPECT_EQ(log.Take(), "change");
}

TEST_F(ToolBoxes, A_filter_of_the_tool_uses_the_key_up)
{
    bars.ToolKeyPress = [&](Tool& tool, int& key) {
        EXPECT_EQ(&tool, &edit);
        if (key < '0' || key > '9')
            key = 0;
    };
    for (const char* name : {"a", "4", ".", "2"})
        form.PersonKey(edit.Box.get(), KeyOf(name));
    EXPECT_EQ(edit.Box->Text.Get(), "42");
}

TEST_F(ToolBoxes, A_box_is_in_reach_as_its_tool_is)
{
    standard.Add(edit);
    EXPECT_TRUE(edit.Box->IsShown());
    EXPECT_TRUE(edit.Box->IsUsable());
    edit.Enabled = false;
    EXPECT_FALSE(edit.Box->IsUsable());
    edit.Enabled = true;
    standard.SetVisible(false);
    EXPECT_FALSE(edit.Box->IsShown());
    edit.Box->SetFocus();
    EXPECT_EQ(form.ActiveControl(), nullptr);
    combo.Visible = false;
    EXPECT_FALSE(combo.Box->IsShown());
}

TEST_F(ToolBoxes, Properties_print_as_texts)
{
    free.Caption = "&Free";
    free.Description = "desc";
    free.Category = "cat";
    free.ToolTipText = "tip";
    free.Checked = true;
    free.Style = ToolStyle::TextOnly;
    combo.Combo()->SetListIndex(1);
    combo.Box->Select(1, 2);
    edit.Box->MaxLength = 4;
    struct Row {
        const Tool& Of;
        const char* Property;
        std::optional<std::string> Text;
    };
    const Row rows[] = {
        {free, "Caption", "&Free"},
        {free, "Description", "desc"},
        {free, "Category", "cat"},
        {free, "ToolTipText", "tip"},
        {free, "Checked", "True"},
        {free, "Value", "1"},
        {free, "Style", "2"},
        {free, "Enabled", "True"},
        {free, "Visible", "True"},
        {free, "Text", std::nullopt},
        {run, "Checked", "False"},
        {run, "Value", "0"},
        {run, "Style", "3"},
        {run, "Left", "0"},
        {run, "ListCountTwice", std::nullopt},
        {combo, "Text", "Text"},
        {combo, "ListIndex", "1"},
        {combo, "ListCount", "2"},
        {combo, "SelStart", "1"},
        {combo, "SelLength", "2"},
        {combo, "MaxLength", "0"},
        {edit, "MaxLength", "4"},
        {edit, "Text", ""},
        {edit, "ListIndex", std::nullopt},
        {edit, "Name", "ID_Number"},
        {edit, "Checked", "False"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.Of.PropertyText(row.Property), row.Text)
            << row.Of.Name() << "." << row.Property;
}

TEST_F(ToolBoxes, The_host_hears_of_a_tool_that_changes)
{
    EventLog notices;
    notices.WatchNotice(run, Prop::Enabled, "enabled");
    notices.WatchNotice(run, Prop::Caption, "caption");
    notices.WatchNotice(run, Prop::Value, "checked");
    run.Enabled = false;
    run.Caption = "x";
    run.Checked = true;
    run.Checked = true;
    EXPECT_EQ(notices.Take(), "enabled caption checked");
}

TEST(ToolBars, A_form_forgets_the_tool_bars_that_end)
{
    Form form("frm");
    {
        ToolBars bars(form, "atb");
        bars.AddTool("ID_Edit", ToolKind::Edit)->Box->SetFocus();
        EXPECT_NE(form.ActiveControl(), nullptr);
    }
    EXPECT_EQ(form.Bars, nullptr);
    EXPECT_EQ(form.ActiveControl(), nullptr);
    EXPECT_TRUE(form.Controls().empty());
}

} // namespace
} // namespace tavo
