#pragma once

#include "hosts/console/session.h"

namespace tavo::console {

// One command of the console. Its words begin behind its own name.
struct CommandRow {
    std::string_view Name;
    int LeastWords, MostWords; // -1: any number
    bool (*Run)(Session& session, const Words& words, Outcome& outcome);
};

// Null when there is no command of this name.
const CommandRow* Command_Row(std::string_view name);

// The tables behind it, a file each.
const std::vector<CommandRow>& Commands_Boxes();   // click, set, type, key ...
const std::vector<CommandRow>& Commands_Lists();   // select, sort, rows ...
const std::vector<CommandRow>& Commands_Mouse();   // mouse, drop, dragdrop ...
const std::vector<CommandRow>& Commands_Windows(); // window, close, tick, answer ...
const std::vector<CommandRow>& Commands_Read();    // get, items, boxes ...

} // namespace tavo::console
