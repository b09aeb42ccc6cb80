#include "controls/frm_color.h"
#include "core/program.h"
#include "thumbnails/frm_thumb_editor.h"
#include "thumbnails/frm_thumb_resize.h"
#include "thumbnails/thumb_cells.h"
#include "thumbnails/thumb_editor_parts.h"
#include "toolkit/numbers.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr std::int32_t SystemColor(std::uint32_t number)
{
    return static_cast<std::int32_t>(0x80000000u | number);
}

// The built-in colours, by ThumbColor.
constexpr std::int32_t defColor[] = {SystemColor(0x0F), SystemColor(0x0D), SystemColor(0x0F),
                                     SystemColor(0x12), SystemColor(0x05), SystemColor(0x05)};

constexpr int thinnestBorder = 2, thickestBorder = 9;

Tool& Tool_Of(const FrmThumbEditor& f, std::string_view id)
{
    return *f.atbThumbs.Find(id);
}

void Align_Show(FrmThumbEditor& f)
{
    const int pressed = Align_Pressed(f.Work.Align);
    for (int k = 0; k <= alignCenter; ++k)
        Tool_Of(f, alignTools[k]).Checked = k == pressed;
    f.lblPreview.Alignment = pressed;
}

// A border that the list has no row for stands there as no choice.
void Border_Show(FrmThumbEditor& f)
{
    const int border = f.Work.BorderWidth;
    const bool listed = border >= thinnestBorder && border <= thickestBorder;
    Tool_Of(f, "ID_BorderWidth").Combo()->SetListIndex(listed ? border - thinnestBorder : -1);
}

// All controls by the look.
void Work_Show(FrmThumbEditor& f)
{
    Tool_Of(f, "ID_Height").Box->Text = IntToText(f.Work.Height);
    Tool_Of(f, "ID_Width").Box->Text = IntToText(f.Work.Width);
    Border_Show(f);
    for (int i = 0; i <= f.picColor.High(); ++i)
        f.picColor[i].BackColor = f.Work.Color[static_cast<std::size_t>(i)];
    Align_Show(f);
    Thumb_Editor_Preview(f);
}

void Hold(std::int16_t& number, int min, int max)
{
    number = std::clamp(number, static_cast<std::int16_t>(min), static_cast<std::int16_t>(max));
}

// In the middle of a length, for something of this length.
double Centre(double length, double inner)
{
    return (length - inner) / 2;
}

// The border in turn, and the labels that tell which one that is.
void Borders_Show(FrmThumbEditor& f)
{
    const bool normal = f.ShowNormal;
    f.shpPreview.BorderWidth = f.Work.BorderWidth;
    f.shpPreview.BorderColor = f.Work.Color[normal ? thumbNormalBorder : thumbSelectedBorder];
    f.lblColor[thumbNormalBorder].Caption = normal ? "Normal Border - Active" : "Normal Border";
    f.lblColor[thumbSelectedBorder].Caption =
        normal ? "Selected Border" : "Selected Border - Active";
    f.imgPreview.ToolTipText =
        normal ? "Click to Show Selected Border Color" : "Click to Show Normal Border Color";
}

// The frame in the middle of the preview, the picture in the middle of the
// frame, and the caption under it.
void Frame_Place(FrmThumbEditor& f)
{
    const ThumbLook& look = f.Work;
    const double left = Centre(f.picPreview.ScaleWidth(), look.CellWidth);
    const double top = Centre(f.picPreview.ScaleHeight(), look.CellHeight);
    f.shpPreview.Move(left, top, look.CellWidth, look.CellHeight);
    f.imgPreview.Move(left + Centre(look.CellWidth, look.Width),
                      top + Centre(look.CellHeight, look.Height), look.Width, look.Height);
    f.lblPreview.Move(left, top + look.CellHeight, look.CellWidth, look.CaptionHeight);
}

} // namespace

void Thumb_Editor_Load(FrmThumbEditor& f, const std::string& record)
{
    Scheme_Take(f.Work, record);
    Work_Show(f);
}

void Thumb_Editor_Preview(FrmThumbEditor& f)
{
    Borders_Show(f);
    Frame_Place(f);
    const ThumbLook& look = f.Work;
    f.shpPreview.BackColor = look.Color[thumbBackground];
    f.lblPreview.BackColor = look.Color[thumbCaptionBackground];
    f.lblPreview.ForeColor = look.Color[thumbCaptionText];
    f.picPreview.BackColor = look.Color[thumbWindow];
}

