#pragma once

#include "toolkit/buttons.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"
#include "toolkit/scroll_bar.h"
#include "toolkit/text_box.h"

#include <cstdint>

namespace tavo {

class Program;

// Picks a colour. The caller puts the colour in use into ColorCurrent, the one
// of the Default button into ColorDefault, sets ColorCustom for the wide form,
// shows it modally, and takes ColorCurrent: after a cancel it is what it was.
//
// In the narrow form a click on a box chooses at once. The wide one has sliders
// and fields for red, green and blue; a box, the default and the colour in use
// are then only tried.
class FrmColor : public Form {
public:
    explicit FrmColor(Program& p);

    static constexpr int boxCount = 48;
    ControlArray<PictureBox> picColorSys{*this, "picColorSys", 0, boxCount - 1};
    CommandButton cmdCustom{*this, "cmdCustom"};
    PictureBox picCustom{*this, "picCustom"};
    // 1 red, 2 green, 3 blue
    ControlArray<Label> lblColor{*this, "lblColor", 1, 3};
    ControlArray<ScrollBar> hsbColor{*this, "hsbColor", 1, 3};
    ControlArray<TextBox> txtColor{*this, "txtColor", 1, 3};
    Label lblColorOld{*this, "lblColorOld"}, lblColorNew{*this, "lblColorNew"};
    PictureBox picColorCur{*this, "picColorCur"}, picColorNew{*this, "picColorNew"};
    CommandButton cmdColorDef{*this, "cmdColorDef"};
    CommandButton cmdOk{*this, "cmdOk"}, cmdCancel{*this, "cmdCancel"};

    // What the two forms take, in twips.
    struct Extent {
        double NarrowWidth = 1770, WideWidth = 5970, Height = 2370;
    };
    // A host whose fonts need another one tells it before the form is placed.
    void SetExtent(const Extent& extent);

private:
    void Design();
    void DesignCustom();
    void Wire();
    void Open();
    void Widen(bool wide);
    void Size(bool wide);
    void FitToScreen();
    // Brings a colour to "New" and into the fields.
    void Try(std::int32_t color);
    void BoxClicked(int index);
    void FieldChanged(int index);
    void SliderMoved(int index);
    void Mix();
    void Take();

    Program& p_;
    Extent extent_;
    // The fields are being filled from a colour, which stays as it is.
    bool filling_ = false;
};

} // namespace tavo
