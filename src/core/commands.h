#pragma once

#include "toolkit/tool_bars.h"

#include <array>
#include <span>
#include <string_view>

namespace tavo {

class Program;

// One tool of a window. Menus, bands, the dispatcher and the console all read
// its table. A tool without a handler is inert.
struct Command {
    std::string_view Id;
    ToolKind Kind = ToolKind::Button;
    std::string_view Caption, Description, Tip;
    std::string_view Icon; // in the icon theme
    std::string_view Shortcut;
    std::string_view Category;
    void (*Run)(Program& p, Tool& tool) = nullptr;
};

// A toolbar band, or with the id of a menu tool that menu's entries. "-" is a
// separator; what follows the last entry is empty.
struct BandPlan {
    std::string_view Name;
    std::array<std::string_view, 20> Tools;
};

std::span<const Command> Commands();
std::span<const BandPlan> CommandBands();
// Null when no command has this id.
const Command* Command_Find(std::string_view id);

// Builds tools, bands and menus from such tables.
void Bars_Build(ToolBars& bars, std::span<const Command> commands, std::span<const BandPlan> plans);
// Those of the main window from its own, and wires their events.
void Commands_Build(Program& p);

// The dispatcher: takes a tool's id to its handler, then the ids of listed
// entries (ID_Favorite1, ...) by their prefix.
void Tool_Click(Program& p, Tool& tool);
void Tool_ComboClick(Program& p, Tool& tool);
void Tool_KeyPress(Program& p, Tool& tool, int& key);
void Tool_KeyDown(Program& p, Tool& tool, Key& key);
void Tool_Change(Program& p, Tool& tool);
void Tool_GotFocus(Program& p, Tool& tool);
void Tool_LostFocus(Program& p, Tool& tool);
void Tool_Dropdown(Program& p, Tool& tool, double xTwips, double yTwips);

} // namespace tavo
