#include "thumbnails/thumb_drop.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "renamelist/rename_list.h"
#include "thumbnails/thumb_cells.h"
#include "thumbnails/thumb_grid.h"
#include "toolkit/numbers.h"

#include <algorithm>
#include <cmath>

namespace tavo {

namespace {

using DragState = Control::DragState;

enum DragIcon {
    iconPlain = -1,
    iconNone = 0,
    iconLeft = 1,
    iconRight = 2,
    iconUp = 3,
    iconDown = 4,
    iconDrop = 5
};

constexpr std::string_view sideTag = "0";

void Scrolling_Stop(FrmMain& main)
{
    main.tmrThumbsScrollD.Enabled = false;
    main.tmrThumbsScrollU.Enabled = false;
}

// -- Over a cell, the strips and the side box.

// In twips from the left edge.
double Cell_Half(const Program& p, int cell)
{
    return std::trunc(p.main.imgThumbs[cell].Width * p.desktop.TwipsPerPixel() / 2);
}

void Cell_DragOver(Program& p, int cell, Control& source, double x, DragState state)
{
    if (source.ToolTipText.Get().empty())
        return;
    switch (state) {
    case DragState::Enter: source.DragIcon = iconPlain; return;
    case DragState::Over: source.DragIcon = x <= Cell_Half(p, cell) ? iconLeft : iconRight; return;
    case DragState::Leave: source.DragIcon = iconNone; return Scrolling_Stop(p.main);
    }
}

// A strip: which way it scrolls, and where that ends.
struct Strip {
    Label FrmMain::*Bar;
    Timer FrmMain::*Scroll;
    Property<int> ScrollBar::*End;
    DragIcon Icon;
};

constexpr Strip strips[] = {
    {&FrmMain::lblThumbsSD, &FrmMain::tmrThumbsScrollD, &ScrollBar::Min, iconUp},
    {&FrmMain::lblThumbsSU, &FrmMain::tmrThumbsScrollU, &ScrollBar::Max, iconDown},
};

void Strip_DragOver(FrmMain& main, const Strip& strip, Control& source, DragState state)
{
    const bool atEnd = main.vsbThumbs.Value == main.vsbThumbs.*strip.End;
    const bool scrolls = state == DragState::Enter && !atEnd;
    if (state == DragState::Over && !atEnd)
        return;
    source.DragIcon = scrolls ? strip.Icon : iconNone;
    (main.*strip.Scroll).Enabled = scrolls;
}

void Strip_Drop(FrmMain& main, const Strip& strip, Control& source)
{
    source.DragIcon = iconPlain;
    (main.*strip.Scroll).Enabled = false;
}

void Side_DragOver(Control& source, DragState state)
{
    const bool drops = state != DragState::Leave && !source.ToolTipText.Get().empty();
    source.DragIcon = drops ? iconDrop : iconNone;
}

// -- Dropped on a cell.

// Lifts the rows that are not selected over the group, up to row `to`; gives
// the group's first row then.
int Group_LiftOthers(Program& p, int first, int to)
{
    for (int row = first; row <= to; ++row)
        if (!p.main.lsvRename.Selected(row))
            Ren_Row_Move(p, row, first++);
    return first;
}

// Fetches the selected rows behind `next` there, one behind the other, until
// `missing` of them have come.
void Group_FetchRest(Program& p, int next, int missing)
{
    ListView& list = p.main.lsvRename;
    for (int row = next; row <= list.Count(); ++row) {
        if (!list.Selected(row))
            continue;
        Ren_Row_Move(p, row, next);
        list.SetSelected(next++, true);
        if (--missing == 0)
            return;
    }
}

void Group_Gather(Program& p, int to)
{
    ListView& list = p.main.lsvRename;
    Ren_Order_MakePlain(list);
    const ListFreezeGuard freeze(list);
    const int count = list.SelCount();
    int first = list.NextSelected(0);
    if (first == 0 || first > to)
        return Group_FetchRest(p, to, count);
    first = Group_LiftOthers(p, first, to);
    if (to == 1)
        return Group_FetchRest(p, 1, count);
    const int moved = to - first + 1;
    if (moved < count)
        Group_FetchRest(p, to + 1, count - moved);
}

void One_Move(Program& p, int from, int to)
{
    ListView& list = p.main.lsvRename;
    if (from == to)
        return;
    Ren_Order_MakePlain(list);
    Ren_Row_Move(p, from, to);
    AssignChecked(p.state.SelAnchor, to);
    list.SetSelected(to, true);
    list.EnsureVisible(to);
}

// The index that the moved row must get once it is out of its old place.
int Drop_Index(const Program& p, int cell, double x, int from)
{
    const int row = Cell_Row(p, cell);
    if (Cell_Half(p, cell) > x)
        return row > 1 && from < row ? row - 1 : row;
    return from > row ? row + 1 : row;
}

void Cell_Drop(Program& p, int cell, const Control& source, double x)
{
    const ListView& list = p.main.lsvRename;
    Scrolling_Stop(p.main);
    if (p.Busy() || Cell_Row(p, cell) == 0)
        return;
    const bool parked = source.Tag.Get() == sideTag;
    const int from = parked ? list.FindItem(source.ToolTipText.Get()) : p.state.LastRow;
    if (from < 1 || from > list.Count() || source.ToolTipText.Get().empty())
        return;
    const int count = parked ? 1 : list.SelCount();
    const int to = Drop_Index(p, cell, x, from);
    if (count == list.Count())
        return;
    if (count == 1)
        One_Move(p, from, to);
    else if (count > 1)
        Group_Gather(p, to);
    Thumb_Refresh(p);
}

// -- The side box.

void Side_Park(Program& p)
{
    FrmMain& main = p.main;
    const int row = p.state.LastRow;
    if (row < 1 || row > main.lsvRename.Count())
        return;
    ImageBox& image = main.imgThumbsC;
    image.Visible = false;
    image.Picture = Row_Picture(p, row);
    image.ToolTipText = std::string(main.lsvRename.Text(row));
    Picture_Center(image, main.shpThumbsSelC);
    image.Visible = true;
}

void Side_Find(Program& p)
{
    FrmMain& main = p.main;
    const std::string& name = main.imgThumbsC.ToolTipText;
    const int row = name.empty() ? 0 : main.lsvRename.FindItem(name);
    if (row == 0)
        return;
    if (const int line = Row_Line(p, row))
        main.vsbThumbs.Value = Line_Held(p, line);
    main.lsvRename.EnsureVisible(row);
}

} // namespace

void Drop_Wire(Program& p, int cell)
{
    using Mouse = Control::Mouse;
    ImageBox& image = p.main.imgThumbs[cell];
    image.DragOver = [&p, cell](Control& source, const Mouse& mouse, DragState state) {
        Cell_DragOver(p, cell, source, mouse.X, state);
    };
    image.DragDrop = [&p, cell](Control& source, const Mouse& mouse) {
        Cell_Drop(p, cell, source, mouse.X);
    };
}

void Side_Wire(Program& p)
{
    using Mouse = Control::Mouse;
    FrmMain& main = p.main;
    for (const Strip& strip : strips) {
        Label& bar = main.*strip.Bar;
        bar.DragOver = [&main, &strip](Control& source, const Mouse&, DragState state) {
            Strip_DragOver(main, strip, source, state);
        };
        bar.DragDrop = [&main, &strip](Control& source, const Mouse&) {
            Strip_Drop(main, strip, source);
        };
    }
    ImageBox& box = main.imgThumbsC;
    box.DragOver = [](Control& source, const Mouse&, DragState state) {
        Side_DragOver(source, state);
    };
    box.DragDrop = [&p, &box](Control& source, const Mouse&) {
        if (source.Name() != box.Name())
            Side_Park(p);
    };
    main.cmdThumbsFind.Click = [&p] { Side_Find(p); };
}

} // namespace tavo
