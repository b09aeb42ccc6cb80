#pragma once

#include "renamelist/act_run.h"
#include "renamelist/search_replace.h"

namespace tavo {

// What the boxes of Search & Replace say now. A position that is no 16-bit
// number counts as 0.
SearchTask SR_Task(const Program& p);

// The walk of Search & Replace. A name conflict is reported and no more.
void SR_Run(Program& p, const RunRows& rows);
// The walk of Change Case. A row that was changed ends with an empty `Type`
// cell ("-" in folder mode): the walk has no extension of its own.
void Case_Run(Program& p, const RunRows& rows);

} // namespace tavo
