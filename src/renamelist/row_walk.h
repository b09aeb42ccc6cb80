#pragma once

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/act_panel.h"
#include "renamelist/act_run.h"
#include "renamelist/executor.h"

namespace tavo {

// The walk of a run that renames nothing: `work` does one row (its position
// and the counters come in) and gives the text of its `Errors` cell. Bar,
// caption and counts follow, events are let in behind each row, and a cancel
// ends the walk there. Gives the counts.
template <class Work>
RowCounters Rows_Walk(Program& p, const RunRows& rows, Work work)
{
    const int count = static_cast<int>(rows.size());
    RowCounters counters;
    int step = 0;
    for (const int row : rows) {
        Act_Progress(p, ++step, count);
        const auto status = work(row, counters);
        Act_Panel_Update(p, counters.Done, counters.Errors, counters.Unchanged);
        p.main.lsvRename.SetCell(row, p.state.colErrors, status);
        p.desktop.DoEvents();
        if (p.state.ActCancel)
            break;
    }
    return counters;
}

} // namespace tavo
