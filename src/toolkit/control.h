#pragma once

#include "toolkit/event.h"
#include "toolkit/keys.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace tavo {

class Control;
class Form;
struct PictureRef;

// What of a control has changed; a host that hears it reads the control anew.
enum class Prop {
    Text, // and with it the caret
    Caption,
    Value,
    Enabled,
    Visible,
    Geometry,
    Selection, // SelStart, SelLength
    ListIndex,
    Items,
    Colours,
    ToolTip,
    Range, // Min, Max, LargeChange, SmallChange, Interval
    Picture,
    Style,
    Focus,
    State, // what is particular to the kind of control
};

// A value of a control. To set it to the value that it has does nothing; any
// other new value tells the control, which tells its host and its events.
template <class T>
class Property {
public:
    Property(Control& owner, Prop what, T initial = T{})
        : owner_(owner), what_(what), value_(std::move(initial))
    {
    }
    Property(const Property&) = delete;

    const T& Get() const { return value_; }
    operator const T&() const { return value_; }
    // A text goes where text functions take a view of one.
    operator std::string_view() const requires std::is_same_v<T, std::string> { return value_; }
    Property& operator=(T value)
    {
        Set(std::move(value));
        return *this;
    }
    Property& operator=(const Property& other)
    {
        Set(other.value_);
        return *this;
    }
    void Set(T value);

    // Takes the value without telling anybody.
    void SetQuietly(T value) { value_ = std::move(value); }

private:
    Control& owner_;
    Prop what_;
    T value_;
};

// A control: state and the events of its kind. It knows its name, its form and
// what holds it. Everything that a person does to it comes in through methods,
// so that a program runs whole with no host at all.
class Control {
public:
    // `index` is the place in a control array, -1 for none.
    Control(Form& form, std::string name, int index = -1);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& Name() const { return name_; }
    int Index() const { return index_; }
    // The name with its index: `txtNameNum(0)`.
    std::string FullName() const;
    Form& Owner() const { return form_; }

    // What holds the control: null is the form itself.
    Control* Container = nullptr;

    Property<bool> Enabled{*this, Prop::Enabled, true};
    Property<bool> Visible{*this, Prop::Visible, true};
    // The place within the container and the size, in the container's scale
    // (twips, unless it says otherwise).
    Property<double> Left{*this, Prop::Geometry};
    Property<double> Top{*this, Prop::Geometry};
    Property<double> Width{*this, Prop::Geometry};
    Property<double> Height{*this, Prop::Geometry};
    Property<std::string> ToolTipText{*this, Prop::ToolTip};
    Property<std::string> Tag{*this, Prop::State};
    // Colours as the settings file writes them: 0x00BBGGRR, or 0x80000000 and
    // the number of a system colour.
    Property<std::int32_t> BackColor{*this, Prop::Colours, static_cast<std::int32_t>(0x80000005)};
    Property<std::int32_t> ForeColor{*this, Prop::Colours, static_cast<std::int32_t>(0x80000008)};
    // What a screen reader says where caption and label say too little.
    std::string AccessibleName;

    void Move(double left, double top, double width, double height);

    Event<> Click, DblClick, GotFocus, LostFocus;
    Event<Key&> KeyDown; // a handler sets Code to 0 to swallow the key
    Event<Key&> KeyUp;
    Event<int&> KeyPress; // a code point; a filter sets it to 0

    // Position in the control's own scale from its corner.
    struct Mouse {
        int Button = 1; // 1 left, 2 right, 0 none in a move
        int Shift = shiftNone;
        double X = 0, Y = 0;
    };
    Event<const Mouse&> MouseDown, MouseMove, MouseUp;

    // Dragging controls: one is the source, what lies under the pointer is told
    // of it. The source shows what would become of it by the number of a
    // pointer picture of the program, -1 for the plain one.
    enum class DragState { Enter = 0, Leave = 1, Over = 2 };
    Event<Control&, const Mouse&, DragState> DragOver; // the source first
    Event<Control&, const Mouse&> DragDrop;
    Property<int> DragIcon{*this, Prop::State, -1};
    // A press on it begins its drag, and raises nothing.
    bool DragsItself = false;
    // Begins a drag of this control, from its handler of a mouse event.
    void Drag();
    // Does it catch the mouse, or is it only seen?
    virtual bool TakesMouse() const { return true; }

    // For the host: something of the control has changed.
    Event<Prop> Changed;

    // Is it, and all that holds it, visible (enabled)?
    virtual bool IsShown() const;
    virtual bool IsUsable() const;
    // Can it take the focus at all? Boxes, buttons, lists and options can.
    virtual bool TakesFocus() const { return false; }
    bool HasFocus() const;
    // From code or by a person: the control that had the focus is left first.
    // Does nothing when it cannot take the focus, is hidden or disabled.
    void SetFocus();

    // A person's click with the left button in the middle of it: press,
    // release, click. A control that takes the focus gets it first. Does
    // nothing to a control that is hidden or disabled.
    virtual void PersonClick();
    // What a key does by itself, after the filters let it pass.
    virtual void PersonKey(const Key& key);

    // The text of a property by its name, as the console prints it; none when
    // this kind of control has no such property.
    virtual std::optional<std::string> PropertyText(std::string_view property) const;
    // Does Return click this control, and not the form's default button?
    virtual bool TakesReturn() const { return false; }
    // The caption that may mark a letter by `&`; null where there is none.
    virtual const std::string* MnemonicCaption() const { return nullptr; }
    // Alt and that letter.
    virtual void PersonMnemonic() { PersonClick(); }

    // What it shows; null for a control that shows no pictures.
    virtual const PictureRef* ShownPicture() const { return nullptr; }

    // The scale inside it, where it has one of its own, and the twips of one
    // of its units.
    virtual double ScaleWidth() const { return Width; }
    virtual double ScaleHeight() const { return Height; }
    virtual double UnitTwips() const { return 1; }

    // A control that lies in it has changed, or come or gone.
    virtual void ContentChanged() {}

    // Called by the properties when one has changed. Kinds of controls raise
    // their events here, behind the notice to the host.
    virtual void PropertyChanged(Prop what);

protected:
    // The first half of a click: the focus, then press and release. False when
    // a person cannot click it, or cannot any more.
    bool PersonPress();
    // A length in the container's scale as twips.
    double InTwips(double length) const;

private:
    Form& form_;
    std::string name_;
    int index_;
};

template <class T>
void Property<T>::Set(T value)
{
    if (value_ == value)
        return;
    value_ = std::move(value);
    owner_.PropertyChanged(what_);
}

// How properties print: "True" and "False", the 1 and 0 of what is ticked, a
// place or size with a point only where there is a fraction.
std::string Bool_Text(bool value);
inline std::string Tick_Text(bool value)
{
    return value ? "1" : "0";
}
std::string Length_Text(double length);

} // namespace tavo
