#pragma once

#include "platform/files.h"
#include "platform/path_rules.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tavo {

// With the separator behind it, unless it ends in one; an empty path becomes
// the separator alone.
std::string Path_AddSlash(std::string_view path, const PathRules& rules);
// Without its last character if that is the separator; one only. A root that
// keeps its slash stays.
std::string Path_RemoveSlash(std::string_view path, const PathRules& rules);
// At the last separator: `name` gets what follows it, `path` keeps the rest
// with it. Without one both stay as they were.
void Path_Split(std::string& path, std::string& name, const PathRules& rules);
// At the last point: `ext` gets what follows it, `name` what precedes it.
// Without one both stay as they were.
void Name_Split(std::string& name, std::string& ext);
// What follows the last point, or nothing.
std::string Name_GetExt(std::string_view name);

// Is there an entry of this name, file or folder alike?
bool File_Exists(Files& files, const std::string& path);
// Is it a folder? `path` loses its separator at the end.
bool Folder_Exists(Files& files, std::string& path);

// Do both lead to one folder on the disk?
bool IsOneFolder(Files& files, const std::string& left, const std::string& right);
// The folder without "." and "..", as far as it is the same one: what a link
// leads to decides what lies above it. Else the path as it came.
std::string Path_WithoutDetours(Files& files, const std::string& path);

// Cuts the text before its first NUL, and gives it.
std::string Str_CutAtNul(std::string& text);
// Padded with NULs, or cut, to exactly `length` characters.
std::string Str_PadNul(std::string_view text, std::int16_t length);
// Takes the part before the first delimiter off the text; the whole of it when
// there is none; `fallback` when it is empty.
std::string Str_GetToken(std::string& text, std::string_view delimiter, std::string_view fallback);
// Replaces every occurrence from the left; what was put in is not searched
// again. Exact when `matchCase` is 1. Positions are 16-bit.
void Str_ReplaceAll(std::string& text, std::string_view find, std::string_view replace,
                    std::uint8_t matchCase);

// The class of a Type text: D folder, P picture, M music, F any other file.
char Sel_Class_Get(std::string_view typeText, std::uint8_t gif);

} // namespace tavo
