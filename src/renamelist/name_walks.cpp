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

int Count_Of(const RunRows& rows)
{
    return static_cast<int>(rows.size());
}

// The row's own part of a request; the new names are the caller's.
void Request_Begin(Program& p, int row, RenameRequest& request)
{
    const ListView& list = p.main.lsvRename;
    request.OrigName = list.Text(row);
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
    RowCounters counters;
    RenameRequest request;
    for (int i = 1; i <= Count_Of(rows); ++i) {
        Act_Progress(p, i, Count_Of(rows));
        Request_Begin(p, rows[static_cast<std::size_t>(i - 1)], request);
        request.NewName = request.OrigName;
        request.NewExt.clear();
        Name_Split(request.NewName, request.NewExt);
        SR_Apply(request.NewName, request.NewExt, SR_Task(p));
        if (!request.NewExt.empty())
            request.NewName += '.' + request.NewExt;
        Request_Apply(p, request, counters);
        p.desktop.DoEvents();
        if (p.state.ActCancel)
            return;
    }
}

void Case_Run(Program& p, const RunRows& rows)
{
    Act_Stage(p, "Changing Case...");
    RowCounters counters;
    RenameRequest request;
    for (int i = 1; i <= Count_Of(rows); ++i) {
        Act_Progress(p, i, Count_Of(rows));
        Request_Begin(p, rows[static_cast<std::size_t>(i - 1)], request);
        request.NewName = request.OrigName;
        Case_Apply(request.NewName, Case_Rules(p.state), p.state.CaseWordList, p.state.ccWord);
        p.desktop.DoEvents();
        // The extension of the preview, which the start of the run has emptied.
        request.NewExt = p.state.OldExt;
        Request_Apply(p, request, counters);
        if (p.state.ActCancel)
            return;
    }
}

} // namespace tavo
