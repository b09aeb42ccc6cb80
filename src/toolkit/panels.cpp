#include "toolkit/panels.h"

#include "toolkit/form.h"
#include "toolkit/numbers.h"
#include "toolkit/property_table.h"

#include <algorithm>

namespace tavo {

namespace {

std::string Picture_Text(const PictureRef& picture)
{
    switch (picture.Shown) {
    case PictureRef::Kind::Icon: return std::string("icon ") + picture.Icon;
    case PictureRef::Kind::Bitmap:
        return IntToText(picture.WidthPixels) + "x" + IntToText(picture.HeightPixels);
    default: return "none";
    }
}

constexpr PropertyRow<Label> labelProperties[] = {
    {"Caption", [](const Label& l) { return l.Caption.Get(); }},
    {"Alignment", [](const Label& l) { return IntToText(l.Alignment); }},
};
constexpr PropertyRow<Frame> frameProperties[] = {
    {"Caption", [](const Frame& f) { return f.Caption.Get(); }},
    {"ScaleWidth", [](const Frame& f) { return Length_Text(f.ScaleWidth()); }},
    {"ScaleHeight", [](const Frame& f) { return Length_Text(f.ScaleHeight()); }},
};
constexpr PropertyRow<PictureBox> pictureProperties[] = {
    {"Picture", [](const PictureBox& p) { return Picture_Text(p.Picture); }},
    {"Stretch", [](const PictureBox& p) { return Bool_Text(p.Stretch); }},
    {"ScaleWidth", [](const PictureBox& p) { return Length_Text(p.ScaleWidth()); }},
    {"ScaleHeight", [](const PictureBox& p) { return Length_Text(p.ScaleHeight()); }},
};
constexpr PropertyRow<ImageBox> imageProperties[] = {
    {"MousePointer", [](const ImageBox& i) { return IntToText(i.MousePointer); }},
};
constexpr PropertyRow<PictureButton> pictureButtonProperties[] = {
    {"Picture", [](const PictureButton& b) { return Picture_Text(b.Picture); }},
};
constexpr PropertyRow<Shape> shapeProperties[] = {
    {"BorderColor", [](const Shape& s) { return IntToText(s.BorderColor); }},
    {"BorderWidth", [](const Shape& s) { return IntToText(s.BorderWidth); }},
};
constexpr PropertyRow<ProgressBar> progressProperties[] = {
    {"Min", [](const ProgressBar& p) { return Length_Text(p.Min); }},
    {"Max", [](const ProgressBar& p) { return Length_Text(p.Max); }},
    {"Value", [](const ProgressBar& p) { return Length_Text(p.Value); }},
};
constexpr PropertyRow<Timer> timerProperties[] = {
    {"Interval", [](const Timer& t) { return IntToText(t.Interval); }},
};

// The number in `Panels(2)`; 0 for another text.
int PanelNumber(std::string_view property)
{
    constexpr std::string_view front = "Panels(";
    if (!property.starts_with(front) || !property.ends_with(')'))
        return 0;
    const std::string_view digits = property.substr(front.size(), property.size() - 8);
    const bool all =
        std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
    return all && digits.size() < 6 ? static_cast<int>(Val(digits)) : 0;
}

} // namespace

PictureRef PictureRef::OfIcon(char letter, int pixels)
{
    return {Kind::Icon, letter, pixels, pixels, nullptr};
}

PictureRef PictureRef::OfBitmap(BitmapPtr bitmap)
{
    if (!bitmap)
        return {};
    const int width = bitmap->Width(), height = bitmap->Height();
    return {Kind::Bitmap, 0, width, height, std::move(bitmap)};
}

void Label::PersonMnemonic()
{
    Owner().EnterBehind(*this);
}

std::optional<std::string> Label::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(labelProperties, *this, property);
    return text ? text : Control::PropertyText(property);
}

std::optional<std::string> Frame::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(frameProperties, *this, property);
    return text ? text : Control::PropertyText(property);
}

double PictureBox::ScaleWidth() const
{
    return std::max(0.0, InTwips(Width) - 2 * BorderTwips) / UnitTwips();
}

double PictureBox::ScaleHeight() const
{
    return std::max(0.0, InTwips(Height) - 2 * BorderTwips) / UnitTwips();
}

std::optional<std::string> PictureBox::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(pictureProperties, *this, property);
    return text ? text : Control::PropertyText(property);
}

void ImageBox::PropertyChanged(Prop what)
{
    const PictureRef& picture = Picture;
    const bool follows = what == Prop::Picture || what == Prop::Style;
    if (follows && !Stretch && picture.Shown != PictureRef::Kind::None) {
        const double unit = Container ? Container->UnitTwips() : 1;
        Width = picture.WidthPixels * TwipsPerPixel / unit;
        Height = picture.HeightPixels * TwipsPerPixel / unit;
    }
    PictureBox::PropertyChanged(what);
}

std::optional<std::string> ImageBox::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(imageProperties, *this, property);
    return text ? text : PictureBox::PropertyText(property);
}

std::optional<std::string> PictureButton::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(pictureButtonProperties, *this, property);
    return text ? text : CommandButton::PropertyText(property);
}

std::optional<std::string> Shape::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(shapeProperties, *this, property);
    return text ? text : Control::PropertyText(property);
}

void ProgressBar::PropertyChanged(Prop what)
{
    const double held = std::max(Min.Get(), std::min(Max.Get(), Value.Get()));
    const bool moved = what == Prop::Range && held != Value;
    Value.SetQuietly(held);
    Control::PropertyChanged(what);
    if (moved)
        Control::PropertyChanged(Prop::Value);
}

std::optional<std::string> ProgressBar::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(progressProperties, *this, property);
    return text ? text : Control::PropertyText(property);
}

StatusBar::StatusBar(Form& form, std::string name, int panels)
    : Control(form, std::move(name)), panels_(static_cast<size_t>(std::max(0, panels)))
{
}

const std::string& StatusBar::Panel(int number) const
{
    static const std::string none;
    const bool known = number >= 1 && number <= PanelCount();
    return known ? panels_[static_cast<size_t>(number - 1)] : none;
}

void StatusBar::SetPanel(int number, const std::string& text)
{
    if (number < 1 || number > PanelCount() || Panel(number) == text)
        return;
    panels_[static_cast<size_t>(number - 1)] = text;
    PanelChanged(number);
}

std::optional<std::string> StatusBar::PropertyText(std::string_view property) const
{
    const int number = PanelNumber(property);
    if (number >= 1 && number <= PanelCount())
        return Panel(number);
    return Control::PropertyText(property);
}

Timer::Timer(Form& form, std::string name, int index) : Control(form, std::move(name), index)
{
    Enabled.SetQuietly(false);
}

std::optional<std::string> Timer::PropertyText(std::string_view property) const
{
    const auto text = PropertyTable_Text(timerProperties, *this, property);
    return text ? text : Control::PropertyText(property);
}

} // namespace tavo
