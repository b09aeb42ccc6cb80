#include "toolkit/combo_box.h"

#include "toolkit/numbers.h"
#include "toolkit/property_table.h"
#include "toolkit/text.h"
#include "toolkit/unicode_case.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr PropertyRow<ComboBox> properties[] = {
    {"ListIndex", [](const ComboBox& b) { return IntToText(b.ListIndex()); }},
    {"ListCount", [](const ComboBox& b) { return IntToText(b.ListCount()); }},
};

} // namespace

ComboBox::ComboBox(Form& form, std::string name, int index, ComboKind kind)
    : TextBox(form, std::move(name), index), style_(kind)
{
}

void ComboBox::Clear()
{
    if (items_.empty() && listIndex_ < 0 && Text.Get().empty())
        return;
    items_.clear();
    Changed(Prop::Items);
    TakeRow(-1);
}

void ComboBox::AddItem(const std::string& text)
{
    items_.push_back(text);
    Changed(Prop::Items);
}

bool ComboBox::SetListIndex(int index)
{
    if (index < -1 || index >= ListCount())
        return false;
    if (index == listIndex_)
        return true;
    TakeRow(index);
    if (index >= 0)
        Click();
    return true;
}

bool ComboBox::PersonChoose(int index)
{
    if (index < 0 || index >= ListCount())
        return false;
    TakeRow(index);
    Click();
    return true;
}

void ComboBox::TakeRow(int index)
{
    const bool other = index != listIndex_;
    listIndex_ = index;
    PutText(index < 0 ? std::string() : items_[static_cast<size_t>(index)]);
    if (other)
        Changed(Prop::ListIndex);
}

void ComboBox::PutText(const std::string& text)
{
    taking_ = true;
    Text = text;
    taking_ = false;
}

int ComboBox::RowOf(std::string_view text) const
{
    const auto found = std::find(items_.begin(), items_.end(), text);
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ComboBox::PersonText(const std::string& text)
{
    if (!IsEditable())
        return;
    // Pasted text is no choice, not even when it is that of the row in hand.
    if (listIndex_ >= 0) {
        listIndex_ = -1;
        Changed(Prop::ListIndex);
    }
    TextBox::PersonText(text);
}

void ComboBox::PropertyChanged(Prop what)
{
    if (what != Prop::Text)
        return TextBox::PropertyChanged(what);
    if (taking_) {
        taking_ = false;
        SettleSelection();
        return Control::PropertyChanged(
            what); // NOLINT(bugprone-parent-virtual-call): no Change here
    }
    const int row = IsEditable() ? -1 : RowOf(Text);
    if (!IsEditable()) {
        // SetListIndex brings the text of the row that is, or was, chosen.
        const int before = listIndex_;
        Text.SetQuietly(before < 0 ? "" : items_[static_cast<size_t>(before)]);
        if (row >= 0)
            SetListIndex(row);
        return;
    }
    const bool chosen = listIndex_ >= 0;
    listIndex_ = row;
    if (chosen)
        Changed(Prop::ListIndex);
    TextBox::PropertyChanged(what);
}

// The first row behind the chosen one, round the end, that begins with it.
int ComboBox::NextRowBy(char32_t letter) const
{
    const int count = ListCount();
    for (int step = 1; step <= count; ++step) {
        const int row = (std::max(listIndex_, -1) + step) % count;
        const std::string& text = items_[static_cast<size_t>(row)];
        if (!text.empty() && SimpleFold(Asc(text)) == SimpleFold(letter))
            return row;
    }
    return -1;
}

// -1 when the key goes to no other row.
int ComboBox::RowBeside(const Key& key) const
{
    const bool list = style_ == ComboKind::List;
    switch (key.Code) {
    case keyUp: return listIndex_ - 1;
    case keyDown: return listIndex_ + 1;
    case keyHome: return list ? 0 : -1;
    case keyEnd: return list ? ListCount() - 1 : -1;
    default: return list && Key_Types(key) && key.Char >= ' ' ? NextRowBy(key.Char) : -1;
    }
}

void ComboBox::PersonKey(const Key& key)
{
    const bool plain = (key.Shift & (shiftCtrl | shiftAlt)) == 0;
    const int row = plain ? RowBeside(key) : -1;
    if (row >= 0 && row != listIndex_)
        PersonChoose(row);
    else if (IsEditable())
        TextBox::PersonKey(key);
}

std::optional<std::string> ComboBox::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(properties, *this, property);
    return text ? text : TextBox::PropertyText(property);
}

} // namespace tavo
