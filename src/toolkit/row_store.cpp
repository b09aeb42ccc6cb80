#include "toolkit/row_store.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace tavo {

namespace {

// A shared cell holds the number of its text; no bytes for the empty one.
std::string_view IdBytes(const std::uint32_t& id)
{
    if (id == 0)
        return {};
    return {reinterpret_cast<const char*>(&id), sizeof(id)};
}

std::uint32_t IdOf(std::string_view bytes)
{
    std::uint32_t id = 0;
    if (bytes.size() == sizeof(id))
        std::memcpy(&id, bytes.data(), sizeof(id));
    return id;
}

std::size_t FieldOf(int column, std::size_t firstCell)
{
    return firstCell + static_cast<std::size_t>(column);
}

} // namespace

RowId RowStore::NewRow()
{
    if (freeRow_ != noRow)
        return std::exchange(freeRow_, RowOf(freeRow_).NextFree());
    if (nextRow_ % pageRows == 0)
        pages_.push_back(std::make_unique<Row[]>(pageRows));
    return nextRow_++;
}

RowRecord RowStore::NewRecord(const std::string_view* cells, std::size_t count)
{
    const std::size_t columns = std::max<std::size_t>(shared_.size(), 1);
    newFields_.assign(firstCell + columns, {});
    newShared_.assign(columns, 0);
    for (std::size_t i = 0; i < std::min(count, columns); ++i) {
        if (i < shared_.size() && shared_[i]) {
            newShared_[i] = pool_.Acquire(cells[i]);
            newFields_[firstCell + i] = IdBytes(newShared_[i]);
        } else {
            newFields_[firstCell + i] = cells[i];
        }
    }
    return RowRecord(heap_, newFields_.data(), newFields_.size());
}

void RowStore::Insert(int position, const std::string_view* cells, int count, std::string_view icon)
{
    const RowId row = NewRow();
    Row& made = RowOf(row);
    made.Record = NewRecord(cells, static_cast<std::size_t>(std::max(count, 0)));
    made.Icon = pool_.Acquire(icon);
    made.SmallIcon = pool_.Acquire(icon);
    order_.Insert(position, row);
    Index(row, 0);
}

void RowStore::FreeRow(RowId row)
{
    for (int column = 0; column < ColumnCount(); ++column) {
        if (IsShared(column))
            pool_.Release(SharedCell(row, column));
    }
    Row& old = RowOf(row);
    pool_.Release(old.Icon);
    pool_.Release(old.SmallIcon);
    old.Record.Free(heap_);
    old = Row();
    old.NextFree() = std::exchange(freeRow_, row);
}

void RowStore::Erase(int position)
{
    const RowId row = TakeOut(position);
    Unindex(row, 0);
    FreeRow(row);
}

RowId RowStore::TakeOut(int position)
{
    const RowId row = order_.At(position);
    order_.Erase(position);
    return row;
}

void RowStore::Clear()
{
    names_.Drop();
    pairs_.Drop();
    order_.Clear();
    pages_.clear();
    freeRow_ = noRow;
    nextRow_ = 0;
    pool_.Clear();
    heap_.Clear();
}

std::string_view RowStore::FieldAt(int position, std::size_t field) const
{
    return Has(position) ? RowOf(order_.At(position)).Record.Field(field) : std::string_view();
}

std::uint32_t RowStore::SharedCell(RowId row, int column) const
{
    return IdOf(RowOf(row).Record.Field(FieldOf(column, firstCell)));
}

std::string_view RowStore::CellOf(RowId row, int column) const
{
    const std::string_view field = RowOf(row).Record.Field(FieldOf(column, firstCell));
    return IsShared(column) ? pool_.Text(IdOf(field)) : field;
}

std::string_view RowStore::Cell(int position, int column) const
{
    if (!HasCell(position, column))
        return {};
    return CellOf(order_.At(position), column);
}

void RowStore::WriteField(RowId row, std::size_t field, std::string_view text)
{
    RowOf(row).Record.SetField(heap_, field, text);
}

bool RowStore::SetField(int position, std::size_t field, std::string_view text)
{
    if (!Has(position) || FieldAt(position, field) == text)
        return false;
    WriteField(order_.At(position), field, text);
    return true;
}

// The new text is taken before the old one goes: they may be one.
void RowStore::WriteShared(RowId row, int column, std::string_view text)
{
    const std::uint32_t old = SharedCell(row, column);
    const std::uint32_t id = pool_.Acquire(text);
    WriteField(row, FieldOf(column, firstCell), IdBytes(id));
    pool_.Release(old);
}

bool RowStore::WriteCell(RowId row, int column, std::string_view text)
{
    if (CellOf(row, column) == text)
        return false;
    Unindex(row, column);
    if (IsShared(column))
        WriteShared(row, column, text);
    else
        WriteField(row, FieldOf(column, firstCell), text);
    Index(row, column);
    return true;
}

bool RowStore::SetCell(int position, int column, std::string_view text)
{
    return HasCell(position, column) && WriteCell(order_.At(position), column, text);
}

RowRange RowStore::SetColumnCells(int column, std::string_view text)
{
    RowRange changed;
    if (!HasColumn(column))
        return changed;
    if (column == 0)
        names_.Drop();
    if (column == 0 || column == pairColumn_)
        pairs_.Drop();
    const std::string same(text);
    int position = 0;
    order_.ForEach([&](RowId row) {
        ++position;
        if (WriteCell(row, column, same))
            changed.Include(position, position);
    });
    return changed;
}

std::string_view RowStore::Icon(int position) const
{
    return Has(position) ? pool_.Text(RowOf(order_.At(position)).Icon) : std::string_view();
}

std::string_view RowStore::SmallIcon(int position) const
{
    return Has(position) ? pool_.Text(RowOf(order_.At(position)).SmallIcon) : std::string_view();
}

bool RowStore::SetIcons(int position, std::string_view icon, std::string_view smallIcon)
{
    if (!Has(position) || (Icon(position) == icon && SmallIcon(position) == smallIcon))
        return false;
    Row& row = RowOf(order_.At(position));
    const std::uint32_t newIcon = pool_.Acquire(icon);
    const std::uint32_t newSmall = pool_.Acquire(smallIcon);
    pool_.Release(std::exchange(row.Icon, newIcon));
    pool_.Release(std::exchange(row.SmallIcon, newSmall));
    return true;
}

bool RowStore::Select(int position, bool on)
{
    if (!Has(position) || Selected(position) == on)
        return false;
    order_.Mark(order_.At(position), on);
    return true;
}

std::size_t RowStore::MemoryBytes() const
{
    const std::size_t pages =
        pages_.size() * (pageRows * sizeof(Row) + 16) + pages_.capacity() * sizeof(pages_[0]);
    return sizeof(*this) + pages + heap_.MemoryBytes() + order_.MemoryBytes() + pool_.MemoryBytes()
           + names_.MemoryBytes() + pairs_.MemoryBytes();
}

} // namespace tavo
