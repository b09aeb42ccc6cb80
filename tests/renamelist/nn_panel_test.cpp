#include "renamelist/nn_panel.h"

#include "core/screens.h"
#include "support/disk_ground.h"
#include "toolkit/text.h"

#include <gtest/gtest.h>

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

// The panel over a list of three files, as a person has it in front of them.
class NnPanel : public ::testing::Test {
protected:
    NnPanel() : ground(Ground::Linux), p(ground.P), s(ground.P.state), f(ground.Main)
    {
        ground.Load({"d/abc1.txt", "d/b.jpg", "d/c"});
        s.nnAutoFill = 0;
        ground.G.SetTemplates("", "");
    }

    TextBox& Box(int index) { return f.txtNameNum[index]; }
    std::string Text(int index) { return Box(index).Text; }
    // What is selected of a box: start and length.
    std::pair<int, int> Selection(int index)
    {
        return {Box(index).SelStart(), Box(index).SelLength()};
    }
    void Type(int index, const std::string& text)
    {
        Box(index).SetFocus();
        Box(index).PersonText(text);
    }
    void Press(int index, const std::string& name)
    {
        Key key;
        ASSERT_TRUE(Key_FromName(name, key)) << name;
        f.PersonKey(&Box(index), key);
    }
    void SetStyle(int style) { f.optNNStyle[style].Value = true; }
    void SetTemplate(const std::string& data)
    {
        s.Templates.push_back({"mine", data});
        s.nnAppTmpDef = static_cast<std::int16_t>(List_Last(s.Templates));
    }

    DiskGround ground;
    Program& p;
    SharedState& s;
    FrmMain& f;
};

using Selected = std::pair<int, int>;

struct StartCase {
    const char* What;
    int Style, Rows;
    std::string Typed, Wanted;
    Selected Selection;
};

} // namespace

TEST_F(NnPanel, The_start_box_holds_its_value_between_its_limits)
{
    const StartCase cases[] = {
        {"a number", 1, 3, "5", "5", {1, 0}},
        {"zero", 1, 3, "0", "0", {1, 0}},
        {"the highest one", 1, 3, "999996", "999996", {6, 0}},
        {"above the highest", 1, 3, "999997", "999996", {0, 6}},
        {"far above", 1, 1000, "1e300", "998999", {0, 6}},
        {"below zero", 1, 3, "-5", "0", {0, 1}},
        {"a numeric beginning stays as it is typed", 1, 3, "12abc", "12abc", {5, 0}},
        {"no number at all counts as zero", 1, 3, "abc", "abc", {3, 0}},
        {"more rows than numbers turn the limits round", 1, 2000000, "5", "0", {0, 1}},
        {"and a value between them stays", 1, 2000000, "-7", "-7", {2, 0}},
        {"a letter", 2, 3, "c", "c", {1, 0}},
        {"leading zeros of letters go", 2, 3, "aac", "c", {1, 0}},
        {"blanks go", 2, 3, " z ", "z", {1, 0}},
        {"small letters in the capital style", 3, 3, "ba", "BA", {2, 0}},
        {"capitals in the small style", 2, 3, "BA", "ba", {2, 0}},
        {"letters above the highest", 2, 3, "cexhn", "cexhk", {0, 5}},
        {"capitals above the highest", 3, 3, "ZZZZZZ", "CEXHK", {0, 5}},
        {"digits lie below the letters", 2, 3, "1", "a", {0, 1}},
        {"very many letters", 2, 3, std::string(400, 'z'), "cexhk", {0, 5}},
        {"very many zeros", 2, 3, std::string(400, 'a') + "b", "b", {1, 0}},
    };
    for (const StartCase& wanted : cases) {
        SCOPED_TRACE(wanted.What);
        SetStyle(wanted.Style);
        s.RenCount = wanted.Rows;
        Box(nnStartBox).Text = wanted.Typed == "c" ? "d" : "c";
        Type(nnStartBox, wanted.Typed);
        EXPECT_EQ(Text(nnStartBox), wanted.Wanted);
        EXPECT_EQ(Selection(nnStartBox), wanted.Selection);
        EXPECT_EQ(s.nnStart, wanted.Wanted);
    }
}

