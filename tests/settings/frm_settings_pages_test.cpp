#include "settings_ground.h"

namespace tavo {
namespace {

class SettingsPages : public SettingsGround {
protected:
    void Type(int page, const std::string& name, const std::string& data)
    {
        Paste(form.txtName[page], name);
        Paste(form.txtData[page == pageTemplates ? templateName : page], data);
    }
};

constexpr const char* blankAdd = "Blank Names are not Allowed!\r\nFill in a Name and Try Again...";
constexpr const char* doubleAdd =
    "Duplicate List Names are not Allowed!\r\nChange the Name and Try Again...";
constexpr const char* blankUpdate = "Blank Names are not Allowed!\r\nItem was not Updated...";
constexpr const char* doubleUpdate =
    "Duplicate List Names are not Allowed!\r\nItem was not Updated...";
constexpr const char* question = "The Last Item was Changed but not Updated!\r\n"
                                 "Would you like to Update it now?";

TEST_F(SettingsPages, A_tab_shows_its_selected_row_and_takes_the_name_box)
{
    Tab(pageFavorites);
    EXPECT_EQ(form.CurPage, pageFavorites);
    EXPECT_EQ(form.CurRow, 1);
    EXPECT_EQ(Boxes(pageFavorites), "Home|/home/");
    EXPECT_TRUE(form.txtName[pageFavorites].HasFocus());
    EXPECT_EQ(form.txtName[pageFavorites].SelText(), "Home");
    EXPECT_FALSE(form.ItemDirty);
    Pick(pageFavorites, 2);
    Tab(pageWindows);
    EXPECT_EQ(form.CurRow, -1);
    EXPECT_TRUE(form.txtName[pageWindows].HasFocus());
    Tab(pageFavorites);
    EXPECT_EQ(form.CurRow, 2);
    EXPECT_EQ(Boxes(pageFavorites), "Work|/jobs/");
    Tab(pageDefaults);
    EXPECT_EQ(form.CurPage, -1);
    EXPECT_EQ(form.CurRow, -1);
}

TEST_F(SettingsPages, A_template_is_split_at_its_first_colon)
{
    struct Row {
        int Row;
        const char *Left, *Right;
    };
    Tab(pageTemplates);
    for (const Row& row :
         {Row{1, "a", "b"}, Row{2, "<ON>", "<OE>"}, Row{3, "plain", ""}, Row{4, "x", "y:z"}}) {
        Pick(pageTemplates, row.Row);
        EXPECT_EQ(form.txtData[0].Text.Get(), row.Left) << row.Row;
        EXPECT_EQ(form.txtData[1].Text.Get(), row.Right) << row.Row;
    }
}

TEST_F(SettingsPages, A_pasted_end_of_a_line_brings_in_no_other_one)
{
    Tab(pageFavorites);
    Type(pageFavorites, "a\r\n[Settings]\r\nSaveDef", "/tmp/\n[Filters]\nEvil=*");
    form.cmdAdd[pageFavorites].PersonClick();
    const ListView& list = form.lsvSettings[pageFavorites];
    EXPECT_EQ(list.Text(list.Count()), "a[Settings]SaveDef");
    EXPECT_EQ(list.Cell(list.Count(), 1).find_first_of("\r\n"), std::string_view::npos);
}

TEST_F(SettingsPages, Buttons_go_by_the_rows_and_the_selected_one)
{
    struct Row {
        const char* What;
        int Count, Selected;
        bool Up, Down, Update, Remove;
    };
    const Row rows[] = {
        {"none", 0, 0, false, false, false, false},
        {"one", 1, 1, false, false, true, true},
        {"first of two", 2, 1, false, true, true, true},
        {"last of two", 2, 2, true, false, true, true},
        {"first", 4, 1, false, true, true, true},
        {"middle", 4, 2, true, true, true, true},
        {"middle too", 4, 3, true, true, true, true},
        {"last", 4, 4, true, false, true, true},
    };
    ListView& list = form.lsvSettings[pageWindows];
    for (const Row& row : rows) {
        NamedList items(1);
        for (int i = 1; i <= row.Count; ++i)
            items.push_back({"w" + std::to_string(i), "0"});
        Settings_List_Fill(list, items, "Win");
        list.SetSelectedItem(row.Selected);
        Settings_Buttons_Set(p, pageWindows);
        EXPECT_EQ(form.cmdUp[pageWindows].Enabled, row.Up) << row.What;
        EXPECT_EQ(form.cmdDown[pageWindows].Enabled, row.Down) << row.What;
        EXPECT_EQ(form.cmdUpdate[pageWindows].Enabled, row.Update) << row.What;
        EXPECT_EQ(form.cmdRemove[pageWindows].Enabled, row.Remove) << row.What;
        EXPECT_TRUE(form.cmdAdd[pageWindows].Enabled) << row.What;
        EXPECT_TRUE(form.cmdNew[pageWindows].Enabled) << row.What;
    }
}

TEST_F(SettingsPages, Buttons_stand_right_when_the_dialog_opens)
{
    EXPECT_TRUE(form.cmdDown[pageFavorites].Enabled);
    EXPECT_FALSE(form.cmdUp[pageFavorites].Enabled);
    EXPECT_FALSE(form.cmdDown[pageFilters].Enabled);
    EXPECT_TRUE(form.cmdUpdate[pageFilters].Enabled);
    EXPECT_FALSE(form.cmdUpdate[pageWindows].Enabled);
    EXPECT_FALSE(form.cmdRemove[pageWindows].Enabled);
}

// -- Add

TEST_F(SettingsPages, Add_puts_a_row_at_the_end_and_selects_it)
{
    Tab(pageFavorites);
    Type(pageFavorites, "New", "/new/");
    form.cmdAdd[pageFavorites].PersonClick();
    EXPECT_EQ(Rows(pageFavorites), (Texts{"Home|/home/", "Work|/jobs/", "New|/new/"}));
    const ListView& list = form.lsvSettings[pageFavorites];
    EXPECT_EQ(list.SelectedItem(), 3);
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{3}));
    EXPECT_EQ(list.SmallIcon(3), "2");
    EXPECT_EQ(list.Key(3), "");
    EXPECT_EQ(form.CurRow, 3);
    EXPECT_TRUE(form.cmdUp[pageFavorites].Enabled);
    EXPECT_FALSE(form.cmdDown[pageFavorites].Enabled);
    EXPECT_TRUE(Dirty(pageFavorites));
    EXPECT_FALSE(form.ItemDirty);
    EXPECT_EQ(Said(), Texts{});
}

