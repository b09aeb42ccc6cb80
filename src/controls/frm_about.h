#pragma once

#include "toolkit/form.h"

namespace tavo {

class Program;

// What this program is.
class FrmAbout : public Form {
public:
    explicit FrmAbout(Program& p);

private:
    [[maybe_unused]] Program& p_;
};

} // namespace tavo
