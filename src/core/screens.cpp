#include "core/screens.h"

#include "core/layout.h"
#include "core/tools.h"
#include "core/windows.h"
#include "selection/enumeration.h"
#include "settings/named_lists.h"

namespace tavo {

namespace {

void Band_Show(Program& p, std::string_view name, bool on)
{
    if (Band* band = p.main.atbMain.FindBand(name))
        band->SetVisible(on);
}

void Bands_Show(Program& p, bool selection)
{
    Band_Show(p, "Standard", !selection);
    Band_Show(p, "Selection", selection);
    if (!selection)
        Band_Show(p, "Address", false);
    else if (p.state.tbsAddress == 1)
        Band_Show(p, "Address", true);
    if (!selection)
        return;
    Tools_Show(p, {"ID_SelPreviewOff"}, p.state.SelPreview == 1);
    Tools_Show(p, {"ID_SelPreviewOn"}, p.state.SelPreview != 1);
}

// Commands that make sense on the selection screen alone, and off it alone.
void Screen_Tools(Program& p, bool selection)
{
    Tools_Enable(p, {"ID_ExportList", "ID_tbAddress"}, selection);
    Tools_Enable(p,
                 {"ID_mnuRenMode", "ID_ArrangeList", "ID_ArrangeDetails", "ID_ArrangeThumb",
                  "ID_mnuArrange"},
                 !selection);
}

void Rename_Show(Program& p, int left)
{
    p.main.lsvRename.Visible = true;
    Screen_Tools(p, false);
    if (left == screenSelection)
        View_Set(p, p.state.lsvView); // the thumbnails may have been left for it
    // The selection screen has put the list's own menus away.
    if (left == screenSelection && p.state.RenCount > 0)
        Tools_Show(p, {"ID_mnuThumbnail", "ID_mnuTSchemes"}, true);
    p.main.SetCaption(Title_Get(p.state.RenMode));
}

void Selection_Show(Program& p, bool refill)
{
    FrmMain& main = p.main;
    for (const auto& panel : main.ctlRbRenMode)
        panel->Visible = false;
    main.stbMain.SetPanel(1, "Total: " + std::to_string(main.lsvSelMain.Count()));
    main.stbMain.SetPanel(2, "Select Files for New List");
    main.stbMain.SetPanel(3, "Selected: 0");
    if (refill)
        Sel_List_Fill(p, p.state.StartPath, false, p.state.Filter);
    else
        main.lsvSelMain.SetAllSelected(false);
    main.fraSelect.Visible = true;
    main.tmrDateTimeClock.Enabled = false;
    Screen_Tools(p, true);
    Tools_Show(p, {"ID_mnuThumbnail", "ID_mnuTSchemes", "ID_mnuTemplates"}, false);
    // Here it is the tree that is refreshed, whatever the rename list holds.
    Tools_Enable(p, {"ID_RefreshList"}, true);
    Filter_Rebuild(p);
    main.SetCaption(Title_Get(modeNone));
}

void Screen_Content(Program& p, int screen, int left, bool refill)
{
    switch (screen) {
    case screenSelection: return Selection_Show(p, refill);
    case screenRename: return Rename_Show(p, left);
    case screenThumbnails: p.main.picThumbnails.Visible = true; return p.RowsRedrawn();
    case screenAction: p.main.picAction.Visible = true; return;
    default: return;
    }
}

void Thumbnail_Tools(Program& p, int screen, int left)
{
    const bool thumbnails = screen == screenThumbnails;
    // Coming back from a run must not put the menu of a loaded list away.
    if (thumbnails || left == screenThumbnails)
        Tools_Show(p, {"ID_mnuTSchemes"}, thumbnails);
    Tools_Enable(p, {"ID_ThumbCaption", "ID_mnuCapAlign"}, thumbnails);
}

void All_Hide(FrmMain& main)
{
    for (Control* control : std::initializer_list<Control*>{&main.picThumbnails, &main.fraSelect,
                                                            &main.lsvRename, &main.picAction})
        control->Visible = false;
}

} // namespace

void Focus_Follow(Program& p)
{
    const Control* const active = p.main.ActiveControl();
    if (active && active->IsShown())
        return;
    for (ListView* list : {&p.main.lsvSelMain, &p.main.lsvRename})
        if (list->IsShown() && list->IsUsable())
            list->SetFocus();
}

void Screen_Show(Program& p, int screen, bool refill)
{
    const int left = p.state.CurScreen;
    if (screen == left || p.state.ScreenChanging)
        return;
    p.state.ScreenChanging = true;
    p.state.CurScreen = static_cast<std::int16_t>(screen);
    Win_Lock(p, true, p.main);
    All_Hide(p.main);
    p.state.ResizeOn = false;
    Bands_Show(p, screen == screenSelection);
    p.state.ResizeOn = true;
    p.main.Refresh();
    Form_Resize(p);
    Screen_Content(p, screen, left, refill);
    Thumbnail_Tools(p, screen, left);
    Focus_Follow(p);
    Win_Lock(p, false, p.main);
    p.main.Refresh();
    p.state.ScreenChanging = false;
}

} // namespace tavo
