#include "fileactions/date_time_panel.h"

#include "core/screens.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tavo {
namespace {

using Texts = std::vector<std::string>;

class DateTimePanel : public testing::Test {
protected:
    // A list of one file, in the Date & Time mode.
    Program& Start(const std::string& keys = "dtCreate=1\ndtMod=1\ndtAccess=1\n")
    {
        rig.Disk.AddFile("/d/a.txt");
        rig.Desktop.Clock = {2024, 2, 4, 29, 13, 5, 7, 0};
        Program& p = rig.Start("/d/", "[Defaults]\nRenMode=2\n" + keys);
        rig.MakeList();
        return p;
    }
    MaskBox& Box(int index) { return rig.Main().txtDateTime[index]; }
    std::string Text(int index) { return Box(index).Text; }
    void Press(int index, const std::string& names)
    {
        std::istringstream words(names);
        for (std::string name; words >> name;) {
            Key key;
            ASSERT_TRUE(Key_FromName(name, key)) << name;
            rig.Main().PersonKey(&Box(index), key);
        }
    }
    // Of the boxes and their labels; a "?" where the two differ.
    std::string Enabled()
    {
        std::string text;
        for (int i = 1; i <= 5; ++i) {
            const bool box = Box(i).Enabled, label = rig.Main().lblDateTime[i].Enabled;
            text += box == label ? (box ? '1' : '0') : '?';
        }
        return text;
    }
    std::string Flags()
    {
        const SharedState& s = rig.P().state;
        return std::to_string(s.dtCreate) + std::to_string(s.dtMod) + std::to_string(s.dtAccess);
    }

    ProgramRig rig{MemoryDisk::Flavour::Posix};
};

struct TextRow {
    const char* Control;
    int Index;
    const char *Caption, *Tip;
};

TEST_F(DateTimePanel, Its_texts_read_to_the_letter)
{
    Program& p = Start();
    static constexpr TextRow rows[] = {
        {"chkDateTime", 1, "Created", "Click to Update Created Time"},
        {"chkDateTime", 2, "Modified", "Click to Update Modified Time"},
        {"chkDateTime", 3, "Accessed", "Click to Update Accessed Time"},
        {"lblDateTime", 1, "mm/dd/yyyy", "Click for Now"},
        {"lblDateTime", 2, "hh:mm:ss AM", "Click for Now"},
        {"lblDateTime", 3, "mm/dd/yyyy", "Click for Now"},
        {"lblDateTime", 4, "hh:mm:ss PM", "Click for Now"},
        {"lblDateTime", 5, "mm/dd/yyyy", "Click for Now"},
    };
    for (const TextRow& row : rows) {
        const Control* control = p.main.Find(row.Control, row.Index);
        ASSERT_NE(control, nullptr) << row.Control;
        EXPECT_EQ(control->PropertyText("Caption"), row.Caption) << row.Control << row.Index;
        EXPECT_EQ(control->PropertyText("ToolTipText"), row.Tip) << row.Control << row.Index;
    }
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(Box(i).Mask(), i == 2 || i == 4 ? "##:##:## ??" : "##/##/####") << i;
        EXPECT_EQ(Box(i).ToolTipText.Get(), "") << i;
    }
}

struct LoadCase {
    const char *Keys, *Flags, *Enabled;
};

const LoadCase loadCases[] = {
    {"", "100", "11000"},
    {"dtCreate=0\n", "000", "00000"},
    {"dtCreate=0\ndtMod=1\n", "010", "00110"},
    {"dtCreate=0\ndtAccess=1\n", "001", "00001"},
    {"dtCreate=1\ndtMod=1\ndtAccess=1\n", "111", "11111"},
    {"dtCreate=5\ndtMod=1\n", "510", "00110"},
};

TEST_F(DateTimePanel, After_loading_the_groups_follow_their_boxes)
{
    for (const LoadCase& row : loadCases) {
        Start(row.Keys);
        EXPECT_EQ(Flags(), row.Flags) << row.Keys;
        EXPECT_EQ(Enabled(), row.Enabled) << row.Keys;
    }
}

struct ClickCase {
    int Box;
    const char *Flags, *Enabled;
};

TEST_F(DateTimePanel, A_click_on_a_box_sets_the_flags_and_its_group)
{
    Start();
    static constexpr ClickCase rows[] = {{1, "011", "00111"}, {2, "001", "00001"},
                                         {3, "000", "00000"}, {2, "010", "00110"},
                                         {1, "110", "11110"}, {3, "111", "11111"}};
    for (const ClickCase& row : rows) {
        rig.Main().chkDateTime[row.Box].PersonClick();
        EXPECT_EQ(Flags(), row.Flags) << row.Box;
        EXPECT_EQ(Enabled(), row.Enabled) << row.Box;
    }
}

TEST_F(DateTimePanel, A_click_on_a_label_puts_now_into_its_box)
{
    Start();
    for (int i = 1; i <= 5; ++i) {
        Box(i).Text = "";
        rig.Main().lblDateTime[i].PersonClick();
        EXPECT_EQ(Text(i), i == 2 || i == 4 ? "01:05:07 PM" : "02/29/2024") << i;
    }
    rig.Main().chkDateTime[1].PersonClick();
    Box(1).Text = "";
    rig.Main().lblDateTime[1].PersonClick();
    EXPECT_EQ(Text(1), "__/__/____") << "a label that is disabled";
}

TEST_F(DateTimePanel, Entering_a_box_selects_its_text_and_is_remembered)
{
    Program& p = Start();
    for (int i = 1; i <= 5; ++i) {
        Box(i).Text = "01";
        Box(i).SetFocus();
        EXPECT_EQ(Box(i).SelStart(), 0) << i;
        EXPECT_EQ(Box(i).SelLength(), i == 2 || i == 4 ? 11 : 10) << i;
        EXPECT_EQ(p.state.FieldFocus, i + 10);
    }
}

