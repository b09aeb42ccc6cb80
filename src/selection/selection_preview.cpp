#include "core/frm_main.h"
#include "core/layout.h"
#include "core/program.h"
#include "selection/selection_screen.h"
#include "toolkit/text.h"

#include <cmath>

namespace tavo {

namespace {

// What the ending of the path decides before any file is opened; a name
// shorter than the ending goes the other way.
PictureRef Preview_Picture(Program& p, const std::string& path)
{
    const std::string ending = UCase(Right(path, 3));
    if (ending == "GIF" && p.state.Gif == 0)
        return PictureRef::OfIcon('F', smallIconPixels);
    if (ending == "MP3")
        return PictureRef::OfIcon('M', smallIconPixels);
    // It is only ever shown shrunk, so more dots than the screen has are wasted.
    const double twips = p.desktop.TwipsPerPixel();
    const auto bitmap =
        p.desktop.LoadPicture(path, {static_cast<int>(p.desktop.ScreenWidth() / twips),
                                     static_cast<int>(p.desktop.ScreenHeight() / twips)});
    return bitmap ? PictureRef::OfBitmap(bitmap) : PictureRef::OfIcon('F', smallIconPixels);
}

} // namespace

void Sel_Preview_Show(Program& p, const std::string& path)
{
    ImageBox& image = p.main.imgSelPreview;
    image.Visible = false;
    image.Stretch = false;
    image.Picture = Preview_Picture(p, path);
    Sel_Preview_Fit(p);
}

void Sel_Preview_Fit(Program& p)
{
    const PictureBox& panel = p.main.picSelPreview;
    PictureBox& image = p.main.imgSelPreview;
    const PictureRef& picture = image.Picture;
    if (picture.Shown == PictureRef::Kind::None)
        return;
    double width = picture.WidthPixels * p.desktop.TwipsPerPixel();
    double height = picture.HeightPixels * p.desktop.TwipsPerPixel();
    const double panelWidth = panel.ScaleWidth(), panelHeight = panel.ScaleHeight();
    if (panelWidth < width || panelHeight < height) {
        const double byHeight = panelHeight / height, byWidth = panelWidth / width;
        width = byHeight < byWidth ? std::trunc(width * byHeight) : panelWidth;
        height = byHeight < byWidth ? panelHeight : std::trunc(height * byWidth);
    }
    image.Stretch = true;
    image.Move((panelWidth - width) / 2, (panelHeight - height) / 2, width, height);
    image.Visible = true;
}

void Sel_Preview_Switch(Program& p, bool on)
{
    // The bar is brought back from the very top, where a saved or a small
    // window may have left it.
    constexpr double topmostBar = 800;
    FrmMain& main = p.main;
    p.state.SelPreview = on ? 1 : 0;
    main.atbMain.Find("ID_SelPreviewOn")->Visible = !on;
    main.atbMain.Find("ID_SelPreviewOff")->Visible = on;
    main.lblSelDBY.Visible = on;
    main.picSelPreview.Visible = on;
    if (on && main.lblSelDBY.Top < topmostBar)
        main.lblSelDBY.Top = main.fraSelect.Height / 2;
    Main_Layout(p);
    if (on)
        Sel_Status_Update(p);
}

} // namespace tavo
