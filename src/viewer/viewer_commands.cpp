#include "controls/frm_about.h"
#include "controls/frm_color.h"
#include "core/frm_main.h"
#include "core/program.h"
#include "core/tools.h"
#include "core/windows.h"
#include "toolkit/text.h"
#include "viewer/frm_viewer.h"
#include "viewer/viewer_parts.h"

#include <algorithm>
#include <iterator>

namespace tavo {

namespace {

constexpr auto windowColour = static_cast<std::int32_t>(0x80000005);

// What the search takes as pictures. The setting for GIF files plays no part.
constexpr std::string_view pictureTypes[] = {"JPEG", "JPG", "GIF", "BMP",
                                             "WMF",  "EMF", "ICO", "CUR"};

// Of no use where there is nowhere to go.
constexpr std::string_view walkTools[] = {"ID_ShowPlayF", "ID_ShowPlayR", "ID_ShowStop",
                                          "ID_Seconds",   "ID_ImgPrev",   "ID_ImgNext"};

void Tool_Enable(FrmViewer& v, std::string_view id, bool on)
{
    if (Tool* tool = v.atbView.Find(id))
        tool->Enabled = on;
}

void Tool_Check(FrmViewer& v, std::string_view id, bool on)
{
    if (Tool* tool = v.atbView.Find(id))
        tool->Checked = on;
}

void Labels_Set(FrmViewer& v, bool on)
{
    if (const Band* band = v.atbView.FindBand("Standard"))
        for (Tool* tool : band->Tools())
            tool->Style = on ? ToolStyle::PictureAndText : ToolStyle::Picture;
}

// The window can be sized only to a picture that stands in its natural size.
bool ShowsNaturalSize(const SharedState& s)
{
    return !s.ViewEnlarge && !s.ViewShrink;
}

void Controls_Enable(Program& p, FrmViewer& v)
{
    const int rows = p.state.RenCount;
    for (const std::string_view id : walkTools)
        Tool_Enable(v, id, rows > 1);
    v.hsbCurImage.Enabled = rows > 1;
    // With several rows all tools come back, this one too: only a press of the
    // tools that scale takes it away again.
    Tool_Enable(v, "ID_SizeWindow", rows > 1 || (rows == 1 && ShowsNaturalSize(p.state)));
}

void Preview_Size(Program& p, FrmViewer& v)
{
    const ThumbLook& look = p.state.ThumbLook;
    v.cmdThumb.Width = look.Width + look.Margin;
    v.cmdThumb.Height = look.Height + look.Margin;
}

void Scaling_Take(Program& p, bool& flag, const Tool& tool)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    flag = tool.Checked;
    Tool_Enable(*v, "ID_SizeWindow", ShowsNaturalSize(p.state));
    Viewer_Fit(p);
}

// The form's length at which the view is as long as the picture: what is round
// the view, the picture, the view's own border. It stops at the screen's end.
double Length_ForPicture(double form, double view, double viewInside, double picture, double room)
{
    const double wanted = form - view + picture + (view - viewInside);
    return std::min(wanted, room);
}

void Color_Place(Program& p, const FrmViewer& v, FrmColor& color)
{
    const double left = v.Left() + (v.Width() - color.Width()) / 2;
    const double top = v.Top() + v.Height() - color.Height();
    // A viewer may hang over the edge, the dialog has to be reached.
    const double mostLeft = std::max(0.0, p.desktop.ScreenWidth() - color.Width());
    const double mostTop = std::max(0.0, p.desktop.ScreenHeight() - color.Height());
    color.Move(std::clamp(left, 0.0, mostLeft), std::clamp(top, 0.0, mostTop), color.Width(),
               color.Height());
}

bool IsPicture(Program& p, int row)
{
    const std::string type = UCase(p.main.lsvRename.Cell(row, p.state.colType));
    return std::ranges::find(pictureTypes, type) != std::end(pictureTypes);
}

void Row_Follow(Program& p, int row)
{
    const Tool* update = p.main.atbMain.Find("ID_ViewerUp");
    if (p.ViewerInSight() && update && update->Checked)
        Viewer_Move(p, row);
}

} // namespace

void Viewer_Wire(Program& p)
{
    p.RowTaken = [&p](int row) { Row_Follow(p, row); };
}

void Viewer_Open(Program& p, int row)
{
    FrmViewer& v = p.Viewer();
    v.EnsureLoaded();
    // Before it is seen: it loads the row that it was opened on, and no other.
    Viewer_Move(p, row);
    Viewer_Sync(p);
    p.desktop.Show(v);
}