TEST_F(NnPanel, An_empty_start_box_leaves_the_start_as_it_was)
{
    Type(nnStartBox, "7");
    Type(nnStartBox, "");
    EXPECT_EQ(Text(nnStartBox), "");
    EXPECT_EQ(s.nnStart, "7");
}

TEST_F(NnPanel, A_new_start_shows_in_the_preview)
{
    ground.G.SetTemplates("<#>", "");
    Type(nnStartBox, "41");
    EXPECT_EQ(ground.G.Panel(2), "41");
}

struct DigitsCase {
    int Style;
    const char* Start;
    int Rows;
    const char* Wanted;
};

TEST_F(NnPanel, Digits_are_as_wide_as_start_or_number_of_rows)
{
    const DigitsCase cases[] = {
        {1, "1", 9, "1"},     {1, "1", 10, "2"},     {1, "1", 1200, "4"},
        {1, "00001", 3, "5"}, {2, "b", 25, "1"},     {2, "b", 26, "2"},
        {2, "b", 700, "3"},   {3, "BAAAAA", 3, "5"}, {3, "B", 700, "3"},
    };
    for (const DigitsCase& wanted : cases) {
        SetStyle(wanted.Style);
        s.RenCount = wanted.Rows;
        Box(nnStartBox).Text = wanted.Start;
        f.lblNameNum[nnDigitsBox].PersonClick();
        EXPECT_EQ(Text(nnDigitsBox), wanted.Wanted)
            << wanted.Start << " over " << wanted.Rows << " rows";
        EXPECT_EQ(std::to_string(s.nnDigits), wanted.Wanted);
    }
}

TEST_F(NnPanel, Digits_follow_by_themselves_where_they_are_asked_to)
{
    for (const bool follows : {false, true}) {
        s.SetDigits = follows ? 1 : 0;
        Type(nnDigitsBox, "9");
        Type(nnStartBox, follows ? "100" : "101");
        EXPECT_EQ(Text(nnDigitsBox), follows ? "3" : "9");
        Type(nnDigitsBox, "9");
        Mode_Set(p, modeNameNumber);
        EXPECT_EQ(Text(nnDigitsBox), follows ? "3" : "9");
        Type(nnStartBox, "1");
        Type(nnDigitsBox, "9");
        Texts many;
        for (int i = 0; i < 12; ++i)
            many.push_back("e/" + std::to_string(i));
        ground.Load(many);
        EXPECT_EQ(Text(nnDigitsBox), follows ? "2" : "9");
    }
}

TEST_F(NnPanel, The_label_of_the_start_box_resets_it_by_style)
{
    const char* const wanted[] = {"1", "b", "B"};
    for (int style = 1; style <= 3; ++style) {
        SetStyle(style);
        Box(nnStartBox).Text = style == 1 ? "50" : "zz";
        f.lblNameNum[nnStartBox].PersonClick();
        EXPECT_EQ(Text(nnStartBox), wanted[style - 1]);
        EXPECT_EQ(s.nnStart, wanted[style - 1]);
    }
}

struct StyleCase {
    int From;
    const char* Text;
    int To;
    const char* Wanted;
};

TEST_F(NnPanel, Another_style_converts_the_start)
{
    const StyleCase cases[] = {
        {1, "27", 2, "bb"}, {1, "27", 3, "BB"},   {2, "bb", 1, "27"}, {2, "bb", 3, "BB"},
        {3, "BB", 2, "bb"}, {3, "BA", 1, "26"},   {1, "0", 2, "a"},   {2, "a", 1, "0"},
        {1, "", 3, "A"},    {1, "701", 1, "701"}, {3, "Z", 3, "Z"},
    };
    for (const StyleCase& wanted : cases) {
        SetStyle(wanted.From);
        Box(nnStartBox).Text = wanted.Text;
        f.optNNStyle[wanted.To].PersonClick();
        EXPECT_EQ(Text(nnStartBox), wanted.Wanted) << wanted.Text << " to " << wanted.To;
        EXPECT_EQ(s.nnStart, wanted.Wanted) << wanted.Text;
        EXPECT_EQ(s.nnStyle, wanted.To);
    }
}