TEST_F(SettingsPages, Add_of_the_first_row_enables_update_and_remove)
{
    Tab(pageWindows);
    Type(pageWindows, "Mine", "");
    form.cmdAdd[pageWindows].PersonClick();
    EXPECT_TRUE(form.cmdUpdate[pageWindows].Enabled);
    EXPECT_TRUE(form.cmdRemove[pageWindows].Enabled);
    EXPECT_FALSE(form.cmdUp[pageWindows].Enabled);
}

TEST_F(SettingsPages, A_refused_add_has_set_the_page_dirty_and_the_item_clean)
{
    struct Row {
        const char *Name, *Said;
    };
    Tab(pageFavorites);
    for (const Row& row : {Row{"", blankAdd}, Row{"Home", doubleAdd}, Row{"hOME", doubleAdd}}) {
        form.ListDirty.fill(false);
        Type(pageFavorites, row.Name, "/else/");
        EXPECT_TRUE(form.ItemDirty) << row.Name;
        form.cmdAdd[pageFavorites].PersonClick();
        EXPECT_EQ(Said(), Texts{row.Said}) << row.Name;
        EXPECT_EQ(Rows(pageFavorites), (Texts{"Home|/home/", "Work|/jobs/"})) << row.Name;
        EXPECT_TRUE(Dirty(pageFavorites)) << row.Name;
        EXPECT_FALSE(form.ItemDirty) << row.Name;
    }
}

