#pragma once

#include "platform/files.h"

#include <cstdint>
#include <string>

namespace tavo {

class Form;
class ListView;
class Program;

// The size and date cells of a row.
std::string Size_Text(const FindData& data);
std::string Modified_Text(const SystemTime& local);

// Appends to `list` the rows that match the one pattern in `startPath`, files
// or, in folder mode, folders; with `subFolders` -1 in all folders below it
// too (any other value is false). A folder is never entered twice on one path.
// What cannot be read gives no rows. The form's caption shows each folder that
// is entered.
void Sel_Files_Get(Program& p, const std::string& startPath, const std::string& filter,
                   std::int16_t subFolders, ListView& list, Form& form);

// Clears the selection list and fills it with what `path` holds under the
// patterns of `filter` (parted by ";"), sorted by Path and Name.
void Sel_List_Fill(Program& p, const std::string& path, bool subFolders, const std::string& filter);

} // namespace tavo
