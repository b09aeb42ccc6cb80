#include "settings/settings_file.h"

#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

std::string Value_Of(const Program& p, const char* name)
{
    const Variable* variable = Variable_Find(name);
    return variable ? Variable_Text(p.state, *variable) : "no such variable";
}

class SettingsFile : public testing::Test {
protected:
    ProgramRig rig{MemoryDisk::Flavour::Posix};
};

TEST_F(SettingsFile, Without_a_file_everything_stands_on_its_default)
{
    struct Row {
        const char *Name, *Text;
    };
    static constexpr Row rows[] = {{"SavePos", "1"},       {"SaveDef", "1"},
                                   {"actClose", "0"},      {"ShowFile", "1"},
                                   {"SetDigits", "0"},     {"PreList", "1"},
                                   {"ProExt", "1"},        {"SupWarnRen", "0"},
                                   {"SupWarnUndo", "0"},   {"AutoSelNext", "1"},
                                   {"AutoThumbs", "0"},    {"RetRename", "1"},
                                   {"RenMode", "4"},       {"ColViewWin", "-2147483643"},
                                   {"Scheme", "0"},        {"ThumbCaption", "True"},
                                   {"Gif", "0"},           {"tbsAddress", "1"},
                                   {"tbsTextLabels", "1"}, {"tbtTextLabels", "1"},
                                   {"tbvTextLabels", "1"}, {"SelPreview", "0"},
                                   {"ccMode", "3"},        {"ccCap", "1"},
                                   {"ccWord", "0"},        {"ccTemp1", " "},
                                   {"ccTemp2", "_"},       {"ccTemp3", "-"},
                                   {"ccTemp4", ""},        {"nnStyle", "1"},
                                   {"nnStart", "1"},       {"nnDigits", "1"},
                                   {"nnAppTmpDef", "0"},   {"nnAppTmp", "0"},
                                   {"nnAutoFill", "1"},    {"srMode", "3"},
                                   {"srMatchCase", "0"},   {"srType", "1"},
                                   {"dtCreate", "1"},      {"dtMod", "0"},
                                   {"dtAccess", "0"},      {"mcdMode", "2"},
                                   {"lsvView", "3"},       {"CurFile", "/app"}};
    Program& p = rig.Start();
    for (const Row& row : rows)
        EXPECT_EQ(Value_Of(p, row.Name), row.Text) << row.Name;
    EXPECT_EQ(p.state.Filters[0].Name, "All Files");
    EXPECT_EQ(p.state.Filters[0].Data, "*.*");
    EXPECT_EQ(p.state.Templates[0].Name, "Empty");
    EXPECT_EQ(p.state.Templates[0].Data, "<E>:<E>");
    EXPECT_EQ(p.state.ThumbSchemes[0].Name, "Tavo Default");
    EXPECT_EQ(p.state.ThumbSchemes[0].Data,
              "80,80,3,-2147483633,-2147483635,-2147483633,2,-2147483643,-2147483630,-2147483643");
    for (const NamedList* list :
         {&p.state.Favorites, &p.state.Windows, &p.state.Filters, &p.state.Templates})
        EXPECT_EQ(List_Last(*list), 0);
    EXPECT_TRUE(p.state.Favorites[0].Name.empty());
}

struct Value {
    const char *Line, *Name, *Text;
};

