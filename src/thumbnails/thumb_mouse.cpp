#include "thumbnails/thumb_grid.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/preview.h"
#include "thumbnails/thumb_cells.h"
#include "thumbnails/thumb_drop.h"
#include "toolkit/numbers.h"
#include "viewer/frm_viewer.h"

#include <algorithm>
#include <cmath>

namespace tavo {

namespace {

constexpr int leftButton = 1, rightButton = 2;
// A press that moves no farther than this is still a press.
constexpr double dragDistanceTwips = 60;

// -- Which rows are selected.

void Row_SelectAlone(ListView& list, int row)
{
    list.SetAllSelected(false);
    list.SetSelected(row, true);
}

// The low end is the fixed end from now on, whichever side the press was on.
void Range_Select(Program& p, int row)
{
    SharedState& s = p.state;
    ListView& list = p.main.lsvRename;
    s.SelAnchor = static_cast<std::int16_t>(std::min<int>(s.SelAnchor, s.RenCount));
    const int low = std::min<int>(row, s.SelAnchor), high = std::max<int>(row, s.SelAnchor);
    s.SelAnchor = static_cast<std::int16_t>(low);
    const ListFreezeGuard freeze(list);
    Row_SelectAlone(list, low);
    for (int one = low; one <= high; ++one)
        list.SetSelected(one, true);
}

void Rows_Pick(Program& p, int row, int shift)
{
    ListView& list = p.main.lsvRename;
    if (shift == shiftShift)
        return Range_Select(p, row);
    if (shift == shiftCtrl)
        list.SetSelected(row, !list.Selected(row));
    else if (!list.Selected(row))
        Row_SelectAlone(list, row);
    p.state.SelAnchor = static_cast<std::int16_t>(row);
}

// -- The mouse on a cell.

void Drag_Mark(SharedState& s, const Control::Mouse& mouse)
{
    AssignChecked(s.DragX, mouse.X);
    AssignChecked(s.DragY, mouse.Y);
}

void Cell_Pressed(Program& p, int cell, const Control::Mouse& mouse)
{
    const int row = Cell_Row(p, cell);
    if (p.Busy() || row == 0)
        return;
    // A page that was left behind by the bar is no page to pick from.
    if (p.main.imgThumbs[cell].ToolTipText.Get() != p.main.lsvRename.Text(row))
        return Thumb_Refresh(p);
    Drag_Mark(p.state, mouse);
    if (mouse.Button == leftButton) {
        p.state.LastRow = row;
        Rows_Pick(p, row, mouse.Shift);
        Thumb_Sel_Paint(p);
        Row_Click(p);
    } else if (mouse.Button == rightButton) {
        Viewer_Open(p, row);
        p.desktop.DoEvents();
    }
}

// A click on one of several selected pictures picks it alone, but only now: it
// could have been the beginning of a drag of them all.
void Cell_Released(Program& p, int cell, const Control::Mouse& mouse)
{
    const int row = Cell_Row(p, cell);
    if (p.Busy() || row == 0 || mouse.Button != leftButton || mouse.Shift != shiftNone)
        return;
    p.state.LastRow = row;
    Row_SelectAlone(p.main.lsvRename, row);
    p.state.SelAnchor = static_cast<std::int16_t>(row);
    Thumb_Sel_Paint(p);
}

void Cell_Moved(Program& p, int cell, const Control::Mouse& mouse)
{
    const SharedState& s = p.state;
    if (mouse.Button != leftButton || p.Busy() || p.main.DragSource() || s.DragX == noDrag)
        return;
    if (std::abs(mouse.X - s.DragX) > dragDistanceTwips
        || std::abs(mouse.Y - s.DragY) > dragDistanceTwips)
        p.main.imgThumbs[cell].Drag();
}

void Background_Clicked(Program& p)
{
    if (p.Busy())
        return;
    p.main.lsvRename.SetAllSelected(false);
    p.main.lsvRename.SetSelected(1, true);
    p.main.lsvRename.SetSelected(1, false);
    Thumb_Sel_Paint(p);
}

// -- Timers, and what the grid hears of the list.

void Scroll_Step(Program& p, int step)
{
    ScrollBar& bar = p.main.vsbThumbs;
    const int to = bar.Value + step;
    if (to >= bar.Min && to <= bar.Max)
        bar.Value = to;
    Thumb_Refresh(p);
}

void Timers_Wire(Program& p)
{
    FrmMain& main = p.main;
    main.tmrRedrawThumbs.Tick = [&p] { Thumb_Layout(p); };
    main.tmrRefreshThumbs.Tick = [&p] { Thumb_Refresh(p); };
    main.tmrThumbsScrollD.Tick = [&p] { Scroll_Step(p, -1); };
    main.tmrThumbsScrollU.Tick = [&p] { Scroll_Step(p, 1); };
}

} // namespace

void Cell_Wire(Program& p, int cell)
{
    using Mouse = Control::Mouse;
    ImageBox& image = p.main.imgThumbs[cell];
    image.MouseDown = [&p, cell](const Mouse& mouse) { Cell_Pressed(p, cell, mouse); };
    image.MouseUp = [&p, cell](const Mouse& mouse) { Cell_Released(p, cell, mouse); };
    image.MouseMove = [&p, cell](const Mouse& mouse) { Cell_Moved(p, cell, mouse); };
    Drop_Wire(p, cell);
}

void Thumb_Wire(Program& p)
{
    Cell_Wire(p, 1);
    Side_Wire(p);
    Timers_Wire(p);
    p.main.picThumbs.Click = [&p] { Background_Clicked(p); };
    p.main.vsbThumbs.Change = [&p] { Thumb_Refresh(p); };
    p.RowsRedrawn = [&p] { Thumb_Refresh(p); };
    p.RowsCounted = [&p] { Thumb_Layout(p); };
    p.RowShown = [&p](int) { Thumb_Refresh(p); };
}

} // namespace tavo
