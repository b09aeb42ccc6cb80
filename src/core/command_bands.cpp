#include "core/commands.h"

#include "core/screens.h"
#include "core/tools.h"

namespace tavo {

namespace {

constexpr BandPlan bands[] = {
    {"Menu",
     {"ID_mnuFile", "ID_mnuEdit", "ID_mnuView", "ID_mnuFavorites", "ID_mnuThumbnail",
      "ID_mnuTSchemes", "ID_mnuTemplates", "ID_mnuWindow", "ID_mnuHelp"}},
    {"Standard",
     {"ID_NewList", "-", "ID_SelDown", "ID_SelDistance", "ID_SelUp", "ID_SelGroup", "ID_SelDelete",
      "-", "ID_Views", "-", "ID_Viewer", "ID_ViewerUp", "-", "ID_RenameList", "ID_AutoFill", "-",
      "ID_RenUndo", "ID_RenSelected", "ID_RenAll"}},
    {"Selection",
     {"ID_CreateList", "-", "ID_SelAll", "ID_SelClear", "-", "ID_SelFolder", "ID_SelSubFiles", "-",
      "ID_sFilter", "ID_SelUseFilter", "ID_FilAdd", "-", "ID_SelPreviewOn", "ID_SelPreviewOff"}},
    {"Address", {"ID_lblAddress:", "ID_sAddress", "ID_SelUsePath"}},

    {"ID_mnuFile", {"ID_DefSave", "ID_DefLoad", "ID_ExportList", "-", "ID_Exit"}},
    {"ID_mnuEdit",
     {"ID_Undo", "-", "ID_Cut", "ID_Copy", "ID_Paste", "-", "ID_Settings", "-", "ID_SelAll",
      "ID_SelInvert"}},
    {"ID_mnuView",
     {"ID_mnuRenMode", "-", "ID_mnuToolbars", "-", "ID_ArrangeLarge", "ID_ArrangeSmall",
      "ID_ArrangeList", "ID_ArrangeDetails", "ID_ArrangeThumb", "-", "ID_mnuArrange", "-",
      "ID_RefreshList"}},
    {"ID_mnuRenMode",
     {"ID_Attributes", "ID_ChangeCase", "ID_DateTime", "ID_MoveCopy", "ID_NameNumber",
      "ID_SearchReplace", "ID_MP3Tag"}},
    {"ID_mnuToolbars", {"ID_tbAddress", "-", "ID_tbTextLabels"}},
    {"ID_mnuArrange",
     {"ID_byName", "ID_byType", "ID_bySize", "ID_byDate", "ID_byUndoName", "ID_byError"}},
    {"ID_mnuViews",
     {"ID_ArrangeLarge", "ID_ArrangeSmall", "ID_ArrangeList", "ID_ArrangeDetails",
      "ID_ArrangeThumb"}},
    {"ID_mnuFavorites", {"ID_FavAdd", "ID_FavOrganize"}},
    {"ID_mnuThumbnail",
     {"ID_ThumbLayout", "-", "ID_ThumbClear", "ID_mnuThumbCreate", "ID_mnuThumbUpdate", "-",
      "ID_ThumbCaption", "ID_mnuCapAlign"}},
    {"ID_mnuThumbCreate", {"ID_ThumbCreateAll", "ID_ThumbCreateSel"}},
    {"ID_mnuThumbUpdate", {"ID_ThumbUpdateAll", "ID_ThumbUpdateSel"}},
    {"ID_mnuCapAlign", {"ID_AlignLeft", "ID_AlignCenter", "ID_AlignRight"}},
    {"ID_mnuTSchemes", {"ID_TSchemesOrg", "ID_TSchemesDef"}},
    {"ID_mnuTemplates", {"ID_TmpApply", "ID_TmpApplySel", "-", "ID_TmpOrg"}},
    {"ID_mnuWindow", {"ID_WinAdd", "ID_WinOrganize", "ID_DefaultSize"}},
    {"ID_mnuHelp", {"ID_HelpContents", "-", "ID_About"}},
    {"ID_mnuAlign", {}},
    {"ID_mnuCaption", {}},
};

// The rows of ID_RenameList; a row's number is its mode.
constexpr std::string_view modeRows[] = {"Attributes",       "Change Case",   "Date & Time",
                                         "Move & Copy",      "Name & Number", "Search & Replace",
                                         "MP3 Tag (ID3v1.1)"};

void Tool_Add(ToolBars& bars, const Command& command)
{
    Tool* tool = bars.AddTool(std::string(command.Id), command.Kind);
    if (!tool)
        return;
    tool->Caption = std::string(command.Caption);
    tool->Description = std::string(command.Description);
    tool->ToolTipText = std::string(command.Tip);
    tool->IconName = std::string(command.Icon);
    tool->Category = std::string(command.Category);
    if (!command.Shortcut.empty())
        Key_FromName(command.Shortcut, tool->Shortcut);
}

void Band_Fill(ToolBars& bars, const BandPlan& plan)
{
    Band& band = bars.AddBand(std::string(plan.Name));
    int separators = 0;
    for (const std::string_view id : plan.Tools) {
        if (id.empty())
            break;
        const bool parts = id == "-";
        const std::string name =
            parts ? "Sep" + std::string(plan.Name) + std::to_string(++separators) : std::string(id);
        if (parts)
            bars.AddTool(name, ToolKind::Separator);
        if (Tool* tool = bars.Find(name))
            band.Add(*tool);
    }
}

// How the tools stand before the first screen is shown.
void Tools_Begin(Program& p)
{
    for (const auto* name : {"Standard", "Selection", "Address"})
        p.main.atbMain.FindBand(name)->SetVisible(false);
    Tools_Show(p, {"ID_mnuTemplates", "ID_SelPreviewOff"}, false);
    Tools_Enable(p, {"ID_ThumbCaption", "ID_mnuCapAlign"}, false);
    Tools_ListEnable(p, false);
    ComboBox& modes = *Tool_Combo(p, "ID_RenameList");
    modes.SetStyle(ComboKind::List);
    for (const std::string_view row : modeRows)
        modes.AddItem(std::string(row));
}

void Events_Wire(Program& p)
{
    ToolBars& bars = p.main.atbMain;
    bars.ToolClick = [&p](Tool& tool) { Tool_Click(p, tool); };
    bars.ToolComboClick = [&p](Tool& tool) { Tool_ComboClick(p, tool); };
    bars.ToolKeyPress = [&p](Tool& tool, int& key) { Tool_KeyPress(p, tool, key); };
    bars.ToolKeyDown = [&p](Tool& tool, Key& key) { Tool_KeyDown(p, tool, key); };
    bars.ToolChange = [&p](Tool& tool) { Tool_Change(p, tool); };
    bars.ToolGotFocus = [&p](Tool& tool) { Tool_GotFocus(p, tool); };
    bars.ToolLostFocus = [&p](Tool& tool) { Tool_LostFocus(p, tool); };
    // The menu opens under the tool.
    bars.ToolDropDown = [&p](Tool& tool) { Tool_Dropdown(p, tool, 0, tool.Height); };
}

} // namespace

std::span<const BandPlan> CommandBands()
{
    return bands;
}

void Bars_Build(ToolBars& bars, std::span<const Command> commands, std::span<const BandPlan> plans)
{
    for (const Command& command : commands)
        Tool_Add(bars, command);
    for (const BandPlan& plan : plans)
        Band_Fill(bars, plan);
}

void Commands_Build(Program& p)
{
    Bars_Build(p.main.atbMain, Commands(), CommandBands());
    Tools_Begin(p);
    Events_Wire(p);
}

} // namespace tavo
