#pragma once

#include "toolkit/form.h"

namespace tavo {

class Program;

// All options and the five lists, edited on copies until OK.
class FrmSettings : public Form {
public:
    explicit FrmSettings(Program& p);

private:
    [[maybe_unused]] Program& p_;
};

} // namespace tavo