void Viewer_Move(Program& p, int row)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v || !Viewer_HasRow(p, row))
        return;
    // The range takes the new end only when the position lies within it, so
    // that no other row is loaded on the way.
    v->hsbCurImage.Max = std::max<int>(v->hsbCurImage.Max, p.state.RenCount);
    v->hsbCurImage.Value = row;
    v->hsbCurImage.Max = p.state.RenCount;
    Viewer_Show_Again(p);
}

void Viewer_Sync(Program& p)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    Viewer_Show_Stop(*v);
    Viewer_Look_Take(p);
    Preview_Size(p, *v);
    Controls_Enable(p, *v);
    v->hsbCurImage.Max = std::max(1, p.state.RenCount);
    Viewer_Show_Again(p);
}

void Viewer_Look_Take(Program& p)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    v->picViewWin.BackColor = p.state.ColViewWin;
    Tool_Check(*v, "ID_Enlarge", p.state.ViewEnlarge);
    Tool_Check(*v, "ID_Shrink", p.state.ViewShrink);
    Tool_Check(*v, "ID_tbTextLabels", p.state.tbvTextLabels == 1);
    Labels_Set(*v, p.state.tbvTextLabels == 1);
}

void Viewer_Image_Find(Program& p, bool forward)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    const int first = v->hsbCurImage.Min, last = v->hsbCurImage.Max;
    const int start = v->hsbCurImage.Value;
    int position = start;
    do {
        if (forward)
            position = position == last ? first : position + 1;
        else
            position = position == first ? last : position - 1;
        if (IsPicture(p, position)) {
            v->hsbCurImage.Value = position;
            return;
        }
    } while (position != start);
}

void Viewer_Hide(Program& p)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    Viewer_Show_Stop(*v);
    v->Panning = false;
    v->SetVisible(false);
    Viewer_Show_Nothing(p);
}

void Viewer_Preview_Click(Program& p)
{
    p.Say("Error: 22067 ( User Fast like Cheetah! )\n"
          "Exposed Programmer Flaw: ( Button used to Pretty Up Thumbnail! )\n\n"
          "No Errors were Harmed during the Making of this Message!",
          BoxIcon::Critical);
}

void Cmd_ViewEnlarge(Program& p, Tool& tool)
{
    Scaling_Take(p, p.state.ViewEnlarge, tool);
}

void Cmd_ViewShrink(Program& p, Tool& tool)
{
    Scaling_Take(p, p.state.ViewShrink, tool);
}

void Cmd_ViewSizeWindow(Program& p, Tool&)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v || v->State() != WindowState::Normal)
        return;
    const double twips = p.desktop.TwipsPerPixel();
    const PictureBox& view = v->picViewWin;
    const double width =
        Length_ForPicture(v->Width(), view.Width, view.ScaleWidth() * twips,
                          p.state.ImgWidth * twips, p.desktop.ScreenWidth() - v->Left());
    if (width > 0)
        v->Move(v->Left(), v->Top(), width, v->Height());
    const double height =
        Length_ForPicture(v->Height(), view.Height, view.ScaleHeight() * twips,
                          p.state.ImgHeight * twips, p.desktop.ScreenHeight() - v->Top());
    if (height > 0)
        v->Move(v->Left(), v->Top(), v->Width(), height);
}

void Cmd_ViewBackColor(Program& p, Tool&)
{
    FrmViewer* const v = Viewer_Find(p);
    if (!v)
        return;
    SharedState& s = p.state;
    s.ColorCurrent = v->picViewWin.BackColor;
    s.ColorDefault = windowColour;
    s.ColorCustom = false;
    FrmColor& color = p.Color();
    color.EnsureLoaded(); // it has its size from then on
    Color_Place(p, *v, color);
    p.desktop.ShowModal(color);
    s.ColViewWin = s.ColorCurrent;
    v->picViewWin.BackColor = s.ColorCurrent;
}

void Cmd_ViewNext(Program& p, Tool&)
{
    Viewer_Image_Find(p, true);
}

void Cmd_ViewPrev(Program& p, Tool&)
{
    Viewer_Image_Find(p, false);
}

void Cmd_ViewShowTavo(Program& p, Tool&)
{
    p.desktop.Show(p.main);
    if (p.main.State() == WindowState::Minimised)
        p.main.SetState(WindowState::Normal);
}

void Cmd_ViewTextLabels(Program& p, Tool& tool)
{
    p.state.tbvTextLabels = tool.Checked ? 1 : 0;
    Viewer_Look_Take(p);
}

void Cmd_ViewHelp(Program& p, Tool&)
{
    Help_Show(p, "Topic");
}

void Cmd_ViewAbout(Program& p, Tool&)
{
    if (FrmViewer* v = Viewer_Find(p))
        About_Show(p, *v);
}

void Cmd_ViewExit(Program& p, Tool&)
{
    if (FrmViewer* v = Viewer_Find(p))
        v->Unload();
}

} // namespace tavo
