#include "settings/named_lists.h"

#include "core/tools.h"

namespace tavo {

namespace {

bool IsOn(const Band& band, const Tool& tool)
{
    for (const Tool* other : band.Tools())
        if (other == &tool)
            return true;
    return false;
}

// The separator in front of the list's entries is made once and stays.
void Separator_Add(ToolBars& bars, Band& menu, const std::string& id)
{
    bars.AddTool(id, ToolKind::Separator);
    Tool* separator = bars.Find(id);
    if (separator && !IsOn(menu, *separator))
        menu.Add(*separator);
}

void Entry_Add(ToolBars& bars, Band& menu, const std::string& id, const NamedItem& item,
               const std::string& icon)
{
    bars.AddTool(id, ToolKind::Button);
    Tool* tool = bars.Find(id);
    if (!tool)
        return;
    tool->Caption = item.Name;
    tool->IconName = icon;
    tool->Category = "Menu";
    menu.Add(*tool);
}

// Entries that the list has no row for any more.
void Entries_EndFrom(ToolBars& bars, const std::string& prefix, int index)
{
    while (bars.Find(prefix + std::to_string(index)))
        bars.RemoveTool(prefix + std::to_string(index++));
}

struct ListMenuPlan {
    NamedList SharedState::*List;
    const char *Icon, *Prefix;
    int FirstPos;
    const char* MenuId;
};
constexpr ListMenuPlan listMenus[] = {
    {&SharedState::Favorites, "folder", "ID_Favorite", 4, "ID_mnuFavorites"},
    {&SharedState::Templates, "text-x-generic", "ID_TmpLst", 5, "ID_mnuTemplates"},
    {&SharedState::ThumbSchemes, "image-x-generic", "ID_Scheme", 4, "ID_mnuTSchemes"},
    {&SharedState::Windows, "window-new", "ID_Window", 5, "ID_mnuWindow"},
};

} // namespace

void Menu_Rebuild(ToolBars& bars, const NamedList& list, const std::string& icon,
                  const std::string& prefix, int firstPos, const std::string& menuId)
{
    Band& menu = bars.AddBand(menuId);
    while (static_cast<int>(menu.Tools().size()) > firstPos - 1)
        menu.RemoveAt(firstPos);
    Entries_EndFrom(bars, prefix, List_Last(list) + 1);
    if (List_Last(list) < 1)
        return;
    if (firstPos > 1)
        Separator_Add(bars, menu, "Sep" + prefix);
    for (int i = 1; i <= List_Last(list); ++i)
        Entry_Add(bars, menu, prefix + std::to_string(i), list[static_cast<std::size_t>(i)], icon);
}

void ListMenu_Rebuild(Program& p, NamedList SharedState::*list)
{
    for (const ListMenuPlan& menu : listMenus)
        if (menu.List == list)
            Menu_Rebuild(p.main.atbMain, p.state.*list, menu.Icon, menu.Prefix, menu.FirstPos,
                         menu.MenuId);
}

void Filter_Choose(Program& p, int row)
{
    ComboBox* box = Tool_Combo(p, "ID_sFilter");
    if (!box)
        return;
    const bool before = p.state.FilterFilling;
    p.state.FilterFilling = true;
    box->SetListIndex(row);
    p.state.FilterFilling = before;
}

void Filter_Rebuild(Program& p)
{
    if (ComboBox* box = Tool_Combo(p, "ID_sFilter")) {
        box->Clear();
        for (const NamedItem& filter : p.state.Filters)
            box->AddItem(filter.Name + " (" + filter.Data + ")");
    }
    Filter_Choose(p, 0);
    p.state.Filter = p.state.Filters.front().Data;
}

void FavPath_Rebuild(Program& p)
{
    p.main.cbomcdPath.Clear();
    for (int i = 1; i <= List_Last(p.state.Favorites); ++i)
        p.main.cbomcdPath.AddItem(p.state.Favorites[static_cast<std::size_t>(i)].Name);
}

} // namespace tavo
