#include "core/layout.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/tools.h"

#include <algorithm>

namespace tavo {

namespace {

// What stays free at the right of what stretches.
constexpr double narrowMargin = 120, wideMargin = 240, tagMargin = 60;
// The rename list hides its own border under those of its neighbours.
constexpr double listOverlap = 30;
constexpr double barRightLimit = 1290, barBottomLimit = 1000;
constexpr double previewMargin = 50;
constexpr int redrawDelayMs = 100;

void Stretch(Control& control, double outerWidth, double margin)
{
    control.Width = std::max(0.0, outerWidth - control.Left - margin);
}

void Center(Control& control, double outerWidth)
{
    control.Left = (outerWidth - control.Width) / 2;
}

// The height that the panel of the mode takes from the top; 0 without one.
double Panel_Layout(Program& p)
{
    Frame* panel = p.main.ctlRbRenMode.At(p.state.RenMode);
    if (!panel)
        return 0;
    panel->Move(0, 0, p.state.ClientW, panel->Height);
    return panel->Height;
}

void Panel_Insides(Program& p)
{
    FrmMain& main = p.main;
    const double width = p.state.ClientW;
    for (Frame* frame : {&main.fraCaseCtr, &main.fraAttribCtr, &main.fraDTCtr})
        Center(*frame, width);
    Stretch(main.fraNNCtr, width, narrowMargin);
    Stretch(main.txtNameNum[nnName], width, narrowMargin);
    Stretch(main.txtNameNum[nnExt], width, narrowMargin);
    Stretch(main.txtSearchReplace, width, narrowMargin);
    for (const auto& option : main.optSearchMode)
        Stretch(*option, width, wideMargin);
    Stretch(main.txtmcdPath, width, wideMargin + main.cmdmcdPath.Width);
    main.cmdmcdPath.Left = main.txtmcdPath.Left + main.txtmcdPath.Width + narrowMargin;
    Stretch(main.fraMP3, width, narrowMargin);
    for (const auto& box : main.txtMP3)
        Stretch(*box, main.fraMP3.Width, tagMargin);
    Stretch(main.cboMP3Genre, main.fraMP3.Width, tagMargin);
}

// The side column has its own width; the grid takes what is left, between its
// strips.
void Thumbs_Layout(FrmMain& main)
{
    const PictureBox& page = main.picThumbnails;
    const double strip = main.lblThumbsSD.Height, left = main.picThumbs.Left;
    const double barLeft = page.Width - main.vsbThumbs.Width;
    const double width = std::max(0.0, barLeft - left);
    main.lblThumbsSD.Move(left, 0, width, strip);
    main.lblThumbsSU.Move(left, page.Height - strip, width, strip);
    main.picThumbs.Move(left, strip, width, std::max(0.0, page.Height - 2 * strip));
    main.vsbThumbs.Move(barLeft, 0, main.vsbThumbs.Width, page.Height);
}

void Rename_Layout(Program& p, double panelHeight)
{
    FrmMain& main = p.main;
    const double width = p.state.ClientW, height = p.state.ClientH - panelHeight;
    main.lsvRename.Move(-listOverlap, panelHeight - listOverlap, width + 2 * listOverlap,
                        height + 2 * listOverlap);
    main.picThumbnails.Move(0, panelHeight, width, height);
    Thumbs_Layout(main);
    main.picAction.Move(0, panelHeight, width, height);
    Center(main.fraActControls, width);
    main.fraActControls.Top = (height - main.fraActControls.Height) / 2;
}

// A burst of resizes draws the thumbnails once, when it is over.
void Thumbs_Arm(Program& p)
{
    Timer& timer = p.main.tmrRedrawThumbs;
    timer.Interval = redrawDelayMs;
    timer.Enabled = false;
    timer.Enabled = true;
}

void Selection_Layout(Program& p)
{
    FrmMain& main = p.main;
    const double width = p.state.ClientW, height = p.state.ClientH;
    const bool preview = p.state.SelPreview == 1;
    main.fraSelect.Move(0, 0, width, height);

    Label& barX = main.lblSelDBX;
    barX.Move(std::min<double>(barX.Left, width - barRightLimit), 0, barX.Width, height);
    const double treeWidth = barX.Left, listLeft = barX.Left + barX.Width;
    main.lsvSelMain.Move(listLeft, 0, width - listLeft, height);

    Label& barY = main.lblSelDBY;
    barY.Visible = preview;
    barY.Move(0, std::min<double>(barY.Top, height - barBottomLimit), treeWidth, barY.Height);
    main.ftvSelMain.Move(0, 0, treeWidth, preview ? barY.Top.Get() : height);

    const double previewTop = barY.Top + previewMargin;
    main.picSelPreview.Visible = preview;
    main.picSelPreview.Move(0, previewTop, treeWidth, height - previewTop);
}

// The address box fills its band but for what stands beside it.
void Address_Layout(Program& p)
{
    Tool* box = p.main.atbMain.Find("ID_sAddress");
    double taken = wideMargin;
    for (const auto* id : {"ID_lblAddress:", "ID_SelUsePath"})
        if (const Tool* beside = p.main.atbMain.Find(id))
            taken += beside->Width;
    if (box)
        box->Width = std::max(0.0, p.state.ClientW - taken);
}

} // namespace

void Main_Layout(Program& p)
{
    // Before the first resize there is no room to share out.
    if (!p.state.ResizeOn || p.state.ClientW < 1)
        return;
    Rename_Layout(p, Panel_Layout(p));
    Panel_Insides(p);
    Selection_Layout(p);
    Address_Layout(p);
    if (p.state.CurScreen == screenThumbnails)
        Thumbs_Arm(p);
}

void Form_Resize(Program& p)
{
    if (!p.state.ResizeOn)
        return;
    const double width = p.main.ScaleWidth();
    const double height = p.main.ScaleHeight() - p.main.stbMain.Height;
    p.state.ClientW = std::max(static_cast<std::int32_t>(width), p.state.MinWidth);
    p.state.ClientH = std::max(static_cast<std::int32_t>(height), p.state.MinHeight);
    Main_Layout(p);
}

} // namespace tavo
