#pragma once

#include "renamelist/act_run.h"

namespace tavo {

class Program;

// Name & Number over these rows. Failures land in the rows.
void NN_Run(Program& p, const RunRows& rows);

} // namespace tavo