// -- Keys.

TEST_F(NnPanel, Ctrl_and_a_digit_insert_a_token_at_the_caret)
{
    const char* const tokens[] = {"<#>", "<ON>", "<OE>"};
    for (const int index : {nnName, nnExt})
        for (int k = 1; k <= 3; ++k) {
            Type(index, "abcd");
            Box(index).Select(1, 2);
            Press(index, "Ctrl+" + std::to_string(k));
            EXPECT_EQ(Text(index), "a" + std::string(tokens[k - 1]) + "d");
            EXPECT_EQ(Selection(index), Selected(1 + Len(tokens[k - 1]), 0));
        }
    Type(nnName, "x");
    Press(nnName, "Ctrl+4");
    Press(nnName, "2");
    EXPECT_EQ(Text(nnName), "x2");
    Type(nnStartBox, "5");
    Press(nnStartBox, "Ctrl+1");
    EXPECT_EQ(Text(nnStartBox), "5");
}

// Some windows tell the character along with Ctrl.
TEST_F(NnPanel, Ctrl_and_a_digit_do_not_type_the_digit)
{
    Type(nnName, "");
    f.PersonKey(&Box(nnName), Key{'1', shiftCtrl, '1'});
    EXPECT_EQ(Text(nnName), "<#>");
}

struct StepCase {
    const char *Text, *Up, *Down;
};

TEST_F(NnPanel, Page_keys_step_the_digits)
{
    const StepCase cases[] = {{"1", "2", "1"}, {"5", "6", "4"},    {"9", "9", "8"},
                              {"", "1", "-1"}, {"12", "13", "11"}, {"0", "1", "-1"}};
    for (const StepCase& wanted : cases) {
        Type(nnDigitsBox, wanted.Text);
        Press(nnDigitsBox, "PageUp");
        EXPECT_EQ(Text(nnDigitsBox), wanted.Up) << wanted.Text;
        Type(nnDigitsBox, wanted.Text);
        Press(nnDigitsBox, "PageDown");
        EXPECT_EQ(Text(nnDigitsBox), wanted.Down) << wanted.Text;
    }
}

struct TypingCase {
    const char *Text, *Key, *Wanted;
    int Digits;
};

TEST_F(NnPanel, A_typed_digit_takes_the_place_of_the_width)
{
    const TypingCase cases[] = {
        {"4", "7", "7", 7},   {"12", "3", "3", 3},  {"", "5", "5", 5},
        {"4", "4", "44", 44}, {"4", "0", "40", 40}, {"4", "x", "4x", 4},
    };
    for (const TypingCase& wanted : cases) {
        Type(nnDigitsBox, wanted.Text);
        Box(nnDigitsBox).Select(9, 0);
        Press(nnDigitsBox, wanted.Key);
        EXPECT_EQ(Text(nnDigitsBox), wanted.Wanted) << wanted.Text << " and " << wanted.Key;
        EXPECT_EQ(s.nnDigits, wanted.Digits) << wanted.Text << " and " << wanted.Key;
    }
}

TEST_F(NnPanel, A_change_of_the_digits_selects_them_and_shows_in_the_preview)
{
    ground.G.SetTemplates("<#>", "");
    Box(nnDigitsBox).Text = "4";
    EXPECT_EQ(Selection(nnDigitsBox), Selected(0, 1));
    EXPECT_EQ(ground.G.Panel(2), "0001");
}

struct FilterCase {
    int Style;
    const char *Key, *Wanted;
};

TEST_F(NnPanel, The_start_box_filters_keys_by_its_style)
{
    const FilterCase cases[] = {{1, "7", "7"}, {1, "a", ""},  {1, "-", ""},
                                {2, "c", "c"}, {2, "C", "c"}, {2, "7", ""},
                                {3, "c", "C"}, {3, "C", "C"}, {3, "*", ""}};
    for (const FilterCase& wanted : cases) {
        SetStyle(wanted.Style);
        Type(nnStartBox, "");
        Press(nnStartBox, wanted.Key);
        EXPECT_EQ(Text(nnStartBox), wanted.Wanted) << wanted.Key << " in style " << wanted.Style;
    }
    EXPECT_TRUE(ground.G.Desktop.Boxes.empty());
}

