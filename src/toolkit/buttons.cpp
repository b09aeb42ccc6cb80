#include "toolkit/buttons.h"

#include "toolkit/form.h"
#include "toolkit/numbers.h"
#include "toolkit/property_table.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr PropertyRow<CommandButton> commandProperties[] = {
    {"Caption", [](const CommandButton& b) { return b.Caption.Get(); }},
};
constexpr PropertyRow<CheckBox> checkProperties[] = {
    {"Caption", [](const CheckBox& b) { return b.Caption.Get(); }},
    {"Value", [](const CheckBox& b) { return IntToText(b.Value); }},
};
constexpr PropertyRow<OptionButton> optionProperties[] = {
    {"Caption", [](const OptionButton& b) { return b.Caption.Get(); }},
    {"Value", [](const OptionButton& b) { return Tick_Text(b.Value); }},
};

bool IsPlain(const Key& key, int code)
{
    return key.Code == code && (key.Shift & (shiftCtrl | shiftAlt)) == 0;
}

} // namespace

void CommandButton::PersonKey(const Key& key)
{
    if (IsPlain(key, keyReturn) || IsPlain(key, keySpace))
        PersonClick();
}

std::optional<std::string> CommandButton::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(commandProperties, *this, property);
    return text ? text : Control::PropertyText(property);
}

void CheckBox::PersonClick()
{
    if (PersonPress())
        Value = Value == 1 ? 0 : 1;
}

void CheckBox::PersonKey(const Key& key)
{
    if (IsPlain(key, keySpace))
        PersonClick();
}

void CheckBox::PropertyChanged(Prop what)
{
    Control::PropertyChanged(what);
    if (what == Prop::Value)
        Click();
}

std::optional<std::string> CheckBox::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(checkProperties, *this, property);
    return text ? text : Control::PropertyText(property);
}

void OptionButton::PersonClick()
{
    if (PersonPress())
        Value = true;
}

bool OptionButton::IsOfGroup(const Control& other) const
{
    if (other.Container != Container)
        return false;
    return Index() < 0 ? other.Index() < 0 : other.Index() >= 0 && other.Name() == Name();
}

std::vector<OptionButton*> OptionButton::Group() const
{
    std::vector<OptionButton*> group;
    for (Control* control : Owner().Controls()) {
        auto* option = dynamic_cast<OptionButton*>(control);
        if (option && IsOfGroup(*option))
            group.push_back(option);
    }
    return group;
}

void OptionButton::PersonKey(const Key& key)
{
    if (IsPlain(key, keySpace))
        return PersonClick();
    const bool back = IsPlain(key, keyLeft) || IsPlain(key, keyUp);
    if (!back && !IsPlain(key, keyRight) && !IsPlain(key, keyDown))
        return;
    auto group = Group();
    std::erase_if(group, [this](const OptionButton* option) {
        return option != this && (!option->IsShown() || !option->IsUsable());
    });
    const size_t count = group.size();
    const auto self = std::find(group.begin(), group.end(), this);
    const size_t at = static_cast<size_t>(self - group.begin());
    OptionButton* next = group[(at + (back ? count - 1 : 1)) % count];
    if (next != this)
        next->PersonClick();
}

void OptionButton::PropertyChanged(Prop what)
{
    const bool chosen = what == Prop::Value && Value;
    if (chosen)
        for (OptionButton* other : Group())
            if (other != this)
                other->Value = false;
    Control::PropertyChanged(what);
    if (chosen)
        Click();
}

std::optional<std::string> OptionButton::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(optionProperties, *this, property);
    return text ? text : Control::PropertyText(property);
}

} // namespace tavo
