#include "toolkit/form.h"

#include "toolkit/numbers.h"
#include "toolkit/property_table.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr PropertyRow<Form> properties[] = {
    {"Name", [](const Form& f) { return f.Name(); }},
    {"Caption", [](const Form& f) { return f.Caption(); }},
    {"Visible", [](const Form& f) { return Bool_Text(f.Visible()); }},
    {"Left", [](const Form& f) { return Length_Text(f.Left()); }},
    {"Top", [](const Form& f) { return Length_Text(f.Top()); }},
    {"Width", [](const Form& f) { return Length_Text(f.Width()); }},
    {"Height", [](const Form& f) { return Length_Text(f.Height()); }},
    {"ScaleWidth", [](const Form& f) { return Length_Text(f.ScaleWidth()); }},
    {"ScaleHeight", [](const Form& f) { return Length_Text(f.ScaleHeight()); }},
    {"WindowState", [](const Form& f) { return IntToText(static_cast<int>(f.State())); }},
};

} // namespace

Form::Form(std::string name) : name_(std::move(name)) {}

Form::~Form() = default;

void Form::SetCaption(const std::string& caption)
{
    if (caption == caption_)
        return;
    caption_ = caption;
    Changed(Prop::Caption);
}

void Form::Move(double left, double top, double width, double height)
{
    if (left == left_ && top == top_ && width == width_ && height == height_)
        return;
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    Changed(Prop::Geometry);
    FollowSize();
}

void Form::SetFrame(double width, double height)
{
    frameWidth_ = width;
    frameHeight_ = height;
    FollowSize();
}

void Form::SetMaximisedSize(double width, double height)
{
    maximisedWidth_ = width;
    maximisedHeight_ = height;
    FollowSize();
}

double Form::ScaleWidth() const
{
    return std::max(0.0, InnerSize().Width);
}

double Form::ScaleHeight() const
{
    return std::max(0.0, InnerSize().Height);
}

// Until the host has told the maximised size, the normal one must do.
Form::Layout Form::InnerSize() const
{
    const WindowState look = state_ == WindowState::Minimised ? shown_.State : state_;
    const bool big = look == WindowState::Maximised && maximisedWidth_ > 0;
    const double width = big ? maximisedWidth_ : width_;
    const double height = big ? maximisedHeight_ : height_;
    return {look, width - frameWidth_, height - frameHeight_};
}

// A minimised window has no size of its own: it raises nothing when it becomes
// so, and nothing when it comes back as it was.
void Form::FollowSize()
{
    const Layout now = InnerSize();
    if (state_ == WindowState::Minimised || now == shown_)
        return;
    shown_ = now;
    if (loaded_)
        Resize();
}

void Form::SetState(WindowState state)
{
    if (state == state_)
        return;
    state_ = state;
    Changed(Prop::State);
    FollowSize();
}

void Form::SetVisible(bool visible)
{
    if (visible == visible_)
        return;
    visible_ = visible;
    Changed(Prop::Visible);
}

void Form::EnsureLoaded()
{
    if (loaded_)
        return;
    loaded_ = true;
    Load();
}

void Form::Unload()
{
    if (!loaded_ || unloading_)
        return;
    unloading_ = true;
    bool keep = false;
    QueryUnload(keep);
    if (!keep) {
        SetVisible(false);
        Unloaded();
        loaded_ = false;
        isActive_ = false;
        active_ = nullptr;
    }
    unloading_ = false;
}

void Form::PersonResize(double width, double height)
{
    if (state_ == WindowState::Maximised)
        SetMaximisedSize(width, height);
    else
        Move(left_, top_, width, height);
}

void Form::PersonMove(double left, double top)
{
    if (state_ != WindowState::Maximised)
        Move(left, top, width_, height_);
}

void Form::PersonState(WindowState state)
{
    SetState(state);
}

void Form::PersonActivate(bool active)
{
    if (active == isActive_)
        return;
    isActive_ = active;
    if (active)
        Activate();
    else
        Deactivate();
}

Control* Form::Find(std::string_view name, int index) const
{
    for (Control* control : controls_)
        if (control->Index() == index && control->Name() == name)
            return control;
    return nullptr;
}

bool Form::ArrayBounds(std::string_view name, int& low, int& high) const
{
    bool found = false;
    for (const Control* control : controls_) {
        const int index = control->Index();
        if (index < 0 || control->Name() != name)
            continue;
        low = found ? std::min(low, index) : index;
        high = found ? std::max(high, index) : index;
        found = true;
    }
    return found;
}

void Form::Freeze(bool on)
{
    const bool before = Frozen();
    frozen_ = std::max(0, frozen_ + (on ? 1 : -1));
    if (before != Frozen())
        Changed(Prop::State);
}

void Form::Refresh()
{
    Changed(Prop::State);
}

std::optional<std::string> Form::PropertyText(std::string_view property) const
{
    return PropertyTable_Text(properties, *this, property);
}

void Form::Add(Control* control)
{
    controls_.push_back(control);
}

void Form::Remove(Control* control)
{
    std::erase(controls_, control);
    for (Control* other : controls_)
        if (other->Container == control)
            other->Container = nullptr;
    for (Control** held : {&active_, &DefaultButton, &CancelButton, &dragSource_, &dragTarget_})
        if (*held == control)
            *held = nullptr;
}

bool Form::Holds(const Control* control) const
{
    return std::find(controls_.begin(), controls_.end(), control) != controls_.end();
}

} // namespace tavo
