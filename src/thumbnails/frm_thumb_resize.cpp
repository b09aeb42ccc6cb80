#include "thumbnails/frm_thumb_resize.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "core/windows.h"
#include "thumbnails/thumb_cells.h"
#include "toolkit/numbers.h"

namespace tavo {

FrmThumbResize::FrmThumbResize(Program& p) : Form("frmThumbResize"), p_(p)
{
    SetCaption(std::string(appTitle));
    Design();
    Load = [this] { Win_CenterOwner(p_.main, *this); };
    Activate = [this] {
        ResizeAll();
        Unload();
    };
}

void FrmThumbResize::Design()
{
    Move(0, 0, 4800, 1500);
    picResizeWin.Move(0, 0, 4800, 1500);
    fraResize.Container = &picResizeWin;
    fraResize.Move(120, 120, 4560, 1260);
    lblResize.Container = prbResize.Container = &fraResize;
    lblResize.Caption = "Resizing Existing Thumbnails...";
    lblResize.Move(180, 240, 4200, 270);
    prbResize.Move(180, 660, 4200, 330);
    prbResize.AccessibleName = "Progress";
    for (Control* control : std::initializer_list<Control*>{&imgOriginal, &picThumb}) {
        control->Container = &picResizeWin;
        control->Visible = false;
    }
    picThumb.PixelScale = true;
}

void FrmThumbResize::ResizeAll()
{
    Refresh();
    prbResize.Value = prbResize.Min;
    const std::size_t last = p_.state.ThumbBuffer.size() - 1;
    for (std::size_t slot = 1; slot <= last; ++slot) {
        prbResize.Value =
            RoundHalfEven(static_cast<double>(slot) * 100 / static_cast<double>(last));
        ResizeSlot(slot);
        p_.desktop.StillAlive();
    }
    imgOriginal.Picture = PictureRef();
    picThumb.Picture = PictureRef();
}

// An empty slot stays so; a picture that there is no room for stays as it is.
void FrmThumbResize::ResizeSlot(std::size_t slot)
{
    BitmapPtr& picture = p_.state.ThumbBuffer[slot];
    if (!picture)
        return;
    imgOriginal.Picture = PictureRef::OfBitmap(picture);
    if (BitmapPtr drawn = Thumb_Draw(p_, picThumb, *picture)) {
        picThumb.Picture = PictureRef::OfBitmap(drawn);
        picture = std::move(drawn);
    }
}

} // namespace tavo