struct KeyCase {
    int Box;
    const char *Text, *Keys, *After;
};

const KeyCase keyCases[] = {
    {1, "", "0 3 0 7 2 0 0 1", "03/07/2001"},
    {5, "", "1 2 3", "12/3_/____"},
    {1, "03/07/2001", "a A p P / - Space .", "03/07/2001"},
    {1, "03/07/2001", "Ctrl+C Ctrl+V Ctrl+X Ctrl+Z", "03/07/2001"},
    {1, "03/07/2001", "End Backspace", "03/07/200_"},
    {2, "09:05:12 AM", "p", "09:05:12 PM"},
    {2, "09:05:12 AM", "P", "09:05:12 PM"},
    {4, "09:05:12 PM", "a", "09:05:12 AM"},
    {4, "09:05:12 PM", "A", "09:05:12 AM"},
    {4, "09:05:12 PM", "m x : .", "09:05:12 PM"},
    {2, "", "p", "__:__:__ PM"},
    {2, "", "0 9 p 0 5", "09:05:__ PM"},
};

TEST_F(DateTimePanel, Boxes_take_digits_and_the_letters_of_the_half_day)
{
    Start();
    for (const KeyCase& row : keyCases) {
        rig.Main().lsvRename.SetFocus();
        Box(row.Box).SetFocus();
        Box(row.Box).Text = ""; // nothing is left to take back
        Box(row.Box).Text = row.Text;
        Box(row.Box).Select(0, 0);
        Press(row.Box, row.Keys);
        EXPECT_EQ(Text(row.Box), row.After) << row.Keys;
    }
}

TEST_F(DateTimePanel, The_letter_leaves_the_caret)
{
    Start();
    for (const int caret : {0, 4, 11}) {
        Box(2).SetFocus();
        Box(2).Text = "09:05:12 AM";
        Box(2).Select(caret, 0);
        Press(2, "p");
        EXPECT_EQ(Box(2).SelStart(), caret);
        EXPECT_EQ(Box(2).SelLength(), 0);
    }
}

TEST_F(DateTimePanel, Tab_leaves_a_box)
{
    Start();
    Box(1).SetFocus();
    Press(1, "Tab");
    EXPECT_TRUE(Box(2).HasFocus());
}

struct LeaveCase {
    int Box;
    const char *Text, *After;
};

const LeaveCase leaveCases[] = {
    {1, "03/07/2001", "03/07/2001"}, {1, "13/32/2001", "12/28/2001"},
    {3, "00/00/0000", "01/01/2024"}, {3, "03/07/1899", "03/07/2024"},
    {5, "02/30/2001", "02/30/2001"}, {5, "3/7/2001", "03/07/2001"},
    {1, "", "01/01/2024"},           {2, "13:00:00 PM", "12:00:00 PM"},
    {2, "21:05:12", "09:05:12 PM"},  {4, "24:60:60", "12:59:59 AM"},
    {4, "", "12:00:00 AM"},          {4, "09:05:12 PM", "09:05:12 PM"},
};

TEST_F(DateTimePanel, Leaving_a_box_mends_it)
{
    Start();
    for (const LeaveCase& row : leaveCases) {
        Box(row.Box).SetFocus();
        Box(row.Box).PersonText(row.Text);
        rig.Main().lsvRename.SetFocus();
        EXPECT_EQ(Text(row.Box), row.After) << row.Text;
    }
}

TEST_F(DateTimePanel, Boxes_keep_their_text_when_the_mode_is_left)
{
    Program& p = Start();
    p.main.lsvRename.PersonSelect({}, 0);
    p.main.lsvRename.DeleteAllItems();
    Box(1).Text = "03/07/2001";
    Mode_Set(p, modeCase);
    Mode_Set(p, modeDateTime);
    EXPECT_EQ(Text(1), "03/07/2001");
}

TEST_F(DateTimePanel, A_click_on_the_status_bar_inverts_the_form_of_the_clock)
{
    Program& p = Start();
    p.main.tmrDateTimeClock.Tick();
    EXPECT_EQ(p.main.stbMain.Panel(2), "Todays: 02/29/2024   01:05:07 PM");
    p.main.stbMain.PersonClick();
    EXPECT_EQ(p.main.stbMain.Panel(2), "Todays: 02/29/2024   13:05:07");
    p.main.tmrDateTimeClock.Tick();
    EXPECT_EQ(p.main.stbMain.Panel(2), "Todays: 02/29/2024   13:05:07");
    p.main.stbMain.PersonClick();
    p.main.tmrDateTimeClock.Tick();
    EXPECT_EQ(p.main.stbMain.Panel(2), "Todays: 02/29/2024   01:05:07 PM");
}

TEST_F(DateTimePanel, In_other_modes_the_status_bar_takes_no_click)
{
    Program& p = Start();
    Mode_Set(p, modeCase);
    p.main.stbMain.SetPanel(2, "as it was");
    p.main.stbMain.PersonClick();
    EXPECT_FALSE(p.state.ClockFlag);
    EXPECT_EQ(p.main.stbMain.Panel(2), "as it was");
}

TEST_F(DateTimePanel, A_click_on_another_screen_shows_no_clock_there)
{
    Program& p = Start();
    Screen_Show(p, screenSelection, false);
    p.main.stbMain.SetPanel(2, "as it was");
    p.main.stbMain.PersonClick();
    EXPECT_EQ(p.main.stbMain.Panel(2), "as it was");
}

} // namespace
} // namespace tavo
