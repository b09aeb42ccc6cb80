#pragma once

#include "toolkit/collation.h"
#include "toolkit/record_heap.h"
#include "toolkit/row_index.h"
#include "toolkit/row_order.h"
#include "toolkit/row_record.h"
#include "toolkit/text_pool.h"

#include <memory>
#include <string_view>
#include <vector>

namespace tavo {

class SortKeys;

// The rows of a list: their texts, their order, which are selected, and an
// index by the text of column 0. Positions count from 1 and columns from 0;
// those beyond the list read as empty, and writing there changes nothing.
// Writing procedures give true if something has changed; texts given to them
// may be pieces of the store. Texts handed out hold until the next change.
class RowStore {
public:
    // A shared column keeps each different text once.
    void AddColumn(bool shared) { shared_.push_back(shared); }
    int ColumnCount() const { return static_cast<int>(shared_.size()); }

    int Count() const { return order_.Count(); }
    bool Has(int position) const { return position >= 1 && position <= Count(); }
    // A row keeps its id as long as it lives; noRow for no position, and back.
    RowId IdAt(int position) const { return Has(position) ? order_.At(position) : noRow; }
    int PositionOf(RowId row) const { return order_.PositionOf(row); }

    // Before `position` (1 to Count() + 1), with the cells of columns 0, 1, ...
    void Insert(int position, const std::string_view* cells, int count, std::string_view icon);
    void Erase(int position);
    void Clear();
    // Takes a row out of the order, to be put back elsewhere, unselected.
    RowId TakeOut(int position);
    void PutBack(int position, RowId row) { order_.Insert(position, row); }

    bool HasCell(int position, int column) const { return Has(position) && HasColumn(column); }
    std::string_view Cell(int position, int column) const;
    bool SetCell(int position, int column, std::string_view text);
    // One text into a column of all rows.
    RowRange SetColumnCells(int column, std::string_view text);
    std::string_view Key(int position) const { return FieldAt(position, keyField); }
    bool SetKey(int position, std::string_view key) { return SetField(position, keyField, key); }
    std::string_view Tag(int position) const { return FieldAt(position, tagField); }
    bool SetTag(int position, std::string_view tag) { return SetField(position, tagField, tag); }
    std::string_view Icon(int position) const;
    std::string_view SmallIcon(int position) const;
    bool SetIcons(int position, std::string_view icon, std::string_view smallIcon);

    bool Selected(int position) const { return Has(position) && order_.Marked(IdAt(position)); }
    bool Select(int position, bool on);
    RowRange SelectAll(bool on) { return order_.MarkAll(on); }
    void InvertSelection() { order_.InvertMarks(); }
    int SelectedCount() const { return order_.MarkedCount(); }
    int NextSelected(int after) const { return order_.NextMarked(after); }

    // The rows in the order of a column, stably and blind to case, for
    // SetOrder; empty if they stand so already.
    std::vector<RowId> SortedRows(int column, bool descending, Collation collation) const;
    void SetOrder(const std::vector<RowId>& rows) { order_.Assign(rows); }

    // As the list view tells them.
    int FindItem(std::string_view text, int after) const;
    int FindItemWhere(std::string_view text, int column, std::string_view cell,
                      bool exactFirst) const;

    std::size_t MemoryBytes() const;

private:
    static constexpr std::size_t pageRows = 1024;
    static constexpr std::size_t keyField = 0, tagField = 1, firstCell = 2;

    struct Row {
        RowRecord Record;
        std::uint32_t Icon = 0, SmallIcon = 0; // in the pool
        RowId& NextFree() { return Icon; }     // of a row that is not used
    };

    Row& RowOf(RowId row) const { return pages_[row / pageRows][row % pageRows]; }
    RowId NewRow();
    RowRecord NewRecord(const std::string_view* cells, std::size_t count);
    void FreeRow(RowId row);
    // Column 0 is there without being added.
    bool HasColumn(int column) const
    {
        return column == 0 || (column > 0 && column < ColumnCount());
    }
    bool IsShared(int column) const
    {
        return column < ColumnCount() && shared_[static_cast<std::size_t>(column)];
    }
    std::string_view CellOf(RowId row, int column) const;
    std::uint32_t SharedCell(RowId row, int column) const;
    std::string_view FieldAt(int position, std::size_t field) const;
    bool SetField(int position, std::size_t field, std::string_view text);
    void WriteField(RowId row, std::size_t field, std::string_view text);
    void WriteShared(RowId row, int column, std::string_view text);
    bool WriteCell(RowId row, int column, std::string_view text);

    std::vector<RowId> InOrder() const;
    void AddKeys(const std::vector<RowId>& rows, int column, Collation collation,
                 SortKeys& keys) const;
    std::vector<RowId> SortedByText(int column, bool descending, Collation collation) const;
    std::vector<RowId> SortedByRank(int column, bool descending, Collation collation) const;
    std::vector<std::uint32_t> PoolRanks(const std::vector<std::uint32_t>& ids, bool descending,
                                         Collation collation) const;

    void AddToNames(RowId row) const;
    void AddToPairs(RowId row) const;
    void Index(RowId row, int column);
    void Unindex(RowId row, int column);
    RowId FirstNamed(std::string_view text) const;
    bool ChainIsLong(RowId row) const;
    RowId FirstPair(std::string_view text, int column, std::uint32_t cell) const;
    template <class Wanted>
    int FirstOnChain(const RowIndex& index, RowId row, int before, const Wanted& wanted) const;

    std::vector<bool> shared_;
    std::vector<std::unique_ptr<Row[]>> pages_;
    RowId freeRow_ = noRow, nextRow_ = 0;
    RowOrder order_;
    TextPool pool_;
    RecordHeap heap_;
    std::vector<std::string_view> newFields_; // of the record being made
    std::vector<std::uint32_t> newShared_;
    // Built when first asked for: rows by the text of column 0; and, once many
    // rows have the same text, by that and the cell of one shared column.
    mutable RowIndex names_, pairs_;
    mutable int pairColumn_ = -1;
};

} // namespace tavo
