#include "settings/settings_pages.h"

#include "core/program.h"
#include "renamelist/rename_list.h"
#include "toolkit/text.h"

namespace tavo {

namespace {

void Rows_Swap(ListView& list, int one, int other)
{
    for (int column = 0; column < list.ColumnCount(); ++column) {
        const std::string text(list.Cell(one, column));
        list.SetCell(one, column, std::string(list.Cell(other, column)));
        list.SetCell(other, column, text);
    }
    const std::string tag(list.Tag(one));
    list.SetTag(one, std::string(list.Tag(other)));
    list.SetTag(other, tag);
}

} // namespace

void Settings_List_Fill(ListView& list, const NamedList& items, std::string_view shortName)
{
    const ListFreezeGuard freeze(list);
    list.DeleteAllItems();
    list.SetSorted(false);
    list.SetSortKey(0);
    list.SetSortOrder(0);
    Ren_Marks_Clear(list);
    for (std::size_t i = 1; i < items.size(); ++i) {
        const std::string_view cells[] = {items[i].Name, items[i].Data};
        list.AddRow(cells, 2, shortName);
    }
    if (list.Count() > 0)
        Settings_Row_Select(list, 1);
}

void Settings_List_Read(const ListView& list, NamedList& items)
{
    items.resize(1);
    for (int row = 1; row <= list.Count(); ++row)
        items.push_back({std::string(list.Text(row)), std::string(list.Cell(row, 1))});
}

void Settings_Row_Select(ListView& list, int row)
{
    list.SetAllSelected(false);
    list.SetSelected(row, true);
    list.EnsureVisible(row);
}

// The selected row into the boxes; without one they stay.
void Settings_Row_Show(Program& p, int page)
{
    FrmSettings& form = p.Settings();
    const ListView& list = form.lsvSettings[page];
    const int row = list.SelectedItem();
    form.ItemDirty = false;
    form.CurRow = row > 0 ? row : -1;
    if (row == 0)
        return;
    Settings_Box_Fill(form, form.txtName[page], std::string(list.Text(row)));
    Settings_Value_Show(form, page, std::string(list.Cell(row, 1)));
}

void Settings_Row_Click(Program& p, int page)
{
    FrmSettings& form = p.Settings();
    ListView& list = form.lsvSettings[page];
    if (form.ItemDirty)
        Settings_Item_Ask(p);
    // One row at a time, however it was picked.
    if (list.SelCount() != 1 || !list.Selected(list.SelectedItem()))
        Settings_Row_Select(list, list.SelectedItem());
    Settings_Row_Show(p, page);
    Settings_Buttons_Set(p, page);
}

void Settings_Value_Show(FrmSettings& form, int page, const std::string& value)
{
    if (page != pageTemplates)
        return Settings_Box_Fill(form, form.txtData[page], value);
    const int colon = InStr(value, ":");
    const bool whole = colon == 0;
    Settings_Box_Fill(form, form.txtData[templateName], whole ? value : Left(value, colon - 1));
    Settings_Box_Fill(form, form.txtData[templateExt],
                      whole ? std::string() : Mid(value, colon + 1));
}

void Settings_Row_Move(Program& p, int page, int direction)
{
    FrmSettings& form = p.Settings();
    ListView& list = form.lsvSettings[page];
    const int from = list.SelectedItem(), to = from + direction;
    if (from < 1 || to < 1 || to > list.Count())
        return;
    Ren_Order_MakePlain(list);
    Rows_Swap(list, from, to);
    Settings_Row_Select(list, to);
    form.ListDirty[static_cast<std::size_t>(page)] = true;
    // What stands in the boxes unsaved belongs to the row that has moved.
    if (form.CurPage == page && form.CurRow == from)
        form.CurRow = to;
    Settings_Row_Click(p, page);
}

void Settings_Buttons_Set(Program& p, int page)
{
    FrmSettings& form = p.Settings();
    const int count = form.lsvSettings[page].Count();
    const int row = form.lsvSettings[page].SelectedItem();
    form.cmdUp[page].Enabled = row > 1;
    form.cmdDown[page].Enabled = row > 0 && row < count;
    form.cmdUpdate[page].Enabled = row > 0;
    form.cmdRemove[page].Enabled = row > 0;
}

void Settings_Row_Update(Program& p, int page, int row)
{
    FrmSettings& form = p.Settings();
    ListView& list = form.lsvSettings[page];
    const std::string name = Settings_Line(form.txtName[page].Text);
    if (name.empty()) {
        p.Say("Blank Names are not Allowed!\r\nItem was not Updated...", BoxIcon::Exclamation);
        return;
    }
    const int found = list.FindItem(name);
    if (found > 0 && !SameText(list.Text(found), list.Text(row))) {
        p.Say("Duplicate List Names are not Allowed!\r\nItem was not Updated...",
              BoxIcon::Exclamation);
        return;
    }
    list.SetText(row, name);
    list.SetCell(row, 1, Settings_Value_Get(form, page));
    form.ListDirty[static_cast<std::size_t>(page)] = true;
}

void Settings_Item_Ask(Program& p)
{
    FrmSettings& form = p.Settings();
    if (form.CurPage < 0 || form.CurRow < 0)
        return;
    const int page = form.CurPage;
    if (p.Say("The Last Item was Changed but not Updated!\r\nWould you like to Update it now?",
              BoxIcon::Question, BoxButtons::YesNo)
        == BoxAnswer::Yes)
        Settings_Row_Update(p, page, form.CurRow);
    form.ListDirty[static_cast<std::size_t>(page)] = true;
    form.ItemDirty = false;
}

std::string Settings_Line(std::string text)
{
    std::erase_if(text, [](char c) { return c == '\r' || c == '\n'; });
    return text;
}

std::string Settings_Value_Get(const FrmSettings& form, int page)
{
    if (page == pageTemplates)
        return Settings_Line(form.txtData[templateName].Text.Get() + ":"
                             + form.txtData[templateExt].Text.Get());
    return Settings_Line(form.txtData[page].Text);
}

} // namespace tavo