TEST_F(SettingsFile, Values_are_read_by_the_rules_of_their_kind)
{
    static constexpr Value rows[] = {
        // Ranges, where the key has one.
        {"RenMode=0", "RenMode", "0"},
        {"RenMode=9", "RenMode", "4"},
        {"RenMode=7", "RenMode", "4"},
        {"RenMode=-1", "RenMode", "4"},
        {"ccMode=4", "ccMode", "3"},
        {"nnStyle=0", "nnStyle", "1"},
        {"nnStyle=3", "nnStyle", "3"},
        {"srMode=5", "srMode", "3"},
        {"srType=3", "srType", "1"},
        {"mcdMode=3", "mcdMode", "2"},
        {"mcdMode=1", "mcdMode", "1"},
        {"lsvView=1", "lsvView", "3"},
        {"lsvView=2", "lsvView", "2"},
        {"nnAutoFill=2", "nnAutoFill", "1"},
        {"nnAutoFill=0", "nnAutoFill", "0"},
        // A flag with another number is not corrected.
        {"Gif=7", "Gif", "7"},
        {"ccCap=2", "ccCap", "2"},
        // What is no value leaves the variable, which is 0 on a first load.
        {"RenMode=abc", "RenMode", "0"},
        {"tbsAddress=abc", "tbsAddress", "0"},
        {"tbsAddress=256", "tbsAddress", "0"},
        {"tbsAddress=-1", "tbsAddress", "0"},
        {"ColViewWin=2147483648", "ColViewWin", "0"},
        {"nnDigits=12abc", "nnDigits", "0"},
        {"nnDigits=40000", "nnDigits", "0"},
        {"nnStyle=abc", "nnStyle", "1"}, // 0 lies outside its range
        // Other forms of a number.
        {"nnDigits=2.5", "nnDigits", "2"},
        {"nnDigits=3.5", "nnDigits", "4"},
        {"nnDigits=&H5", "nnDigits", "5"},
        {"ColViewWin=16711680", "ColViewWin", "16711680"},
        // A key without a value is a missing one.
        {"tbsAddress=", "tbsAddress", "1"},
        // Booleans
        {"ThumbCaption=False", "ThumbCaption", "False"},
        {"ThumbCaption=true", "ThumbCaption", "True"},
        {"ThumbCaption=0", "ThumbCaption", "False"},
        {"ThumbCaption=maybe", "ThumbCaption", "True"}, // as the scheme list set it
        // Starred texts
        {"ccTemp1=* *", "ccTemp1", " "},
        {"ccTemp1= ", "ccTemp1", " "},
        {"ccTemp1=*x*", "ccTemp1", "x"},
        {"ccTemp1=x", "ccTemp1", "x"},
        {"ccTemp1=***", "ccTemp1", "*"},
        {"ccTemp2=**", "ccTemp2", ""},
        {"ccTemp4=*", "ccTemp4", ""},
        // Key names are blind to case.
        {"SELPREVIEW=1", "SelPreview", "1"},
        // Templates are read before, so that the index can be looked at.
        {"nnAppTmpDef=1", "nnAppTmpDef", "0"},
        {"nnAppTmpDef=-3", "nnAppTmpDef", "0"},
    };
    for (const Value& row : rows) {
        ProgramRig one(MemoryDisk::Flavour::Posix);
        Program& p = one.Start("", "[Defaults]\n" + std::string(row.Line) + "\n");
        EXPECT_EQ(Value_Of(p, row.Name), row.Text) << row.Line;
    }
}

TEST_F(SettingsFile, A_bad_value_leaves_a_later_load_as_it_stood)
{
    Program& p = rig.Start("", "[Settings]\nProExt=1\n");
    rig.Profile.SetText("/app/Tavo.ini", "[Settings]\nProExt=x\nPreList=0\n");
    p.state.ProExt = 9;
    Ini_Load(p, "Settings", "/app/Tavo.ini");
    EXPECT_EQ(p.state.ProExt, 9);
    EXPECT_EQ(p.state.PreList, 0);
}

struct Pushed {
    const char *Line, *Control;
    int Index;
    const char *Property, *Text;
};

TEST_F(SettingsFile, Values_reach_their_controls)
{
    static constexpr Pushed rows[] = {
        {"ccMode=2", "optCase", 2, "Value", "1"},
        {"ccMode=9", "optCase", 3, "Value", "1"},
        {"ccCap=0", "chkCaseFirst", -1, "Value", "0"},
        {"ccWord=1", "chkCaseWord", -1, "Value", "1"},
        {"ccTemp5=*.*", "txtCasePreCap", 5, "Text", "."},
        {"nnStyle=2", "optNNStyle", 2, "Value", "1"},
        {"nnStart=42", "txtNameNum", 2, "Text", "42"},
        {"nnDigits=6", "txtNameNum", 3, "Text", "6"},
        {"srMode=1", "optSearchMode", 1, "Value", "1"},
        {"srMatchCase=1", "chkSearchCase", -1, "Value", "1"},
        {"srType=2", "optSearchType", 2, "Value", "1"},
        {"dtCreate=0", "chkDateTime", 1, "Value", "0"},
        {"dtMod=1", "chkDateTime", 2, "Value", "1"},
        {"dtAccess=1", "chkDateTime", 3, "Value", "1"},
        {"mcdMode=1", "optmcdMode", 1, "Value", "1"},
        {"nnAppTmpDef=9", "lblTmpInsert", 11, "Caption", "Empty"},
    };
    for (const Pushed& row : rows) {
        ProgramRig one(MemoryDisk::Flavour::Posix);
        Program& p = one.Start("", "[Defaults]\n" + std::string(row.Line) + "\n");
        const Control* control = p.main.Find(row.Control, row.Index);
        ASSERT_NE(control, nullptr) << row.Control;
        EXPECT_EQ(control->PropertyText(row.Property).value_or("none"), row.Text) << row.Line;
    }
}

