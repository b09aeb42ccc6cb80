#include "core/frm_main.h"

#include "core/tag_genres.h"

#include <gtest/gtest.h>

#include <set>

namespace tavo {
namespace {

struct Texts {
    const char* Name;
    int Index;
    const char *Caption, *Tip;
};

std::string Property(const Control& control, const char* property)
{
    return control.PropertyText(property).value_or("none");
}

TEST(FrmMain, Captions_and_tips_read_to_the_letter)
{
    static constexpr Texts rows[] = {
        {"chkAttr", 0, "Archive", "Mark File for Backup"},
        {"chkAttr", 1, "Read-Only", "Prohibit File from being Changed"},
        {"chkAttr", 2, "System", "File Belongs to Operating System"},
        {"chkAttr", 3, "Hidden", "Hide the File from View"},
        {"optCase", 1, "UPPER CASE", "Change All Letters to UPPER CASE"},
        {"optCase", 2, "lower case", "Change All Letters to lower case"},
        {"optCase", 3, "Smart Case", "Change Letter Case based on User Template"},
        {"chkCaseFirst", -1, "Capitalize 1st", "Capitalize the First Letter"},
        {"chkCaseWord", -1, "Use Word List", "Replace Matching Words with Words in Case Word List"},
        {"chkDateTime", 2, "Modified", "Click to Update Modified Time"},
        {"lblDateTime", 4, "hh:mm:ss PM", "Click for Now"},
        {"optmcdMode", 2, "Copy", "Make a Second Copy of the File at a New Location"},
        {"lblmcd", 1, "Favorites", ""},
        {"cmdmcdPath", -1, "...", ""},
        {"lblNameNum", 2, "Start", "Click to Reset Start Value"},
        {"lblNameNum", 3, "Digits", "Click to Automatically Set Digits Value"},
        {"lblNNStyle", -1, "Style", ""},
        {"lblTmpInsert", 0, "Insert:", ""},
        {"lblTmpInsert", 1, "<#>", "Click to Insert Counter (Ctrl+1)"},
        {"lblTmpInsert", 9, "<TR>", "Click to Insert MP3 Track"},
        {"lblTmpInsert", 11, "Empty", "Click to Apply Current Template"},
        {"optSearchType", 1, "Text", "Search and Replace based on the Text"},
        {"chkSearchCase", -1, "Match Case", "When Searching, Match Words Exactly based on Case"},
        {"chkMP3", 5, "Year", "Check to Update this Item"},
        {"cmdActPause", -1, "&Pause", ""},
    };
    const FrmMain main;
    for (const Texts& row : rows) {
        const Control* control = main.Find(row.Name, row.Index);
        ASSERT_NE(control, nullptr) << row.Name << row.Index;
        EXPECT_EQ(Property(*control, "Caption"), row.Caption) << row.Name << row.Index;
        EXPECT_EQ(control->ToolTipText.Get(), row.Tip) << row.Name << row.Index;
    }
}

TEST(FrmMain, Every_control_of_a_panel_hangs_on_it)
{
    const FrmMain main;
    struct Row {
        int Mode;
        const char* Name;
        int Index;
    };
    static constexpr Row rows[] = {{0, "chkAttr", 3},      {1, "txtCasePreCap", 6},
                                   {2, "txtDateTime", 5},  {3, "cbomcdPath", -1},
                                   {4, "txtNameNum", 0},   {4, "optNNStyle", 3},
                                   {4, "lblTmpInsert", 5}, {5, "txtSearchEnd", -1},
                                   {6, "cboMP3Genre", -1}, {7, "lblEmpty", -1}};
    for (const Row& row : rows) {
        const Control* holder = main.Find(row.Name, row.Index);
        ASSERT_NE(holder, nullptr) << row.Name;
        while (holder->Container)
            holder = holder->Container;
        EXPECT_EQ(holder->FullName(), "ctlRbRenMode(" + std::to_string(row.Mode) + ")") << row.Name;
    }
}

TEST(FrmMain, Controls_lie_within_what_holds_them)
{
    const FrmMain main;
    for (const Control* control : main.Controls()) {
        const Control* holder = control->Container;
        if (!holder || !dynamic_cast<const Frame*>(holder) || holder->Name() == "fraSelect")
            continue;
        EXPECT_LE(control->Left + control->Width, holder->Width) << control->FullName();
        EXPECT_LE(control->Top + control->Height, holder->Height) << control->FullName();
        EXPECT_GE(control->Left, 0) << control->FullName();
    }
}

TEST(FrmMain, The_columns_have_their_keys)
{
    const FrmMain main;
    const auto keys = [](const ListView& list) {
        std::vector<std::string> found;
        found.reserve(static_cast<std::size_t>(list.ColumnCount()));
        for (int i = 0; i < list.ColumnCount(); ++i)
            found.push_back(list.Column(i).Key);
        return found;
    };
    EXPECT_EQ(keys(main.lsvSelMain),
              (std::vector<std::string>{"Name", "Path", "Size", "Type", "Modified"}));
    EXPECT_EQ(keys(main.lsvRename), (std::vector<std::string>{"Name", "Path", "Size", "Type",
                                                              "Modified", "UndoName", "Errors"}));
    EXPECT_TRUE(main.lsvRename.Column(2).RightAligned);
    EXPECT_TRUE(main.lsvRename.Column(1).Shared);
}

TEST(FrmMain, The_boxes_of_a_tag_hold_what_the_tag_has_room_for)
{
    const FrmMain main;
    const int longest[] = {30, 30, 30, 29, 4, 3};
    for (int i = 1; i <= 6; ++i)
        EXPECT_EQ(main.txtMP3[i].MaxLength, longest[i - 1]) << i;
}

TEST(FrmMain, The_genres_stand_at_their_numbers)
{
    struct Row {
        int Number;
        const char* Name;
    };
    static constexpr Row rows[] = {
        {0, "Blues"},
        {7, "Hip -Hop"},
        {14, "R& B"},
        {17, "Rock"},
        {67, "Psychadelic"},
        {79, "Hard Rock"},
        {93, "Psychedelic Rock"},
        {125, "Dance Hall"},
    };
    const FrmMain main;
    ASSERT_EQ(Tag_Genres().size(), 126u);
    EXPECT_EQ(main.cboMP3Genre.ListCount(), 126);
    EXPECT_EQ(main.cboMP3Genre.ListIndex(), -1);
    for (const Row& row : rows)
        EXPECT_EQ(main.cboMP3Genre.Items()[static_cast<std::size_t>(row.Number)], row.Name);
}

TEST(FrmMain, Nothing_of_a_screen_is_shown_before_the_first_one)
{
    const FrmMain main;
    for (const char* name : {"fraSelect", "lsvRename", "picThumbnails", "picAction"})
        EXPECT_FALSE(main.Find(name)->Visible) << name;
    for (const auto& panel : main.ctlRbRenMode)
        EXPECT_FALSE(panel->Visible) << panel->Index();
    EXPECT_FALSE(main.tmrDateTimeClock.Enabled);
    EXPECT_FALSE(main.tmrRedrawThumbs.Enabled);
}

} // namespace
} // namespace tavo
