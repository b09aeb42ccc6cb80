#pragma once

#include <string>
#include <vector>

namespace tavo::bench {

// What the disk can do at best: loops of the bare calls, keeping nothing. An
// error ends the program.

// Looks at every entry of a folder, and of those below it. Gives how many
// entries there were.
int Bare_Walk(const std::string& folder);
// Renames within a folder (with its slash), looking at each file before.
void Bare_Rename(const std::string& folder, std::vector<std::string>& names,
                 const std::vector<std::string>& newNames);

// Empty files.
void Files_Make(const std::string& folder, const std::vector<std::string>& names);
void Folder_Make(const std::string& folder);
void Folder_Remove(const std::string& folder);

} // namespace tavo::bench
