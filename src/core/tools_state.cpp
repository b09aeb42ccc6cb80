#include "core/screens.h"

#include "core/tools.h"
#include "core/windows.h"

namespace tavo {

namespace {

// The menu behind the arrow of ID_Views is on no band, so it has to be switched
// with that tool: its entries would stay in reach through it.
constexpr std::string_view viewsMenu = "ID_mnuViews";

} // namespace

void Tools_ListEnable(Program& p, bool on)
{
    Tools_Enable(p,
                 {"ID_RenSelected", "ID_RenAll", "ID_RenUndo", "ID_SelDelete", "ID_SelGroup",
                  "ID_SelUp", "ID_SelDown", "ID_SelDistance", "ID_RefreshList", "ID_Views",
                  "ID_AutoFill", "ID_RenameList", "ID_ViewerUp", "ID_Viewer", viewsMenu},
                 on);
    Tools_Show(p, {"ID_mnuThumbnail", "ID_mnuTSchemes"}, on);
}

void Tools_RunEnable(Program& p, bool on)
{
    if (Frame* panel = p.main.ctlRbRenMode.At(p.state.RenMode))
        panel->Enabled = on;
    p.main.picThumbnails.Enabled = on;
    Tools_Enable(p, {"ID_NewList",     "ID_CreateList",   "ID_RenSelected",  "ID_RenAll",
                     "ID_RenUndo",     "ID_SelDelete",    "ID_SelGroup",     "ID_SelUp",
                     "ID_SelDown",     "ID_SelDistance",  "ID_RefreshList",  "ID_Views",
                     "ID_AutoFill",    "ID_RenameList",   "ID_ViewerUp",     "ID_Viewer",
                     "ID_mnuEdit",     "ID_mnuView",      "ID_mnuFavorites", "ID_mnuThumbnail",
                     "ID_mnuTSchemes", "ID_mnuTemplates", viewsMenu},
                 on);
}

void Tools_SelEnable(Program& p, bool on)
{
    p.main.fraSelect.Enabled = on;
    Tools_Enable(p,
                 {"ID_CreateList", "ID_SelAll", "ID_SelClear", "ID_SelFolder", "ID_sFilter",
                  "ID_FilAdd", "ID_SelUsePath", "ID_SelPreviewOn", "ID_SelPreviewOff", "ID_mnuEdit",
                  "ID_mnuView", "ID_mnuFavorites"},
                 on);
    // A walk for folders never goes into the subfolders.
    Tools_Enable(p, {"ID_SelSubFiles"}, on && p.state.SelFolderMode != 1);
}

void Tools_SetLabels(Program& p, bool on)
{
    const ToolStyle style = on ? ToolStyle::PictureAndText : ToolStyle::Picture;
    Win_Lock(p, true, p.main);
    for (const auto* name : {"Standard", "Selection"})
        if (const Band* band = p.main.atbMain.FindBand(name))
            for (Tool* tool : band->Tools())
                tool->Style = style;
    // These would say nothing as a picture alone.
    struct Readable {
        std::string_view Id;
        ToolStyle Without;
    };
    static constexpr Readable readables[] = {
        {"ID_sFilter", ToolStyle::PictureAndText},
        {"ID_FilAdd", ToolStyle::TextOnly},
        {"ID_SelAll", ToolStyle::TextOnly},
    };
    for (const Readable& row : readables)
        if (Tool* tool = p.main.atbMain.Find(row.Id))
            tool->Style = on ? ToolStyle::PictureAndText : row.Without;
    Win_Lock(p, false, p.main);
}

} // namespace tavo