TEST_F(NnPanel, The_template_boxes_refuse_what_no_name_holds)
{
    for (const int index : {nnName, nnExt}) {
        ground.G.Desktop.Boxes.clear();
        Type(index, "a");
        Press(index, "*");
        Press(index, "<");
        Press(index, "b");
        EXPECT_EQ(Text(index), "a<b");
        EXPECT_EQ(ground.G.Desktop.Boxes.size(), 1U);
    }
}

// -- Focus.

TEST_F(NnPanel, The_focus_selects_all_and_the_name_boxes_are_remembered)
{
    const int remembered[] = {nnName, nnExt, nnExt, nnExt};
    ground.G.SetTemplates("\u00e4bc", "jpg");
    Box(nnStartBox).Text = "12";
    Box(nnDigitsBox).Text = "3";
    for (int index = 0; index < 4; ++index) {
        Box(index).Select(1, 0);
        Box(index).SetFocus();
        EXPECT_EQ(Selection(index), Selected(0, Len(Text(index)))) << index;
        EXPECT_EQ(s.NameBoxFocus, remembered[index]);
    }
}

struct LeaveCase {
    const char *Typed, *Left;
};

TEST_F(NnPanel, Leaving_a_template_box_takes_away_what_is_no_token)
{
    // A "<" that opens no token goes, and the ">" that is left over with it.
    const LeaveCase cases[] = {{"<X>abc", "Xabc"},       {"<e>", "e"},  {"<ER>", "ER"},
                               {"<on>_<#>", "<on>_<#>"}, {"a*b", "ab"}, {"a>b", "ab"}};
    for (const int index : {nnName, nnExt})
        for (const LeaveCase& wanted : cases) {
            Type(index, wanted.Typed);
            EXPECT_EQ(Text(index), wanted.Typed);
            Box(nnStartBox).SetFocus();
            EXPECT_EQ(Text(index), wanted.Left);
        }
}

// -- Insert labels and templates.

struct LabelCase {
    int Index;
    const char *Caption, *Tip;
};

TEST_F(NnPanel, The_insert_labels_say_what_they_insert)
{
    const LabelCase cases[] = {
        {0, "Insert:", ""},
        {1, "<#>", "Click to Insert Counter (Ctrl+1)"},
        {2, "<ON>", "Click to Insert Old Name (Ctrl+2)"},
        {3, "<OE>", "Click to Insert Old Extension (Ctrl+3)"},
        {4, "<T>", "Click to Insert MP3 Title"},
        {5, "<AR>", "Click to Insert MP3 Artist"},
        {6, "<AL>", "Click to Insert MP3 Album"},
        {7, "<G>", "Click to Insert MP3 Genre"},
        {8, "<Y>", "Click to Insert MP3 Year"},
        {9, "<TR>", "Click to Insert MP3 Track"},
        {11, "Empty", "Click to Apply Current Template"},
    };
    for (const LabelCase& wanted : cases) {
        const Label& label = f.lblTmpInsert[wanted.Index];
        EXPECT_EQ(label.Caption.Get(), wanted.Caption);
        EXPECT_EQ(label.ToolTipText.Get(), wanted.Tip);
    }
    EXPECT_EQ(f.lblNNStyle.Caption.Get(), "Style");
    EXPECT_EQ(f.lblNameNum[nnStartBox].Caption.Get(), "Start");
    EXPECT_EQ(f.lblNameNum[nnStartBox].ToolTipText.Get(), "Click to Reset Start Value");
    EXPECT_EQ(f.lblNameNum[nnDigitsBox].Caption.Get(), "Digits");
    EXPECT_EQ(f.lblNameNum[nnDigitsBox].ToolTipText.Get(),
              "Click to Automatically Set Digits Value");
    const char* const styles[] = {"Number Counter", "Letter Counter Small Case",
                                  "Letter Counter Upper Case"};
    for (int style = 1; style <= 3; ++style)
        EXPECT_EQ(f.optNNStyle[style].ToolTipText.Get(), styles[style - 1]);
}

