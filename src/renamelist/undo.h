#pragma once

namespace tavo {

class Program;

// Takes the last run back by what it wrote into the rows' `UndoName` cells,
// and writes there what takes this back in turn. Rows that fail keep theirs.
// Chains and swaps of names go over temporary ones; a cancel on the way asks.
void Undo_Run(Program& p);

} // namespace tavo
