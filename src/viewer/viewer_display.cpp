#include "core/frm_main.h"
#include "core/program.h"
#include "thumbnails/thumb_cells.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"
#include "viewer/frm_viewer.h"
#include "viewer/viewer_parts.h"

#include <algorithm>
#include <cmath>

namespace tavo {

namespace {

constexpr double gap = 30, wideGap = 60, barThickness = 255;
constexpr int positionPanel = 1, namePanel = 2;
constexpr double smallPart = 0.05;

// A step whose number does not fit is passed over.
void Range_Set(Property<int>& property, double value)
{
    int number = property;
    if (AssignChecked(number, value))
        property = number;
}

void Panels_Show(Program& p, FrmViewer& v, int row)
{
    v.stbMain.SetPanel(positionPanel,
                       "Image: " + IntToText(row) + " of " + IntToText(p.state.RenCount));
    v.stbMain.SetPanel(namePanel, std::string(p.main.lsvRename.Text(row)));
}

bool Gif_IsLeftOut(Program& p, int row)
{
    const auto type = p.main.lsvRename.Cell(row, p.state.colType);
    return p.state.Gif == 0 && UCase(type) == "GIF";
}

// The picture of the row, or its icon. False when the file could not be read.
bool Picture_Load(Program& p, FrmViewer& v, int row)
{
    // The one before it goes first: both together may be large.
    v.imgOriginal.Picture = PictureRef();
    const bool wanted = !Gif_IsLeftOut(p, row);
    const BitmapPtr bitmap = wanted ? p.desktop.LoadPicture(Viewer_File(p, row), {}) : BitmapPtr();
    v.imgOriginal.Picture = bitmap ? PictureRef::OfBitmap(bitmap) : Row_Icon(p, row);
    return bitmap || !wanted;
}

void NaturalSize_Take(Program& p, FrmViewer& v)
{
    v.imgOriginal.Stretch = false;
    AssignChecked(p.state.ImgWidth, v.imgOriginal.Width);
    AssignChecked(p.state.ImgHeight, v.imgOriginal.Height);
}

// The side that limits takes the view's size exactly, the other the whole
// number of pixels that is left of it.
void Picture_Scale(const SharedState& s, FrmViewer& v)
{
    const double width = v.picViewWin.ScaleWidth(), height = v.picViewWin.ScaleHeight();
    const double across = width / s.ImgWidth, down = height / s.ImgHeight;
    v.imgOriginal.Stretch = true;
    v.imgOriginal.Width = across <= down ? width : std::trunc(s.ImgWidth * down);
    v.imgOriginal.Height = down <= across ? height : std::trunc(s.ImgHeight * across);
}

// True when the picture is larger than the view here, and the bar pans it.
bool PanBar_Set(ScrollBar& bar, double picture, double view)
{
    const double hidden = picture - view;
    bar.Enabled = hidden > 0;
    if (hidden <= 0)
        return false;
    bar.Min = 0;
    Range_Set(bar.Max, hidden);
    // A view without any size leaves the steps as they are.
    if (view > 0)
        Range_Set(bar.LargeChange, bar.Max / (hidden / view));
    Range_Set(bar.SmallChange, bar.LargeChange * smallPart);
    return true;
}

int Pan_Pointer(bool across, bool down)
{
    if (across && down)
        return pointerAll;
    if (across)
        return pointerLeftRight;
    return down ? pointerUpDown : pointerDefault;
}

// Moves a bar against the hand. Where its end holds it, the place at which the
// drag began moves along: else the picture would lag behind on the way back.
void PanBar_Drag(ScrollBar& bar, std::int32_t& start, double place)
{
    if (!bar.Enabled)
        return;
    const double wanted = bar.Value + static_cast<double>(start) - place;
    const double held = std::max<double>(bar.Min, std::min<double>(wanted, bar.Max));
    AssignChecked(start, start + held - wanted);
    bar.Value = static_cast<int>(held);
}

double Pixels(const Program& p, double twips)
{
    return RoundHalfEven(twips / p.desktop.TwipsPerPixel());
}

// The largest whole number of pixels in it, as twips.
double WholePixels(const Program& p, double twips)
{
    const double unit = p.desktop.TwipsPerPixel();
    return std::max(0.0, std::floor(twips / unit) * unit);
}

} // namespace

bool Viewer_HasRow(const Program& p, int row)
{
    return row >= 1 && row <= std::min<int>(p.state.RenCount, p.main.lsvRename.Count());
}

std::string Viewer_File(const Program& p, int row)
{
    if (!Viewer_HasRow(p, row))
        return {};
    const ListView& list = p.main.lsvRename;
    return std::string(list.Cell(row, p.state.colPath)) + std::string(list.Text(row));
}

void Viewer_Show_Nothing(Program& p)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    v->imgOriginal.Visible = v->cmdThumb.Visible = v->tmrHideThumb.Enabled = false;
    v->imgOriginal.Picture = PictureRef();
    v->imgOriginal.Width = v->imgOriginal.Height = 0;
    v->ShownFile.clear();
    p.state.ImgWidth = p.state.ImgHeight = 0;
    v->stbMain.SetPanel(positionPanel, "");
    v->stbMain.SetPanel(namePanel, "");
    Viewer_Fit(p);
}

