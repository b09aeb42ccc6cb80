#include "hosts/console/control_face.h"

#include "hosts/console/system_colours.h"
#include "hosts/pictures/picture_reader.h"
#include "toolkit/panels.h"

#include <cmath>

namespace tavo::console {

namespace {

struct Extent {
    int Width = 0, Height = 0; // pixels
};

// Inside the frame, where there is one.
Extent Inside(const Control& control, double twipsPerPixel)
{
    const auto* const box = dynamic_cast<const PictureBox*>(&control);
    const double around = control.Container != nullptr ? control.Container->UnitTwips() : 1;
    const double unit = box != nullptr ? box->UnitTwips() : around;
    const auto pixels = [unit, twipsPerPixel](double length) {
        return static_cast<int>(std::lround(length * unit / twipsPerPixel));
    };
    return {pixels(control.ScaleWidth()), pixels(control.ScaleHeight())};
}

// An image has no surface of its own: without a picture nothing is there.
bool Shows_Nothing(const Control& control, const PictureRef* picture)
{
    return picture == nullptr
           || (picture->Shown == PictureRef::Kind::None
               && dynamic_cast<const ImageBox*>(&control) != nullptr);
}

bool Is_InOwnSize(const Control& control, const PictureRef& picture)
{
    const auto* const box = dynamic_cast<const PictureBox*>(&control);
    return picture.Shown != PictureRef::Kind::None && (box == nullptr || !box->Stretch);
}

BitmapPtr Dots_Of(const Control& control, const PictureRef& picture, Extent size)
{
    switch (picture.Shown) {
    case PictureRef::Kind::Bitmap: return picture.Dots;
    case PictureRef::Kind::Icon: return pictures::Bitmap_OfClass(picture.Icon);
    default: break;
    }
    return pictures::Bitmap_Plain(Dots_OfColour(control.BackColor), size.Width, size.Height);
}

} // namespace

std::string Face_Save(const Control& control, double twipsPerPixel, const std::string& target)
{
    const PictureRef* const picture = control.ShownPicture();
    if (Shows_Nothing(control, picture))
        return control.FullName() + " has no picture to save";
    const Extent size = Is_InOwnSize(control, *picture)
                            ? Extent{picture->WidthPixels, picture->HeightPixels}
                            : Inside(control, twipsPerPixel);
    if (size.Width < 1 || size.Height < 1)
        return control.FullName() + " is too small to save";
    const BitmapPtr dots = Dots_Of(control, *picture, size);
    const std::string why = dots != nullptr
                                ? pictures::Bitmap_SavePng(*dots, size.Width, size.Height, target)
                                : "no memory for the picture";
    return why.empty() ? why : "cannot write " + target + ": " + why;
}

} // namespace tavo::console
