#include "core/command_handlers.h"

#include "core/tools.h"
#include "renamelist/preview.h"
#include "selection/enumeration.h"
#include "selection/selection_screen.h"

namespace tavo {

namespace {

// Changes the selection of the list in sight, and shows what follows from it.
void Selection_Change(Program& p, void (*change)(ListView& list))
{
    // A walk counts on the selection that it began with.
    if (p.Busy())
        return;
    FrmMain& main = p.main;
    if (main.fraSelect.Visible) {
        change(main.lsvSelMain);
        main.lsvSelMain.Refresh();
        return Sel_Status_Update(p);
    }
    change(main.lsvRename);
    main.stbMain.SetPanel(3, "Selected: " + std::to_string(main.lsvRename.SelCount()));
    Preview_Show(p);
    if (p.state.CurScreen == screenThumbnails)
        p.RowsRedrawn();
}

} // namespace

void Cmd_SelAll(Program& p, Tool&)
{
    Selection_Change(p, [](ListView& list) { list.SetAllSelected(true); });
}

void Cmd_SelInvert(Program& p, Tool&)
{
    Selection_Change(p, [](ListView& list) { list.InvertSelection(); });
}

void Cmd_SelClear(Program& p, Tool&)
{
    Sel_Filter_Clear(p);
}

void Cmd_SelFolder(Program& p, Tool& tool)
{
    Sel_FolderMode_Toggle(p, tool.Checked);
}

void Cmd_SelSubFiles(Program& p, Tool&)
{
    Sel_List_Fill(p, p.state.StartPath, true, p.state.Filter);
}

void Cmd_SelUseFilter(Program& p, Tool&)
{
    Sel_Filter_Apply(p);
}

void Cmd_SelUsePath(Program& p, Tool&)
{
    Sel_Address_Apply(p);
}

void Cmd_PreviewOn(Program& p, Tool&)
{
    Sel_Preview_Switch(p, true);
}

void Cmd_PreviewOff(Program& p, Tool&)
{
    Sel_Preview_Switch(p, false);
}

} // namespace tavo
