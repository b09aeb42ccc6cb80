#include "toolkit/list_view.h"
#include "toolkit/row_store.h"

#include <algorithm>
#include <utility>

namespace tavo {

namespace {

void Include(int& first, int& last, int newFirst, int newLast)
{
    first = first == 0 ? newFirst : std::min(first, newFirst);
    last = std::max(last, newLast);
}

} // namespace

void ListView::EnsureVisible(int position)
{
    if (!rows_->Has(position))
        return;
    if (Frozen())
        kept_.ShownRow = rows_->IdAt(position);
    else if (observer_ != nullptr)
        observer_->ShowRow(position);
}

void ListView::Refresh()
{
    if (Count() > 0)
        TellCells(1, Count());
}

void ListView::TellCells(int first, int last)
{
    if (first == 0)
        return;
    if (Frozen())
        Include(kept_.FirstCell, kept_.LastCell, first, last);
    else if (observer_ != nullptr)
        observer_->CellsChanged(first, last);
}

void ListView::TellSelection(int first, int last)
{
    if (first == 0)
        return;
    if (Frozen())
        Include(kept_.FirstSelected, kept_.LastSelected, first, last);
    else if (observer_ != nullptr)
        observer_->SelectionChanged(first, last);
}

void ListView::TellSelectedItem()
{
    if (Frozen())
        kept_.SelectedItem = true;
    else if (observer_ != nullptr)
        observer_->SelectedItemChanged();
}

void ListView::TellColumns()
{
    if (Frozen())
        kept_.Columns = true;
    else if (observer_ != nullptr)
        observer_->ColumnsChanged();
}

void ListView::OpenChange()
{
    if (!Frozen() || resetOpen_)
        return;
    resetOpen_ = true;
    if (observer_ != nullptr)
        observer_->BeginReset();
}

void ListView::Freeze(bool on)
{
    if (on)
        ++frozen_;
    else if (frozen_ > 0 && --frozen_ == 0)
        Thaw();
}

void ListView::Thaw()
{
    const KeptBack kept = std::exchange(kept_, KeptBack());
    const bool reset = std::exchange(resetOpen_, false);
    if (observer_ == nullptr)
        return;
    if (reset) {
        observer_->EndReset();
    } else {
        TellCells(kept.FirstCell, kept.LastCell);
        TellSelection(kept.FirstSelected, kept.LastSelected);
    }
    if (kept.SelectedItem)
        TellSelectedItem();
    if (kept.Columns)
        TellColumns();
    EnsureVisible(rows_->PositionOf(kept.ShownRow));
}

void ListView::SetObserver(ListObserver* observer)
{
    if (observer_ == observer)
        return;
    if (resetOpen_ && observer_ != nullptr)
        observer_->EndReset();
    observer_ = observer;
    if (resetOpen_ && observer_ != nullptr)
        observer_->BeginReset();
}

} // namespace tavo
