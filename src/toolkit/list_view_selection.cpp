#include "toolkit/list_view.h"
#include "toolkit/row_store.h"

#include <algorithm>

namespace tavo {

bool ListView::Selected(int position) const
{
    return rows_->Selected(position);
}

void ListView::SetSelected(int position, bool on)
{
    if (rows_->Select(position, on))
        TellSelection(position, position);
    if (on)
        SetSelectedItem(position);
}

void ListView::SetAllSelected(bool on)
{
    const RowRange changed = rows_->SelectAll(on);
    TellSelection(changed.First, changed.Last);
}

void ListView::InvertSelection()
{
    if (Count() == 0)
        return;
    rows_->InvertSelection();
    TellSelection(1, Count());
}

int ListView::SelCount() const
{
    return rows_->SelectedCount();
}

int ListView::SelectedItem() const
{
    return rows_->PositionOf(item_);
}

void ListView::SetItem(std::uint32_t row)
{
    if (item_ == row)
        return;
    item_ = row;
    TellSelectedItem();
}

void ListView::SetSelectedItem(int position)
{
    if (position == 0 || rows_->Has(position))
        SetItem(rows_->IdAt(position));
}

int ListView::NextSelected(int after) const
{
    return rows_->NextSelected(after);
}

std::vector<int> ListView::SelectedRows() const
{
    std::vector<int> rows;
    for (int row = NextSelected(0); row > 0; row = NextSelected(row))
        rows.push_back(row);
    return rows;
}

void ListView::SelectExactly(const std::vector<int>& positions)
{
    std::vector<int> wanted = positions;
    std::sort(wanted.begin(), wanted.end());
    RowRange changed;
    const auto select = [&](int position, bool on) {
        if (rows_->Select(position, on))
            changed.Include(position, position);
    };
    auto next = wanted.begin();
    for (int i = NextSelected(0); i > 0; i = NextSelected(i)) {
        next = std::lower_bound(next, wanted.end(), i);
        if (next == wanted.end() || *next != i)
            select(i, false);
    }
    for (const int position : wanted)
        select(position, true);
    TellSelection(changed.First, changed.Last);
}

// A host's own view may have changed its marks already: it is told to look.
bool ListView::RefusePerson()
{
    if (!SelectionHeld())
        return false;
    TellSelection(1, Count());
    return true;
}

void ListView::PersonSelect(const std::vector<int>& positions, int clicked)
{
    if (RefusePerson())
        return;
    SelectExactly(positions);
    anchor_ = rows_->IdAt(clicked);
    if (!rows_->Has(clicked)) {
        Click();
        return;
    }
    SetSelectedItem(clicked);
    ItemClick();
}

void ListView::PersonSelectAll()
{
    if (RefusePerson())
        return;
    SetAllSelected(true);
    PersonClicked(Count());
}

void ListView::PersonSelectRange(int first, int last, bool on)
{
    if (RefusePerson())
        return;
    for (int i = std::max(first, 1); i <= std::min(last, Count()); ++i)
        rows_->Select(i, on);
}

void ListView::PersonClicked(int position)
{
    if (RefusePerson())
        return;
    if (!rows_->Has(position)) {
        Click();
        return;
    }
    SetSelectedItem(position);
    ItemClick();
}

void ListView::PersonPress(int position, int shift)
{
    if (RefusePerson())
        return;
    if (!rows_->Has(position))
        return PersonClicked(position);
    if ((shift & (shiftShift | shiftCtrl)) == shiftCtrl) {
        rows_->Select(position, !Selected(position));
        TellSelection(position, position);
        anchor_ = rows_->IdAt(position);
    } else {
        StepTo(position, shift & shiftShift);
    }
    PersonClicked(position);
}

void ListView::SelectOnly(int first, int last)
{
    std::vector<int> positions;
    for (int i = first; i <= last; ++i)
        positions.push_back(i);
    SelectExactly(positions);
}

// Where a key takes the SelectedItem; 0 for a key that takes it nowhere. With
// none to start from it is the first row, but for End.
int ListView::KeyTarget(int code) const
{
    const int from = SelectedItem();
    const auto step = [&](int by) { return from == 0 ? 1 : std::clamp(from + by, 1, Count()); };
    switch (code) {
    case keyUp: return step(-1);
    case keyDown: return step(1);
    case keyPageUp: return step(-PageRows);
    case keyPageDown: return step(PageRows);
    case keyHome: return 1;
    case keyEnd: return Count();
    default: return 0;
    }
}

void ListView::StepTo(int position, int shift)
{
    if (shift & shiftShift) {
        if (anchor_ == noRow)
            anchor_ = item_ == noRow ? rows_->IdAt(position) : item_;
        const int begin = rows_->PositionOf(anchor_);
        SelectOnly(std::min(begin, position), std::max(begin, position));
    } else if (!(shift & shiftCtrl)) {
        anchor_ = rows_->IdAt(position);
        SelectOnly(position, position);
    }
    SetSelectedItem(position);
}

void ListView::PersonKey(const tavo::Key& key)
{
    if (RefusePerson())
        return;
    if (Count() == 0 || (key.Shift & shiftAlt))
        return;
    if (key.Code == keySpace) {
        const int item = SelectedItem();
        if (rows_->Select(item, !Selected(item)))
            TellSelection(item, item);
        anchor_ = item_;
    } else if (const int target = KeyTarget(key.Code)) {
        StepTo(target, key.Shift);
    }
}

} // namespace tavo
