#include "core/command_handlers.h"

#include "core/screens.h"
#include "core/tools.h"
#include "renamelist/act_run.h"
#include "renamelist/nn_panel.h"
#include "renamelist/preview.h"
#include "renamelist/rename_list.h"
#include "selection/enumeration.h"
#include "thumbnails/thumb_grid.h"
#include "viewer/frm_viewer.h"

namespace tavo {

namespace {

struct ById {
    std::string_view Id;
    int Number;
};

constexpr ById modeTools[] = {
    {"ID_Attributes", modeAttributes}, {"ID_ChangeCase", modeCase},
    {"ID_DateTime", modeDateTime},     {"ID_MoveCopy", modeMoveCopy},
    {"ID_NameNumber", modeNameNumber}, {"ID_SearchReplace", modeSearchReplace},
    {"ID_MP3Tag", modeMp3Tag}};

struct SortTool {
    std::string_view Id, ColumnKey;
};

constexpr SortTool sortTools[] = {{"ID_byName", "Name"},     {"ID_byPath", "Path"},
                                  {"ID_byType", "Type"},     {"ID_bySize", "Size"},
                                  {"ID_byDate", "Modified"}, {"ID_byUndoName", "UndoName"},
                                  {"ID_byError", "Errors"}};

void View_Choose(Program& p, int code)
{
    if (p.Busy())
        return;
    View_Set(p, code);
    Screen_Show(p, code == viewThumbnails ? screenThumbnails : screenRename, false);
    if (code == viewThumbnails)
        Thumb_Create_Offer(p);
}

} // namespace

void Cmd_RenAll(Program& p, Tool&)
{
    Act_Run(p, actAll);
}

void Cmd_RenSelected(Program& p, Tool&)
{
    Act_Run(p, actSelected);
}

void Cmd_RenUndo(Program& p, Tool&)
{
    Act_Run(p, actUndo);
}

void Cmd_RefreshList(Program& p, Tool&)
{
    if (p.state.CurScreen != screenSelection)
        return Act_Run(p, actRefresh);
    p.main.ftvSelMain.Refresh();
    Sel_List_Fill(p, p.state.StartPath, false, p.state.Filter);
}

void Cmd_SelDelete(Program& p, Tool&)
{
    Ren_Delete_Ask(p);
}

void Cmd_SelGroup(Program& p, Tool&)
{
    Ren_List_Arrange(p, "Group");
}

void Cmd_SelUp(Program& p, Tool&)
{
    Ren_List_Arrange(p, "Up");
}

void Cmd_SelDown(Program& p, Tool&)
{
    Ren_List_Arrange(p, "Down");
}

void Cmd_Views(Program& p, Tool&)
{
    const bool thumbnails = p.state.CurScreen == screenThumbnails;
    View_Choose(p, thumbnails ? p.state.lsvView : viewThumbnails);
}

void Cmd_ArrangeList(Program& p, Tool&)
{
    View_Choose(p, static_cast<int>(ListLook::List));
}

void Cmd_ArrangeDetails(Program& p, Tool&)
{
    View_Choose(p, static_cast<int>(ListLook::Details));
}

void Cmd_ArrangeThumb(Program& p, Tool&)
{
    View_Choose(p, viewThumbnails);
}

void Cmd_SortList(Program& p, Tool& tool)
{
    for (const SortTool& row : sortTools)
        if (row.Id == tool.Name())
            Ren_List_Sort(p, p.main.lsvRename, p.main.lsvRename.ColumnByKey(row.ColumnKey));
}

void Cmd_Viewer(Program& p, Tool&)
{
    FrmViewer* const viewer = p.ViewerInSight();
    if (!viewer)
        return Viewer_Open(p, p.main.lsvRename.SelectedItem());
    p.desktop.Show(*viewer);
    if (viewer->State() == WindowState::Minimised)
        viewer->SetState(WindowState::Normal);
}

void Cmd_ViewerUp(Program& p, Tool& tool)
{
    if (tool.Checked && p.ViewerInSight())
        Viewer_Move(p, p.main.lsvRename.SelectedItem());
}

void Cmd_AutoFill(Program& p, Tool& tool)
{
    p.state.nnAutoFill = tool.Checked ? 1 : 0;
    if (p.state.nnAutoFill == 1)
        Row_Click(p);
}

void Cmd_RenameMode(Program& p, Tool& tool)
{
    for (const ById& row : modeTools)
        if (row.Id == tool.Name())
            Mode_Set(p, row.Number);
}

void Cmd_TmpApply(Program& p, Tool&)
{
    Tmpl_Load(p, p.state.nnAppTmpDef);
}

void Cmd_TmpApplySel(Program& p, Tool& tool)
{
    p.state.nnAppTmp = tool.Checked ? 1 : 0;
}

} // namespace tavo