struct ToolPushed {
    const char *Line, *Tool, *Property, *Text;
};

TEST_F(SettingsFile, Values_reach_their_tools)
{
    static constexpr ToolPushed rows[] = {
        {"RenMode=5", "ID_RenameList", "ListIndex", "5"},
        {"ThumbCaption=True", "ID_ThumbCaption", "Caption", "&Hide Caption"},
        {"ThumbCaption=False", "ID_ThumbCaption", "Caption", "&Show Caption"},
        {"tbsAddress=0", "ID_tbAddress", "Checked", "False"},
        {"tbsTextLabels=0", "ID_tbTextLabels", "Checked", "False"},
        {"tbsTextLabels=0", "ID_CreateList", "Style", "0"},
        {"nnAppTmp=1", "ID_TmpApplySel", "Checked", "True"},
        {"nnAutoFill=0", "ID_AutoFill", "Checked", "False"},
        {"nnAutoFill=1", "ID_AutoFill", "Checked", "True"},
        {"SortDis=17", "ID_SelDistance", "Text", "17"},
        {"lsvView=2", "ID_ArrangeList", "Checked", "True"},
        {"lsvView=3", "ID_ArrangeDetails", "Checked", "True"},
    };
    for (const ToolPushed& row : rows) {
        ProgramRig one(MemoryDisk::Flavour::Posix);
        Program& p = one.Start("", "[Defaults]\n" + std::string(row.Line) + "\n");
        const Tool* tool = p.main.atbMain.Find(row.Tool);
        ASSERT_NE(tool, nullptr) << row.Tool;
        EXPECT_EQ(tool->PropertyText(row.Property).value_or("none"), row.Text) << row.Line;
    }
}

TEST_F(SettingsFile, The_default_template_is_shown_by_its_name)
{
    Program& p = rig.Start("", "[Templates]\nDay=d:e\n[Defaults]\nnnAppTmpDef=1\n");
    EXPECT_EQ(p.state.nnAppTmpDef, 1);
    EXPECT_EQ(p.main.lblTmpInsert[tmplCurrentLabel].Caption.Get(), "Day");
    EXPECT_EQ(p.main.lblTmpInsert[tmplCurrentLabel].Tag.Get(), "1");
}

TEST_F(SettingsFile, A_load_in_folder_mode_falls_back_to_files)
{
    rig.Disk.AddFolder("/d/sub");
    Program& p = rig.Start("/d/", "[Defaults]\nnnStart=1\n");
    rig.Click("ID_SelFolder");
    EXPECT_EQ(p.state.SelFolderMode, 1);
    rig.Click("ID_DefLoad");
    EXPECT_EQ(p.state.SelFolderMode, 0);
    EXPECT_FALSE(p.main.atbMain.Find("ID_SelFolder")->Checked);
    EXPECT_EQ(p.main.atbMain.Find("ID_SelFolder")->Caption.Get(), "Files");
    EXPECT_TRUE(p.main.atbMain.Find("ID_SelSubFiles")->Enabled);
}

// -- Lists

TEST_F(SettingsFile, Rows_of_the_file_stand_behind_the_built_in_one)
{
    Program& p = rig.Start("", "[Filters]\nPictures=*.jpg\nAll Files=a*\n");
    ASSERT_EQ(List_Last(p.state.Filters), 2);
    EXPECT_EQ(p.state.Filters[0].Name, "All Files");
    EXPECT_EQ(p.state.Filters[0].Data, "*.*");
    EXPECT_EQ(p.state.Filters[1].Name, "Pictures");
    EXPECT_EQ(p.state.Filters[2].Name, "All Files");
    EXPECT_EQ(p.state.Filters[2].Data, "a*");
}

