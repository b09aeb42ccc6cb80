#pragma once

#include "toolkit/bitmap.h"
#include "toolkit/buttons.h"
#include "toolkit/control.h"

#include <vector>

namespace tavo {

// A line of text, or a thin bar to drag. Alignment: 0 left, 1 right, 2 centre.
class Label : public Control {
public:
    using Control::Control;
    Property<std::string> Caption{*this, Prop::Caption};
    Property<int> Alignment{*this, Prop::Style};
    // Paint now, not at the next frame.
    void Refresh() { Changed(Prop::Caption); }
    const std::string* MnemonicCaption() const override { return &Caption.Get(); }
    // Goes to the control behind it, which it is the label of.
    void PersonMnemonic() override;
    std::optional<std::string> PropertyText(std::string_view property) const override;
};

// What holds other controls. With a caption it shows a border round them.
class Frame : public Control {
public:
    using Control::Control;
    Property<std::string> Caption{*this, Prop::Caption};
    double ScaleWidth() const override { return InTwips(Width); }
    double ScaleHeight() const override { return InTwips(Height); }
    std::optional<std::string> PropertyText(std::string_view property) const override;
};

// A line that parts two groups; nothing happens to it.
class Line : public Control {
public:
    using Control::Control;
    bool TakesMouse() const override { return false; }
};

// Class icons beside a row, and in place of a picture.
inline constexpr int smallIconPixels = 16, largeIconPixels = 32;

// What a picture control shows: nothing, one of the class icons by its letter,
// or a picture.
struct PictureRef {
    enum class Kind { None, Icon, Bitmap } Shown = Kind::None;
    char Icon = 0;
    int WidthPixels = 0, HeightPixels = 0;
    BitmapPtr Dots;
    friend bool operator==(const PictureRef&, const PictureRef&) = default;

    static PictureRef OfIcon(char letter, int pixels);
    // Nothing for null.
    static PictureRef OfBitmap(BitmapPtr bitmap);
};

// A picture; as a box it can hold other controls, in twips or in pixels.
class PictureBox : public Control {
public:
    using Control::Control;
    Property<PictureRef> Picture{*this, Prop::Picture};
    Property<bool> Stretch{*this, Prop::Style};
    bool PixelScale = false;
    double TwipsPerPixel = 15;
    // Its border takes this off each side, in twips.
    double BorderTwips = 0;

    // For the host: a control that lies in it has changed, or come or gone.
    Event<> InsideChanged;

    double ScaleWidth() const override;
    double ScaleHeight() const override;
    double UnitTwips() const override { return PixelScale ? TwipsPerPixel : 1; }
    void ContentChanged() override { InsideChanged(); }
    const PictureRef* ShownPicture() const override { return &Picture.Get(); }
    std::optional<std::string> PropertyText(std::string_view property) const override;
};

// A picture without a surface of its own: while it is not stretched it takes the
// size of what it shows, and keeps it when that goes.
class ImageBox : public PictureBox {
public:
    using PictureBox::PictureBox;
    // The pointer over it, by the number of its shape; 0 is the default.
    Property<int> MousePointer{*this, Prop::Style};
    void PropertyChanged(Prop what) override;
    std::optional<std::string> PropertyText(std::string_view property) const override;
};

// A button with a picture on its face.
class PictureButton : public CommandButton {
public:
    using CommandButton::CommandButton;
    Property<PictureRef> Picture{*this, Prop::Picture};
    const PictureRef* ShownPicture() const override { return &Picture.Get(); }
    std::optional<std::string> PropertyText(std::string_view property) const override;
};

// A rectangle behind other controls, which takes no part in what a person does.
class Shape : public Control {
public:
    using Control::Control;
    Property<std::int32_t> BorderColor{*this, Prop::Colours, static_cast<std::int32_t>(0x80000008)};
    Property<int> BorderWidth{*this, Prop::Style, 1}; // pixels
    bool TakesMouse() const override { return false; }
    std::optional<std::string> PropertyText(std::string_view property) const override;
};

// Value between Min and Max; a value beyond is held to them, also when they
// change.
class ProgressBar : public Control {
public:
    using Control::Control;
    Property<double> Min{*this, Prop::Range};
    Property<double> Max{*this, Prop::Range, 100};
    Property<double> Value{*this, Prop::Value};
    std::optional<std::string> PropertyText(std::string_view property) const override;
    void PropertyChanged(Prop what) override;
};

// A bar with panels of text, counted from 1.
class StatusBar : public Control {
public:
    StatusBar(Form& form, std::string name, int panels);
    int PanelCount() const { return static_cast<int>(panels_.size()); }
    // A number that is no panel reads as empty and is not written.
    const std::string& Panel(int number) const;
    void SetPanel(int number, const std::string& text);
    // For the host: this panel's text is another.
    Event<int> PanelChanged;
    std::optional<std::string> PropertyText(std::string_view property) const override;

private:
    std::vector<std::string> panels_;
};

// Raises Tick each Interval milliseconds while it is enabled; the host lets it
// run. It starts switched off, with an interval of 0 it never runs.
class Timer : public Control {
public:
    Timer(Form& form, std::string name, int index = -1);
    Property<int> Interval{*this, Prop::Range};
    Event<> Tick;
    bool Runs() const { return Enabled && Interval > 0; }
    std::optional<std::string> PropertyText(std::string_view property) const override;
};

} // namespace tavo
