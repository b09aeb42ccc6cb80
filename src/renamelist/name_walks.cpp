#include "renamelist/name_walks.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/act_panel.h"
#include "renamelist/change_case.h"
#include "renamelist/executor.h"
#include "selection/paths.h"
#include "toolkit/numbers.h"

namespace tavo {

namespace {

std::int16_t Position_Read(const TextBox& box)
{
    std::int16_t position = 0;
    AssignChecked(position, Val(box.Text.Get()));
    return position;
}

// The row's part of a request; its name stands for the new one, too.
void Request_Begin(Program& p, int row, RenameRequest& request)
{
    const ListView& list = p.main.lsvRename;
    request.OrigName = list.Text(row);
    request.NewName = request.OrigName;
    request.NewFull = list.Cell(row, p.state.colPath);
    request.OldFull = request.NewFull + request.OrigName;
    request.RowPos = row;
}

void Request_Apply(Program& p, RenameRequest& request, RowCounters& counters)
{
    request.NewFull += request.NewName;
    Ren_File_Apply(p, request, counters);
    Act_Panel_Update(p, counters.Done, counters.Errors, counters.Unchanged);
}

// One rename a row: `work` makes the new name and applies the request.
template <class Work>
void Names_Walk(Program& p, const RunRows& rows, Work work)
{
    const int count = static_cast<int>(rows.size());
    RowCounters counters;
    RenameRequest request;
    int step = 0;
    for (const int row : rows) {
        Act_Progress(p, ++step, count);
        Request_Begin(p, row, request);
        work(request, counters);
        if (p.state.ActCancel)
            return;
    }
}

} // namespace

SearchTask SR_Task(const Program& p)
{
    const FrmMain& f = p.main;
    SearchTask task;
    task.Type = p.state.srType;
    task.Scope = p.state.srMode;
    task.MatchCase = p.state.srMatchCase;
    task.Find = f.txtSearchFind.Text.Get();
    task.Replace = f.txtSearchReplace.Text.Get();
    task.First = Position_Read(f.txtSearchStart);
    task.Last = Position_Read(f.txtSearchEnd);
    return task;
}

void SR_Run(Program& p, const RunRows& rows)
{
    Act_Stage(p, "Renaming Files...");
    Names_Walk(p, rows, [&p](RenameRequest& request, RowCounters& counters) {
        request.NewExt.clear();
        Name_Split(request.NewName, request.NewExt);
        SR_Apply(request.NewName, request.NewExt, SR_Task(p));
        if (!request.NewExt.empty())
            request.NewName += '.' + request.NewExt;
        Request_Apply(p, request, counters);
        p.desktop.DoEvents();
    });
}

void Case_Run(Program& p, const RunRows& rows)
{
    Act_Stage(p, "Changing Case...");
    Names_Walk(p, rows, [&p](RenameRequest& request, RowCounters& counters) {
        Case_Apply(request.NewName, Case_Rules(p.state), p.state.CaseWordList, p.state.ccWord);
        p.desktop.DoEvents();
        // The extension of the preview, which the start of the run has emptied.
        request.NewExt = p.state.OldExt;
        Request_Apply(p, request, counters);
    });
}

} // namespace tavo
