#include "toolkit/scroll_bar.h"

#include "toolkit/numbers.h"
#include "toolkit/property_table.h"

#include <algorithm>
#include <utility>

namespace tavo {

namespace {

constexpr PropertyRow<ScrollBar> properties[] = {
    {"Min", [](const ScrollBar& b) { return IntToText(b.Min); }},
    {"Max", [](const ScrollBar& b) { return IntToText(b.Max); }},
    {"Value", [](const ScrollBar& b) { return IntToText(b.Value); }},
    {"LargeChange", [](const ScrollBar& b) { return IntToText(b.LargeChange); }},
    {"SmallChange", [](const ScrollBar& b) { return IntToText(b.SmallChange); }},
};

} // namespace

// The ends may lie the wrong way round.
int ScrollBar::Held(int value) const
{
    const int low = std::min(Min.Get(), Max.Get()), high = std::max(Min.Get(), Max.Get());
    return std::clamp(value, low, high);
}

void ScrollBar::PropertyChanged(Prop what)
{
    if (what == Prop::Value && !dragging_ && Held(Value) != Value) {
        Value.SetQuietly(settled_);
        return;
    }
    const int held = Held(Value);
    const bool pulled = held != Value;
    Value.SetQuietly(held);
    Control::PropertyChanged(what);
    if (pulled)
        Control::PropertyChanged(Prop::Value);
    if (dragging_ || Value == settled_)
        return;
    settled_ = Value;
    Change();
}

void ScrollBar::PersonDrag(int value)
{
    if (!IsShown() || !IsUsable())
        return;
    SetFocus();
    const bool before = std::exchange(dragging_, true);
    Value = Held(value);
    dragging_ = before;
    Scroll();
}

void ScrollBar::PersonScroll(int value)
{
    if (!IsShown() || !IsUsable())
        return;
    PersonDrag(value);
    if (Value == settled_)
        return;
    settled_ = Value;
    Change();
}

void ScrollBar::PersonKey(const Key& key)
{
    if (key.Shift != shiftNone || !IsShown() || !IsUsable())
        return;
    switch (key.Code) {
    case keyLeft:
    case keyUp: Value = Held(Value - SmallChange); return;
    case keyRight:
    case keyDown: Value = Held(Value + SmallChange); return;
    case keyPageUp: Value = Held(Value - LargeChange); return;
    case keyPageDown: Value = Held(Value + LargeChange); return;
    case keyHome: Value = Min.Get(); return;
    case keyEnd: Value = Max.Get(); return;
    default: return;
    }
}

std::optional<std::string> ScrollBar::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(properties, *this, property);
    return text ? text : Control::PropertyText(property);
}

} // namespace tavo
