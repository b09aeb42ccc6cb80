#pragma once

#include "toolkit/collation.h"
#include "toolkit/control.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tavo {

class RowStore;

enum class SortMark { None, Up, Down };
enum class ListLook { Icons = 0, SmallIcons = 1, List = 2, Details = 3 };

// A column; column 0 is the row's own text, the others its sub-items.
struct ColumnHeader {
    std::string Key, Caption;
    double WidthTwips = 1440;
    bool RightAligned = false;
    SortMark Mark = SortMark::None;
    // Few different texts over many rows: each is kept once.
    bool Shared = false;
};

// What a list tells the host that shows it. Positions count from 1. Every
// opening notice is followed by its closing one before the next opens. Who
// hears them reads the list, and does not change it from within.
class ListObserver {
public:
    virtual ~ListObserver() = default;
    virtual void BeginInsert(int first, int last) = 0;
    virtual void EndInsert() = 0;
    virtual void BeginRemove(int first, int last) = 0;
    virtual void EndRemove() = 0;
    // All rows may be others, or elsewhere; also one freeze with changes of
    // rows in it.
    virtual void BeginReset() = 0;
    virtual void EndReset() = 0;
    virtual void CellsChanged(int first, int last) = 0;
    virtual void SelectionChanged(int first, int last) = 0;
    virtual void SelectedItemChanged() = 0;
    virtual void ColumnsChanged() = 0;
    virtual void ShowRow(int position) = 0;
};

// A list of rows of text cells, made for a million of them. Row positions are
// 1-based. A position or column beyond the list reads as empty, and writing
// there does nothing and gives false. Texts handed out as views hold until the
// list is next changed.
class ListView : public Control {
public:
    ListView(Form& form, std::string name, int index = -1);
    ~ListView() override;

    // Columns, set up once.
    void AddColumn(ColumnHeader column);
    int ColumnCount() const { return static_cast<int>(columns_.size()); }
    const ColumnHeader& Column(int number) const { return columns_[static_cast<size_t>(number)]; }
    // By key, exactly; -1 when there is none.
    int ColumnByKey(std::string_view key) const;
    void SetColumnMark(int column, SortMark mark);
    void SetColumnCaption(int column, const std::string& caption);
    // How texts are put in order; the platform's rule.
    Collation Order = Collation::CodePoint;

    // Rows.
    int Count() const;
    // Adds a row before position `at`; 0 is at the end. Gives its position.
    int Add(std::string_view text, int at = 0);
    // A row at the end with the cells of columns 0, 1, 2 ... at once.
    int AddRow(const std::string_view* cells, int count, std::string_view icon);
    bool Remove(int position);
    // LVM_DELETEALLITEMS. Nothing is the SelectedItem then.
    void DeleteAllItems();
    // Takes the row at `from` to position `to`, with all its cells, icons, key
    // and tag. It is not selected there. False if either is no position.
    bool MoveRow(int from, int to);

    std::string_view Cell(int position, int column) const;
    std::string_view Text(int position) const { return Cell(position, 0); }
    bool SetCell(int position, int column, std::string_view text);
    bool SetText(int position, std::string_view text) { return SetCell(position, 0, text); }
    // The same text into one column of all rows, in one walk.
    void SetColumnCells(int column, std::string_view text);
    std::string_view Icon(int position) const;
    std::string_view SmallIcon(int position) const;
    bool SetIcons(int position, std::string_view icon, std::string_view smallIcon);
    std::string_view Key(int position) const;
    bool SetKey(int position, std::string_view key);
    std::string_view Tag(int position) const;
    bool SetTag(int position, std::string_view tag);

    // Selection. Selecting a row by code makes it the SelectedItem too;
    // SelectedItem 0 is none. It stays when its row is unselected.
    bool Selected(int position) const;
    void SetSelected(int position, bool on);
    // LVM_SETITEMSTATE with index -1: the SelectedItem stays.
    void SetAllSelected(bool on);
    void InvertSelection();
    int SelCount() const; // LVM_GETSELECTEDCOUNT
    int SelectedItem() const;
    void SetSelectedItem(int position);
    // The first selected row behind `after`; 0 if none.
    int NextSelected(int after) const;
    // All of them, in list order.
    std::vector<int> SelectedRows() const;

