#pragma once

#include <vector>

namespace tavo {

class Program;

enum Action {
    actAll = 0,
    actSelected = 1,
    actRefresh = 2,
    actRemove = 3,
    actUndo = 4,
    actDelete = 5,
    actRecycle = 6,
};

// A run's rows: positions from 1, in list order.
using RunRows = std::vector<int>;

// Carries out an action on the rename list: checks, asks, shows the panel,
// walks the rows, closes. Refuses to start inside another long operation.
// Actions and modes without a walk do nothing at all.
void Act_Run(Program& p, int action);
// 1 good, 2 refused (after a message).
int Act_Validate(Program& p);
// Leaves the panel.
void Act_Done(Program& p);
// The buttons of the panel.
void Act_Wire(Program& p);

} // namespace tavo
