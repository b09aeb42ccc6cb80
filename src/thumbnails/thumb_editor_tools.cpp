#include "controls/frm_about.h"
#include "core/commands.h"
#include "core/program.h"
#include "core/windows.h"
#include "renamelist/key_filters.h"
#include "settings/frm_settings.h"
#include "settings/named_lists.h"
#include "thumbnails/frm_thumb_editor.h"
#include "thumbnails/thumb_cells.h"
#include "thumbnails/thumb_editor_parts.h"
#include "toolkit/numbers.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace tavo {

namespace {

constexpr auto button = ToolKind::Button;
constexpr auto toggle = ToolKind::Toggle;
constexpr auto menu = ToolKind::Menu;

constexpr std::string_view schemePrefix = "ID_Scheme";
// The list follows these tools of its menu: add, organise, default.
constexpr int firstScheme = 4;

void Schemes_Fill(Program& p, FrmThumbEditor& f)
{
    Menu_Rebuild(f.atbThumbs, p.state.ThumbSchemes, "image-x-generic", std::string(schemePrefix),
                 firstScheme, "ID_mnuTSchemes");
}

void Labels_Set(FrmThumbEditor& f, bool on)
{
    if (const Band* band = f.atbThumbs.FindBand("Standard"))
        for (Tool* tool : band->Tools())
            tool->Style = on ? ToolStyle::PictureAndText : ToolStyle::Picture;
}

void Settings_Visit(Program& p, const std::optional<SettingsProposal>& proposal)
{
    Settings_Open(p, pageSchemes, proposal);
    Schemes_Fill(p, p.ThumbEditor());
}

void Cmd_EditorAlign(Program& p, Tool& tool)
{
    const auto id = std::ranges::find(alignTools, tool.Name());
    Editor_Align(p.ThumbEditor(), static_cast<int>(id - std::begin(alignTools)));
}

void Cmd_EditorAdd(Program& p, Tool&)
{
    Settings_Visit(p, SettingsProposal{"New Scheme", Thumb_Editor_Record(p.ThumbEditor()), ""});
}

void Cmd_EditorOrganize(Program& p, Tool&)
{
    Settings_Visit(p, std::nullopt);
}

void Cmd_EditorDefault(Program& p, Tool&)
{
    Thumb_Editor_Load(p.ThumbEditor(), p.state.ThumbSchemes[0].Data);
}

void Cmd_EditorTextLabels(Program& p, Tool& tool)
{
    p.state.tbtTextLabels = tool.Checked ? 1 : 0;
    Labels_Set(p.ThumbEditor(), tool.Checked);
}

void Cmd_EditorHelp(Program& p, Tool&)
{
    Help_Show(p, "Topic");
}

void Cmd_EditorHelpIndex(Program& p, Tool&)
{
    Help_Show(p, "Index");
}

void Cmd_EditorAbout(Program& p, Tool&)
{
    About_Show(p, p.ThumbEditor());
}

void Cmd_EditorExit(Program& p, Tool&)
{
    p.ThumbEditor().Unload();
}

// Id, kind, caption, description, tip, icon, shortcut, category, handler.
constexpr Command table[] = {
    {"ID_mnuFile", menu, "&File", "", "", "", "", "Menu", nullptr},
    {"ID_mnuView", menu, "&View", "", "", "", "", "Menu", nullptr},
    {"ID_mnuTSchemes", menu, "&Schemes", "", "", "", "", "Menu", nullptr},
    {"ID_mnuHelp", menu, "&Help", "", "", "", "", "Menu", nullptr},

    {"ID_BorderWidth", ToolKind::Combo, "Border", "Sets the Border Width in Pixels",
     "Width of Thumbnail Border in Pixels", "", "", "Size", nullptr},
    {"ID_Width", ToolKind::Edit, "Width", "", "Width of Thumbnail in Pixels", "", "", "Size",
     nullptr},
    {"ID_Height", ToolKind::Edit, "Height", "", "Height of Thumbnail in Pixels", "", "", "Size",
     nullptr},
    {"ID_AlignLeft", toggle, "Align &Left", "", "&Align Caption Left", "format-justify-left", "",
     "Caption", Cmd_EditorAlign},
    {"ID_AlignRight", toggle, "Align &Right", "", "&Align Caption Right", "format-justify-right",
     "", "Caption", Cmd_EditorAlign},
    {"ID_AlignCenter", toggle, "Align &Center", "", "&Center Caption", "format-justify-center", "",
     "Caption", Cmd_EditorAlign},
    {"ID_TSchemesAdd", button, "&Add to Schemes...", "", "", "list-add", "", "Schemes",
     Cmd_EditorAdd},
    {"ID_TSchemesOrg", button, "&Organize Schemes...", "", "", "", "", "Schemes",
     Cmd_EditorOrganize},
    {"ID_TSchemesDef", button, "&Default Scheme", "", "", "", "", "Schemes", Cmd_EditorDefault},
    {"ID_tbTextLabels", toggle, "&Text Labels", "", "Display Text Labels under Toolbar Buttons", "",
     "", "Toolbars", Cmd_EditorTextLabels},
    {"ID_HelpContents", button, "&Help Topics", "Open the Help File", "", "help-contents", "",
     "Help", Cmd_EditorHelp},
    {"ID_HelpIndex", button, "&Index...", "Open the Help File in Search Mode", "", "", "", "Help",
     Cmd_EditorHelpIndex},
    {"ID_About", button, "&About", "Shows the About Form", "", "help-about", "", "Help",
     Cmd_EditorAbout},
    {"ID_Exit", button, "E&xit", "", "Exit without Saving", "application-exit", "", "Window",
     Cmd_EditorExit},
};

constexpr BandPlan bands[] = {
    {"Menu", {"ID_mnuFile", "ID_mnuView", "ID_mnuTSchemes", "ID_mnuHelp"}},
    {"Standard",
     {"ID_Width", "ID_Height", "ID_BorderWidth", "-", "ID_AlignLeft", "ID_AlignCenter",
      "ID_AlignRight", "-", "ID_TSchemesAdd"}},
    {"ID_mnuFile", {"ID_Exit"}},
    {"ID_mnuView", {"ID_AlignLeft", "ID_AlignCenter", "ID_AlignRight", "-", "ID_tbTextLabels"}},
    {"ID_mnuTSchemes", {"ID_TSchemesAdd", "ID_TSchemesOrg", "ID_TSchemesDef"}},
    {"ID_mnuHelp", {"ID_HelpContents", "ID_HelpIndex", "-", "ID_About"}},
};

bool IsSizeTool(const Tool& tool)
{
    return tool.Name() == "ID_Width" || tool.Name() == "ID_Height";
}

void Size_Enter(FrmThumbEditor& f, Tool& tool)
{
    Thumb_Field_Clamp(tool, smallestSize, largestSize);
    Editor_Sizes_Take(f);
}

} // namespace