TEST_F(SettingsPages, A_favourite_without_a_path_may_be_added)
{
    Tab(pageFavorites);
    Type(pageFavorites, "Nowhere", "");
    form.cmdAdd[pageFavorites].PersonClick();
    EXPECT_EQ(Rows(pageFavorites).back(), "Nowhere|");
}

TEST_F(SettingsPages, A_template_is_its_two_boxes_with_a_colon)
{
    Tab(pageTemplates);
    Paste(form.txtName[pageTemplates], "New");
    Paste(form.txtData[0], "n_<#>");
    Paste(form.txtData[1], "");
    form.cmdAdd[pageTemplates].PersonClick();
    EXPECT_EQ(Rows(pageTemplates).back(), "New|n_<#>:");
}

TEST_F(SettingsPages, A_name_of_blanks_is_a_name)
{
    Tab(pageFavorites);
    Type(pageFavorites, " ", "/x/");
    form.cmdAdd[pageFavorites].PersonClick();
    EXPECT_EQ(Rows(pageFavorites).back(), " |/x/");
}

// -- Update

TEST_F(SettingsPages, Update_stores_the_boxes_in_the_selected_row)
{
    struct Row {
        const char *What, *Name, *Data, *Said, *Result;
        bool Dirty;
    };
    const Row rows[] = {
        {"its own name", "Work", "/other/", "", "Work|/other/", true},
        {"its name in another case", "WORK", "/other/", "", "WORK|/other/", true},
        {"a new name", "Job", "/job/", "", "Job|/job/", true},
        {"no name", "", "/x/", blankUpdate, "Job|/job/", false},
        {"another row's name", "Home", "/x/", doubleUpdate, "Job|/job/", false},
        {"another row's in another case", "HOME", "/x/", doubleUpdate, "Job|/job/", false},
    };
    Tab(pageFavorites);
    for (const Row& row : rows) {
        Pick(pageFavorites, 2);
        Said();
        form.ListDirty.fill(false);
        Type(pageFavorites, row.Name, row.Data);
        form.cmdUpdate[pageFavorites].PersonClick();
        EXPECT_EQ(Said(), *row.Said ? Texts{row.Said} : Texts{}) << row.What;
        EXPECT_EQ(Rows(pageFavorites), (Texts{"Home|/home/", row.Result})) << row.What;
        EXPECT_EQ(Dirty(pageFavorites), row.Dirty) << row.What;
        EXPECT_FALSE(form.ItemDirty) << row.What;
    }
}

TEST_F(SettingsPages, A_name_whose_small_letters_differ_is_still_its_own)
{
    Tab(pageFavorites);
    Paste(form.txtName[pageFavorites], "ΟΔΟΣ");
    form.cmdUpdate[pageFavorites].PersonClick();
    Paste(form.txtName[pageFavorites], "οδος");
    form.cmdUpdate[pageFavorites].PersonClick();
    EXPECT_EQ(Said(), Texts{});
    EXPECT_EQ(Rows(pageFavorites).front(), "οδος|/home/");
}

TEST_F(SettingsPages, Update_keeps_the_mark_of_the_default_template)
{
    form.Unload();
    p.state.nnAppTmpDef = 1;
    Load();
    Tab(pageTemplates);
    Paste(form.txtName[pageTemplates], "Uno");
    form.cmdUpdate[pageTemplates].PersonClick();
    EXPECT_EQ(Rows(pageTemplates).front(), "Uno|a:b|DEF");
}

// -- Remove and Clear

