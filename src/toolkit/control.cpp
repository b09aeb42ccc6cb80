#include "toolkit/control.h"

#include "toolkit/form.h"
#include "toolkit/numbers.h"
#include "toolkit/property_table.h"

namespace tavo {

namespace {

constexpr PropertyRow<Control> properties[] = {
    {"Name", [](const Control& c) { return c.Name(); }},
    {"Enabled", [](const Control& c) { return Bool_Text(c.Enabled); }},
    {"Visible", [](const Control& c) { return Bool_Text(c.Visible); }},
    {"Left", [](const Control& c) { return Length_Text(c.Left); }},
    {"Top", [](const Control& c) { return Length_Text(c.Top); }},
    {"Width", [](const Control& c) { return Length_Text(c.Width); }},
    {"Height", [](const Control& c) { return Length_Text(c.Height); }},
    {"ToolTipText", [](const Control& c) { return c.ToolTipText.Get(); }},
    {"Tag", [](const Control& c) { return c.Tag.Get(); }},
    {"BackColor", [](const Control& c) { return IntToText(c.BackColor); }},
    {"ForeColor", [](const Control& c) { return IntToText(c.ForeColor); }},
    {"DragIcon", [](const Control& c) { return IntToText(c.DragIcon); }},
};

} // namespace

Control::Control(Form& form, std::string name, int index)
    : form_(form), name_(std::move(name)), index_(index)
{
    form_.Add(this);
}

Control::~Control()
{
    form_.Remove(this);
    if (Container)
        Container->ContentChanged();
}

std::string Control::FullName() const
{
    return index_ < 0 ? name_ : name_ + "(" + IntToText(index_) + ")";
}

void Control::Move(double left, double top, double width, double height)
{
    Left = left;
    Top = top;
    Width = width;
    Height = height;
}

bool Control::IsShown() const
{
    return Visible && (!Container || Container->IsShown());
}

bool Control::IsUsable() const
{
    return Enabled && (!Container || Container->IsUsable());
}

bool Control::HasFocus() const
{
    return form_.ActiveControl() == this;
}

void Control::SetFocus()
{
    form_.Enter(*this);
}

void Control::PersonClick()
{
    if (PersonPress())
        Click();
}

bool Control::PersonPress()
{
    SetFocus();
    // To leave the other control may have taken this one out of reach.
    if (!IsShown() || !IsUsable())
        return false;
    if (DragsItself)
        return false;
    const Mouse middle{1, shiftNone, ScaleWidth() / 2, ScaleHeight() / 2};
    MouseDown(middle);
    MouseUp(middle);
    return true;
}

void Control::PersonKey(const Key&) {}

std::optional<std::string> Control::PropertyText(std::string_view property) const
{
    return PropertyTable_Text(properties, *this, property);
}

void Control::PropertyChanged(Prop what)
{
    Changed(what);
    if (Container)
        Container->ContentChanged();
}

void Control::Drag()
{
    form_.BeginDrag(*this);
}

double Control::InTwips(double length) const
{
    return Container ? length * Container->UnitTwips() : length;
}

std::string Bool_Text(bool value)
{
    return BoolToText(value);
}

std::string Length_Text(double length)
{
    return SingleToText(static_cast<float>(length));
}

} // namespace tavo
