#pragma once

#include <cstdint>
#include <string>

namespace tavo {

class Program;

// What a walk counts: done, failed, and left as it was.
struct RowCounters {
    std::int32_t Done = 0, Errors = 0, Unchanged = 0;
};

// Codes in RenErrCode.
enum RenameError : std::int32_t { renMissing = 53, renConflict = 58, renDenied = 75 };

// One rename. `NewExt` becomes "-" in folder mode. `OrigName` is the row's
// present name, or its first one when the caller has kept that; it is compared
// with NewName and written to UndoName. A walk keeps one request and assigns
// to its texts row by row, so that their room is used again; all but NewExt
// come back as they were.
struct RenameRequest {
    std::string OldFull, NewFull, NewName, NewExt, OrigName;
    int RowPos = 0;
};

// Renames the file of one row. Never replaces a file: an existing target is a
// name conflict, and so is a name that would leave the folder or bring in a
// character that no name may bring in. On success the row shows the new name
// and keeps OrigName for undo, and events are let in once; on failure only its
// `Errors` cell changes, RenFailed is set and RenErrCode says why. Equal names
// count as unnecessary and leave RenFailed and RenErrCode as they were.
void Ren_File_Apply(Program& p, RenameRequest& request, RowCounters& counters);

} // namespace tavo
