#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// What a host on Linux hands the program at its start.

// The full path of the running program.
std::string Executable_Path();

// The folder of the settings, with its slash at the end: the program's own one
// where that is a portable copy (it holds Tavo.ini, Default.ini or a file
// `portable`, and can be written to), else `tavo` in the user's folder for
// settings. The disk is only looked at.
std::string AppFolder_Find(const std::string& executablePath);

// Makes the folder where it is missing, and fits out one that is not the
// program's own: with `help`, a link to the installed pages, and with the
// installed Default.ini. What is there already stays, but for a link `help`
// that leads nowhere. What fails is left out: the program runs without.
void AppFolder_Prepare(const std::string& appFolder, const std::string& executablePath);

// The folder as a full path, with its slash.
std::string Folder_Absolute(const std::string& folder);

// The text that the program takes apart, from the arguments behind the
// program's name. The last one counts, a path or a `file://` address: made
// absolute, and a folder that is there with its slash. Empty without any.
std::string Command_Text(const std::vector<std::string>& args);

// The path in a `file://` address of this machine, byte for byte; empty for
// any other text.
std::string Path_FromFileUrl(std::string_view url);
// The address of a path, with all but plain characters as `%XX`.
std::string Path_ToFileUrl(std::string_view path);

} // namespace tavo
