#pragma once

#include "renamelist/act_run.h"

namespace tavo {

// The walk of Move & Copy: each row's file goes to the folder of `txtmcdPath`
// under its own name or the first free `Copy [n] name`, and the row follows
// it, also for a copy. Failures are "Unknown". Nothing is written for undo.
void Copy_Run(Program& p, const RunRows& rows);

// Deletes the files of the selected rows, or sends them to the trash, and
// takes the rows off. `count` is the number of these rows. A status is written
// to the row numbered as the step, not to the one it is about.
void Delete_Run(Program& p, int count, bool recycle);

// The options, the folder picker and the favourites of the panel.
void Copy_Panel_Wire(Program& p);
// Shows what `mcdMode` says.
void Copy_Mode_Show(Program& p);

} // namespace tavo
