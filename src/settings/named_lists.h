#pragma once

#include "core/state.h"

#include <string>

namespace tavo {

class Program;
class ToolBars;

// Makes a menu match a list: tools `prefix` + index stand from position
// `firstPos` (from 1) on, all before it stay.
void Menu_Rebuild(ToolBars& bars, const NamedList& list, const std::string& icon,
                  const std::string& prefix, int firstPos, const std::string& menuId);
// The same for the menu of the main window that offers this list; `Filters` has
// none.
void ListMenu_Rebuild(Program& p, NamedList SharedState::*list);
// Makes the filter box match `Filters`, and puts the built-in filter in force.
void Filter_Rebuild(Program& p);
// Chooses a row of the filter box without a walk.
void Filter_Choose(Program& p, int row);
// Makes the box of Move & Copy match `Favorites`.
void FavPath_Rebuild(Program& p);

} // namespace tavo
