#pragma once

#include "fileactions/time_text.h"
#include "renamelist/act_run.h"
#include "renamelist/executor.h"

#include <string>

namespace tavo {

// There is no box for it.
inline constexpr std::string_view accessedTime = "12:00:00 AM";

// The times as the boxes have them at this moment, also where one has not been
// left yet.
FileTimes DT_Form_Get(Program& p);
// Shows the times of a file in the boxes.
void DT_Form_Fill(Program& p, const std::string& path);

// Gives these rows the times that are ticked. Failures land in the rows.
void DT_Run(Program& p, const RunRows& rows);
// One row of the way back. Gives the text of its `Errors` cell; `UndoName` is
// written anew only when the change was made.
std::string DT_Undo_Row(Program& p, int row, RowCounters& counters);

} // namespace tavo
