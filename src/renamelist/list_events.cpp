#include "renamelist/rename_list.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/screens.h"
#include "fileactions/frm_delete.h"
#include "renamelist/act_run.h"
#include "renamelist/preview.h"

#include <algorithm>
#include <iterator>

namespace tavo {

namespace {

std::vector<std::string> Paths_Selected(Program& p)
{
    const ListView& list = p.main.lsvRename;
    std::vector<std::string> paths;
    for (int row = list.NextSelected(0); row > 0; row = list.NextSelected(row)) {
        paths.emplace_back(list.Cell(row, p.state.colPath));
        paths.back() += list.Cell(row, p.state.colName);
    }
    return paths;
}

void List_DragOut(Program& p)
{
    const std::vector<std::string> paths = Paths_Selected(p);
    if (paths.empty() || p.Busy())
        return;
    p.state.ListDragging = true;
    p.desktop.DragFiles(p.main.lsvRename, paths);
    p.state.ListDragging = false;
}

// A list cannot be dropped on itself.
void List_DropIn(Program& p, const std::vector<std::string>& paths)
{
    if (p.state.ListDragging || p.Busy())
        return;
    p.desktop.SetForegroundWindow(p.main);
    if (p.Say("This will Clear the current File List!", BoxIcon::Exclamation, BoxButtons::OkCancel)
        != BoxAnswer::Cancel)
        Ren_List_FromDrop(p, paths);
}

void Row_Clicked(Program& p)
{
    if (!p.Busy())
        Row_Click(p);
}

void Selection_Changed(Program& p)
{
    p.main.stbMain.SetPanel(3, "Selected: " + std::to_string(p.main.lsvRename.SelCount()));
}

// 1 moves, 2 copies.
void MoveCopy_Enter(Program& p, int option)
{
    p.main.optmcdMode[option].Value = true;
    Mode_Set(p, modeMoveCopy);
}

void List_KeyDown(Program& p, Key& key)
{
    if (p.Busy())
        return;
    if (key.Code == keyDelete) {
        key.Code = keyNone;
        Ren_Delete_Ask(p);
    } else if (key.Shift == shiftCtrl && (key.Code == 'C' || key.Code == 'X')) {
        MoveCopy_Enter(p, key.Code == 'C' ? 2 : 1);
    }
}

void List_KeyUp(Program& p, const Key& key)
{
    if (key.Code == keyUp || key.Code == keyDown)
        Row_Clicked(p);
}

// What each answer of the dialog starts.
struct DeleteAnswer {
    int Choice;
    Action Starts;
};

constexpr DeleteAnswer deleteAnswers[] = {{1, actRemove}, {2, actRecycle}, {3, actDelete}};

} // namespace

void Ren_List_Wire(Program& p)
{
    ListView& list = p.main.lsvRename;
    list.ItemClick = [&p] { Row_Clicked(p); };
    list.Click = [&p] { Selection_Changed(p); };
    list.ColumnClick = [&p](int column) { Ren_List_Sort(p, p.main.lsvRename, column); };
    list.KeyDown = [&p](Key& key) { List_KeyDown(p, key); };
    list.KeyUp = [&p](Key& key) { List_KeyUp(p, key); };
    list.DragStarted = [&p] { List_DragOut(p); };
    list.FilesDropped = [&p](const std::vector<std::string>& paths) { List_DropIn(p, paths); };
}

void Ren_Delete_Ask(Program& p)
{
    if (p.Busy())
        return;
    p.desktop.ShowModal(p.Delete());
    const auto* answer =
        std::ranges::find(deleteAnswers, p.state.DeleteChoice, &DeleteAnswer::Choice);
    if (answer != std::end(deleteAnswers))
        Act_Run(p, answer->Starts);
}

} // namespace tavo
