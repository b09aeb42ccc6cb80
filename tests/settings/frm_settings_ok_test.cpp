#include "settings_ground.h"

namespace tavo {
namespace {

class SettingsOk : public SettingsGround {
protected:
    // The lines of a section of the saved file, from its header on.
    std::string Section(const std::string& name)
    {
        const std::string text = Saved();
        const auto begin = text.find("[" + name + "]");
        if (begin == std::string::npos)
            return "";
        return text.substr(begin, text.find("\n[", begin) - begin);
    }
    std::string Entries(const char* menu)
    {
        std::string text;
        for (const Tool* tool : p.main.atbMain.FindBand(menu)->Tools())
            text += (tool->Kind() == ToolKind::Separator ? "-" : tool->Caption.Get()) + " ";
        return text;
    }
    void Add(int page, const std::string& name)
    {
        Tab(page);
        Paste(form.txtName[page], name);
        form.cmdAdd[page].PersonClick();
    }
};

TEST_F(SettingsOk, Options_are_taken_over_and_saved)
{
    form.chkSet[5].Value = 0;
    form.chkSet[12].Value = 1;
    form.cmdOk.PersonClick();
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(p.state.PreList, 0);
    EXPECT_EQ(p.state.actClose, 1);
    EXPECT_EQ(Section("Settings"),
              "[Settings]\r\nSavePos=1\r\nSaveDef=0\r\nactClose=1\r\nShowFile=1\r\nSetDigits=0\r\n"
              "PreList=0\r\nProExt=1\r\nSupWarnRen=0\r\nSupWarnUndo=0\r\nAutoSelNext=1\r\n"
              "AutoThumbs=0\r\nRetRename=1\r\n");
}

TEST_F(SettingsOk, All_sections_go_into_the_file_in_one_step)
{
    const int before = rig.Profile.Saves();
    for (int page = firstListPage; page <= lastListPage; ++page)
        Add(page, "Extra");
    Paste(form.txtCaseWord, "DVD");
    form.cmdCWAdd.PersonClick();
    form.cmdOk.PersonClick();
    EXPECT_EQ(rig.Profile.Saves(), before + 1);
    for (const SettingsList& page : Settings_ListPages())
        EXPECT_NE(Section(std::string(page.Section)).find("\nExtra="), std::string::npos)
            << page.Section;
    EXPECT_EQ(Section("CaseWordList").find("[CaseWordList]\r\n1=MP3\r\n2=USA\r\n3=DVD"), 0u);
}

TEST_F(SettingsOk, What_was_not_touched_stays_byte_for_byte)
{
    const std::string before = Saved();
    form.cmdOk.PersonClick();
    const auto settings = before.find("[Settings]");
    EXPECT_EQ(Saved().substr(0, settings), before.substr(0, settings));
}

TEST_F(SettingsOk, A_sort_alone_is_not_saved)
{
    Tab(pageTemplates);
    form.lsvSettings[pageTemplates].ColumnClick(1);
    const std::string before = Section("Templates");
    form.cmdOk.PersonClick();
    EXPECT_EQ(Section("Templates"), before);
    EXPECT_EQ(p.state.Templates[1].Name, "One");
}

TEST_F(SettingsOk, A_sort_goes_along_with_another_change)
{
    Tab(pageTemplates);
    form.lsvSettings[pageTemplates].ColumnClick(1);
    form.cmdUpdate[pageTemplates].PersonClick();
    form.cmdOk.PersonClick();
    EXPECT_EQ(p.state.Templates[1].Name, "Two");
}

TEST_F(SettingsOk, Each_menu_follows_its_list)
{
    for (const int page : {pageTemplates, pageFavorites, pageSchemes, pageWindows})
        Add(page, "Extra");
    form.cmdOk.PersonClick();
    struct Row {
        const char *Menu, *End;
    };
    for (const Row& row : {Row{"ID_mnuTemplates", "- One Two Three Four Extra "},
                           Row{"ID_mnuFavorites", "- Home Work Extra "},
                           Row{"ID_mnuTSchemes", "- Dark Extra "}, Row{"ID_mnuWindow", "- Extra "}})
        EXPECT_TRUE(Entries(row.Menu).ends_with(row.End)) << Entries(row.Menu);
    EXPECT_EQ(p.main.cbomcdPath.Items(), (Texts{"Home", "Work", "Extra"}));
}

TEST_F(SettingsOk, The_filter_box_is_refilled_behind_the_built_in_one)
{
    p.state.Filter = "*.doc";
    Add(pageFilters, "Extra");
    form.cmdOk.PersonClick();
    EXPECT_EQ(p.main.atbMain.Find("ID_sFilter")->Combo()->Items(),
              (Texts{"All Files (*.*)", "Pictures (*.jpg;*.png)", "Extra (*.jpg;*.png)"}));
    EXPECT_EQ(p.state.Filters[0].Name, "All Files");
    EXPECT_EQ(p.state.Filter, "*.*");
}

TEST_F(SettingsOk, A_filter_in_force_survives_what_does_not_touch_filters)
{
    p.state.Filter = "*.doc";
    Add(pageFavorites, "Extra");
    form.cmdOk.PersonClick();
    EXPECT_EQ(p.state.Filter, "*.doc");
}

TEST_F(SettingsOk, The_default_template_is_where_its_mark_is)
{
    struct Row {
        const char* What;
        void (*Do)(SettingsOk&);
        int Default;
        const char* Label;
    };
    const Row rows[] = {
        {"moved up", [](SettingsOk& t) { t.form.cmdUp[pageTemplates].PersonClick(); }, 1, "Two"},
        {"moved down", [](SettingsOk& t) { t.form.cmdDown[pageTemplates].PersonClick(); }, 2,
         "Two"},
        {"another name",
         [](SettingsOk& t) {
             t.Paste(t.form.txtName[pageTemplates], "Zwei");
             t.form.cmdUpdate[pageTemplates].PersonClick();
         },
         2, "Zwei"},
        {"removed", [](SettingsOk& t) { t.form.cmdRemove[pageTemplates].PersonClick(); }, 0,
         "Empty"},
    };
    form.Unload();
    p.state.nnAppTmpDef = 2;
    for (const Row& row : rows) {
        Load();
        Tab(pageTemplates);
        if (p.state.nnAppTmpDef > 0)
            Pick(pageTemplates, p.state.nnAppTmpDef);
        row.Do(*this);
        form.cmdOk.PersonClick();
        EXPECT_EQ(p.state.nnAppTmpDef, row.Default) << row.What;
        EXPECT_EQ(p.main.lblTmpInsert[tmplCurrentLabel].Caption.Get(), row.Label) << row.What;
        EXPECT_EQ(p.main.lblTmpInsert[tmplCurrentLabel].Tag.Get(), std::to_string(row.Default))
            << row.What;
    }
}

TEST_F(SettingsOk, The_scheme_in_force_is_applied_again)
{
    p.state.Scheme = "Dark";
    Tab(pageSchemes);
    form.txtData[pageSchemes].Text = "70,60,2,1,2,3,1,4,5,6";
    form.cmdUpdate[pageSchemes].PersonClick();
    form.cmdOk.PersonClick();
    EXPECT_EQ(p.state.ThumbLook.Height, 70);
    EXPECT_EQ(p.state.ThumbLook.Width, 60);
    EXPECT_EQ(p.state.Scheme, "Dark");
}

TEST_F(SettingsOk, A_scheme_that_is_gone_leaves_the_look)
{
    p.state.Scheme = "Dark";
    p.state.ThumbLook.Height = 77;
    Tab(pageSchemes);
    form.cmdRemove[pageSchemes].PersonClick();
    form.cmdOk.PersonClick();
    EXPECT_EQ(p.state.ThumbLook.Height, 77);
    EXPECT_EQ(Section("ThumbSchemes"), "");
}

TEST_F(SettingsOk, Ok_asks_for_an_edit_first)
{
    struct Row {
        BoxAnswer Answer;
        const char* Name;
    };
    for (const Row& row : {Row{BoxAnswer::No, "Home"}, Row{BoxAnswer::Yes, "Heim"}}) {
        Tab(pageFavorites);
        Paste(form.txtName[pageFavorites], "Heim");
        rig.Desktop.Answer(row.Answer);
        Press(form.txtName[pageFavorites], "Return"); // OK is the default button
        EXPECT_FALSE(form.Loaded());
        EXPECT_EQ(Said().size(), 1u);
        EXPECT_EQ(p.state.Favorites[1].Name, row.Name);
        Load();
    }
}

TEST_F(SettingsOk, The_pointer_is_busy_and_then_itself)
{
    rig.Desktop.Pointers.clear();
    form.cmdOk.PersonClick();
    EXPECT_EQ(rig.Desktop.Pointers, (std::vector<Pointer>{Pointer::Busy, Pointer::Default}));
}

TEST_F(SettingsOk, A_refused_write_is_not_noticed)
{
    rig.Profile.RefuseWrites();
    form.chkSet[5].Value = 0;
    form.cmdOk.PersonClick();
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(p.state.PreList, 0);
    EXPECT_EQ(Said(), Texts{});
}

TEST_F(SettingsOk, A_word_list_emptied_leaves_no_section)
{
    while (form.lstCaseWord.ListCount() > 0) {
        form.lstCaseWord.PersonChoose(0);
        form.cmdCWRemove.PersonClick();
    }
    form.cmdOk.PersonClick();
    EXPECT_EQ(p.state.CaseWordList, Texts{""});
    EXPECT_EQ(Section("CaseWordList"), "");
}

} // namespace
} // namespace tavo
