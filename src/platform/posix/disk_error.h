#pragma once

#include <string>
#include <string_view>

namespace tavo {

// Errors without a code of their own come as this base plus the system's
// number, so that nothing hides what went wrong.
inline constexpr int ownCodeBase = 2000;

// The DiskCode for a number of the system (0 for 0). A disk that cannot be
// written counts as denied: what the user may do there is the same. ENOENT
// gives 2; who knows that it was a folder on the way turns that into 3.
int DiskCodeOf(int systemError);

// What the system calls the error, in English whatever language it speaks.
// Empty for 0.
std::string ErrorText(int systemError);

// The number of the system that stands best for a DiskCode.
int SystemErrorOf(int code);

// The code for "there is no such entry": 2 where the folder exists, 3 where it
// doesn't, 5 where that cannot be seen. `folder` ends in a slash.
int MissingCodeOf(const std::string& folder);

// May this text be handed to the disk as a full path? It must begin with a
// slash and hold no NUL. Gives diskOk, diskMissingFolder or diskBadName.
int CheckPath(std::string_view path);

// The folder of a full path with its slash, and the name behind it.
std::string FolderPart(std::string_view path);
std::string_view NamePart(std::string_view path);
// The path without the slashes behind it; nothing of the root.
std::string_view WithoutSlashes(std::string_view path);
// May an entry of a folder be called so: neither empty nor `.`, `..` or more
// than 255 bytes?
bool IsUsableName(std::string_view name);

} // namespace tavo
