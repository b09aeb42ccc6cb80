#include "thumbnails/thumb_grid.h"

#include "core/tools.h"
#include "thumbnails/frm_thumb_resize.h"
#include "thumbnails/thumb_cells.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"

namespace tavo {

namespace {

constexpr double captionHeightTwips = 255;

// One of the three is pressed; what is none of their alignments is the centre.
void Align_Tools(Program& p)
{
    const int pressed = Align_Pressed(p.state.ThumbLook.Align);
    for (int k = 0; k <= alignCenter; ++k)
        Tool_Check(p, alignTools[k], k == pressed);
}

void Cell_Color(FrmMain& main, int cell, const ThumbLook& look)
{
    Label& caption = main.lblThumbs[cell];
    if (Align_IsKnown(look.Align))
        caption.Alignment = look.Align;
    caption.BackColor = look.Color[thumbCaptionBackground];
    caption.ForeColor = look.Color[thumbCaptionText];
    Shape& frame = main.shpThumbsSel[cell];
    frame.BackColor = look.Color[thumbBackground];
    frame.BorderWidth = look.BorderWidth;
}

} // namespace

void Thumb_Scheme_Apply(Program& p, const std::string& record)
{
    ThumbLook& look = p.state.ThumbLook;
    const PixelSize before{look.Width, look.Height};
    Scheme_Take(look, record);
    if (before != PixelSize{look.Width, look.Height} && p.state.ThumbBuffer.size() > 1)
        p.desktop.ShowModal(p.ThumbResize());
    Thumb_Layout(p);
    Thumb_Colors_Apply(p);
}

void Thumb_Colors_Apply(Program& p)
{
    const ThumbLook& look = p.state.ThumbLook;
    for (int cell = 1; cell <= p.main.shpThumbsSel.High(); ++cell)
        Cell_Color(p.main, cell, look);
    p.main.picThumbs.BackColor = look.Color[thumbWindow];
    Align_Tools(p);
}

void Thumb_Scheme_TakeUp(Program& p)
{
    const SharedState& s = p.state;
    if (s.Scheme.empty())
        return;
    for (std::size_t i = 1; i < s.ThumbSchemes.size(); ++i)
        if (LCase(s.ThumbSchemes[i].Name) == LCase(s.Scheme))
            return Thumb_Scheme_Apply(p, std::string(s.ThumbSchemes[i].Data));
}

void Thumb_Look_Begin(Program& p)
{
    ThumbLook& look = p.state.ThumbLook;
    const double twips = p.desktop.TwipsPerPixel();
    look = ThumbLook();
    look.CaptionHeight = static_cast<std::int16_t>(RoundHalfEven(captionHeightTwips / twips));
    Scheme_Take(look, std::string(defaultScheme));
    p.main.shpThumbsSel[1].Width = look.CellWidth;
    p.main.shpThumbsSel[1].Height = look.CellHeight;
    Thumb_Side_Fit(p);
    Thumb_Colors_Apply(p);
}

void Thumb_Align(Program& p, int alignment)
{
    p.state.ThumbLook.Align = static_cast<std::int16_t>(alignment);
    Align_Tools(p);
    Thumb_Refresh(p);
}

} // namespace tavo
