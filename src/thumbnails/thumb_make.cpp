#include "thumbnails/thumb_grid.h"

#include "core/screens.h"
#include "core/tools.h"
#include "thumbnails/thumb_cells.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace tavo {

namespace {

constexpr int statusPanel = 2;
// The buffer grows by so many slots at a time.
constexpr int growth = 50;

// The rows of a walk in hand, and the slot that was given last.
struct Walk {
    std::vector<int> Rows;
    int Next = 0, Capacity = 0;
};

void Buffer_Resize(SharedState& s, int upperBound)
{
    s.ThumbBuffer.resize(static_cast<std::size_t>(upperBound) + 1);
}

int Buffer_Last(const SharedState& s)
{
    return static_cast<int>(s.ThumbBuffer.size()) - 1;
}

// The file of the row on the surface, at the look's size; null where it cannot
// be read. The host may keep it small from the beginning.
BitmapPtr Row_Draw(Program& p, int row)
{
    const ListView& list = p.main.lsvRename;
    const std::string path =
        std::string(list.Cell(row, p.state.colPath)) + std::string(list.Text(row));
    const ThumbLook& look = p.state.ThumbLook;
    const BitmapPtr original = p.desktop.LoadPicture(path, Look_Bound(look));
    p.main.imgOriginal.Picture = PictureRef::OfBitmap(original);
    if (!original)
        return nullptr;
    BitmapPtr drawn = Thumb_Draw(p, p.main.picThumb, *original);
    p.main.picThumb.Picture = PictureRef::OfBitmap(drawn);
    return drawn;
}

bool Row_IsBarred(const Program& p, int row)
{
    return p.state.Gif == 0 && UCase(p.main.lsvRename.Cell(row, p.state.colType)) == "GIF";
}

// The cell of the row, where it is in sight; else the page follows the work.
void View_Follow(Program& p, int row, const PictureRef& picture)
{
    ScrollBar& bar = p.main.vsbThumbs;
    const int line = Row_Line(p, row);
    if (line == 0)
        return;
    if (line < bar.Value || line > bar.Value + p.state.Rows - 1) {
        bar.Value = Line_Held(p, line);
        return;
    }
    const int cell = row - (bar.Value - 1) * p.state.Columns;
    ImageBox* const image = p.main.imgThumbs.At(cell);
    if (image == nullptr)
        return;
    image->Visible = false;
    image->Picture = picture;
    Picture_Center(*image, p.main.shpThumbsSel[cell]);
    image->Visible = true;
}

// A slot is used up by a row that keeps its picture, too.
void Slot_Next(Program& p, Walk& walk)
{
    ++walk.Next;
    if (walk.Next == walk.Capacity) {
        walk.Capacity += growth;
        Buffer_Resize(p.state, walk.Capacity);
    }
}

void Row_Create(Program& p, Walk& walk, int row)
{
    ListView& list = p.main.lsvRename;
    if (!list.Tag(row).empty())
        return Slot_Next(p, walk);
    if (Row_IsBarred(p, row))
        return;
    const BitmapPtr picture = Row_Draw(p, row);
    if (!picture)
        return;
    const int slot = walk.Next + 1;
    p.state.ThumbBuffer[static_cast<std::size_t>(slot)] = picture;
    list.SetTag(row, IntToText(slot));
    Slot_Next(p, walk);
    View_Follow(p, row, PictureRef::OfBitmap(picture));
}

void Row_Update(Program& p, Walk&, int row)
{
    ListView& list = p.main.lsvRename;
    if (list.Tag(row).empty() || Row_IsBarred(p, row))
        return;
    const auto slot = static_cast<std::size_t>(Row_Slot(p, row));
    const BitmapPtr picture = Row_Draw(p, row);
    if (slot > 0)
        p.state.ThumbBuffer[slot] = picture;
    if (!picture)
        list.SetTag(row, "");
    View_Follow(p, row, slot > 0 ? PictureRef::OfBitmap(picture) : Row_Icon(p, row));
}

void Create_Begin(Program& p, Walk& walk)
{
    walk.Next = Buffer_Last(p.state);
    walk.Capacity = walk.Next + 1;
    Buffer_Resize(p.state, walk.Capacity);
}

// One slot is left empty at the top; the next run starts behind it.
void Create_End(Program& p, Walk& walk)
{
    Buffer_Resize(p.state, walk.Next + 1);
}

struct WalkPlan {
    std::string_view Status;
    void (*Begin)(Program& p, Walk& walk);
    void (*Row)(Program& p, Walk& walk, int row);
    void (*End)(Program& p, Walk& walk);
};

constexpr WalkPlan creation{"Press ESC to Cancel Thumbnail Creation", Create_Begin, Row_Create,
                            Create_End};
constexpr WalkPlan update{"Press ESC to Cancel Thumbnail Update", nullptr, Row_Update, nullptr};

// What would change the rows is out of reach; the view itself scrolls.
void Busy_Set(Program& p, bool on)
{
    Tools_RunEnable(p, !on);
    p.main.picThumbnails.Enabled = true;
    // The offer is also made for an empty list, whose commands stay off.
    if (!on && p.state.RenCount == 0)
        Tools_ListEnable(p, false);
}

std::vector<int> Rows_Wanted(const ListView& list, bool allRows)
{
    if (!allRows)
        return list.SelectedRows();
    std::vector<int> rows(static_cast<std::size_t>(list.Count()));
    std::iota(rows.begin(), rows.end(), 1);
    return rows;
}

void Rows_Work(Program& p, const WalkPlan& plan, Walk& walk)
{
    for (const int row : walk.Rows) {
        plan.Row(p, walk, row);
        p.desktop.DoEvents();
        if (p.state.ActCancel)
            return;
    }
}

void Thumbs_Walk(Program& p, const WalkPlan& plan, bool allRows)
{
    const LongOperation operation(p);
    if (!operation)
        return;
    if (!Thumbs_Shown(p)) {
        View_Set(p, viewThumbnails);
        Screen_Show(p, screenThumbnails, false);
    }
    p.state.ActCancel = false;
    Walk walk;
    if (plan.Begin)
        plan.Begin(p, walk);
    walk.Rows = Rows_Wanted(p.main.lsvRename, allRows);
    const BusyPointer pointer(p);
    Busy_Set(p, true);
    p.desktop.DoEvents();
    p.main.imgOriginal.Stretch = false;
    const std::string status = p.main.stbMain.Panel(statusPanel);
    p.main.stbMain.SetPanel(statusPanel, std::string(plan.Status));
    Rows_Work(p, plan, walk);
    p.main.imgOriginal.Picture = PictureRef();
    p.main.picThumb.Picture = PictureRef();
    Busy_Set(p, false);
    p.main.stbMain.SetPanel(statusPanel, status);
    if (plan.End)
        plan.End(p, walk);
}

} // namespace

