#include "controls/frm_color.h"

#include "controls/rgb.h"
#include "core/program.h"
#include "core/windows.h"
#include "renamelist/key_filters.h"
#include "renamelist/preview.h"
#include "toolkit/numbers.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr double boxPitch = 180, boxStart = 120;
constexpr int boxesInARow = 8;
constexpr int highest = 255;

constexpr std::int32_t boxColors[FrmColor::boxCount] = {
    0xFFFFFF, 0xC0C0FF, 0xC0E0FF, 0xC0FFFF, 0xC0FFC0, 0xFFFFC0, 0xFFC0C0, 0xFFC0FF, //
    0xE0E0E0, 0x8080FF, 0x80C0FF, 0x80FFFF, 0x80FF80, 0xFFFF80, 0xFF8080, 0xFF80FF, //
    0xC0C0C0, 0x0000FF, 0x0080FF, 0x00FFFF, 0x00FF00, 0xFFFF00, 0xFF0000, 0xFF00FF, //
    0x808080, 0x0000C0, 0x0040C0, 0x00C0C0, 0x00C000, 0xC0C000, 0xC00000, 0xC000C0, //
    0x404040, 0x000080, 0x004080, 0x008080, 0x008000, 0x808000, 0x800000, 0x800080, //
    0x000000, 0x000040, 0x404080, 0x004040, 0x004000, 0x404000, 0x400000, 0x400040};

constexpr std::string_view channelNames[] = {"Red", "Green", "Blue"};

} // namespace

FrmColor::FrmColor(Program& p) : Form("frmColor"), p_(p)
{
    SetCaption("Color");
    Size(false);
    Design();
    DesignCustom();
    Wire();
}

void FrmColor::Design()
{
    for (int i = 0; i < boxCount; ++i) {
        const int row = i / boxesInARow, column = i % boxesInARow;
        picColorSys[i].Move(boxStart + column * boxPitch, boxStart + row * boxPitch, boxPitch,
                            boxPitch);
        picColorSys[i].BackColor = boxColors[i];
    }
    cmdCustom.Caption = "&Custom >>";
    cmdCustom.Move(boxStart, 1380, boxesInARow * boxPitch, 360);
}

void FrmColor::DesignCustom()
{
    picCustom.Move(extent_.NarrowWidth, 0, extent_.WideWidth - extent_.NarrowWidth, extent_.Height);
    for (int i = 1; i <= 3; ++i) {
        const double top = 120 + (i - 1) * 360;
        for (Control* part :
             std::initializer_list<Control*>{&lblColor[i], &hsbColor[i], &txtColor[i]})
            part->Container = &picCustom;
        lblColor[i].Caption = std::string(channelNames[i - 1]);
        lblColor[i].Move(60, top + 30, 600, 270);
        hsbColor[i].Move(720, top + 30, 2580, 255);
        hsbColor[i].Max = highest;
        hsbColor[i].LargeChange = 10;
        hsbColor[i].AccessibleName = lblColor[i].Caption;
        txtColor[i].Move(3420, top, 540, 315);
        txtColor[i].MaxLength = 3;
        txtColor[i].Text.SetQuietly("0");
        txtColor[i].AccessibleName = lblColor[i].Caption;
    }
    for (Control* part :
         std::initializer_list<Control*>{&lblColorOld, &lblColorNew, &picColorCur, &picColorNew,
                                         &cmdColorDef, &cmdOk, &cmdCancel})
        part->Container = &picCustom;
    lblColorOld.Caption = "Current";
    lblColorNew.Caption = "New";
    cmdColorDef.Caption = "&Default";
    cmdOk.Caption = "&OK";
    cmdCancel.Caption = "&Cancel";
    lblColorOld.Move(60, 1230, 720, 270);
    picColorCur.Move(840, 1200, 600, 330);
    lblColorNew.Move(1560, 1230, 480, 270);
    picColorNew.Move(2100, 1200, 600, 330);
    cmdColorDef.Move(2880, 1200, 1080, 360);
    cmdOk.Move(1680, 1680, 1080, 360);
    cmdCancel.Move(2880, 1680, 1080, 360);
    DefaultButton = &cmdOk;
    CancelButton = &cmdCancel;
}

