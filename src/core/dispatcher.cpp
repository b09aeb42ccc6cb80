#include "core/commands.h"

#include "core/screens.h"
#include "core/tools.h"
#include "renamelist/key_filters.h"
#include "renamelist/nn_panel.h"
#include "renamelist/preview.h"
#include "selection/paths.h"
#include "selection/selection_screen.h"
#include "settings/window_layout.h"
#include "thumbnails/thumb_grid.h"
#include "toolkit/numbers.h"

namespace tavo {

namespace {

// -- Entries of the list menus: the id is a prefix and the row's number.

void Favorite_Open(Program& p, int index)
{
    const std::string& folder = p.state.Favorites[static_cast<std::size_t>(index)].Data;
    std::string looked = folder;
    if (Folder_Exists(p.files, looked))
        return Sel_Open(p, std::string(folder));
    p.Say("The Path for that Favorite appears Invalid!", BoxIcon::Exclamation);
}

void Template_Choose(Program& p, int index)
{
    p.state.nnAppTmpDef = static_cast<std::int16_t>(index);
    Label& label = p.main.lblTmpInsert[tmplCurrentLabel];
    label.Caption = p.state.Templates[static_cast<std::size_t>(index)].Name;
    label.Tag = IntToText(index);
    Tmpl_Load(p, index);
}

void Scheme_Choose(Program& p, int index)
{
    const NamedItem scheme = p.state.ThumbSchemes[static_cast<std::size_t>(index)];
    p.state.Scheme = scheme.Name;
    Thumb_Scheme_Apply(p, scheme.Data);
}

void Layout_Choose(Program& p, int index)
{
    Win_Layout_Apply(p, p.state.Windows[static_cast<std::size_t>(index)].Data);
}

// What moves windows alone may also happen during a long operation.
struct ListMenu {
    std::string_view Prefix;
    NamedList SharedState::*List;
    void (*Run)(Program& p, int index);
    bool WhileBusy = false;
};

constexpr ListMenu listMenus[] = {
    {"ID_Favorite", &SharedState::Favorites, Favorite_Open},
    {"ID_Scheme", &SharedState::ThumbSchemes, Scheme_Choose},
    {"ID_TmpLst", &SharedState::Templates, Template_Choose},
    {"ID_Window", &SharedState::Windows, Layout_Choose, true},
};

// -- Boxes on the bands.

void Filter_Enter(Program& p, Tool&)
{
    if (p.state.FilterFilling || p.Busy())
        return;
    Sel_Filter_Apply(p);
}

void Address_Enter(Program& p, Tool&)
{
    if (!p.Busy())
        Sel_Address_Apply(p);
}

void Mode_Enter(Program& p, Tool& tool)
{
    if (!p.state.ModeShowing && !p.Busy() && tool.Combo()->ListIndex() >= 0)
        Mode_Set(p, tool.Combo()->ListIndex());
}

// The distance lies between 1 and the number of rows; without rows it is 0.
void Distance_Hold(Program& p, Tool& tool)
{
    double distance = Val(tool.Box->Text.Get());
    if (distance < 1)
        distance = 1;
    if (distance > p.state.RenCount)
        distance = p.state.RenCount;
    tool.Box->Text = DoubleToText(distance);
}

void Distance_Enter(Program&, Tool& tool)
{
    Box_SelectAll(*tool.Box);
}

// What a box does with the events that come through the toolbar.
struct BoxRules {
    std::string_view Id;
    void (*Chosen)(Program& p, Tool& tool);
    void (*Returned)(Program& p, Tool& tool);
    void (*KeyFilter)(int& key);
    void (*Changed)(Program& p, Tool& tool);
    void (*Entered)(Program& p, Tool& tool);
    void (*Left)(Program& p, Tool& tool);
};

constexpr BoxRules boxRules[] = {
    {"ID_sFilter", Filter_Enter, Filter_Enter, nullptr, nullptr, nullptr, nullptr},
    {"ID_sAddress", nullptr, Address_Enter, nullptr, nullptr, nullptr, nullptr},
    {"ID_RenameList", Mode_Enter, nullptr, nullptr, nullptr, nullptr, nullptr},
    {"ID_SelDistance", nullptr, nullptr, Txt_NumericKey, Distance_Hold, Distance_Enter,
     Distance_Hold},
};

void Box_Run(void (*BoxRules::*event)(Program&, Tool&), Program& p, Tool& tool)
{
    for (const BoxRules& rules : boxRules)
        if (rules.Id == tool.Name() && rules.*event)
            (rules.*event)(p, tool);
}

} // namespace

void Tool_Click(Program& p, Tool& tool)
{
    if (const Command* command = Command_Find(tool.Name())) {
        if (command->Run)
            command->Run(p, tool);
        return;
    }
    const std::string id = tool.Name();
    for (const ListMenu& menu : listMenus) {
        if (!id.starts_with(menu.Prefix))
            continue;
        const double index = Val(std::string_view(id).substr(menu.Prefix.size()));
        if ((menu.WhileBusy || !p.Busy()) && index >= 1 && index <= List_Last(p.state.*menu.List))
            menu.Run(p, static_cast<int>(index));
        return;
    }
}

void Tool_ComboClick(Program& p, Tool& tool)
{
    Box_Run(&BoxRules::Chosen, p, tool);
}

void Tool_KeyPress(Program&, Tool& tool, int& key)
{
    for (const BoxRules& rules : boxRules)
        if (rules.Id == tool.Name() && rules.KeyFilter)
            rules.KeyFilter(key);
}

void Tool_KeyDown(Program& p, Tool& tool, Key& key)
{
    if (key.Code == keyReturn && key.Shift == shiftNone)
        Box_Run(&BoxRules::Returned, p, tool);
}

void Tool_Change(Program& p, Tool& tool)
{
    Box_Run(&BoxRules::Changed, p, tool);
}

void Tool_GotFocus(Program& p, Tool& tool)
{
    Box_Run(&BoxRules::Entered, p, tool);
}

void Tool_LostFocus(Program& p, Tool& tool)
{
    Box_Run(&BoxRules::Left, p, tool);
}

void Tool_Dropdown(Program& p, Tool& tool, double xTwips, double yTwips)
{
    if (tool.Name() != "ID_Views")
        return;
    if (Tool* menu = p.main.atbMain.Find("ID_mnuViews"))
        p.desktop.PopUpMenu(*menu, static_cast<int>(xTwips), static_cast<int>(yTwips));
}

} // namespace tavo
