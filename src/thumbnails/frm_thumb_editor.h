#pragma once

#include "toolkit/form.h"

namespace tavo {

class Program;

// Edits a look of the thumbnails with a preview.
class FrmThumbEditor : public Form {
public:
    explicit FrmThumbEditor(Program& p);

private:
    [[maybe_unused]] Program& p_;
};

} // namespace tavo
