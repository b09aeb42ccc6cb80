#include "toolkit/list_box.h"

#include "toolkit/numbers.h"
#include "toolkit/property_table.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr PropertyRow<ListBox> properties[] = {
    {"Text", [](const ListBox& l) { return l.Text(); }},
    {"ListIndex", [](const ListBox& l) { return IntToText(l.ListIndex()); }},
    {"ListCount", [](const ListBox& l) { return IntToText(l.ListCount()); }},
};

} // namespace

void ListBox::Clear()
{
    items_.clear();
    listIndex_ = -1;
    Changed(Prop::Items);
}

void ListBox::AddItem(const std::string& text)
{
    items_.push_back(text);
    Changed(Prop::Items);
}

bool ListBox::RemoveItem(int index)
{
    if (index < 0 || index >= ListCount())
        return false;
    items_.erase(items_.begin() + index);
    if (listIndex_ == index)
        listIndex_ = -1;
    else if (listIndex_ > index)
        --listIndex_;
    Changed(Prop::Items);
    return true;
}

bool ListBox::SetListIndex(int index)
{
    if (index < -1 || index >= ListCount())
        return false;
    if (index == listIndex_)
        return true;
    listIndex_ = index;
    Changed(Prop::ListIndex);
    if (index >= 0)
        Click();
    return true;
}

std::string ListBox::Text() const
{
    return listIndex_ < 0 ? std::string() : items_[static_cast<std::size_t>(listIndex_)];
}

bool ListBox::PersonChoose(int index)
{
    if (index < 0 || index >= ListCount() || !IsShown() || !IsUsable())
        return false;
    SetFocus();
    if (index == listIndex_)
        Click();
    else
        SetListIndex(index);
    return true;
}

void ListBox::PersonKey(const Key& key)
{
    const int last = ListCount() - 1;
    if (key.Shift != shiftNone || last < 0)
        return;
    switch (key.Code) {
    case keyUp: PersonChoose(std::max(0, listIndex_ - 1)); return;
    case keyDown: PersonChoose(std::min(last, listIndex_ + 1)); return;
    case keyHome: PersonChoose(0); return;
    case keyEnd: PersonChoose(last); return;
    default: return;
    }
}

std::optional<std::string> ListBox::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(properties, *this, property);
    return text ? text : Control::PropertyText(property);
}

} // namespace tavo