void Viewer_Show_Current(Program& p)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    const int row = v->hsbCurImage.Value;
    if (!Viewer_HasRow(p, row))
        return Viewer_Show_Nothing(p);
    v->imgOriginal.Visible = v->cmdThumb.Visible = v->tmrHideThumb.Enabled = false;
    v->ShownFile = Viewer_File(p, row);
    const bool isRead = Picture_Load(p, *v, row);
    NaturalSize_Take(p, *v);
    if (isRead)
        Viewer_Thumb_Make(p, row);
    Panels_Show(p, *v, row);
    v->imgOriginal.Left = v->imgOriginal.Top = 0;
    Viewer_Fit(p);
    v->imgOriginal.Visible = true;
}

void Viewer_Show_Again(Program& p)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    const int row = v->hsbCurImage.Value;
    if (!Viewer_HasRow(p, row) || v->ShownFile != Viewer_File(p, row))
        return Viewer_Show_Current(p);
    Panels_Show(p, *v, row);
    Viewer_Fit(p);
    v->imgOriginal.Visible = true;
}

void Viewer_Fit(Program& p)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    const SharedState& s = p.state;
    const double width = v->picViewWin.ScaleWidth(), height = v->picViewWin.ScaleHeight();
    ImageBox& image = v->imgOriginal;
    const bool isBig = s.ImgWidth > width || s.ImgHeight > height;
    const bool hasSize = s.ImgWidth > 0 && s.ImgHeight > 0;
    if (hasSize && (isBig ? s.ViewShrink : s.ViewEnlarge))
        Picture_Scale(s, *v);
    else
        image.Stretch = false;
    const bool across = PanBar_Set(v->hsbImage, image.Width, width);
    if (across)
        Viewer_Pan_Across(*v);
    else
        image.Left = (width - image.Width) / 2;
    const bool down = PanBar_Set(v->vsbImage, image.Height, height);
    if (down)
        Viewer_Pan_Down(*v);
    else
        image.Top = (height - image.Height) / 2;
    image.MousePointer = Pan_Pointer(across, down);
}

void Viewer_Pan_Across(FrmViewer& v)
{
    v.imgOriginal.Left = -v.hsbImage.Value.Get();
}

void Viewer_Pan_Down(FrmViewer& v)
{
    v.imgOriginal.Top = -v.vsbImage.Value.Get();
}

void Viewer_Pan_Press(Program& p, const Control::Mouse& mouse)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v || mouse.Button != 1)
        return;
    v->Panning = true;
    AssignChecked(p.state.PanX, Pixels(p, mouse.X));
    AssignChecked(p.state.PanY, Pixels(p, mouse.Y));
}

void Viewer_Pan_Move(Program& p, const Control::Mouse& mouse)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v || !v->Panning || mouse.Button != 1)
        return;
    PanBar_Drag(v->hsbImage, p.state.PanX, Pixels(p, mouse.X));
    PanBar_Drag(v->vsbImage, p.state.PanY, Pixels(p, mouse.Y));
}

void Viewer_Layout(Program& p)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    const double width = v->ScaleWidth(), statusHeight = v->stbMain.Height;
    const double statusTop = std::max(0.0, v->ScaleHeight() - statusHeight);
    const double positionTop = statusTop - gap - barThickness;
    const double viewWidth = WholePixels(p, width - 3 * gap - barThickness);
    const double viewHeight = WholePixels(p, positionTop - wideGap - barThickness - 2 * gap);
    v->stbMain.Move(0, statusTop, width, statusHeight);
    v->hsbCurImage.Move(wideGap, positionTop, std::max(0.0, width - 2 * wideGap), barThickness);
    v->picViewWin.Move(gap, gap, viewWidth, viewHeight);
    v->vsbImage.Move(gap + viewWidth + gap, gap, barThickness, viewHeight);
    v->hsbImage.Move(gap, gap + viewHeight + gap, viewWidth, barThickness);
    if (p.state.RenCount != 0)
        Viewer_Fit(p);
}

} // namespace tavo
