#include "hosts/console/commands.h"

namespace tavo::console {

const CommandRow* Command_Row(std::string_view name)
{
    for (const auto* table : {&Commands_Boxes(), &Commands_Lists(), &Commands_Mouse(),
                              &Commands_Windows(), &Commands_Read()})
        for (const CommandRow& row : *table)
            if (row.Name == name)
                return &row;
    return nullptr;
}

} // namespace tavo::console
