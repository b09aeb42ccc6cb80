#pragma once

#include "toolkit/control.h"

namespace tavo {

// A scroll bar or slider: a whole number between Min and Max. Set from code it
// raises Change; a value outside is refused and the old one stays. New ends
// pull the value in.
//
// While a person drags the thumb, each place raises Scroll; Change comes when
// the thumb is let go, if the place is another one than before the drag.
class ScrollBar : public Control {
public:
    using Control::Control;
    Property<int> Min{*this, Prop::Range};
    Property<int> Max{*this, Prop::Range, 32767};
    Property<int> Value{*this, Prop::Value};
    Property<int> LargeChange{*this, Prop::Range, 1};
    Property<int> SmallChange{*this, Prop::Range, 1};

    Event<> Change, Scroll;

    // The thumb is at `value` and still held; a place beyond the ends is the
    // end. Does nothing to a bar that is hidden or disabled.
    void PersonDrag(int value);
    // The thumb was moved there and let go.
    void PersonScroll(int value);
    // Arrows go a small step, Page Up and Page Down a large one, Home and End
    // to the ends.
    void PersonKey(const Key& key) override;

    bool TakesFocus() const override { return true; }
    std::optional<std::string> PropertyText(std::string_view property) const override;
    void PropertyChanged(Prop what) override;

private:
    int Held(int value) const;

    int settled_ = 0; // the value of the last Change
    bool dragging_ = false;
};

} // namespace tavo
