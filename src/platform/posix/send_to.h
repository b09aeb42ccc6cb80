#pragma once

#include <string>
#include <vector>

namespace tavo {

// The program's entries in the menus of the file managers that stand for "Send
// To". Which of them are there is told by their programs.

// Where all of that is. Folders end in a slash.
struct SendToGround {
    std::string DataFolder, ConfigFolder;    // of the user
    std::vector<std::string> ProgramFolders; // where the managers would be
    std::string Program;                     // what the entries start; empty for none
};

// That of the running program. The entries start the program with a window:
// where the one that runs has none, the one that lies beside it.
SendToGround SendTo_OfSystem();
std::string SendTo_Program(const std::string& executablePath);

// Is there an entry of ours for every manager found? False where none is.
bool SendTo_Stands(const SendToGround& ground);
// Writes an entry for each manager found, or takes those away that are ours.
// A file of somebody else that has the name of one stays as it is. What fails
// is passed over: SendTo_Stands tells the truth.
void SendTo_Put(const SendToGround& ground, bool on);

// How a program's path stands in an Exec line, and in a shell script.
std::string Exec_Quoted(const std::string& path);
std::string Shell_Quoted(const std::string& path);

} // namespace tavo
