#pragma once

#include "platform/path_rules.h"

#include <string>
#include <string_view>

namespace tavo {

class Program;

// Runs the main window's load: settings, controls, command line, first screen.
// No step can stop the program.
void Form_Load(Program& p);
// What the end saves and closes. No question is asked.
void Form_Unload(Program& p);
// It came to the front and is painted anew.
void Form_Activate(Program& p);

// The folder that the command text means: of several paths the last one, of a
// file its folder. It may not exist. Empty when the text names nothing.
std::string Command_Folder(std::string_view commandText, const PathRules& rules);

// Cols_Init: looks up the columns of the rename list by their keys.
void Cols_Init(Program& p);

// Wires the events of the main window itself: load, end, size, keys.
void Main_Wire(Program& p);

} // namespace tavo