    // Sorting. Sorts at once when `Sorted` goes on, and when key or order
    // change while it is on: stably, blind to case. Going off keeps the order.
    bool Sorted() const { return sorted_; }
    void SetSorted(bool on);
    // Puts the flag back after a walk that needed it off; no row moves.
    void RestoreSorted(bool on) { sorted_ = on; }
    int SortKey() const { return sortKey_; } // a column number
    void SetSortKey(int column);
    int SortOrder() const { return sortOrder_; } // 0 ascending, 1 descending
    void SetSortOrder(int order);

    // The first row behind position `after` whose text is `text` as a whole,
    // blind to case; 0 if none. By an index, not by a walk.
    int FindItem(std::string_view text, int after = 0) const;
    // The same among the rows whose cell of `column` is exactly `cell`. Where
    // `exactFirst` is on and several rows match, one of the very same spelling
    // goes before the others.
    int FindItemWhere(std::string_view text, int column, std::string_view cell,
                      bool exactFirst) const;

    void EnsureVisible(int position);
    ListLook View() const { return view_; }
    void SetView(ListLook view);

    // Changes reach the host as one while frozen.
    void Freeze(bool on);
    bool Frozen() const { return frozen_ > 0; }
    void Refresh();
    // Inside a freeze it hears of the changes from then on.
    void SetObserver(ListObserver* observer);

    // Bytes that the rows take, all told.
    std::size_t MemoryBytes() const;

    // How many rows PageUp and PageDown go by; a host tells what it shows.
    int PageRows = 20;

    // Events of the person.
    Event<> ItemClick;      // a click on a row, after the selection has changed
    Event<int> ColumnClick; // a click on the header of this column
    Event<> DragStarted;    // the left button went down on a row and moved
    Event<const std::vector<std::string>&> FilesDropped;

    // While held, a person's part of the selection stays as it is: what works
    // on the selected rows must find the same ones at its end. A counter.
    void HoldSelection(bool on) { held_ += on ? 1 : -1; }
    bool SelectionHeld() const { return held_ > 0; }

    // A person made exactly these rows the selected ones; `clicked` is the row
    // of the click, 0 a place beside the rows.
    void PersonSelect(const std::vector<int>& positions, int clicked);
    void PersonSelectAll();
    // A person pressed the button on this row, 0 a place beside the rows: with
    // Shift the rows between it and the last one picked are selected, with Ctrl
    // its own state changes, else it is the only one. The row click follows.
    void PersonPress(int position, int shift);
    // What a host's own view has selected: row by row, then the row in hand.
    void PersonSelectRange(int first, int last, bool on);
    void PersonClicked(int position);
    void PersonKey(const tavo::Key& key) override;

    bool TakesFocus() const override { return true; }
    std::optional<std::string> PropertyText(std::string_view property) const override;

private:
    // What a freeze has kept back; positions, 0 for none.
    struct KeptBack {
        int FirstCell = 0, LastCell = 0;
        int FirstSelected = 0, LastSelected = 0;
        bool SelectedItem = false, Columns = false;
        std::uint32_t ShownRow = 0xFFFFFFFF;
    };

    void TellCells(int first, int last);
    void TellSelection(int first, int last);
    bool RefusePerson();
    void TellSelectedItem();
    void TellColumns();
    void Thaw();
    void InsertRow(int position, const std::string_view* cells, int count, std::string_view icon);
    // A row that goes is nobody's any more.
    void Forget(std::uint32_t row);
    void SetItem(std::uint32_t row);
    void SelectExactly(const std::vector<int>& positions);
    void SelectOnly(int first, int last);
    int KeyTarget(int code) const;
    void StepTo(int position, int shift);
    void Sort();
    void OpenChange(); // inside a freeze: the one notice of its changes

    std::vector<ColumnHeader> columns_;
    std::unique_ptr<RowStore> rows_;
    ListObserver* observer_ = nullptr;
    bool sorted_ = false;
    int sortKey_ = 0, sortOrder_ = 0;
    ListLook view_ = ListLook::Details;
    // Rows: the SelectedItem, and where a selection by Shift begins.
    std::uint32_t item_ = 0xFFFFFFFF, anchor_ = 0xFFFFFFFF;
    int frozen_ = 0;
    int held_ = 0;
    bool resetOpen_ = false;
    KeptBack kept_;
};

class ListFreezeGuard {
public:
    explicit ListFreezeGuard(ListView& list) : list_(list) { list_.Freeze(true); }
    ~ListFreezeGuard() { list_.Freeze(false); }
    ListFreezeGuard(const ListFreezeGuard&) = delete;
    ListFreezeGuard& operator=(const ListFreezeGuard&) = delete;

private:
    ListView& list_;
};

} // namespace tavo