std::span<const Command> Editor_Commands()
{
    return table;
}

std::span<const BandPlan> Editor_Bands()
{
    return bands;
}

void Editor_Tools_Begin(Program& p, FrmThumbEditor& f)
{
    Schemes_Fill(p, f);
    for (const auto* id : {"ID_TSchemesAdd", "ID_TSchemesOrg"})
        f.atbThumbs.Find(id)->Enabled = !f.OnScheme;
    f.atbThumbs.Find("ID_tbTextLabels")->Checked = p.state.tbtTextLabels == 1;
    Labels_Set(f, p.state.tbtTextLabels == 1);
}

void Editor_Tool_Click(Program& p, Tool& tool)
{
    const std::string id = tool.Name();
    for (const Command& command : table)
        if (command.Id == id) {
            if (command.Run)
                command.Run(p, tool);
            return;
        }
    if (!id.starts_with(schemePrefix))
        return;
    const double index = Val(std::string_view(id).substr(schemePrefix.size()));
    if (index >= 1 && index <= List_Last(p.state.ThumbSchemes))
        Thumb_Editor_Load(p.ThumbEditor(),
                          p.state.ThumbSchemes[static_cast<std::size_t>(index)].Data);
}

// Return is used up, or it would go on to OK; Escape goes on to Cancel.
void Editor_Tool_KeyPress(FrmThumbEditor& f, Tool& tool, int& key)
{
    if (!IsSizeTool(tool) || key == keyEscape)
        return;
    if (key == keyReturn) {
        Size_Enter(f, tool);
        key = 0;
        return;
    }
    // The point, which the filter of numbers lets pass, is dropped as well.
    Txt_NumericKey(key);
    key = key == '.' ? 0 : key;
}

void Editor_Tool_LostFocus(FrmThumbEditor& f, Tool& tool)
{
    if (IsSizeTool(tool))
        Size_Enter(f, tool);
}

} // namespace tavo
