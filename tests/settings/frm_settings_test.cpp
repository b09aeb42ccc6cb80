#include "settings_ground.h"

#include "settings/settings_ok.h"

namespace tavo {
namespace {

class FrmSettingsTest : public SettingsGround {};

TEST_F(FrmSettingsTest, It_opens_on_the_page_of_the_options)
{
    EXPECT_EQ(form.Caption(), "Settings");
    EXPECT_EQ(form.ataSettings.SelectedKey(), "Defaults");
    EXPECT_EQ(form.CurPage, -1);
    EXPECT_EQ(form.CurRow, -1);
    EXPECT_FALSE(form.ItemDirty);
    for (int page = 0; page <= lastListPage; ++page)
        EXPECT_FALSE(Dirty(page)) << page;
}

TEST_F(FrmSettingsTest, Six_pages_have_their_keys_and_captions)
{
    struct Row {
        const char *Key, *Caption;
    };
    const Row rows[] = {{"Defaults", "&Defaults"},   {"Templates", "&Templates"},
                        {"Favorites", "Fa&vorites"}, {"Filters", "&Filters"},
                        {"Schemes", "&Schemes"},     {"Windows", "&Windows"}};
    ASSERT_EQ(form.ataSettings.Pages().size(), std::size(rows));
    for (std::size_t page = 0; page < std::size(rows); ++page) {
        EXPECT_EQ(form.ataSettings.Pages()[page].Key, rows[page].Key);
        EXPECT_EQ(form.ataSettings.Pages()[page].Caption, rows[page].Caption);
        EXPECT_EQ(form.ataSettings.Pages()[page].Panel, &form.atpSettings[static_cast<int>(page)]);
    }
}

TEST_F(FrmSettingsTest, List_pages_have_their_columns_labels_and_lengths)
{
    struct Row {
        int Page;
        const char* Column;
        int Box;
        const char* Label;
        int NameLength;
        bool Locked;
    };
    const Row rows[] = {{pageTemplates, "Filename:Ext", 0, "File Name", 30, false},
                        {pageFavorites, "Path", 2, "Path", 30, false},
                        {pageFilters, "Filter", 3, "Filter", 20, false},
                        {pageSchemes, "Data", 4, "Scheme", 30, true},
                        {pageWindows, "Data", 5, "Data", 30, true}};
    for (const Row& row : rows) {
        const ListView& list = form.lsvSettings[row.Page];
        ASSERT_EQ(list.ColumnCount(), 2) << row.Page;
        EXPECT_EQ(list.Column(0).Caption, "Name") << row.Page;
        EXPECT_EQ(list.Column(1).Caption, row.Column) << row.Page;
        EXPECT_EQ(form.lblName[row.Page].Caption.Get(), "Name") << row.Page;
        EXPECT_EQ(form.lblData[row.Box].Caption.Get(), row.Label) << row.Page;
        EXPECT_EQ(form.txtName[row.Page].MaxLength.Get(), row.NameLength) << row.Page;
        EXPECT_EQ(form.txtData[row.Box].Locked.Get(), row.Locked) << row.Page;
        EXPECT_EQ(form.ataSettings.PageOf(list), row.Page);
        EXPECT_EQ(form.ataSettings.PageOf(form.txtData[row.Box]), row.Page);
        EXPECT_EQ(form.ataSettings.PageOf(form.cmdNew[row.Page]), row.Page);
    }
    EXPECT_EQ(form.lblData[templateExt].Caption.Get(), "Ext");
    EXPECT_EQ(form.lblName[0].Caption.Get(), "Mode");
    EXPECT_EQ(form.lblName[0].ToolTipText.Get(), "Rename Mode for Template");
    for (const int page : {pageFavorites, pageWindows})
        EXPECT_EQ(form.lblName[page].ToolTipText.Get(), "Click to Enter Path");
    EXPECT_EQ(form.cmdEditScheme.Caption.Get(), "&Edit...");
}

TEST_F(FrmSettingsTest, Insert_labels_show_their_tokens)
{
    struct Row {
        const char *Caption, *Tip;
    };
    const Row rows[] = {{"Insert:", ""},
                        {"<T>", "MP3 Title - Used by Renaming"},
                        {"<AR>", "MP3 Artist - Used by Renaming"},
                        {"<AL>", "MP3 Album - Used by Renaming"},
                        {"<Y>", "MP3 Year - Used by Renaming"},
                        {"<G>", "MP3 Genre - Used by Renaming"},
                        {"<TR>", "MP3 Track - Used by Renaming"},
                        {"<#>", "Number Counter - Used by Renaming"},
                        {"<ON>", "Old Name - Used by Renaming"},
                        {"<OE>", "Old Extension - Used by Renaming"},
                        {"<E>", "Existing Text - Used by Template"},
                        {"<ER>", "Existing Text (Remove Numbers) - Used by Template"}};
    for (int i = 0; i < static_cast<int>(std::size(rows)); ++i) {
        EXPECT_EQ(form.lblTmpInsert[i].Caption.Get(), rows[i].Caption);
        EXPECT_EQ(form.lblTmpInsert[i].ToolTipText.Get(), rows[i].Tip) << rows[i].Caption;
    }
}

TEST_F(FrmSettingsTest, The_pages_are_filled_from_the_lists)
{
    EXPECT_EQ(Rows(pageTemplates),
              (Texts{"One|a:b", "Two|<ON>:<OE>", "Three|plain", "Four|x:y:z"}));
    EXPECT_EQ(Rows(pageFavorites), (Texts{"Home|/home/", "Work|/jobs/"}));
    EXPECT_EQ(Rows(pageFilters), (Texts{"Pictures|*.jpg;*.png"}));
    EXPECT_EQ(Rows(pageSchemes), (Texts{"Dark|100,90,3,1,2,3,0,4,5,6"}));
    EXPECT_EQ(Rows(pageWindows), Texts{});
    struct Row {
        int Page;
        const char* Icon;
    };
    for (const Row& row : {Row{pageTemplates, "Tmp"}, Row{pageFavorites, "Fav"},
                           Row{pageFilters, "Fil"}, Row{pageSchemes, "Sch"}}) {
        EXPECT_EQ(form.lsvSettings[row.Page].SmallIcon(1), row.Icon);
        EXPECT_EQ(form.lsvSettings[row.Page].SelectedItem(), 1) << row.Icon;
        EXPECT_EQ(form.lsvSettings[row.Page].SelCount(), 1) << row.Icon;
    }
    EXPECT_EQ(form.lstCaseWord.Items(), (Texts{"MP3", "USA"}));
    EXPECT_FALSE(form.cmdCWRemove.Enabled);
}

TEST_F(FrmSettingsTest, The_default_template_carries_its_mark)
{
    form.Unload();
    p.state.nnAppTmpDef = 2;
    Load();
    EXPECT_EQ(Rows(pageTemplates),
              (Texts{"One|a:b", "Two|<ON>:<OE>|DEF", "Three|plain", "Four|x:y:z"}));
}

// -- The options

struct OptionRow {
    int Box;
    const char *Caption, *Tip, *Key;
};
constexpr OptionRow optionRows[] = {
    {1, "Save Window Position on Exit", "", "SavePos"},
    {2, "Save Defaults on Exit", "", "SaveDef"},
    {3, "Show File Selector at Start Up", "", "ShowFile"},
    {4, "Auto Set Digits", "Automatically Set Digit Field when other Fields Change", "SetDigits"},
    {5, "Preserve List Order", "Number Files According to List Position", "PreList"},
    {6, "Suppress Rename Warnings", "", "SupWarnRen"},
    {7, "Suppress Undo Warnings", "", "SupWarnUndo"},
    {8, "Auto Select Next Single File on Rename", "", "AutoSelNext"},
    {9, "Return Key Renames Single Files", "", "RetRename"},
    {10, "Create Thumbnails during Viewer Use", "", "AutoThumbs"},
    {11, "Protect Extension on Auto Fill", "", "ProExt"},
    {12, "Close Action Panel after Renaming", "", "actClose"},
};

TEST_F(FrmSettingsTest, Each_option_box_goes_with_its_key)
{
    EXPECT_EQ(form.chkSet[0].Caption.Get(), "Show in \"Send To\" Menu");
    for (const OptionRow& row : optionRows) {
        EXPECT_EQ(form.chkSet[row.Box].Caption.Get(), row.Caption);
        EXPECT_EQ(form.chkSet[row.Box].ToolTipText.Get(), row.Tip) << row.Caption;
        const Variable& variable = *Variable_Find(row.Key);
        for (const int value : {1, 0, 1}) {
            form.chkSet[row.Box].Value = value;
            Settings_Options_Read(p);
            EXPECT_EQ(Variable_Text(p.state, variable), std::to_string(value)) << row.Caption;
        }
        form.chkSet[row.Box].Value = 0;
        Settings_Options_Show(p);
        EXPECT_EQ(form.chkSet[row.Box].Value.Get(), 1) << row.Caption;
    }
}

TEST_F(FrmSettingsTest, A_flag_that_is_not_1_shows_no_tick)
{
    p.state.PreList = 5;
    Settings_Options_Show(p);
    EXPECT_EQ(form.chkSet[5].Value.Get(), 0);
}

TEST_F(FrmSettingsTest, The_bar_scrolls_what_does_not_fit)
{
    form.fraDefaults.Height = 9000;
    form.picDefaults.Height = 4000;
    form.Defaults_Scroll_Measure();
    EXPECT_EQ(form.vsbDefaults.Max.Get(), 5000);
    EXPECT_TRUE(form.vsbDefaults.Enabled);
    form.vsbDefaults.PersonScroll(1200);
    EXPECT_EQ(form.fraDefaults.Top.Get(), -1200);
    form.vsbDefaults.PersonDrag(700); // while the thumb is held
    EXPECT_EQ(form.fraDefaults.Top.Get(), -700);
    form.fraDefaults.Height = 3000;
    form.Defaults_Scroll_Measure();
    EXPECT_EQ(form.fraDefaults.Top.Get(), 0);
    EXPECT_FALSE(form.vsbDefaults.Enabled);
}

TEST_F(FrmSettingsTest, Every_option_lies_within_its_frame)
{
    for (const auto& box : form.chkSet) {
        EXPECT_GE(box->Top.Get(), 0) << box->FullName();
        EXPECT_LE(box->Top + box->Height, form.fraDefaults.Height.Get()) << box->FullName();
    }
}

// A control lies within what holds it, and beside its neighbours.
bool Lies_Within(const Control& control)
{
    const Control* holder = control.Container;
    const double width = holder ? holder->Width.Get() : control.Owner().Width();
    const double height = holder ? holder->Height.Get() : control.Owner().Height();
    return control.Left >= 0 && control.Top >= 0 && control.Left + control.Width <= width
           && control.Top + control.Height <= height;
}

bool Lie_Apart(const Control& one, const Control& other)
{
    return one.Left + one.Width <= other.Left || other.Left + other.Width <= one.Left
           || one.Top + one.Height <= other.Top || other.Top + other.Height <= one.Top;
}

TEST_F(FrmSettingsTest, Controls_have_a_place_of_their_own)
{
    for (const Control* one : form.Controls()) {
        EXPECT_GT(one->Width * one->Height, 0) << one->FullName();
        if (one->Name() == "fraDefaults") // it scrolls
            continue;
        EXPECT_TRUE(Lies_Within(*one)) << one->FullName();
        if (one->Name() == "atpSettings") // one behind the other
            continue;
        for (const Control* other : form.Controls())
            if (other != one && other->Container == one->Container) {
                EXPECT_TRUE(Lie_Apart(*one, *other)) << one->FullName() << other->FullName();
            }
    }
}

TEST_F(FrmSettingsTest, The_send_to_box_shows_what_stands_and_acts_at_once)
{
    EXPECT_EQ(form.chkSet[0].Value.Get(), 0);
    form.chkSet[0].PersonClick();
    EXPECT_TRUE(rig.Disk.InSendTo);
    form.cmdCancel.PersonClick();
    EXPECT_TRUE(rig.Disk.InSendTo); // Cancel does not undo it
    Load();
    EXPECT_EQ(form.chkSet[0].Value.Get(), 1);
    form.chkSet[0].PersonClick();
    EXPECT_FALSE(rig.Disk.InSendTo);
}

// Where some links are missing, opening must not take the others away.
class HalfSentDisk : public MemoryDisk {
public:
    HalfSentDisk() : MemoryDisk(Flavour::Posix) {}
    bool SendToStands() override { return stands; }
    void SendToSet(bool) override { ++sets; }
    bool stands = true;
    int sets = 0;
};

TEST(FrmSettingsSendTo, Showing_what_stands_changes_nothing)
{
    HalfSentDisk disk;
    disk.AddFolder("/app/");
    MemoryProfile profile;
    ScriptedDesktop desktop;
    Program p(disk, profile, desktop, {"/app/", ""});
    p.Start();
    for (const bool stands : {true, false, true}) {
        disk.stands = stands;
        p.Settings().EnsureLoaded();
        EXPECT_EQ(p.Settings().chkSet[0].Value.Get(), stands ? 1 : 0);
        p.Settings().Unload();
    }
    EXPECT_EQ(disk.sets, 0);
    p.Settings().EnsureLoaded();
    p.Settings().chkSet[0].PersonClick();
    EXPECT_EQ(disk.sets, 1);
}

// -- The words

TEST_F(FrmSettingsTest, Words_are_added_trimmed_and_once)
{
    struct Row {
        const char *Text, *Said;
        int Count;
    };
    const Row rows[] = {{"", "There is no Word to Add!", 2},
                        {"   ", "There is no Word to Add!", 2},
                        {"MP3", "That Word is Already in the List!", 2},
                        {"  MP3 ", "That Word is Already in the List!", 2},
                        {"mp3", "", 3}, // another case is another word
                        {" DVD  ", "", 4}};
    for (const Row& row : rows) {
        form.ListDirty[0] = false;
        Paste(form.txtCaseWord, row.Text);
        form.cmdCWAdd.PersonClick();
        const bool isRefused = *row.Said != '\0';
        EXPECT_EQ(Said(), isRefused ? Texts{row.Said} : Texts{}) << row.Text;
        EXPECT_EQ(form.lstCaseWord.ListCount(), row.Count) << row.Text;
        EXPECT_EQ(Dirty(0), !isRefused) << row.Text;
        EXPECT_EQ(form.cmdCWRemove.Enabled, row.Count > 2) << row.Text;
    }
    EXPECT_EQ(form.lstCaseWord.Items().back(), "DVD");
}

TEST_F(FrmSettingsTest, Return_in_the_word_box_adds_and_selects)
{
    Paste(form.txtCaseWord, "DVD");
    Press(form.txtCaseWord, "Return");
    EXPECT_EQ(form.lstCaseWord.Items().back(), "DVD");
    EXPECT_TRUE(form.txtCaseWord.HasFocus());
    EXPECT_EQ(form.txtCaseWord.SelText(), "DVD");
    EXPECT_TRUE(form.Loaded()); // the button OK was not meant
}

TEST_F(FrmSettingsTest, A_word_is_taken_and_removed)
{
    form.lstCaseWord.PersonChoose(0);
    EXPECT_EQ(form.txtCaseWord.Text.Get(), "MP3");
    EXPECT_TRUE(form.cmdCWRemove.Enabled);
    EXPECT_FALSE(Dirty(0));
    form.cmdCWRemove.PersonClick();
    EXPECT_EQ(form.lstCaseWord.Items(), (Texts{"USA"}));
    EXPECT_TRUE(Dirty(0));
    EXPECT_TRUE(form.cmdCWRemove.Enabled);
    form.lstCaseWord.PersonChoose(0);
    form.cmdCWRemove.PersonClick();
    EXPECT_EQ(form.lstCaseWord.ListCount(), 0);
    EXPECT_FALSE(form.cmdCWRemove.Enabled);
}

TEST_F(FrmSettingsTest, Without_a_word_in_hand_nothing_is_removed)
{
    Paste(form.txtCaseWord, "DVD");
    form.cmdCWAdd.PersonClick();
    form.ListDirty[0] = false;
    form.cmdCWRemove.PersonClick();
    EXPECT_EQ(form.lstCaseWord.ListCount(), 3);
    EXPECT_FALSE(Dirty(0));
}

// -- The form as a whole

TEST_F(FrmSettingsTest, Each_use_begins_anew)
{
    Tab(pageFavorites);
    Paste(form.txtName[pageFavorites], "Changed");
    form.lsvSettings[pageFavorites].ColumnClick(0);
    Paste(form.txtCaseWord, "DVD");
    form.cmdCWAdd.PersonClick();
    form.vsbDefaults.Value = form.vsbDefaults.Max.Get();
    form.cmdCancel.PersonClick();
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(Said(), Texts{}); // Cancel asks nothing
    Load();
    EXPECT_EQ(form.ataSettings.SelectedKey(), "Defaults");
    EXPECT_EQ(Rows(pageFavorites), (Texts{"Home|/home/", "Work|/jobs/"}));
    EXPECT_FALSE(form.lsvSettings[pageFavorites].Sorted());
    EXPECT_EQ(form.lsvSettings[pageFavorites].Column(0).Mark, SortMark::None);
    EXPECT_EQ(form.txtName[pageFavorites].Text.Get(), "");
    EXPECT_EQ(form.txtCaseWord.Text.Get(), "");
    EXPECT_EQ(form.lstCaseWord.ListCount(), 2);
    EXPECT_FALSE(form.ItemDirty);
    EXPECT_FALSE(Dirty(0));
    EXPECT_EQ(form.vsbDefaults.Value.Get(), 0);
    EXPECT_EQ(form.fraDefaults.Top.Get(), 0);
}

TEST_F(FrmSettingsTest, To_the_front_it_comes_with_the_name_box)
{
    form.PersonActivate(true);
    EXPECT_EQ(form.ActiveControl(), nullptr);
    Tab(pageFilters);
    form.cmdOk.SetFocus();
    form.PersonActivate(false);
    form.PersonActivate(true);
    EXPECT_TRUE(form.txtName[pageFilters].HasFocus());
}

TEST_F(FrmSettingsTest, Escape_and_the_frame_save_nothing)
{
    const std::string before = Saved();
    for (int way = 0; way < 2; ++way) {
        form.chkSet[5].PersonClick();
        Tab(pageFavorites);
        form.cmdRemove[pageFavorites].PersonClick();
        if (way == 0)
            Press(form.txtName[pageFavorites], "Escape");
        else
            form.PersonClose();
        EXPECT_FALSE(form.Loaded());
        EXPECT_EQ(Saved(), before);
        EXPECT_EQ(List_Last(p.state.Favorites), 2);
        Load();
    }
}

TEST_F(FrmSettingsTest, Help_opens_the_pages)
{
    form.cmdHelp.PersonClick();
    ASSERT_EQ(rig.Desktop.Executions.size(), 1u);
    EXPECT_TRUE(rig.Desktop.Executions[0].Address.starts_with("/app/help/"));
}

} // namespace
} // namespace tavo