TEST_F(SettingsPages, Remove_asks_nothing_and_shows_the_row_that_moved_up)
{
    Tab(pageTemplates);
    Pick(pageTemplates, 2);
    form.cmdRemove[pageTemplates].PersonClick();
    EXPECT_EQ(Rows(pageTemplates), (Texts{"One|a:b", "Three|plain", "Four|x:y:z"}));
    EXPECT_EQ(form.lsvSettings[pageTemplates].SelectedRows(), (std::vector<int>{2}));
    EXPECT_EQ(Boxes(pageTemplates), "Three|plain:");
    EXPECT_EQ(form.CurRow, 2);
    EXPECT_TRUE(Dirty(pageTemplates));
    EXPECT_EQ(Said(), Texts{});
}

TEST_F(SettingsPages, Remove_at_the_end_goes_to_the_row_above)
{
    Tab(pageFavorites);
    Pick(pageFavorites, 2);
    form.cmdRemove[pageFavorites].PersonClick();
    EXPECT_EQ(form.lsvSettings[pageFavorites].SelectedItem(), 1);
    EXPECT_EQ(Boxes(pageFavorites), "Home|/home/");
}

TEST_F(SettingsPages, Remove_of_the_last_row_leaves_the_boxes_empty)
{
    for (const int page : {pageTemplates, pageFavorites, pageFilters}) {
        Tab(page);
        while (form.lsvSettings[page].Count() > 0)
            form.cmdRemove[page].PersonClick();
        EXPECT_EQ(Boxes(page), page == pageTemplates ? "|:" : "|") << page;
        EXPECT_EQ(form.CurRow, -1) << page;
        for (const auto* buttons : {&form.cmdUp, &form.cmdDown, &form.cmdUpdate, &form.cmdRemove})
            EXPECT_FALSE((*buttons)[page].Enabled) << page;
        EXPECT_TRUE(form.cmdAdd[page].Enabled) << page;
        EXPECT_TRUE(form.cmdNew[page].Enabled) << page;
    }
}

TEST_F(SettingsPages, Remove_keeps_the_text_of_the_scheme)
{
    Tab(pageSchemes);
    form.cmdRemove[pageSchemes].PersonClick();
    EXPECT_EQ(Boxes(pageSchemes), "|100,90,3,1,2,3,0,4,5,6");
}

TEST_F(SettingsPages, Remove_of_an_edited_row_asks_nothing_later)
{
    Tab(pageFavorites);
    Paste(form.txtName[pageFavorites], "Edited");
    form.cmdRemove[pageFavorites].PersonClick();
    Tab(pageFilters);
    EXPECT_EQ(Said(), Texts{});
}

TEST_F(SettingsPages, Clear_empties_the_boxes_and_sets_nothing)
{
    for (const int page : {pageTemplates, pageFavorites, pageFilters, pageSchemes}) {
        Tab(page);
        const Texts rows = Rows(page);
        form.cmdNew[page].PersonClick();
        EXPECT_EQ(Boxes(page), page == pageTemplates ? "|:" : "|") << page;
        EXPECT_TRUE(form.txtName[page].HasFocus()) << page;
        EXPECT_EQ(Rows(page), rows) << page;
        EXPECT_FALSE(form.ItemDirty) << page;
        EXPECT_FALSE(Dirty(page)) << page;
    }
    Tab(pageFavorites);
    Paste(form.txtName[pageFavorites], "x");
    form.cmdNew[pageFavorites].PersonClick();
    EXPECT_TRUE(form.ItemDirty); // it clears nothing either
}

// -- Up and Down

