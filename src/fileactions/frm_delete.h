#pragma once

#include "toolkit/buttons.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"

namespace tavo {

class Program;

// The dialog of ID_SelDelete: removes rows, recycles or deletes their files.
// Its answer stands in DeleteChoice: 1, 2, 3, or 0 for none.
class FrmDelete : public Form {
public:
    explicit FrmDelete(Program& p);

    ControlArray<CommandButton> cmdRemove{*this, "cmdRemove", 1, 3};
    ControlArray<Label> lblRemove{*this, "lblRemove", 1, 3};
    CommandButton cmdCancel{*this, "cmdCancel"};

private:
    Program& p_;
};

} // namespace tavo
