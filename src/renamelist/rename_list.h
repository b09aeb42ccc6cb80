#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavo {

class ListView;
class Program;

// Building the rename list (list_load.cpp). Each is refused while a long
// operation is under way.
// Empties the list and readies the status bar.
void Ren_List_Prepare(Program& p);
// Builds it from the selected rows of `source`, and shows it.
void Ren_List_FromSelection(Program& p, ListView& source);
// Builds it from dropped paths, and shows it. What cannot be read leaves no
// row.
void Ren_List_FromDrop(Program& p, const std::vector<std::string>& paths);
// What ID_CreateList does: builds a list, or goes back to the old one.
void Ren_List_Create(Program& p);
// Shows a list just loaded, sorted once by Name; an empty one is cleared.
void Ren_List_Finish(Program& p);
// Empties the list and falls back to the empty state.
void Ren_List_Clear(Program& p);
// Sets SelFolderMode and the controls that depend on it.
void Ren_FolderMode_Apply(Program& p, int mode);

// Order (list_order.cpp). Columns go by their number. Sorting and arranging
// are refused while a long operation is under way.
// A column that is the sort key already turns the order round. Header marks
// are shown on the list that is sorted, and on no other.
void Ren_List_Sort(Program& p, ListView& list, int column);
// Direction is "Up", "Down" or "Group". "Up" moves rows towards the end: it
// counts the positions up.
void Ren_List_Arrange(Program& p, std::string_view direction);
// Downward is towards the end. A block that would pass the list's edge moves
// as far as its foremost row can.
void Ren_Rows_MoveSelected(Program& p, int distance, bool downward);
// All selected rows as one block behind the first of them.
void Ren_Rows_Group(Program& p);
// The selection of the row is not kept.
void Ren_Row_Move(Program& p, int from, int to);
// Rewrites a date column between "mm/dd/yyyy hh:mm AMPM" and a form that sorts
// as text. A text that is no date stays.
void Ren_Date_Swap(Program& p, ListView& list, int column, bool sortable);
// Takes away the sort marks of all headers.
void Ren_Marks_Clear(ListView& list);
// What is arranged by hand is no longer in the order of a column: marks and
// sorting go.
void Ren_Order_MakePlain(ListView& list);

// Walks (list_refresh.cpp), run by the driver as actions 2 and 3.
// Size, type and date of each row anew; rows whose file is gone go.
void Ren_List_Refresh(Program& p);
// Takes the rows off the list that were selected at its start.
void Ren_List_RemoveSelected(Program& p);

// Drag and drop, keys and clicks on the list (list_events.cpp).
void Ren_List_Wire(Program& p);
// Asks by the dialog of ID_SelDelete and carries out its answer.
void Ren_Delete_Ask(Program& p);

} // namespace tavo
