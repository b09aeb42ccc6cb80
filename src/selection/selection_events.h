#pragma once

#include <string>
#include <vector>

namespace tavo {

class Program;

// Takes the tree to a folder, opens its node and brings it into view. A folder
// that cannot be reached leaves the tree where it was.
void Sel_Tree_Goto(Program& p, const std::string& path);
// The tree reports a folder: it becomes the one in hand, and is walked while
// the selection screen is up. Nodes that are no folder of the disk are ignored.
void Sel_Tree_Click(Program& p, const std::string& path);
// Files or folders dropped on the selection list.
void Sel_Files_Dropped(Program& p, const std::vector<std::string>& paths);

} // namespace tavo
