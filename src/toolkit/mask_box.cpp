#include "toolkit/mask_box.h"

#include "toolkit/property_table.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr std::string_view placeSigns = "#?";

constexpr PropertyRow<MaskBox> properties[] = {
    {"Mask", [](const MaskBox& b) { return b.Mask(); }},
    {"PromptChar", [](const MaskBox&) { return std::string(1, MaskBox::Prompt); }},
};

bool IsDigit(char sign)
{
    return sign >= '0' && sign <= '9';
}

bool IsLetter(char sign)
{
    return (sign >= 'A' && sign <= 'Z') || (sign >= 'a' && sign <= 'z');
}

} // namespace

void MaskBox::SetMask(const std::string& mask)
{
    mask_ = mask;
    Text = Fitted("");
    Changed(Prop::State);
}

bool MaskBox::IsPlace(std::size_t at) const
{
    return at < mask_.size() && placeSigns.find(mask_[at]) != std::string_view::npos;
}

bool MaskBox::Fits(std::size_t at, char sign) const
{
    return IsPlace(at) && (mask_[at] == '#' ? IsDigit(sign) : IsLetter(sign));
}

std::size_t MaskBox::PlaceFrom(std::size_t at) const
{
    const std::size_t place = mask_.find_first_of(placeSigns, at);
    return place == std::string::npos ? at : place;
}

bool MaskBox::Take(std::string& whole, std::size_t& at, char sign) const
{
    const std::size_t fixed = mask_.find_first_not_of(placeSigns, at);
    if (fixed != std::string::npos && mask_[fixed] == sign) {
        at = fixed + 1;
        return true;
    }
    const std::size_t place = PlaceFrom(at);
    if (!Fits(place, sign) && !(IsPlace(place) && sign == Prompt))
        return false;
    whole[place] = sign;
    at = place + 1;
    return true;
}

bool MaskBox::Spread(std::string& whole, std::size_t& at, std::string_view text) const
{
    bool any = false;
    for (const char sign : text)
        any = Take(whole, at, sign) || any;
    return any;
}

std::string MaskBox::Emptied(std::string whole, std::size_t from, std::size_t count) const
{
    for (std::size_t at = from; at < std::min(from + count, whole.size()); ++at)
        whole[at] = IsPlace(at) ? Prompt : mask_[at];
    return whole;
}

std::string MaskBox::Fitted(std::string_view text) const
{
    if (mask_.empty())
        return std::string(text);
    std::string whole = Emptied(mask_, 0, mask_.size());
    std::size_t at = 0;
    Spread(whole, at, text);
    return whole;
}

void MaskBox::PersonText(const std::string& text)
{
    TextBox::PersonText(Fitted(text));
}

// The text has the mask's length and signs of one byte at all times, so that
// places and bytes are the same count.
void MaskBox::Insert(const std::string& text, Edit edit)
{
    if (mask_.empty())
        return TextBox::Insert(text, edit);
    if (!IsEditable())
        return;
    auto at = static_cast<std::size_t>(SelStart());
    std::string whole = Emptied(Text, at, static_cast<std::size_t>(SelLength()));
    if (!text.empty() && !Spread(whole, at, text))
        return;
    if (!text.empty())
        at = PlaceFrom(at);
    Put(whole, {static_cast<int>(at), 0}, edit);
}

void MaskBox::Erase(bool forward)
{
    if (mask_.empty() || SelLength() > 0)
        return TextBox::Erase(forward);
    const auto caret = static_cast<std::size_t>(SelStart());
    const std::size_t place = forward      ? PlaceFrom(caret)
                              : caret == 0 ? std::string::npos
                                           : mask_.find_last_of(placeSigns, caret - 1);
    if (!IsEditable() || place == std::string::npos || !IsPlace(place))
        return;
    Put(Emptied(Text, place, 1), {static_cast<int>(forward ? caret : place), 0}, Edit::Erasing);
}

// Whoever sets the text, it never leaves the pattern.
void MaskBox::PropertyChanged(Prop what)
{
    if (what == Prop::Text)
        Text.SetQuietly(Fitted(Text));
    TextBox::PropertyChanged(what);
}

std::optional<std::string> MaskBox::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(properties, *this, property);
    return text ? text : TextBox::PropertyText(property);
}

} // namespace tavo
