#pragma once

#include "renamelist/act_run.h"
#include "renamelist/executor.h"

#include <string>

namespace tavo {

class Program;

// Puts the ticked fields of the panel, as they are at the start, into the tags
// of these rows. Failures land in the rows.
void MP3_Run(Program& p, const RunRows& rows);

// Writes the tag that the row's undo text tells, and puts the one that was
// there into its place. Counts, and gives the text of the row's `Errors` cell,
// empty when it went well; a row that fails keeps its undo text.
std::string MP3_Undo_Row(Program& p, int row, RowCounters& counters);

} // namespace tavo