TEST_F(SettingsPages, Up_and_down_swap_a_row_with_its_neighbour)
{
    Tab(pageTemplates);
    form.lsvSettings[pageTemplates].SetTag(2, "DEF");
    Pick(pageTemplates, 2);
    form.cmdUp[pageTemplates].PersonClick();
    EXPECT_EQ(Rows(pageTemplates),
              (Texts{"Two|<ON>:<OE>|DEF", "One|a:b", "Three|plain", "Four|x:y:z"}));
    EXPECT_EQ(form.lsvSettings[pageTemplates].SelectedRows(), (std::vector<int>{1}));
    EXPECT_EQ(form.CurRow, 1);
    EXPECT_EQ(Boxes(pageTemplates), "Two|<ON>:<OE>");
    EXPECT_TRUE(Dirty(pageTemplates));
    EXPECT_FALSE(form.cmdUp[pageTemplates].Enabled);
    EXPECT_TRUE(form.cmdDown[pageTemplates].Enabled);
    for (int i = 0; i < 3; ++i)
        form.cmdDown[pageTemplates].PersonClick();
    EXPECT_EQ(Rows(pageTemplates),
              (Texts{"One|a:b", "Three|plain", "Four|x:y:z", "Two|<ON>:<OE>|DEF"}));
    EXPECT_FALSE(form.cmdDown[pageTemplates].Enabled);
}

TEST_F(SettingsPages, At_the_ends_nothing_moves)
{
    Tab(pageFavorites);
    Settings_Row_Move(p, pageFavorites, -1);
    EXPECT_FALSE(Dirty(pageFavorites));
    Pick(pageFavorites, 2);
    Settings_Row_Move(p, pageFavorites, 1);
    EXPECT_EQ(Rows(pageFavorites), (Texts{"Home|/home/", "Work|/jobs/"}));
    EXPECT_FALSE(Dirty(pageFavorites));
    Settings_Row_Move(p, pageWindows, 1);
    EXPECT_FALSE(Dirty(pageWindows));
}

TEST_F(SettingsPages, A_moved_row_takes_its_unsaved_boxes_along)
{
    Tab(pageFavorites);
    Paste(form.txtName[pageFavorites], "Heim");
    rig.Desktop.Answer(BoxAnswer::Yes);
    form.cmdDown[pageFavorites].PersonClick();
    EXPECT_EQ(Said(), Texts{question});
    EXPECT_EQ(Rows(pageFavorites), (Texts{"Work|/jobs/", "Heim|/home/"}));
}

TEST_F(SettingsPages, A_move_takes_the_sort_marks_away)
{
    Tab(pageTemplates);
    ListView& list = form.lsvSettings[pageTemplates];
    list.ColumnClick(1);
    EXPECT_NE(list.Column(1).Mark, SortMark::None);
    form.cmdDown[pageTemplates].Enabled = true;
    Pick(pageTemplates, 2);
    form.cmdUp[pageTemplates].PersonClick();
    EXPECT_EQ(list.Column(1).Mark, SortMark::None);
    EXPECT_FALSE(list.Sorted());
}

// -- Sorting

TEST_F(SettingsPages, A_sort_shows_the_selected_row_again_and_is_no_change)
{
    Tab(pageTemplates);
    Pick(pageTemplates, 2);
    form.lsvSettings[pageTemplates].ColumnClick(1);
    EXPECT_EQ(Rows(pageTemplates),
              (Texts{"Two|<ON>:<OE>", "One|a:b", "Three|plain", "Four|x:y:z"}));
    EXPECT_EQ(form.lsvSettings[pageTemplates].SelectedItem(), 1);
    EXPECT_EQ(form.CurRow, 1);
    EXPECT_EQ(Boxes(pageTemplates), "Two|<ON>:<OE>");
    EXPECT_FALSE(form.cmdUp[pageTemplates].Enabled);
    EXPECT_FALSE(Dirty(pageTemplates));
}

// -- The question