std::string Thumb_Editor_Record(const FrmThumbEditor& f)
{
    const ThumbLook& look = f.Work;
    const std::int32_t fields[] = {look.Height,
                                   look.Width,
                                   look.BorderWidth,
                                   look.Color[thumbBackground],
                                   look.Color[thumbSelectedBorder],
                                   look.Color[thumbNormalBorder],
                                   look.Align,
                                   look.Color[thumbCaptionBackground],
                                   look.Color[thumbCaptionText],
                                   look.Color[thumbWindow]};
    std::string record;
    for (const std::int32_t field : fields)
        record += (record.empty() ? "" : ",") + IntToText(field);
    return record;
}

void Thumb_Field_Clamp(Tool& tool, int min, int max)
{
    const double value = Val(tool.Box->Text.Get());
    if (value < min)
        tool.Box->Text = IntToText(min);
    else if (value > max)
        tool.Box->Text = IntToText(max);
}

// The copy is whole in both modes: a record says nothing of the margin and of
// the caption's height.
void Editor_Open(Program& p, FrmThumbEditor& f)
{
    f.OnScheme = p.state.SchemeEditMode;
    f.ShowNormal = false;
    f.Work = p.state.ThumbLook;
    f.SetCaption(f.OnScheme ? "Scheme Editor" : "Thumbnail Editor");
    Editor_Tools_Begin(p, f);
    if (f.OnScheme)
        return Thumb_Editor_Load(f, p.state.SchemeEditText);
    Hold(f.Work.BorderWidth, thinnestBorder, thickestBorder);
    Hold(f.Work.Width, smallestSize, largestSize);
    Hold(f.Work.Height, smallestSize, largestSize);
    Cell_Measure(f.Work);
    Work_Show(f);
}

void Editor_Align(FrmThumbEditor& f, int alignment)
{
    f.Work.Align = static_cast<std::int16_t>(alignment);
    Align_Show(f);
}

void Editor_Color(FrmThumbEditor& f, int index, std::int32_t color)
{
    f.Work.Color[static_cast<std::size_t>(index)] = color;
    f.picColor[index].BackColor = color;
    Thumb_Editor_Preview(f);
}

void Editor_Sizes_Take(FrmThumbEditor& f)
{
    AssignChecked(f.Work.Width, Val(Tool_Of(f, "ID_Width").Box->Text.Get()));
    AssignChecked(f.Work.Height, Val(Tool_Of(f, "ID_Height").Box->Text.Get()));
    Cell_Measure(f.Work);
    Thumb_Editor_Preview(f);
}

void Editor_Border_Take(FrmThumbEditor& f)
{
    AssignChecked(f.Work.BorderWidth, Val(Tool_Of(f, "ID_BorderWidth").Box->Text.Get()));
    Cell_Measure(f.Work);
    Thumb_Editor_Preview(f);
}

// The selector comes up over the chip's row. It is placed before it opens, and
// then holds itself to the screen.
void Editor_Chip_Click(Program& p, FrmThumbEditor& f, int index)
{
    SharedState& s = p.state;
    s.ColorCurrent = f.Work.Color[static_cast<std::size_t>(index)];
    s.ColorDefault = defColor[index];
    s.ColorCustom = false;
    FrmColor& color = p.Color();
    color.Move(f.Left() + f.fraColor.Left, f.Top() + f.fraColor.Top + f.picColor[index].Top,
               color.Width(), color.Height());
    p.desktop.ShowModal(color);
    Editor_Color(f, index, s.ColorCurrent);
}

void Editor_Label_Click(FrmThumbEditor& f, int index)
{
    f.ShowNormal = index == thumbNormalBorder;
    Editor_Color(f, index, defColor[index]);
}

void Editor_Ok(Program& p, FrmThumbEditor& f)
{
    SharedState& s = p.state;
    if (f.OnScheme) {
        s.SchemeEditText = Thumb_Editor_Record(f);
        return f.Unload();
    }
    const bool resized = f.Work.Width != s.ThumbLook.Width || f.Work.Height != s.ThumbLook.Height;
    s.ThumbLook = f.Work;
    if (resized && s.ThumbBuffer.size() > 1)
        p.desktop.ShowModal(p.ThumbResize());
    f.Unload();
}

} // namespace tavo
