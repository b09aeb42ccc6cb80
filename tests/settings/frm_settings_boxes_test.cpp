#include "settings_ground.h"

#include "thumbnails/frm_thumb_editor.h"
#include "thumbnails/thumb_look.h"

namespace tavo {
namespace {

class SettingsBoxes : public SettingsGround {
protected:
    // The box of a row of a table: its page's name, or one of the values.
    TextBox& Box(int page, int data) { return data < 0 ? form.txtName[page] : form.txtData[data]; }
    static constexpr const char* all = "ab=\\/:*?<>|\";.c";
};

// -- Keys

struct FilterRow {
    const char* What;
    int Page, Data; // -1: the name
    const char *Left, *Message;
};
constexpr FilterRow filterRows[] = {
    {"a template's name", pageTemplates, -1, "ab\\/:*?<>|\";.c", "Names may not Contain = "},
    {"a favourite's name", pageFavorites, -1, "ab\\/:*?<>|\";.c", "Names may not Contain = "},
    {"a filter's name", pageFilters, -1, "ab\\/:*?<>|\";.c", "Names may not Contain = "},
    {"a scheme's name", pageSchemes, -1, "ab\\/:*?<>|\";.c", "Names may not Contain = "},
    {"a layout's name", pageWindows, -1, "ab\\/:*?<>|\";.c", "Names may not Contain = "},
    {"a template", pageTemplates, 0, "ab=<>;.c", "Templates may not Contain \\ / : * ? | \" "},
    {"its extension", pageTemplates, 1, "ab=<>;.c", "Templates may not Contain \\ / : * ? | \" "},
    {"a path", pageFavorites, 2, "ab=\\/:;.c", "Paths may not Contain * ? < > | \" "},
    {"a filter", pageFilters, 3, "ab=*?;.c", "Filters may not Contain \\ / : < > | \" "},
};

TEST_F(SettingsBoxes, Forbidden_keys_are_dropped_with_a_message)
{
    const std::string typed = all;
    for (const FilterRow& row : filterRows) {
        Tab(row.Page);
        TextBox& box = Box(row.Page, row.Data);
        box.SetFocus();
        box.Text = "";
        Said();
        for (const char c : typed)
            form.PersonKey(&box, Key_FromChar(static_cast<unsigned char>(c)));
        EXPECT_EQ(box.Text.Get(), row.Left) << row.What;
        const std::size_t refused = typed.size() - std::string(row.Left).size();
        EXPECT_EQ(Said(), Texts(refused, row.Message)) << row.What;
        form.ItemDirty = false;
    }
}

TEST_F(SettingsBoxes, The_message_is_an_information_box)
{
    Tab(pageFavorites);
    form.PersonKey(&form.txtName[pageFavorites], Key_FromChar('='));
    const MessageBox& box = rig.Desktop.Boxes.at(0).Box;
    EXPECT_EQ(box.Icon, BoxIcon::Information);
    EXPECT_EQ(box.Buttons, BoxButtons::Ok);
    EXPECT_EQ(box.Caption, "Tavo Says...");
}

TEST_F(SettingsBoxes, Locked_boxes_take_no_keys)
{
    for (const int page : {pageSchemes, pageWindows}) {
        Tab(page);
        const std::string before = form.txtData[page].Text;
        form.txtData[page].SetFocus();
        form.PersonKey(&form.txtData[page], Key_FromChar('x'));
        EXPECT_EQ(form.txtData[page].Text.Get(), before) << page;
        EXPECT_FALSE(form.ItemDirty) << page;
    }
}

// -- Leaving

TEST_F(SettingsBoxes, Leaving_takes_away_what_was_pasted)
{
    struct Row {
        const char* What;
        int Page, Data;
        const char *Text, *Left;
    };
    const Row rows[] = {
        {"name", pageFavorites, -1, "a=b==c", "abc"},
        {"name of only that", pageFilters, -1, "===", ""},
        {"path", pageFavorites, 2, "/a*?<>|\"b=:\\", "/ab=:\\"},
        {"filter", pageFilters, 3, "\\/:<>|\"*.jpg;?.png=", "*.jpg;?.png="},
        {"template", pageTemplates, 0, "a\\/:*?|\"b", "ab"},
        {"tokens", pageTemplates, 0, "<#>_<ON><OE><T><E><ER>", "<#>_<ON><OE><T><E><ER>"},
        {"no token", pageTemplates, 1, "<x><#", "x#"},
        {"token in small letters", pageTemplates, 1, "<on>", "<on>"},
    };
    for (const Row& row : rows) {
        Tab(row.Page);
        TextBox& box = Box(row.Page, row.Data);
        Paste(box, row.Text);
        form.cmdCancel.SetFocus();
        EXPECT_EQ(box.Text.Get(), row.Left) << row.What;
        EXPECT_EQ(Said(), Texts{}) << row.What;
        form.ItemDirty = false;
    }
}

TEST_F(SettingsBoxes, A_name_with_an_equals_sign_pasted_is_added_without_it)
{
    Tab(pageFavorites);
    Paste(form.txtName[pageFavorites], "a=b");
    form.cmdAdd[pageFavorites].PersonClick();
    EXPECT_EQ(Rows(pageFavorites).back(), "ab|/home/");
}

TEST_F(SettingsBoxes, What_was_pasted_is_clean_before_the_question)
{
    Tab(pageFavorites);
    Paste(form.txtName[pageFavorites], "He=im");
    rig.Desktop.Answer(BoxAnswer::Yes);
    Tab(pageFilters);
    EXPECT_EQ(Rows(pageFavorites).front(), "Heim|/home/");
}

// -- Entering and editing

TEST_F(SettingsBoxes, Entering_a_box_selects_its_text)
{
    Tab(pageTemplates);
    for (TextBox* box : {&form.txtData[0], &form.txtData[1], &form.txtName[pageTemplates]}) {
        box->SetFocus();
        EXPECT_EQ(box->SelText(), box->Text.Get()) << box->FullName();
        EXPECT_FALSE(box->Text.Get().empty()) << box->FullName();
    }
    EXPECT_FALSE(form.ItemDirty);
}

TEST_F(SettingsBoxes, Any_edit_makes_the_item_dirty)
{
    struct Row {
        const char* What;
        int Page, Data;
    };
    for (const Row& row : {Row{"name", pageFilters, -1}, Row{"filter", pageFilters, 3},
                           Row{"path", pageFavorites, 2}, Row{"template", pageTemplates, 0},
                           Row{"its extension", pageTemplates, 1}}) {
        Tab(row.Page);
        EXPECT_FALSE(form.ItemDirty) << row.What;
        Paste(Box(row.Page, row.Data), "z");
        EXPECT_TRUE(form.ItemDirty) << row.What;
        form.ItemDirty = false;
    }
}

TEST_F(SettingsBoxes, A_box_takes_no_more_than_its_length_from_a_person)
{
    Tab(pageFilters);
    Paste(form.txtName[pageFilters], std::string(25, 'n'));
    EXPECT_EQ(form.txtName[pageFilters].Text.Get(), std::string(20, 'n'));
}

// -- Labels

TEST_F(SettingsBoxes, A_token_goes_where_the_cursor_stands)
{
    Tab(pageTemplates);
    TextBox& box = form.txtData[templateName];
    Paste(box, "ab");
    box.Select(1, 0);
    form.lblTmpInsert[7].PersonClick();
    EXPECT_EQ(box.Text.Get(), "a<#>b");
    EXPECT_TRUE(box.HasFocus());
    EXPECT_TRUE(form.ItemDirty);
    form.txtData[templateExt].SetFocus(); // all of it is selected
    form.lblTmpInsert[9].PersonClick();
    EXPECT_EQ(form.txtData[templateExt].Text.Get(), "<OE>");
}

TEST_F(SettingsBoxes, Elsewhere_no_token_is_inserted)
{
    Tab(pageTemplates);
    form.lblTmpInsert[7].PersonClick(); // the name has the focus
    EXPECT_EQ(Boxes(pageTemplates), "One|a:b");
    form.txtData[templateName].SetFocus();
    form.lblTmpInsert[0].PersonClick(); // "Insert:" is no token
    EXPECT_EQ(Boxes(pageTemplates), "One|a:b");
    form.txtData[pageSchemes].SetFocus();
    form.lblTmpInsert[7].PersonClick(); // locked
    EXPECT_EQ(form.txtData[pageSchemes].Text.Get(), "");
}

TEST_F(SettingsBoxes, The_mode_only_names_the_boxes)
{
    struct Row {
        int Index;
        const char *First, *Second;
        bool Tokens;
    };
    EXPECT_EQ(form.cboMode.Items(), (Texts{"Name & Number", "Search & Replace"}));
    Tab(pageTemplates);
    EXPECT_EQ(form.cboMode.ListIndex(), 0);
    for (const Row& row : {Row{1, "Search", "Replace", false}, Row{0, "File Name", "Ext", true},
                           Row{1, "Search", "Replace", false}}) {
        form.cboMode.PersonChoose(row.Index);
        EXPECT_EQ(form.lblData[0].Caption.Get(), row.First);
        EXPECT_EQ(form.lblData[1].Caption.Get(), row.Second);
        for (const auto& label : form.lblTmpInsert)
            EXPECT_EQ(label->Enabled.Get(), row.Tokens) << label->FullName();
    }
    EXPECT_EQ(Boxes(pageTemplates), "One|a:b");
    form.txtData[templateName].SetFocus();
    form.lblTmpInsert[7].PersonClick(); // disabled
    EXPECT_EQ(Boxes(pageTemplates), "One|a:b");
    Tab(pageFilters);
    Tab(pageTemplates);
    EXPECT_EQ(form.cboMode.ListIndex(), 0); // it is not kept
    EXPECT_EQ(form.lblData[0].Caption.Get(), "File Name");
    EXPECT_TRUE(form.lblTmpInsert[1].Enabled);
    EXPECT_FALSE(Dirty(pageTemplates));
    EXPECT_FALSE(form.ItemDirty);
}

TEST_F(SettingsBoxes, The_label_of_a_favourite_takes_the_path_for_its_name)
{
    Tab(pageFavorites);
    Paste(form.txtData[pageFavorites], "/a=b/a long path that no name box would take/");
    form.lblName[pageFavorites].PersonClick();
    EXPECT_EQ(form.txtName[pageFavorites].Text.Get(),
              "/ab/a long path that no name box would take/");
    EXPECT_TRUE(form.ItemDirty);
}

TEST_F(SettingsBoxes, The_label_of_a_scheme_brings_the_default_one)
{
    Tab(pageSchemes);
    form.lblData[pageSchemes].PersonClick();
    EXPECT_EQ(form.txtData[pageSchemes].Text.Get(),
              "80,80,3,-2147483633,-2147483635,-2147483633,2,-2147483643,-2147483630,-2147483643");
    EXPECT_TRUE(form.ItemDirty);
}

// -- The editor of schemes

TEST_F(SettingsBoxes, The_editor_gets_the_scheme_and_gives_it_back)
{
    Tab(pageSchemes);
    std::string given;
    bool mode = false;
    rig.Desktop.OnModal([&](Form& editor) {
        given = p.state.SchemeEditText;
        mode = p.state.SchemeEditMode;
        p.state.SchemeEditText = "99,98,2";
        editor.Unload();
    });
    form.cmdEditScheme.PersonClick();
    EXPECT_EQ(rig.Desktop.Forms.back().Name, "frmThumbEditor");
    EXPECT_EQ(given, "100,90,3,1,2,3,0,4,5,6");
    EXPECT_TRUE(mode);
    EXPECT_EQ(form.txtData[pageSchemes].Text.Get(), "99,98,2");
    EXPECT_TRUE(form.ItemDirty);
}

TEST_F(SettingsBoxes, A_scheme_that_came_back_as_it_was_is_no_edit)
{
    Tab(pageSchemes);
    rig.Desktop.OnModal([&](Form& editor) { editor.Unload(); });
    form.cmdEditScheme.PersonClick();
    EXPECT_EQ(form.txtData[pageSchemes].Text.Get(), "100,90,3,1,2,3,0,4,5,6");
    EXPECT_FALSE(form.ItemDirty);
}

TEST_F(SettingsBoxes, An_editor_that_is_up_is_not_opened_again)
{
    Tab(pageSchemes);
    p.ThumbEditor().EnsureLoaded();
    p.state.SchemeEditMode = false;
    form.cmdEditScheme.PersonClick();
    EXPECT_FALSE(p.state.SchemeEditMode);
    EXPECT_EQ(form.txtData[pageSchemes].Text.Get(), "100,90,3,1,2,3,0,4,5,6");
    p.ThumbEditor().Unload();
}

} // namespace
} // namespace tavo