void FrmColor::Wire()
{
    Load = [this] { Open(); };
    // A caller places it before it opens, and goes by its size.
    Unloaded = [this] { Size(false); };
    // The cancel button is out of sight then.
    KeyDown = [this](Key& key) {
        if (key.Code != keyEscape || picCustom.Visible)
            return;
        key.Code = keyNone;
        Unload();
    };
    for (const auto& box : picColorSys) {
        const int index = box->Index();
        box->Click = [this, index] { BoxClicked(index); };
    }
    for (int i = 1; i <= 3; ++i) {
        hsbColor[i].Change = [this, i] { SliderMoved(i); };
        hsbColor[i].Scroll = [this, i] { SliderMoved(i); };
        TextBox& field = txtColor[i];
        // The point, which the filter of numbers lets pass, is dropped as well.
        // Return and Escape go on to their buttons.
        field.KeyPress = [](int& key) {
            if (key == keyReturn || key == keyEscape)
                return;
            Txt_NumericKey(key);
            key = key == '.' ? 0 : key;
        };
        field.GotFocus = [&field] { Box_SelectAll(field); };
        field.Change = [this, i] { FieldChanged(i); };
    }
    cmdCustom.Click = [this] {
        p_.state.ColorCustom = true;
        Widen(true);
        hsbColor[1].SetFocus(); // the button is out of reach from here on
        Try(picColorCur.BackColor);
    };
    picColorCur.Click = [this] { Try(picColorCur.BackColor); };
    cmdColorDef.Click = [this] { Try(p_.state.ColorDefault); };
    cmdOk.Click = [this] { Take(); };
    cmdCancel.Click = [this] {
        Try(picColorCur.BackColor);
        Take();
    };
}

void FrmColor::Open()
{
    Widen(p_.state.ColorCustom);
    picColorCur.BackColor = p_.state.ColorCurrent;
    Try(p_.state.ColorCurrent);
}

void FrmColor::Widen(bool wide)
{
    cmdCustom.Enabled = !wide;
    picCustom.Visible = wide;
    Size(wide);
    FitToScreen();
}

void FrmColor::Size(bool wide)
{
    Move(Left(), Top(), wide ? extent_.WideWidth : extent_.NarrowWidth, extent_.Height);
}

void FrmColor::SetExtent(const Extent& extent)
{
    extent_ = extent;
    Size(Loaded() && picCustom.Visible);
}

void FrmColor::FitToScreen()
{
    const double right = std::max(0.0, p_.desktop.ScreenWidth() - Width());
    const double bottom = std::max(0.0, p_.desktop.ScreenHeight() - Height());
    Move(std::clamp(Left(), 0.0, right), std::clamp(Top(), 0.0, bottom), Width(), Height());
}

void FrmColor::Try(std::int32_t color)
{
    picColorNew.BackColor = color;
    RGB rgb;
    rgb.SetColor(color);
    const bool before = std::exchange(filling_, true);
    txtColor[1].Text = IntToText(rgb.Red());
    txtColor[2].Text = IntToText(rgb.Green());
    txtColor[3].Text = IntToText(rgb.Blue());
    filling_ = before;
}

void FrmColor::BoxClicked(int index)
{
    const std::int32_t color = picColorSys[index].BackColor;
    if (picCustom.Visible)
        return Try(color);
    p_.state.ColorCurrent = color;
    Unload();
}

void FrmColor::FieldChanged(int index)
{
    TextBox& field = txtColor[index];
    const double typed = Val(field.Text.Get());
    const double value = std::clamp(typed, 0.0, static_cast<double>(highest));
    if (field.Text.Get().empty() || value != typed) {
        field.Text = DoubleToText(value);
        return;
    }
    const bool before = std::exchange(filling_, true);
    hsbColor[index].Value = static_cast<int>(RoundHalfEven(value));
    filling_ = before;
    if (!filling_)
        Mix();
}

void FrmColor::SliderMoved(int index)
{
    if (filling_)
        return;
    filling_ = true;
    txtColor[index].Text = IntToText(hsbColor[index].Value);
    filling_ = false;
    Mix();
}

void FrmColor::Mix()
{
    std::uint8_t parts[3] = {};
    for (int i = 1; i <= 3; ++i)
        AssignChecked(parts[i - 1], Val(txtColor[i].Text.Get()));
    picColorNew.BackColor = RGB::Pack(parts[0], parts[1], parts[2]);
}

void FrmColor::Take()
{
    p_.state.ColorCurrent = picColorNew.BackColor;
    Unload();
}

} // namespace tavo
