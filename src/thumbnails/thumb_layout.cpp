#include "thumbnails/thumb_grid.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/tools.h"
#include "thumbnails/thumb_cells.h"
#include "toolkit/numbers.h"

#include <algorithm>
#include <cstdint>

namespace tavo {

namespace {

// Room between two cells, and round them.
constexpr int cellGap = 6;
constexpr std::int16_t layoutMargin = 6;
constexpr double sideGap = 120;
// Makes a last line that is not full count as one.
constexpr double lineShare = 1.499;

struct Step {
    int X = 0, Y = 0;
};

Step Cell_Step(const ThumbLook& look)
{
    Step step{look.CellWidth + cellGap, look.CellHeight + cellGap};
    if (look.CaptionShown)
        step.Y += look.CaptionHeight;
    return step;
}

// How often a step goes into a length. No step, and what does not fit into 16
// bits, leaves the old number.
void Steps_Count(std::int16_t& count, double length, int step)
{
    if (step != 0)
        AssignChecked(count,
                      static_cast<double>(static_cast<std::int64_t>((length - cellGap) / step)));
}

void Grid_Measure(Program& p, const Step& step)
{
    SharedState& s = p.state;
    const PictureBox& area = p.main.picThumbs;
    Steps_Count(s.Columns, area.ScaleWidth(), step.X);
    Steps_Count(s.Rows, area.ScaleHeight(), step.Y);
    s.Rows = std::max<std::int16_t>(s.Rows, 1);
    AssignChecked(s.Cells, std::int32_t{s.Columns} * s.Rows);
    if (s.Cells > s.RenCount)
        s.Cells = static_cast<std::int16_t>(s.RenCount);
}

// A new cell is like the first one, and out of sight.
void Cell_Load(Program& p)
{
    FrmMain& main = p.main;
    Label& caption = main.lblThumbs.Load();
    ImageBox& image = main.imgThumbs.Load();
    Shape& frame = main.shpThumbsSel.Load();
    for (Control* control : std::initializer_list<Control*>{&caption, &image, &frame}) {
        control->Visible = false;
        control->Container = &main.picThumbs;
    }
    const Label& firstCaption = main.lblThumbs[1];
    caption.Height = firstCaption.Height;
    caption.Alignment = firstCaption.Alignment;
    caption.BackColor = firstCaption.BackColor;
    caption.ForeColor = firstCaption.ForeColor;
    const Shape& firstFrame = main.shpThumbsSel[1];
    frame.BackColor = firstFrame.BackColor;
    frame.BorderColor = firstFrame.BorderColor;
    frame.BorderWidth = firstFrame.BorderWidth;
    Cell_Wire(p, image.Index());
}

// From the top down; the first cell stays.
void Cells_Count(Program& p)
{
    FrmMain& main = p.main;
    const int wanted = std::max<int>(p.state.Cells, 1);
    while (main.imgThumbs.High() < wanted)
        Cell_Load(p);
    while (main.imgThumbs.High() > wanted) {
        // What would it drop, and whose pointer would it show?
        if (main.DragSource() == main.imgThumbs.At(main.imgThumbs.High()))
            main.PersonDragCancel();
        main.lblThumbs.Unload();
        main.imgThumbs.Unload();
        main.shpThumbsSel.Unload();
    }
}

void Cells_Place(Program& p, const Step& step)
{
    const ThumbLook& look = p.state.ThumbLook;
    int x = cellGap, y = cellGap;
    for (int cell = 1; cell <= p.state.Cells; ++cell) {
        p.main.shpThumbsSel[cell].Move(x, y, look.CellWidth, look.CellHeight);
        Label& caption = p.main.lblThumbs[cell];
        caption.Move(x, y + look.CellHeight, look.CellWidth, caption.Height);
        x += step.X;
        if (x >= p.state.Columns * step.X) {
            x = cellGap;
            y += step.Y;
        }
    }
}

// The last line that may stand at the top; the first one where there are no
// columns, or more lines than 16 bits count.
void Bar_Set(Program& p)
{
    const SharedState& s = p.state;
    ScrollBar& bar = p.main.vsbThumbs;
    std::int16_t last = 0;
    if (s.Columns != 0)
        AssignChecked(last, static_cast<double>(s.RenCount) / s.Columns - s.Rows + lineShare);
    bar.Max = std::max<int>(last, bar.Min);
    const bool scrolls = bar.Max != bar.Min && s.Cells < s.RenCount;
    bar.Enabled = scrolls;
    if (scrolls)
        bar.LargeChange = s.Rows;
}

std::int32_t Frame_Color(const Program& p, int row)
{
    const bool selected = p.main.lsvRename.Selected(row);
    return p.state.ThumbLook.Color[selected ? thumbSelectedBorder : thumbNormalBorder];
}

void Cell_Hide(FrmMain& main, int cell)
{
    for (Control* control : std::initializer_list<Control*>{
             &main.shpThumbsSel[cell], &main.imgThumbs[cell], &main.lblThumbs[cell]})
        control->Visible = false;
}

void Cell_Show(Program& p, int cell, int row)
{
    Shape& frame = p.main.shpThumbsSel[cell];
    ImageBox& image = p.main.imgThumbs[cell];
    Label& caption = p.main.lblThumbs[cell];
    image.ToolTipText = std::string(p.main.lsvRename.Text(row));
    caption.Caption = image.ToolTipText.Get();
    frame.BorderColor = Frame_Color(p, row);
    image.Picture = Row_Picture(p, row);
    Picture_Center(image, frame);
    frame.Visible = true;
    image.Visible = true;
    const ThumbLook& look = p.state.ThumbLook;
    if (Align_IsKnown(look.Align))
        caption.Alignment = look.Align;
    caption.Visible = look.CaptionShown;
}

} // namespace

bool Thumbs_Shown(const Program& p)
{
    return p.state.CurScreen == screenThumbnails;
}

int Cell_Row(const Program& p, int cell)
{
    const SharedState& s = p.state;
    const int rows = std::min<int>(s.RenCount, p.main.lsvRename.Count());
    const std::int64_t line = std::int64_t{p.main.vsbThumbs.Value} - 1;
    const std::int64_t row = line * s.Columns + cell;
    return row >= 1 && row <= std::min<int>(rows, INT16_MAX) ? static_cast<int>(row) : 0;
}

int Row_Line(const Program& p, int row)
{
    const int columns = p.state.Columns;
    std::int16_t line = 0;
    if (columns == 0 || row > INT16_MAX || !AssignChecked(line, static_cast<double>(row) / columns))
        return 0;
    return columns * line < row ? line + 1 : line;
}

int Line_Held(const Program& p, int line)
{
    const ScrollBar& bar = p.main.vsbThumbs;
    return std::max<int>(bar.Min, std::min<int>(line, bar.Max));
}

int Row_Slot(const Program& p, int row)
{
    const double slot = Val(p.main.lsvRename.Tag(row));
    return slot >= 1 && slot < static_cast<double>(p.state.ThumbBuffer.size())
               ? static_cast<int>(slot)
               : 0;
}

PictureRef Row_Icon(const Program& p, int row)
{
    const std::string_view icon = p.main.lsvRename.Icon(row);
    return icon.empty() ? PictureRef() : PictureRef::OfIcon(icon.front(), largeIconPixels);
}

PictureRef Row_Picture(const Program& p, int row)
{
    const int slot = Row_Slot(p, row);
    return slot >= 1 ? PictureRef::OfBitmap(p.state.ThumbBuffer[static_cast<std::size_t>(slot)])
                     : Row_Icon(p, row);
}

void Picture_Center(ImageBox& image, const Shape& frame)
{
    image.Left = frame.Left + (frame.Width - image.Width) / 2;
    image.Top = frame.Top + (frame.Height - image.Height) / 2;
}

void Thumb_Layout(Program& p)
{
    p.main.tmrRedrawThumbs.Enabled = false;
    if (!Thumbs_Shown(p) || p.state.RenCount == 0)
        return;
    p.state.ThumbLook.Margin = layoutMargin;
    const Step step = Cell_Step(p.state.ThumbLook);
    Grid_Measure(p, step);
    {
        const FreezeGuard freeze(p.main);
        Cells_Count(p);
        Cells_Place(p, step);
    }
    Bar_Set(p);
    Thumb_Refresh(p);
}

void Thumb_Refresh(Program& p)
{
    p.main.tmrRefreshThumbs.Enabled = false;
    if (!Thumbs_Shown(p))
        return;
    for (int cell = 1; cell <= p.state.Cells; ++cell) {
        const int row = Cell_Row(p, cell);
        if (row > 0)
            Cell_Show(p, cell, row);
        else
            Cell_Hide(p.main, cell);
    }
    // The first cell stays when there is room for none; it shows no row then.
    if (p.state.Cells < 1)
        Cell_Hide(p.main, 1);
}

void Thumb_Sel_Paint(Program& p)
{
    for (int cell = 1; cell <= p.state.Cells; ++cell) {
        const int row = Cell_Row(p, cell);
        if (row == 0)
            return;
        p.main.shpThumbsSel[cell].BorderColor = Frame_Color(p, row);
    }
}

void Thumb_Caption_Flip(Program& p)
{
    bool& shown = p.state.ThumbLook.CaptionShown;
    shown = !shown;
    Tool_Caption(p, "ID_ThumbCaption", shown ? "Hide &Caption" : "Show &Caption");
    Tools_Enable(p, {"ID_mnuCapAlign"}, shown);
    Thumb_Layout(p);
}

void Thumb_Side_Fit(Program& p)
{
    FrmMain& main = p.main;
    const double twips = p.desktop.TwipsPerPixel();
    Shape& frame = main.shpThumbsSelC;
    frame.Width = p.state.ThumbLook.CellWidth * twips;
    frame.Height = p.state.ThumbLook.CellHeight * twips;
    ImageBox& image = main.imgThumbsC;
    const PictureRef parked = image.Picture;
    image.Picture = PictureRef();
    image.Move(frame.Left + sideGap, frame.Top + sideGap, frame.Width - 2 * sideGap,
               frame.Height - 2 * sideGap);
    image.Picture = parked;
    Picture_Center(image, frame);
    main.cmdThumbsFind.Move(frame.Left, frame.Top + frame.Height + sideGap, frame.Width,
                            main.cmdThumbsFind.Height);
    main.picThumbs.Left = frame.Left + frame.Width + sideGap;
}

} // namespace tavo
