#include "toolkit/tab_strip.h"

#include "toolkit/caption.h"
#include "toolkit/numbers.h"
#include "toolkit/property_table.h"

namespace tavo {

namespace {

constexpr PropertyRow<TabStrip> properties[] = {
    {"Selected", [](const TabStrip& t) { return t.SelectedKey(); }},
    {"Count", [](const TabStrip& t) { return IntToText(static_cast<int>(t.Pages().size())); }},
};

} // namespace

void TabStrip::AddPage(const std::string& key, const std::string& caption, Frame& panel)
{
    pages_.push_back({key, caption, &panel});
    Changed(Prop::Items);
    if (selected_ < 0)
        Show(0);
}

const std::string& TabStrip::SelectedKey() const
{
    static const std::string none;
    return selected_ < 0 ? none : pages_[static_cast<std::size_t>(selected_)].Key;
}

bool TabStrip::Show(int page)
{
    if (page < 0 || page >= static_cast<int>(pages_.size()))
        return false;
    if (page != selected_) {
        selected_ = page;
        Changed(Prop::ListIndex);
    }
    return true;
}

int TabStrip::PageByKey(std::string_view key) const
{
    for (std::size_t page = 0; page < pages_.size(); ++page)
        if (pages_[page].Key == key)
            return static_cast<int>(page);
    return -1;
}

int TabStrip::PageOf(const Control& control) const
{
    for (const Control* holder = &control; holder; holder = holder->Container)
        for (std::size_t page = 0; page < pages_.size(); ++page)
            if (pages_[page].Panel == holder)
                return static_cast<int>(page);
    return -1;
}

bool TabStrip::PersonTab(int page)
{
    if (page < 0 || page >= static_cast<int>(pages_.size()) || !IsShown() || !IsUsable())
        return false;
    SetFocus();
    if (page == selected_)
        return true;
    Leaving();
    if (Show(page))
        TabClick();
    return true;
}

bool TabStrip::PersonLetter(char32_t letter)
{
    for (std::size_t page = 0; page < pages_.size(); ++page)
        if (Caption_Mnemonic(pages_[page].Caption) == letter)
            return PersonTab(static_cast<int>(page));
    return false;
}

void TabStrip::PersonKey(const Key& key)
{
    const int last = static_cast<int>(pages_.size()) - 1;
    if (key.Shift != shiftNone)
        return;
    switch (key.Code) {
    case keyLeft: PersonTab(selected_ - 1); return;
    case keyRight: PersonTab(selected_ + 1); return;
    case keyHome: PersonTab(0); return;
    case keyEnd: PersonTab(last); return;
    default: return;
    }
}

std::optional<std::string> TabStrip::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(properties, *this, property);
    return text ? text : Control::PropertyText(property);
}

} // namespace tavo
