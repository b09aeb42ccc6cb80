#include "core/command_handlers.h"

#include "controls/frm_about.h"
#include "core/screens.h"
#include "core/tools.h"
#include "core/windows.h"
#include "renamelist/rename_list.h"
#include "selection/frm_export_dir.h"
#include "selection/selection_screen.h"
#include "settings/settings_file.h"
#include "viewer/frm_viewer.h"

namespace tavo {

namespace {

// The box that clipboard commands work on; null for anything else. A list to
// choose from has no text to cut.
TextBox* Edit_Target(Control* control)
{
    auto* box = dynamic_cast<TextBox*>(control);
    if (box && !(box->IsShown() && box->IsUsable()))
        return nullptr;
    const auto* combo = dynamic_cast<ComboBox*>(box);
    return combo && combo->Style() == ComboKind::List ? nullptr : box;
}

constexpr double viewerAboveMainTwips = 360;

// Beside the main window's left edge and above its top, a square.
void Viewer_DefaultSize(Program& p, FrmViewer& viewer)
{
    if (viewer.State() == WindowState::Maximised)
        viewer.SetState(WindowState::Normal);
    viewer.Move(p.main.Left(), p.main.Top() - viewerAboveMainTwips, p.state.WinDefaultH,
                p.state.WinDefaultH);
}

// The tool's check and the flag behind it, turned round.
bool Flag_Flip(std::uint8_t& flag, Tool& tool)
{
    flag = flag == 1 ? 0 : 1;
    tool.Checked = flag == 1;
    return flag == 1;
}

} // namespace

void Edit_Undo(Control* control)
{
    TextBox* box = Edit_Target(control);
    if (box && !dynamic_cast<ComboBox*>(box))
        box->UndoEdit();
}

void Edit_Clip(Program& p, std::string_view op)
{
    TextBox* const box = Edit_Target(p.main.ActiveControl());
    if (box == nullptr)
        return;
    if (op == "Paste")
        return box->SetSelText(p.desktop.ClipboardText());
    p.desktop.SetClipboardText(box->SelText());
    if (op == "Cut")
        box->SetSelText("");
}

void Cmd_NewList(Program& p, Tool&)
{
    if (!p.Busy())
        Sel_Open(p, p.state.StartPath);
}

void Cmd_CreateList(Program& p, Tool&)
{
    Ren_List_Create(p);
    // A folder has neither a tag nor times that could be set.
    Tools_Enable(p, {"ID_MP3Tag", "ID_DateTime"}, p.state.SelFolderMode != 1);
}

void Cmd_DefSave(Program& p, Tool&)
{
    Ini_Save(p, "Defaults", Ini_OwnFile(p));
}

void Cmd_DefLoad(Program& p, Tool&)
{
    // A run stands on the mode and the options that this would change.
    if (!p.Busy() && p.state.CurScreen != screenAction)
        Ini_Load(p, "Defaults", Ini_OwnFile(p));
}

void Cmd_ExportList(Program& p, Tool&)
{
    if (!p.Busy())
        p.desktop.ShowModal(p.ExportDir());
}

void Cmd_Exit(Program& p, Tool&)
{
    p.main.Unload();
}

void Cmd_EditUndo(Program& p, Tool&)
{
    Edit_Undo(p.main.ActiveControl());
}

void Cmd_Cut(Program& p, Tool&)
{
    Edit_Clip(p, "Cut");
}

void Cmd_Copy(Program& p, Tool&)
{
    Edit_Clip(p, "Copy");
}

void Cmd_Paste(Program& p, Tool&)
{
    Edit_Clip(p, "Paste");
}

void Cmd_DefaultSize(Program& p, Tool&)
{
    FrmMain& main = p.main;
    if (main.State() == WindowState::Maximised)
        main.SetState(WindowState::Normal);
    main.Move(main.Left(), main.Top(), p.state.WinDefaultW, p.state.WinDefaultH);
    Win_CenterScreen(p, main);
    if (FrmViewer* viewer = p.ViewerInSight())
        Viewer_DefaultSize(p, *viewer);
    p.desktop.SetForegroundWindow(main);
}

void Cmd_AddressBar(Program& p, Tool& tool)
{
    const bool on = Flag_Flip(p.state.tbsAddress, tool);
    if (Band* band = p.main.atbMain.FindBand("Address"))
        band->SetVisible(on);
    Focus_Follow(p);
}

void Cmd_TextLabels(Program& p, Tool& tool)
{
    Tools_SetLabels(p, Flag_Flip(p.state.tbsTextLabels, tool));
}

void Cmd_HelpContents(Program& p, Tool&)
{
    Help_Show(p, "Topic");
}

void Cmd_HelpIndex(Program& p, Tool&)
{
    Help_Show(p, "Index");
}

void Cmd_About(Program& p, Tool&)
{
    About_Show(p, p.main);
}

} // namespace tavo
