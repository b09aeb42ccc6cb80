#include "settings/settings_pages.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/preview.h"
#include "renamelist/rename_list.h"
#include "toolkit/text.h"

#include <algorithm>
#include <utility>

namespace tavo {

namespace {

constexpr std::string_view defaultMark = "DEF";

// The first box of the page; a template has two.
TextBox& Value_Box(const FrmSettings& form, int page)
{
    return form.txtData[page == pageTemplates ? templateName : page];
}

// Keys that take the selection elsewhere.
bool Key_Moves(const Key& key)
{
    constexpr int keys[] = {keyUp, keyDown, keyPageUp, keyPageDown, keyHome, keyEnd};
    return std::find(std::begin(keys), std::end(keys), key.Code) != std::end(keys);
}

void Column_Click(Program& p, int page, int column)
{
    Ren_List_Sort(p, p.Settings().lsvSettings[page], column);
    Settings_Row_Show(p, page);
    Settings_Buttons_Set(p, page);
}

void Row_Add(Program& p, int page)
{
    FrmSettings& form = p.Settings();
    ListView& list = form.lsvSettings[page];
    form.ListDirty[static_cast<std::size_t>(page)] = true;
    form.ItemDirty = false;
    const std::string name = Settings_Line(form.txtName[page].Text);
    if (name.empty()) {
        p.Say("Blank Names are not Allowed!\r\nFill in a Name and Try Again...",
              BoxIcon::Exclamation);
        return;
    }
    if (list.FindItem(name) > 0) {
        p.Say("Duplicate List Names are not Allowed!\r\nChange the Name and Try Again...",
              BoxIcon::Exclamation);
        return;
    }
    const std::string value = Settings_Value_Get(form, page);
    const std::string_view cells[] = {name, value};
    const int row = list.AddRow(cells, 2, std::to_string(page));
    Settings_Row_Select(list, row);
    form.CurRow = row;
    Settings_Buttons_Set(p, page);
}

void Row_UpdateSelected(Program& p, int page)
{
    FrmSettings& form = p.Settings();
    Settings_Row_Update(p, page, form.lsvSettings[page].SelectedItem());
    form.ItemDirty = false;
}

// The boxes of a page; `scheme` says whether that of the scheme goes too.
void Page_Empty(FrmSettings& form, int page, bool scheme)
{
    Settings_Box_Fill(form, form.txtName[page], "");
    if (page != pageSchemes || scheme)
        Settings_Box_Fill(form, Value_Box(form, page), "");
    if (page == pageTemplates)
        Settings_Box_Fill(form, form.txtData[templateExt], "");
}

void Row_Remove(Program& p, int page)
{
    FrmSettings& form = p.Settings();
    ListView& list = form.lsvSettings[page];
    const int row = list.SelectedItem();
    if (!list.Remove(row))
        return;
    form.ListDirty[static_cast<std::size_t>(page)] = true;
    Page_Empty(form, page, false);
    if (list.Count() > 0)
        Settings_Row_Select(list, std::min(row, list.Count()));
    Settings_Row_Show(p, page);
    Settings_Buttons_Set(p, page);
}

void Page_Clear(Program& p, int page)
{
    Page_Empty(p.Settings(), page, true);
    p.Settings().txtName[page].SetFocus();
}

void Page_Wire(Program& p, FrmSettings& form, int page)
{
    ListView& list = form.lsvSettings[page];
    list.ItemClick = [&p, page] { Settings_Row_Click(p, page); };
    list.ColumnClick = [&p, page](int column) { Column_Click(p, page, column); };
    list.KeyUp = [&p, page](Key& key) {
        if (Key_Moves(key) && p.Settings().lsvSettings[page].SelectedItem() > 0)
            Settings_Row_Click(p, page);
    };
    form.cmdAdd[page].Click = [&p, page] { Row_Add(p, page); };
    form.cmdUpdate[page].Click = [&p, page] { Row_UpdateSelected(p, page); };
    form.cmdRemove[page].Click = [&p, page] { Row_Remove(p, page); };
    form.cmdNew[page].Click = [&p, page] { Page_Clear(p, page); };
    form.cmdUp[page].Click = [&p, page] { Settings_Row_Move(p, page, -1); };
    form.cmdDown[page].Click = [&p, page] { Settings_Row_Move(p, page, 1); };
}

} // namespace

const std::array<SettingsList, 5>& Settings_ListPages()
{
    using S = SharedState;
    static constexpr std::array<SettingsList, 5> pages{{
        {pageTemplates, &S::Templates, "Templates", "Tmp"},
        {pageFavorites, &S::Favorites, "Favorites", "Fav"},
        {pageFilters, &S::Filters, "Filters", "Fil"},
        {pageSchemes, &S::ThumbSchemes, "ThumbSchemes", "Sch"},
        {pageWindows, &S::Windows, "Windows", "Win"},
    }};
    return pages;
}

void Settings_Pages_Wire(Program& p, FrmSettings& form)
{
    for (int page = firstListPage; page <= lastListPage; ++page)
        Page_Wire(p, form, page);
    form.ataSettings.Leaving = [&p] {
        if (p.Settings().ItemDirty)
            Settings_Item_Ask(p);
    };
    form.ataSettings.TabClick = [&p] { Settings_Page_Show(p); };
    Settings_Boxes_Wire(p, form);
}

void Settings_Pages_Fill(Program& p)
{
    FrmSettings& form = p.Settings();
    for (const SettingsList& page : Settings_ListPages()) {
        form.lsvSettings[page.Page].Order = p.main.lsvRename.Order;
        Settings_List_Fill(form.lsvSettings[page.Page], p.state.*page.List, page.ShortName);
        Settings_Buttons_Set(p, page.Page);
    }
    // Template 0 is built in and no row.
    form.lsvSettings[pageTemplates].SetTag(p.state.nnAppTmpDef, defaultMark);
}

void Settings_Page_Show(Program& p)
{
    FrmSettings& form = p.Settings();
    const int page = form.ataSettings.Selected();
    form.CurPage = page == pageDefaults ? -1 : page;
    form.CurRow = -1;
    form.ItemDirty = false;
    if (page == pageDefaults)
        return;
    if (page == pageTemplates)
        form.cboMode.SetListIndex(0);
    Settings_Row_Show(p, page);
    Settings_Page_Focus(p);
}

void Settings_Page_Focus(Program& p)
{
    FrmSettings& form = p.Settings();
    if (form.CurPage > 0)
        form.txtName[form.CurPage].SetFocus();
}

void Settings_Proposal_Show(Program& p, const SettingsProposal& proposal)
{
    FrmSettings& form = p.Settings();
    if (!proposal.Caption.empty())
        form.SetCaption(proposal.Caption);
    if (form.CurPage < 0)
        return;
    Settings_Box_Fill(form, form.txtName[form.CurPage], proposal.Name);
    Settings_Value_Show(form, form.CurPage, proposal.Data);
    form.CurRow = -1;
    // The name is there to be typed over.
    Box_SelectAll(form.txtName[form.CurPage]);
}

} // namespace tavo
