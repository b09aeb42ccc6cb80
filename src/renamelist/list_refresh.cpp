#include "renamelist/rename_list.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/act_panel.h"
#include "selection/enumeration.h"
#include "selection/paths.h"
#include "toolkit/size_text.h"
#include "toolkit/text.h"

namespace tavo {

namespace {

// False when the row's file is gone.
bool Row_Refresh(Program& p, int row)
{
    const SharedState& s = p.state;
    ListView& list = p.main.lsvRename;
    const std::string name(list.Cell(row, s.colName));
    const std::string full = std::string(list.Cell(row, s.colPath)) + name;
    const auto data = p.files.Stat(full);
    if (!data)
        return false;
    list.SetCell(row, s.colType, LCase(Name_GetExt(name)));
    list.SetCell(row, s.colSize, Size_Text_Refresh(data->Size));
    SystemTime local;
    if (p.files.FileTimeToLocalSystemTime(data->Written, local))
        list.SetCell(row, s.colModified, Modified_Text(local));
    return true;
}

} // namespace

void Ren_List_Refresh(Program& p)
{
    ListView& list = p.main.lsvRename;
    const int count = list.Count();
    int removed = 0, updated = 0;
    for (int step = 1; step <= count && !p.state.ActCancel; ++step) {
        const int row = step - removed;
        if (Row_Refresh(p, row)) {
            ++updated;
        } else {
            list.Remove(row);
            ++removed;
        }
        Act_Panel_Update(p, removed, updated, 0);
        Act_Progress(p, step, count);
        p.desktop.DoEvents();
    }
}

// The rows are taken down first: what events do to the selection on the way
// takes no other row off.
void Ren_List_RemoveSelected(Program& p)
{
    ListView& list = p.main.lsvRename;
    const std::vector<int> chosen = list.SelectedRows();
    const int count = list.Count();
    std::size_t removed = 0;
    for (int step = 1; step <= count && !p.state.ActCancel; ++step) {
        if (removed < chosen.size() && chosen[removed] == step) {
            list.Remove(step - static_cast<int>(removed));
            ++removed;
        }
        Act_Panel_Update(p, static_cast<int>(removed), 0, 0);
        Act_Progress(p, step, count);
        p.desktop.DoEvents();
    }
}

} // namespace tavo
