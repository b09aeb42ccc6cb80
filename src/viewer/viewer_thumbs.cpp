#include "core/frm_main.h"
#include "core/program.h"
#include "thumbnails/thumb_cells.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"
#include "viewer/frm_viewer.h"
#include "viewer/viewer_parts.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr int namePanel = 2;
constexpr int endingLength = 4; // the point and three letters

double Slot_Of(const Program& p, int row)
{
    return Val(p.main.lsvRename.Tag(row));
}

// At the lower edge of the view, near the bar that is being dragged.
void Preview_Place(FrmViewer& v)
{
    const double left = (v.picViewWin.ScaleWidth() - v.cmdThumb.Width) / 2;
    const double top = v.picViewWin.ScaleHeight() - v.cmdThumb.Height;
    v.cmdThumb.Left = RoundHalfEven(std::max(0.0, left));
    v.cmdThumb.Top = std::max(0.0, top);
}

// Told by the name, where the grid goes by the type.
bool Gif_IsLeftOut(const Program& p, int row)
{
    return p.state.Gif == 0 && UCase(Right(p.main.lsvRename.Text(row), endingLength)) == ".GIF";
}

} // namespace

void Viewer_Preview_Show(Program& p)
{
    FrmViewer* const v = Viewer_Find(p);
    if (v == nullptr)
        return;
    const int row = v->hsbCurImage.Value;
    if (!Viewer_HasRow(p, row))
        return;
    v->stbMain.SetPanel(namePanel, std::string(p.main.lsvRename.Text(row)));
    v->cmdThumb.Picture = Row_Picture(p, row);
    Preview_Place(*v);
    v->cmdThumb.Visible = true;
    // Its second begins anew.
    v->tmrHideThumb.Enabled = false;
    v->tmrHideThumb.Enabled = true;
}

void Viewer_Thumb_Make(Program& p, int row)
{
    FrmViewer* const v = Viewer_Find(p);
    const bool isWanted = v && p.state.AutoThumbs == 1 && !p.Busy();
    if (!isWanted || !Viewer_HasRow(p, row) || Slot_Of(p, row) != 0 || Gif_IsLeftOut(p, row))
        return;
    // Loaded anew. Where the picture is in sight already it keeps all its dots,
    // and this load can be a small one, which takes a fraction of the time.
    const bool isInSight = v->imgOriginal.Picture.Get().Shown == PictureRef::Kind::Bitmap;
    const Desktop::PictureBound bound =
        isInSight ? Look_Bound(p.state.ThumbLook) : Desktop::PictureBound();
    const BitmapPtr picture = p.desktop.LoadPicture(Viewer_File(p, row), bound);
    if (!picture)
        return;
    if (!isInSight)
        v->imgOriginal.Picture = PictureRef::OfBitmap(picture);
    const BitmapPtr thumbnail = Thumb_Draw(p, v->picThumbMake, *picture);
    if (!thumbnail)
        return;
    auto& buffer = p.state.ThumbBuffer;
    const std::size_t slot = std::max<std::size_t>(1, buffer.size());
    buffer.resize(slot + 1);
    buffer[slot] = thumbnail;
    p.main.lsvRename.SetTag(row, IntToText(static_cast<std::int64_t>(slot)));
    p.main.tmrRefreshThumbs.Enabled = true;
}

} // namespace tavo
