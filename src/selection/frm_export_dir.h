#pragma once

#include "toolkit/form.h"

namespace tavo {

class Program;

// Writes the selection list into a text file.
class FrmExportDir : public Form {
public:
    explicit FrmExportDir(Program& p);

private:
    [[maybe_unused]] Program& p_;
};

} // namespace tavo