BitmapPtr Thumb_Draw(Program& p, PictureBox& surface, const Bitmap& original)
{
    const PixelSize size = Thumb_Fit(p.state.ThumbLook, original.Width(), original.Height());
    surface.Picture = PictureRef();
    surface.Width = size.Width;
    surface.Height = size.Height;
    return p.desktop.PaintPicture(original, size.Width, size.Height);
}

void Thumb_Create(Program& p, bool allRows)
{
    Thumbs_Walk(p, creation, allRows);
}

void Thumb_Update(Program& p, bool allRows)
{
    Thumbs_Walk(p, update, allRows);
}

void Thumb_Create_Offer(Program& p)
{
    if (Buffer_Last(p.state) == 0
        && p.Say("Would you like to Create Thumbnail Images Now?", BoxIcon::Question,
                 BoxButtons::OkCancel)
               == BoxAnswer::Ok)
        Thumb_Create(p, true);
}

void Thumb_Clear(Program& p)
{
    if (p.Busy())
        return;
    p.state.ThumbBuffer.assign(1, nullptr);
    ListView& list = p.main.lsvRename;
    for (int row = 1; row <= list.Count(); ++row)
        list.SetTag(row, "");
    p.main.imgThumbsC.Picture = PictureRef();
    p.main.imgThumbsC.ToolTipText = std::string();
    Thumb_Refresh(p);
}

} // namespace tavo