TEST_F(SettingsFile, A_name_is_cut_after_its_value_was_read)
{
    struct Row {
        const char* Section;
        NamedList SharedState::*List;
        std::size_t Longest;
    };
    static constexpr Row rows[] = {
        {"Favorites", &SharedState::Favorites, 30},
        {"Filters", &SharedState::Filters, 20},
        {"Templates", &SharedState::Templates, 30},
        {"ThumbSchemes", &SharedState::ThumbSchemes, 30},
        {"Windows", &SharedState::Windows, 30},
    };
    const std::string name(35, 'n');
    for (const Row& row : rows) {
        ProgramRig one(MemoryDisk::Flavour::Posix);
        Program& p = one.Start("", "[" + std::string(row.Section) + "]\n" + name + "=value\n");
        const NamedList& list = p.state.*row.List;
        ASSERT_EQ(List_Last(list), 1) << row.Section;
        EXPECT_EQ(list[1].Name, name.substr(0, row.Longest)) << row.Section;
        EXPECT_EQ(list[1].Data, "value") << row.Section;
    }
}

TEST_F(SettingsFile, A_name_is_cut_by_characters)
{
    std::string name;
    for (int i = 0; i < 35; ++i)
        name += "ä";
    Program& p = rig.Start("", "[Favorites]\n" + name + "=/x/\n");
    EXPECT_EQ(p.state.Favorites[1].Name.size(), 60u);
}

TEST_F(SettingsFile, An_entry_without_a_value_stays_in_its_list)
{
    Program& p = rig.Start("", "[Favorites]\nA=/a/\nB=\nC=/c/\n");
    ASSERT_EQ(List_Last(p.state.Favorites), 3);
    EXPECT_EQ(p.state.Favorites[2].Name, "B");
    EXPECT_EQ(p.state.Favorites[2].Data, "");
}

TEST_F(SettingsFile, More_names_than_the_buffer_holds_lose_their_tail)
{
    std::string text = "[Favorites]\n";
    for (int i = 0; i < 200; ++i)
        text += std::string(28, 'k')
                + (i < 10    ? "00"
                   : i < 100 ? "0"
                             : "")
                + std::to_string(i) + "=/v/\n";
    Program& p = rig.Start("", text);
    // 2046 bytes at 32 a name: 63 whole ones, and 30 bytes of the next.
    ASSERT_EQ(List_Last(p.state.Favorites), 64);
    EXPECT_EQ(p.state.Favorites[63].Data, "/v/");
    EXPECT_EQ(p.state.Favorites[64].Data, "") << "its name is cut short";
}

TEST_F(SettingsFile, A_long_value_is_cut_to_the_buffer)
{
    Program& p = rig.Start("", "[Templates]\nLong=" + std::string(3000, 'x') + "\n");
    EXPECT_EQ(p.state.Templates[1].Data.size(), 2047u);
}

TEST_F(SettingsFile, Words_come_in_the_files_order_whatever_their_numbers)
{
    Program& p = rig.Start("", "[CaseWordList]\n3=DVD\n1=MP3\nx=NASA\n2=\n");
    EXPECT_EQ(p.state.CaseWordList, (std::vector<std::string>{"", "DVD", "MP3", "NASA", ""}));
}

TEST_F(SettingsFile, A_list_read_anew_forgets_the_old_rows)
{
    Program& p = rig.Start("", "[Favorites]\nA=/a/\nB=/b/\n");
    rig.Profile.SetText("/app/Tavo.ini", "[Favorites]\nC=/c/\n");
    Ini_Load(p, "Favorites", "/app/Tavo.ini");
    ASSERT_EQ(List_Last(p.state.Favorites), 1);
    EXPECT_EQ(p.state.Favorites[1].Name, "C");
}

