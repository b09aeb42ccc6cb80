#pragma once

#include "toolkit/control.h"

#include <optional>
#include <string>
#include <vector>

namespace tavo {

class ToolBars;

enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

// A window without a screen: its controls, its focus, its keys. Sizes and
// places are in twips.
class Form {
public:
    explicit Form(std::string name);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& Name() const { return name_; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);

    // The outer place and size; a maximised window keeps its normal ones here.
    double Left() const { return left_; }
    double Top() const { return top_; }
    double Width() const { return width_; }
    double Height() const { return height_; }
    // From code. Raises Resize when the size changes.
    void Move(double left, double top, double width, double height);
    // What frame, menu and bars take off the outer size, told by the host. A
    // new inner size raises Resize.
    void SetFrame(double width, double height);
    double FrameWidth() const { return frameWidth_; }
    double FrameHeight() const { return frameHeight_; }
    // The inner size, that the controls share out. Of a maximised window it
    // is the one that the host tells.
    double ScaleWidth() const;
    double ScaleHeight() const;
    void SetMaximisedSize(double width, double height);

    WindowState State() const { return state_; }
    void SetState(WindowState state);

    bool Visible() const { return visible_; }
    void SetVisible(bool visible); // called by the host's Show and at the end
    bool Loaded() const { return loaded_; }
    // Marks the form as living; raises Load the first time.
    void EnsureLoaded();
    // Asks QueryUnload, then raises Unload, and the form is gone. A handler of
    // QueryUnload sets its argument to true to keep the form.
    void Unload();

    // The person closed it by its frame.
    void PersonClose() { Unload(); }
    // While it is maximised this is the size that it has so; the normal one
    // stays.
    void PersonResize(double width, double height);
    void PersonMove(double left, double top);
    void PersonState(WindowState state);
    // The window came to the front, or another one did.
    void PersonActivate(bool active);
    // A key of the person for `target` (null: the form alone). Goes to the
    // form's KeyDown, to the control's KeyDown, to a tool's shortcut, through
    // the KeyPress filter, and then does what the key does. Return presses the
    // default button and Escape the cancel button of a form that has one.
    void PersonKey(Control* target, Key key);
    // The first three steps of PersonKey, for a host whose own widgets edit.
    // False when the key is used up; what then remains to be done by the
    // control itself is the host's.
    bool FilterKey(Control* target, Key& key);
    // What a key does in the form as a whole: Tab, Return, Escape, Alt and a
    // marked letter. False when it is none of these here.
    bool DialogKey(Control* target, const Key& key);

    Event<> Load, Resize, Activate, Deactivate, Unloaded;
    Event<bool&> QueryUnload;
    Event<Key&> KeyDown;
    Event<Prop> Changed; // for the host

    // Focus. Entering runs LostFocus of the old and GotFocus of the new; to
    // enter the control that has the focus is no entering.
    Control* ActiveControl() const { return active_; }
    void Enter(Control& control);
    // The next control behind the active one in the order of their making that
    // can take the focus (Tab), or before it.
    void EnterNext(bool backwards);
    // The same, counted from this control.
    void EnterBehind(const Control& control);

    // By name, exactly. Of an edit or combo tool it is the tool, not its box.
    Control* Find(std::string_view name, int index = -1) const;
    // How far an array goes: its lowest and highest index; false if there is
    // no array of that name.
    bool ArrayBounds(std::string_view name, int& low, int& high) const;
    const std::vector<Control*>& Controls() const { return controls_; }

    // A drag of one control over others (see Control::DragOver). The host tells
    // what is under the pointer; a control hidden or disabled is nothing.
    void BeginDrag(Control& source);
    Control* DragSource() const { return dragSource_; }
    Control* DragTarget() const { return dragTarget_; }
    // X and Y in the target's own scale. Null is no control at all.
    void PersonDragOver(Control* target, double x, double y);
    // Let go where it was last.
    void PersonDragDrop();
    // Given up: what it was over is left.
    void PersonDragCancel();
    Event<> DragChanged; // for the host: a drag has begun or ended

    // The control in sight at a place in `container`'s own scale, the one made
    // last on top; the container where there is none. `x` and `y` become the
    // place in the control's own scale.
    Control& ControlAt(Control& container, double& x, double& y) const;

    // The tool bars of this form, where it has some.
    ToolBars* Bars = nullptr;
    Control* DefaultButton = nullptr;
    Control* CancelButton = nullptr;

    // Painting waits while the count of freezes is above 0; see FreezeGuard.
    // Notices still go out; the host hears Prop::State when the first freeze
    // begins and when the last one ends.
    void Freeze(bool on);
    bool Frozen() const { return frozen_ > 0; }
    // Everything is to be painted now; the host hears Prop::State.
    void Refresh();

    // The text of a property by its name, as Control's; `WindowState` is its
    // number.
    std::optional<std::string> PropertyText(std::string_view property) const;

private:
    friend class Control;
    // What the program has laid its controls out for.
    struct Layout {
        WindowState State = WindowState::Normal;
        double Width = 0, Height = 0;
        friend bool operator==(const Layout&, const Layout&) = default;
    };

    void Add(Control* control);
    void Remove(Control* control);
    bool Holds(const Control* control) const;
    bool CanEnter(const Control& control) const;
    void EnterFrom(const Control* from, bool backwards);
    bool PressButton(Control* button);
    bool PressMnemonic(const Key& key);
    Layout InnerSize() const;
    void FollowSize();

    std::string name_, caption_;
    double left_ = 0, top_ = 0, width_ = 0, height_ = 0;
    double frameWidth_ = 0, frameHeight_ = 0;
    double maximisedWidth_ = 0, maximisedHeight_ = 0;
    WindowState state_ = WindowState::Normal;
    Layout shown_;
    bool visible_ = false, loaded_ = false, unloading_ = false, isActive_ = false;
    int frozen_ = 0;
    Control* active_ = nullptr;
    Control *dragSource_ = nullptr, *dragTarget_ = nullptr;
    Control::Mouse dragAt_;
    std::vector<Control*> controls_;
};

// Holds a form's painting for as long as it lives.
class FreezeGuard {
public:
    explicit FreezeGuard(Form& form) : form_(form) { form_.Freeze(true); }
    ~FreezeGuard() { form_.Freeze(false); }
    FreezeGuard(const FreezeGuard&) = delete;
    FreezeGuard& operator=(const FreezeGuard&) = delete;

private:
    Form& form_;
};

} // namespace tavo
