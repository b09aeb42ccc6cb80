#include "renamelist/rename_list.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "toolkit/dates.h"
#include "toolkit/numbers.h"

#include <algorithm>
#include <cstdint>

namespace tavo {

namespace {

void Row_MoveSelected(Program& p, int from, int to)
{
    Ren_Row_Move(p, from, to);
    p.main.lsvRename.SetSelected(to, true);
}

// From the end on, so that no move shifts a row that is still to come.
void Rows_MoveToEnd(Program& p, const std::vector<int>& rows, std::int64_t distance)
{
    const std::int64_t count = p.main.lsvRename.Count();
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        distance = std::min(distance, count - *row);
        Row_MoveSelected(p, *row, static_cast<int>(*row + distance));
    }
}

void Rows_MoveToStart(Program& p, const std::vector<int>& rows, std::int64_t distance)
{
    for (const int row : rows) {
        distance = std::min(distance, std::int64_t{row} - 1);
        Row_MoveSelected(p, row, static_cast<int>(row - distance));
    }
}

int Distance_Get(Program& p)
{
    const Tool* tool = p.main.atbMain.Find("ID_SelDistance");
    if (tool == nullptr || tool->Box == nullptr)
        return 0;
    return ParseI32(tool->Box->Text.Get()).value_or(0);
}

// Ascending is `Up`.
void Marks_Show(ListView& list)
{
    const SortMark mark = list.SortOrder() == 0 ? SortMark::Up : SortMark::Down;
    for (int column = 0; column < list.ColumnCount(); ++column)
        list.SetColumnMark(column, column == list.SortKey() ? mark : SortMark::None);
}

void Rows_Sort(Program& p, ListView& list, int column)
{
    if (column == list.SortKey())
        list.SetSortOrder(std::abs(list.SortOrder() - 1));
    list.SetSortKey(column);
    list.SetSorted(true);
    p.desktop.DoEvents();
    Marks_Show(list);
    list.EnsureVisible(list.SelectedItem());
}

} // namespace

void Ren_List_Sort(Program& p, ListView& list, int column)
{
    if (column < 0 || column >= list.ColumnCount())
        return;
    const LongOperation operation(p);
    if (!operation)
        return;
    {
        const FreezeGuard freeze(p.main);
        const bool dates = list.Column(column).Key == "Modified";
        if (dates)
            Ren_Date_Swap(p, list, column, true);
        Rows_Sort(p, list, column);
        if (dates)
            Ren_Date_Swap(p, list, column, false);
    }
    if (&list == &p.main.lsvRename)
        p.RowsRedrawn();
}

void Ren_List_Arrange(Program& p, std::string_view direction)
{
    const LongOperation operation(p);
    if (!operation)
        return;
    {
        const FreezeGuard freeze(p.main);
        if (direction == "Group")
            Ren_Rows_Group(p);
        else
            Ren_Rows_MoveSelected(p, Distance_Get(p), direction == "Up");
    }
    p.RowsRedrawn();
}

void Ren_Rows_MoveSelected(Program& p, int distance, bool downward)
{
    ListView& list = p.main.lsvRename;
    Ren_Order_MakePlain(list);
    const std::vector<int> rows = list.SelectedRows();
    const std::int64_t wanted = std::max(distance, 0);
    {
        const ListFreezeGuard freeze(list);
        if (downward)
            Rows_MoveToEnd(p, rows, wanted);
        else
            Rows_MoveToStart(p, rows, wanted);
    }
    list.EnsureVisible(list.SelectedItem());
    p.desktop.DoEvents();
}

void Ren_Rows_Group(Program& p)
{
    ListView& list = p.main.lsvRename;
    Ren_Order_MakePlain(list);
    const std::vector<int> rows = list.SelectedRows();
    {
        const ListFreezeGuard freeze(list);
        for (std::size_t k = 1; k < rows.size(); ++k)
            Row_MoveSelected(p, rows[k], rows[0] + static_cast<int>(k));
    }
    list.EnsureVisible(list.SelectedItem());
}

void Ren_Row_Move(Program& p, int from, int to)
{
    if (from != to)
        p.main.lsvRename.MoveRow(from, to);
}

void Ren_Date_Swap(Program& p, ListView& list, int column, bool sortable)
{
    const int year = p.desktop.Now().Year;
    const auto swap = sortable ? Modified_To_Sortable : Modified_From_Sortable;
    const ListFreezeGuard freeze(list);
    for (int row = 1; row <= list.Count(); ++row)
        list.SetCell(row, column, swap(list.Cell(row, column), year));
}

void Ren_Marks_Clear(ListView& list)
{
    for (int column = 0; column < list.ColumnCount(); ++column)
        list.SetColumnMark(column, SortMark::None);
}

void Ren_Order_MakePlain(ListView& list)
{
    if (!list.Sorted())
        return;
    Ren_Marks_Clear(list);
    list.SetSorted(false);
}

} // namespace tavo