TEST_F(SettingsFile, Reading_the_schemes_puts_the_built_in_one_in_force)
{
    Program& p = rig.Start();
    p.state.Scheme = "mine";
    p.state.ThumbLook.CaptionShown = false;
    Ini_Load(p, "ThumbSchemes", "/app/Tavo.ini");
    EXPECT_EQ(p.state.Scheme, "Tavo Default");
    EXPECT_TRUE(p.state.ThumbLook.CaptionShown);
    EXPECT_TRUE(p.main.atbMain.Find("ID_AlignCenter")->Checked);
    EXPECT_EQ(p.main.tmrRedrawThumbs.Interval, 100);
}

TEST_F(SettingsFile, An_unknown_section_is_passed_over)
{
    Program& p = rig.Start("", "[Nothing]\nRenMode=1\n");
    Ini_Load(p, "Nothing", "/app/Tavo.ini");
    EXPECT_EQ(p.state.RenMode, modeNameNumber);
}

// -- Places of windows

TEST_F(SettingsFile, A_record_of_a_place_is_read_field_by_field)
{
    struct Row {
        const char* Text;
        int Left, Top, Width, Height, State;
    };
    static constexpr Row rows[] = {
        {"100,200,300,400,2", 100, 200, 300, 400, 2},
        {"", 0, 0, 0, 0, 0},
        {"5", 5, 0, 0, 0, 0},
        {"1,2", 1, 2, 0, 0, 0},
        {"1,,3,4,1", 1, 0, 3, 4, 1},
        {"-15,-30.5,1000.5,2E3,0", -15, -30, 1000, 2000, 0},
        {"1,2,3,4,2,9,9", 1, 2, 3, 4, 2},
    };
    for (const Row& row : rows) {
        WindowPos pos{7, 7, 7, 7, 7};
        Pos_Parse(pos, row.Text);
        EXPECT_EQ(pos.Left, row.Left) << row.Text;
        EXPECT_EQ(pos.Top, row.Top) << row.Text;
        EXPECT_EQ(pos.Width, row.Width) << row.Text;
        EXPECT_EQ(pos.Height, row.Height) << row.Text;
        EXPECT_EQ(pos.State, row.State) << row.Text;
    }
}

TEST_F(SettingsFile, A_field_that_is_no_number_stays_as_it_was)
{
    WindowPos pos{1, 2, 3, 4, 1};
    Pos_Parse(pos, "10,x,30,99999999999,70000");
    EXPECT_EQ(pos.Left, 10);
    EXPECT_EQ(pos.Top, 2);
    EXPECT_EQ(pos.Width, 30);
    EXPECT_EQ(pos.Height, 4);
    EXPECT_EQ(pos.State, 1);
}

TEST_F(SettingsFile, The_main_window_takes_its_saved_place)
{
    Program& p = rig.Start("", "[Position]\nMain=150,300,9000,7500,0\nViewer=1,2,3,4,2\n");
    EXPECT_EQ(p.main.Left(), 150);
    EXPECT_EQ(p.main.Top(), 300);
    EXPECT_EQ(p.main.Width(), 9000);
    EXPECT_EQ(p.main.Height(), 7500);
    EXPECT_EQ(p.main.State(), WindowState::Normal);
    EXPECT_EQ(p.state.ViewerPos.Width, 3);
    EXPECT_EQ(p.state.ViewerPos.State, 2);
}

TEST_F(SettingsFile, A_place_without_size_gives_the_default_and_still_maximises)
{
    for (const char* text : {"100,200,0,0,2", "100,200,5000,0,2", "0,0,-1,4000,2"}) {
        ProgramRig one(MemoryDisk::Flavour::Posix);
        Program& p = one.Start("", "[Position]\nMain=" + std::string(text) + "\n");
        EXPECT_EQ(p.main.Width(), 12000) << text;
        EXPECT_EQ(p.main.Height(), 9000) << text;
        EXPECT_EQ(p.main.Left(), (28800 - 12000) / 2.0) << text;
        EXPECT_EQ(p.main.State(), WindowState::Maximised) << text;
    }
}

TEST_F(SettingsFile, Windows_dialect_reads_the_same)
{
    ProgramRig windows;
    windows.Disk.AddFolder("C:\\pics");
    Program& p = windows.Start("", "[Defaults]\r\nPath=C:\\pics\r\nRenMode=5\r\n");
    EXPECT_EQ(p.state.StartPath, "C:\\pics\\");
    EXPECT_EQ(p.state.RenMode, modeSearchReplace);
}

} // namespace
} // namespace tavo
