#pragma once

#include "core/state.h"
#include "platform/profile.h"

#include <string>

namespace tavo {

class Program;

// The settings file that is written, whichever was read at the start.
std::string Ini_OwnFile(const Program& p);

// All below take the file's full path. Nothing about the file is ever reported.

// The text of a key, at most 2047 bytes; `fallback` when it is missing or
// empty.
std::string Ini_Get(Program& p, const std::string& section, const std::string& key,
                    const std::string& fallback, const std::string& file);
// Fills a list of names and values; names are cut to `maxName` characters
// after their value was read.
void Ini_ReadList(Program& p, const std::string& section, NamedList& list, const std::string& file,
                  int maxName);
// Reads one whole section into the program, and shows it.
void Ini_Load(Program& p, const std::string& section, const std::string& file);

// Gives the key this value. A failed write is not noticed.
void Ini_Put(Program& p, const std::string& section, const std::string& key,
             const std::string& value, const std::string& file);
// Removes the section with all its keys.
void Ini_ClearSection(Program& p, const std::string& section, const std::string& file);
// Writes one whole section anew: it goes first, so that no key stays that is
// not wanted any more, and a list without rows leaves no section at all.
void Ini_Save(Program& p, const std::string& section, const std::string& file);

// Takes five fields off `text`: left, top, width, height, state.
void Pos_Parse(WindowPos& record, const std::string& text);

} // namespace tavo