TEST_F(NnPanel, A_click_on_an_insert_label_replaces_the_selection_of_the_active_box)
{
    for (int index = 1; index <= 9; ++index) {
        Type(nnExt, "abcd");
        Box(nnExt).Select(1, 2);
        f.lblTmpInsert[index].PersonClick();
        EXPECT_EQ(Text(nnExt), "a" + f.lblTmpInsert[index].Caption.Get() + "d");
        EXPECT_TRUE(Box(nnExt).HasFocus());
    }
    Type(nnExt, "abcd");
    f.lblTmpInsert[0].PersonClick();
    EXPECT_EQ(Text(nnExt), "abcd");
}

TEST_F(NnPanel, An_insert_label_does_nothing_while_no_box_is_active)
{
    ground.G.SetTemplates("a", "b");
    f.lsvRename.SetFocus();
    f.lblTmpInsert[1].PersonClick();
    EXPECT_EQ(Text(nnName), "a");
    EXPECT_EQ(Text(nnExt), "b");
}

struct TemplateCase {
    const char *What, *Data, *Name, *Ext, *WantedName, *WantedExt;
};

TEST_F(NnPanel, A_stored_template_is_filled_in_from_the_boxes)
{
    const TemplateCase cases[] = {
        {"what the box holds now", "<E>x:<OE>", "abc1", "jpg", "abc1x", "<OE>"},
        {"the same without digits", "<ER>_<#>:<ER>", "a1b2", "mp3", "ab_<#>", "mp"},
        {"in any case", "<e>-<er>:<E>", "a1", "txt", "a1-a", "txt"},
        {"each of them", "<E><E>:", "a1", "txt", "a1a1", ""},
        {"no colon leaves the extension empty", "<ON>_<#>", "a", "txt", "<ON>_<#>", ""},
        {"nothing before the colon", ":x", "a", "b", "", "x"},
        {"the first colon parts", "a:b:c", "", "", "a", "b:c"},
        {"what is put in is not looked at again", "<E>:<E>", "<E>", "<ER>", "<E>", "<ER>"},
        {"the empty template changes nothing", "<E>:<E>", "a1", "b2", "a1", "b2"},
        {"an empty text empties both", "", "a", "b", "", ""},
    };
    for (const TemplateCase& wanted : cases) {
        SetTemplate(wanted.Data);
        ground.G.SetTemplates(wanted.Name, wanted.Ext);
        f.lblTmpInsert[tmplCurrentLabel].PersonClick();
        EXPECT_EQ(Text(nnName), wanted.WantedName) << wanted.What;
        EXPECT_EQ(Text(nnExt), wanted.WantedExt) << wanted.What;
    }
}

TEST_F(NnPanel, Behind_a_template_the_caret_stands_at_the_end)
{
    SetTemplate("<ON>_<#>:<OE>");
    Type(nnExt, "abc");
    Box(nnExt).Select(0, 0);
    Tmpl_Load(p, s.nnAppTmpDef);
    EXPECT_EQ(Selection(nnExt), Selected(4, 0));
    EXPECT_EQ(ground.G.Panel(2), "abc1_1.txt");
}

TEST_F(NnPanel, In_another_mode_a_template_goes_to_the_search_boxes_as_it_is)
{
    SetTemplate("<E>a:b<ER>");
    ground.G.SetTemplates("x", "y");
    Mode_Set(p, modeSearchReplace);
    Tmpl_Load(p, s.nnAppTmpDef);
    EXPECT_EQ(f.txtSearchFind.Text.Get(), "<E>a");
    EXPECT_EQ(f.txtSearchReplace.Text.Get(), "b<ER>");
    EXPECT_EQ(Text(nnName), "x");
}

TEST_F(NnPanel, A_template_that_there_is_not_changes_nothing)
{
    ground.G.SetTemplates("a", "b");
    for (const int index : {-1, 1, 99})
        Tmpl_Load(p, index);
    EXPECT_EQ(Text(nnName), "a");
    EXPECT_EQ(Text(nnExt), "b");
}

} // namespace tavo