TEST_F(SettingsPages, An_edit_is_asked_for_at_each_way_out)
{
    struct Row {
        const char* What;
        void (*Leave)(SettingsPages&);
    };
    const Row rows[] = {
        {"a tab", [](SettingsPages& t) { t.Tab(pageFilters); }},
        {"a row", [](SettingsPages& t) { t.Pick(pageFavorites, 2); }},
        {"the same row", [](SettingsPages& t) { t.Pick(pageFavorites, 1); }},
        {"an arrow key",
         [](SettingsPages& t) { t.Press(t.form.lsvSettings[pageFavorites], "Down"); }},
    };
    for (const bool yes : {true, false})
        for (const Row& row : rows) {
            form.Unload();
            Load();
            Tab(pageFavorites);
            Paste(form.txtName[pageFavorites], "Heim");
            rig.Desktop.Answer(yes ? BoxAnswer::Yes : BoxAnswer::No);
            row.Leave(*this);
            EXPECT_EQ(Said(), Texts{question}) << row.What;
            EXPECT_EQ(Rows(pageFavorites).front(), yes ? "Heim|/home/" : "Home|/home/") << row.What;
            EXPECT_TRUE(Dirty(pageFavorites)) << row.What;
            EXPECT_FALSE(form.ItemDirty) << row.What;
        }
}

TEST_F(SettingsPages, The_question_has_yes_and_no_and_a_question_mark)
{
    Tab(pageFavorites);
    Paste(form.txtName[pageFavorites], "Heim");
    Tab(pageFilters);
    const MessageBox& box = rig.Desktop.Boxes.at(0).Box;
    EXPECT_EQ(box.Caption, "Tavo Says...");
    EXPECT_EQ(box.Icon, BoxIcon::Question);
    EXPECT_EQ(box.Buttons, BoxButtons::YesNo);
}

TEST_F(SettingsPages, A_yes_that_is_refused_says_why)
{
    Tab(pageFavorites);
    Paste(form.txtName[pageFavorites], "Work");
    rig.Desktop.Answer(BoxAnswer::Yes);
    Pick(pageFavorites, 2);
    EXPECT_EQ(Said(), (Texts{question, doubleUpdate}));
    EXPECT_EQ(Rows(pageFavorites), (Texts{"Home|/home/", "Work|/jobs/"}));
    EXPECT_TRUE(Dirty(pageFavorites));
    EXPECT_FALSE(form.ItemDirty);
    EXPECT_EQ(Boxes(pageFavorites), "Work|/jobs/");
}

TEST_F(SettingsPages, Where_no_row_is_shown_nothing_is_asked)
{
    Tab(pageWindows);
    Paste(form.txtName[pageWindows], "Mine");
    EXPECT_TRUE(form.ItemDirty);
    Tab(pageDefaults);
    EXPECT_EQ(Said(), Texts{});
    EXPECT_FALSE(form.ItemDirty);
    EXPECT_FALSE(Dirty(pageWindows));
}

TEST_F(SettingsPages, A_click_on_many_rows_leaves_one)
{
    Tab(pageTemplates);
    form.lsvSettings[pageTemplates].PersonSelectAll();
    EXPECT_EQ(form.lsvSettings[pageTemplates].SelectedRows(), (std::vector<int>{4}));
    EXPECT_EQ(form.CurRow, 4);
}

TEST_F(SettingsPages, Arrow_keys_show_the_row)
{
    struct Row {
        const char* Key;
        int CurRow;
    };
    Tab(pageTemplates);
    for (const Row& row : {Row{"Down", 2}, Row{"Down", 3}, Row{"Up", 2}, Row{"End", 4},
                           Row{"Home", 1}, Row{"Up", 1}}) {
        Press(form.lsvSettings[pageTemplates], row.Key);
        EXPECT_EQ(form.CurRow, row.CurRow) << row.Key;
    }
    EXPECT_EQ(Boxes(pageTemplates), "One|a:b");
}

// -- Reading back

TEST_F(SettingsPages, The_built_in_entry_stays_when_a_list_is_read)
{
    Settings_List_Read(form.lsvSettings[pageFavorites], p.state.Filters);
    ASSERT_EQ(p.state.Filters.size(), 3u);
    EXPECT_EQ(p.state.Filters[0].Name, "All Files");
    EXPECT_EQ(p.state.Filters[2].Name, "Work");
    EXPECT_EQ(p.state.Filters[2].Data, "/jobs/");
}

} // namespace
} // namespace tavo
