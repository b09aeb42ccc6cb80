#pragma once

#include "window/person.h"

#include "core/state.h"

namespace tavo {

// A person on the rename list, at the panel of a mode.
class PanelPerson : public Person {
public:
    PanelPerson(std::string_view test, RenameMode mode, const std::vector<std::string>& files);

    // Goes to a mode as the box of modes does.
    void Goto(int mode);
    // Runs all rows, or takes a run of several rows back, and leaves the panel
    // of the run.
    void RunAll() { Run("ID_RenAll"); }
    void Undo() { Run("ID_RenUndo"); }

private:
    void Run(const std::string& toolId);
};

} // namespace tavo
