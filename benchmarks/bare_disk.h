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

// Reads the last 128 bytes of each file and puts these in their place.
void Bare_Tags(const std::string& folder, const std::vector<std::string>& names,
               const std::string& tag);
// What a change of times asks of the disk: the times that each file has, one
// that was stored with it too, and new ones in their place. `created` is stored
// unless it is empty.
void Bare_Times(const std::string& folder, const std::vector<std::string>& names,
                const std::string& created, long seconds);
// What a change of attributes asks of it: those that each file has, in its mode
// and in a text, and new ones in their place.
void Bare_Attributes(const std::string& folder, const std::vector<std::string>& names,
                     unsigned mode, const std::string& text);

void Files_Make(const std::string& folder, const std::vector<std::string>& names,
                const std::string& content = {});
void Folder_Make(const std::string& folder);
void Folder_Remove(const std::string& folder);

} // namespace tavo::bench
