#include "toolkit/form.h"

#include <algorithm>
#include <utility>

namespace tavo {

namespace {

constexpr auto enter = Control::DragState::Enter;
constexpr auto leave = Control::DragState::Leave;
constexpr auto over = Control::DragState::Over;

bool InReach(const Control* control)
{
    return control != nullptr && control->IsShown() && control->IsUsable();
}

} // namespace

void Form::BeginDrag(Control& source)
{
    dragSource_ = &source;
    dragTarget_ = nullptr;
    DragChanged();
}

// Any handler may end a control of the drag, or the drag itself.
void Form::PersonDragOver(Control* target, double x, double y)
{
    if (dragSource_ == nullptr)
        return;
    if (!InReach(target))
        target = nullptr;
    const Control::Mouse at{1, shiftNone, x, y};
    const bool entered = target != dragTarget_;
    if (entered && dragTarget_) {
        Control* const left = std::exchange(dragTarget_, nullptr);
        left->DragOver(*dragSource_, dragAt_, leave);
        if (dragSource_ == nullptr || (target && !Holds(target)))
            return;
    }
    dragTarget_ = target;
    dragAt_ = at;
    for (const auto state : {enter, over})
        if (dragSource_ && dragTarget_ && (entered || state == over))
            dragTarget_->DragOver(*dragSource_, at, state);
}

void Form::PersonDragDrop()
{
    Control* const source = std::exchange(dragSource_, nullptr);
    Control* const target = std::exchange(dragTarget_, nullptr);
    if (source == nullptr)
        return;
    if (InReach(target))
        target->DragDrop(*source, dragAt_);
    DragChanged();
}

void Form::PersonDragCancel()
{
    if (dragSource_ == nullptr)
        return;
    PersonDragOver(nullptr, 0, 0);
    dragSource_ = nullptr;
    DragChanged();
}

Control& Form::ControlAt(Control& container, double& x, double& y) const
{
    const double unit = container.UnitTwips();
    for (auto at = controls_.rbegin(); at != controls_.rend(); ++at) {
        Control& control = **at;
        const double left = x - control.Left, top = y - control.Top;
        const bool inside = left >= 0 && top >= 0 && left < control.Width && top < control.Height;
        if (control.Container != &container || !control.Visible || !control.TakesMouse() || !inside)
            continue;
        x = left * unit / control.UnitTwips();
        y = top * unit / control.UnitTwips();
        return ControlAt(control, x, y);
    }
    return container;
}

} // namespace tavo
