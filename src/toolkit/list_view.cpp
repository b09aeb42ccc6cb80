#include "toolkit/list_view.h"

#include "toolkit/numbers.h"
#include "toolkit/property_table.h"
#include "toolkit/row_store.h"

#include <algorithm>
#include <utility>

namespace tavo {

namespace {

constexpr PropertyRow<ListView> properties[] = {
    {"Count", [](const ListView& l) { return IntToText(l.Count()); }},
    {"SelCount", [](const ListView& l) { return IntToText(l.SelCount()); }},
    {"SelectedItem", [](const ListView& l) { return IntToText(l.SelectedItem()); }},
    {"SortKey", [](const ListView& l) { return IntToText(l.SortKey()); }},
    {"SortOrder", [](const ListView& l) { return IntToText(l.SortOrder()); }},
    {"Sorted", [](const ListView& l) { return Bool_Text(l.Sorted()); }},
    {"View", [](const ListView& l) { return IntToText(static_cast<int>(l.View())); }},
};

} // namespace

ListView::ListView(Form& form, std::string name, int index)
    : Control(form, std::move(name), index), rows_(std::make_unique<RowStore>())
{
}

ListView::~ListView() = default;

void ListView::AddColumn(ColumnHeader column)
{
    rows_->AddColumn(column.Shared);
    columns_.push_back(std::move(column));
    TellColumns();
}

int ListView::ColumnByKey(std::string_view key) const
{
    const auto found = std::find_if(columns_.begin(), columns_.end(),
                                    [&](const ColumnHeader& column) { return column.Key == key; });
    return found == columns_.end() ? -1 : static_cast<int>(found - columns_.begin());
}

void ListView::SetColumnMark(int column, SortMark mark)
{
    if (column < 0 || column >= ColumnCount() || Column(column).Mark == mark)
        return;
    columns_[static_cast<std::size_t>(column)].Mark = mark;
    TellColumns();
}

void ListView::SetColumnCaption(int column, const std::string& caption)
{
    if (column < 0 || column >= ColumnCount() || Column(column).Caption == caption)
        return;
    columns_[static_cast<std::size_t>(column)].Caption = caption;
    TellColumns();
}

int ListView::Count() const
{
    return rows_->Count();
}

void ListView::InsertRow(int position, const std::string_view* cells, int count,
                         std::string_view icon)
{
    const bool tells = observer_ != nullptr && !Frozen();
    OpenChange();
    if (tells)
        observer_->BeginInsert(position, position);
    rows_->Insert(position, cells, count, icon);
    if (tells)
        observer_->EndInsert();
}

int ListView::Add(std::string_view text, int at)
{
    if (at < 0 || at > Count() + 1)
        return 0;
    const int position = at == 0 ? Count() + 1 : at;
    InsertRow(position, &text, 1, {});
    return position;
}

int ListView::AddRow(const std::string_view* cells, int count, std::string_view icon)
{
    const int position = Count() + 1;
    InsertRow(position, cells, count, icon);
    return position;
}

void ListView::Forget(std::uint32_t row)
{
    if (anchor_ == row)
        anchor_ = noRow;
    if (kept_.ShownRow == row)
        kept_.ShownRow = noRow;
}

bool ListView::Remove(int position)
{
    const RowId row = rows_->IdAt(position);
    if (row == noRow)
        return false;
    const bool tells = observer_ != nullptr && !Frozen();
    OpenChange();
    if (tells)
        observer_->BeginRemove(position, position);
    const bool wasItem = item_ == row;
    rows_->Erase(position);
    Forget(row);
    if (wasItem)
        item_ = rows_->IdAt(std::min(position, Count()));
    if (tells)
        observer_->EndRemove();
    if (wasItem)
        TellSelectedItem();
    return true;
}

void ListView::DeleteAllItems()
{
    if (Count() == 0)
        return;
    const ListFreezeGuard once(*this);
    OpenChange();
    rows_->Clear();
    anchor_ = kept_.ShownRow = noRow;
    SetItem(noRow);
}

bool ListView::MoveRow(int from, int to)
{
    if (!rows_->Has(from) || !rows_->Has(to))
        return false;
    if (from == to)
        return true;
    const bool tells = observer_ != nullptr && !Frozen();
    OpenChange();
    if (tells)
        observer_->BeginRemove(from, from);
    const RowId row = rows_->TakeOut(from);
    if (tells) {
        observer_->EndRemove();
        observer_->BeginInsert(to, to);
    }
    rows_->PutBack(to, row);
    if (tells)
        observer_->EndInsert();
    if (item_ == row)
        TellSelectedItem();
    return true;
}

std::string_view ListView::Cell(int position, int column) const
{
    return rows_->Cell(position, column);
}

bool ListView::SetCell(int position, int column, std::string_view text)
{
    if (!rows_->HasCell(position, column))
        return false;
    if (rows_->SetCell(position, column, text))
        TellCells(position, position);
    return true;
}

void ListView::SetColumnCells(int column, std::string_view text)
{
    const RowRange changed = rows_->SetColumnCells(column, text);
    TellCells(changed.First, changed.Last);
}

std::string_view ListView::Icon(int position) const
{
    return rows_->Icon(position);
}

std::string_view ListView::SmallIcon(int position) const
{
    return rows_->SmallIcon(position);
}

bool ListView::SetIcons(int position, std::string_view icon, std::string_view smallIcon)
{
    if (rows_->SetIcons(position, icon, smallIcon))
        TellCells(position, position);
    return rows_->Has(position);
}

std::string_view ListView::Key(int position) const
{
    return rows_->Key(position);
}

// Nobody shows keys and tags, so nobody is told.
bool ListView::SetKey(int position, std::string_view key)
{
    rows_->SetKey(position, key);
    return rows_->Has(position);
}

std::string_view ListView::Tag(int position) const
{
    return rows_->Tag(position);
}

bool ListView::SetTag(int position, std::string_view tag)
{
    rows_->SetTag(position, tag);
    return rows_->Has(position);
}

void ListView::Sort()
{
    const std::vector<RowId> rows = rows_->SortedRows(sortKey_, sortOrder_ == 1, Order);
    if (rows.empty())
        return;
    const ListFreezeGuard once(*this);
    OpenChange();
    rows_->SetOrder(rows);
}

void ListView::SetSorted(bool on)
{
    if (sorted_ == on)
        return;
    sorted_ = on;
    if (on)
        Sort();
}

void ListView::SetSortKey(int column)
{
    if (sortKey_ == column || column < 0 || column >= ColumnCount())
        return;
    sortKey_ = column;
    if (sorted_)
        Sort();
}

void ListView::SetSortOrder(int order)
{
    if (sortOrder_ == order || order < 0 || order > 1)
        return;
    sortOrder_ = order;
    if (sorted_)
        Sort();
}

int ListView::FindItem(std::string_view text, int after) const
{
    return rows_->FindItem(text, after);
}

int ListView::FindItemWhere(std::string_view text, int column, std::string_view cell,
                            bool exactFirst) const
{
    return rows_->FindItemWhere(text, column, cell, exactFirst);
}

void ListView::SetView(ListLook view)
{
    if (view_ == view)
        return;
    view_ = view;
    PropertyChanged(Prop::State);
}

std::size_t ListView::MemoryBytes() const
{
    return rows_->MemoryBytes();
}

std::optional<std::string> ListView::PropertyText(std::string_view property) const
{
    if (auto text = PropertyTable_Text(properties, *this, property))
        return text;
    return Control::PropertyText(property);
}

} // namespace tavo
