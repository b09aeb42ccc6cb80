#pragma once

#include "renamelist/act_run.h"
#include "renamelist/executor.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tavo {

class Files;

// Each 1 when the file has it.
struct AttrFlags {
    std::uint8_t ReadOnly = 0, Archive = 0, Hidden = 0, System = 0;
    friend bool operator==(const AttrFlags&, const AttrFlags&) = default;
};

// -1 when they cannot be read.
std::int16_t File_Attr_Get(Files& files, const std::string& path);
AttrFlags File_Attr_Split(std::int16_t attributes);

// `Attr: ` and a letter for each of the four that is set, in the order R, A, H,
// S. The way back takes the letters in any order and case.
std::string Attr_Undo_Build(std::int16_t attributes);
std::int16_t Attr_Undo_Parse(std::string_view record);

// Gives these rows the attributes that are ticked, and no others of the four.
// Failures land in the rows.
void Attr_Run(Program& p, const RunRows& rows);
// One row of the way back. Gives the text of its `Errors` cell; `UndoName` is
// written anew only when the change was made.
std::string Attr_Undo_Row(Program& p, int row, RowCounters& counters);

// Shows the attributes of the selected row, in the boxes too with Auto Fill
// on. False when they cannot be read, which the status bar then says.
bool Attr_Row_Show(Program& p);

} // namespace tavo
