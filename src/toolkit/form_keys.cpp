#include "toolkit/caption.h"
#include "toolkit/form.h"
#include "toolkit/tab_strip.h"
#include "toolkit/tool_bars.h"
#include "toolkit/unicode_case.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr int shiftCtrlAlt = shiftCtrl | shiftAlt;

// Lets the filter see the character. False when it has used it up.
bool FilterChar(Control& control, Key& key)
{
    const int typed = static_cast<int>(key.Char);
    int wanted = typed;
    control.KeyPress(wanted);
    if (wanted == typed)
        return true;
    key.Char = static_cast<char32_t>(wanted);
    key.Code = Key_FromChar(key.Char).Code;
    return wanted != 0;
}

// The letter that Alt goes with, as Caption_Mnemonic gives it; 0 if the key is
// no such one.
char32_t MnemonicOf(const Key& key)
{
    if ((key.Shift & shiftCtrlAlt) != shiftAlt)
        return 0;
    if (key.Char > ' ')
        return SimpleFold(key.Char);
    const bool letter = key.Code >= 'A' && key.Code <= 'Z';
    const bool digit = key.Code >= '0' && key.Code <= '9';
    return letter || digit ? SimpleFold(static_cast<char32_t>(key.Code)) : 0;
}

// The strips of pages of a form, for telling what lies on a page behind.
class FrontPages {
public:
    explicit FrontPages(const std::vector<Control*>& controls)
    {
        for (const Control* control : controls)
            if (const auto* strip = dynamic_cast<const TabStrip*>(control))
                strips_.push_back(strip);
    }

    bool Show(const Control& control) const
    {
        return std::all_of(strips_.begin(), strips_.end(), [&](const TabStrip* strip) {
            const int page = strip->PageOf(control);
            return page < 0 || page == strip->Selected();
        });
    }

private:
    std::vector<const TabStrip*> strips_;
};

} // namespace

bool Form::CanEnter(const Control& control) const
{
    return control.TakesFocus() && control.IsShown() && control.IsUsable();
}

void Form::Enter(Control& control)
{
    if (active_ == &control || !CanEnter(control))
        return;
    Control* const old = active_;
    // While the old one is being left, none has the focus, so that its handler
    // can give it to any control, and back to its own one, too.
    active_ = nullptr;
    if (old)
        old->LostFocus();
    const bool decided = active_ != nullptr;
    if (!decided && Holds(&control) && CanEnter(control))
        active_ = &control;
    for (Control* one : {old, &control})
        if (Holds(one))
            one->Changed(Prop::Focus);
    if (!decided && active_ == &control)
        control.GotFocus();
}

void Form::EnterNext(bool backwards)
{
    EnterFrom(active_, backwards);
}

void Form::EnterBehind(const Control& control)
{
    EnterFrom(&control, false);
}

void Form::EnterFrom(const Control* from, bool backwards)
{
    const int count = static_cast<int>(controls_.size());
    const auto found = std::find(controls_.begin(), controls_.end(), from);
    const int step = backwards ? count - 1 : 1;
    int at = static_cast<int>(found - controls_.begin());
    if (at == count)
        at = backwards ? 0 : count - 1;
    const FrontPages front(controls_);
    for (int tries = 0; tries < count; ++tries) {
        at = (at + step) % count;
        Control& next = *controls_[static_cast<size_t>(at)];
        if (CanEnter(next) && front.Show(next))
            return Enter(next);
    }
}

void Form::PersonKey(Control* target, Key key)
{
    Key released = key;
    if (FilterKey(target, key) && !DialogKey(target, key) && target && Holds(target))
        target->PersonKey(key);
    if (target && Holds(target))
        target->KeyUp(released);
}

bool Form::FilterKey(Control* target, Key& key)
{
    if (dragSource_ && key.Code == keyEscape)
        PersonDragCancel();
    KeyDown(key);
    if (key.Code == keyNone)
        return false;
    if (target && Holds(target))
        target->KeyDown(key);
    if (key.Code == keyNone)
        return false;
    if (Tool* tool = Bars ? Bars->ForShortcut(key) : nullptr) {
        Bars->PersonClick(*tool);
        return false;
    }
    // Tab walks on, whatever a box lets in.
    const bool isTyped = Key_Types(key) && key.Code != keyTab;
    return !(isTyped && target && Holds(target)) || FilterChar(*target, key);
}

bool Form::DialogKey(Control* target, const Key& key)
{
    if ((key.Shift & shiftAlt) != 0)
        return PressMnemonic(key);
    if ((key.Shift & shiftCtrl) != 0)
        return false;
    switch (key.Code) {
    case keyTab:
        if (target)
            EnterFrom(target, (key.Shift & shiftShift) != 0);
        return target != nullptr;
    case keyReturn: return !(target && target->TakesReturn()) && PressButton(DefaultButton);
    case keyEscape: return PressButton(CancelButton);
    default: return false;
    }
}

bool Form::PressButton(Control* button)
{
    if (!button || !button->IsShown() || !button->IsUsable())
        return false;
    button->PersonClick();
    return true;
}

// Where several captions mark the same letter, the first one behind the
// control in hand is meant.
bool Form::PressMnemonic(const Key& key)
{
    const char32_t letter = MnemonicOf(key);
    if (letter == 0)
        return false;
    auto order = controls_;
    const auto active = std::find(order.begin(), order.end(), active_);
    if (active != order.end())
        std::rotate(order.begin(), active + 1, order.end());
    const FrontPages front(controls_);
    for (Control* control : order) {
        if (auto* strip = dynamic_cast<TabStrip*>(control); strip && strip->PersonLetter(letter))
            return true;
        const std::string* caption = control->MnemonicCaption();
        if (!caption || Caption_Mnemonic(*caption) != letter)
            continue;
        if (!control->IsShown() || !control->IsUsable() || !front.Show(*control))
            continue;
        control->PersonMnemonic();
        return true;
    }
    return false;
}

} // namespace tavo
