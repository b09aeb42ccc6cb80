#pragma once

#include <cstdint>

namespace tavo {

class Program;

// The option boxes from the shared state and the "Send To" menus, and back to
// the shared state.
void Settings_Options_Show(Program& p);
void Settings_Options_Read(Program& p);
// Puts the program into the "Send To" menus (1), or takes it away.
void SendTo_Set(Program& p, std::uint8_t value);
// Takes over and saves what was changed, and closes the settings.
void Settings_Ok(Program& p);

} // namespace tavo
