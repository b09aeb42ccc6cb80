#pragma once

#include <string>

namespace tavo {

class Program;

// Goes to `path` (empty: AppFolder) in the tree, shows the selection screen
// and walks the folder once.
void Sel_Open(Program& p, const std::string& path);
// Goes to the path typed in the address box; a box that names no folder is
// corrected to what the tree shows.
void Sel_Address_Apply(Program& p);
// After every change of the selection: status panel 3 and the preview.
void Sel_Status_Update(Program& p);
// Takes the filter box's text or row as the filter, and walks.
void Sel_Filter_Apply(Program& p);
void Sel_Preview_Show(Program& p, const std::string& path);
void Sel_Preview_Fit(Program& p);

// The commands of the screen.
void Sel_FolderMode_Toggle(Program& p, bool folders);
void Sel_Filter_Clear(Program& p);
void Sel_Preview_Switch(Program& p, bool on);

// Tree, list, splitters and drops.
void Sel_Screen_Wire(Program& p);

} // namespace tavo
