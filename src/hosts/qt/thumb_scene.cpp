#include "hosts/qt/thumb_scene.h"

#include "hosts/pictures/image_bitmap.h"
#include "hosts/qt/binder.h"
#include "hosts/qt/colours.h"
#include "hosts/qt/icons.h"
#include "hosts/qt/thumb_captions.h"

#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tavo {

namespace {

using Kind = SceneItem::Kind;

constexpr int captionPadding = 2, smallestFont = 6;
constexpr int leastContrast = 96; // of 255
constexpr int plateRim = 4;

constexpr Qt::Alignment alignments[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};

Qt::Alignment Alignment_Of(int number)
{
    return alignments[number == 0 || number == 1 ? number : 2];
}

SceneItem Item_Of(const Control& control, const PictureBox& box)
{
    SceneItem item;
    item.Place = Place_InBox(control, box);
    item.Back = control.BackColor;
    return item;
}

SceneItem Frame_Of(const Shape& shape, const PictureBox& box)
{
    SceneItem item = Item_Of(shape, box);
    item.Fore = shape.BorderColor;
    item.Style = shape.BorderWidth;
    return item;
}

// At its natural size, whatever room the control was given.
SceneItem Picture_Of(const PictureBox& image, const PictureBox& box)
{
    SceneItem item = Item_Of(image, box);
    item.What = Kind::Picture;
    item.Picture = image.Picture;
    if (!image.Stretch)
        item.Place.setSize(QSizeF(item.Picture.WidthPixels, item.Picture.HeightPixels));
    return item;
}

SceneItem Caption_Of(const Label& label, const PictureBox& box)
{
    SceneItem item = Item_Of(label, box);
    item.What = Kind::Caption;
    item.Fore = label.ForeColor;
    item.Style = label.Alignment;
    item.Text = label.Caption;
    return item;
}

void Add(Scene& scene, const Control& control, const PictureBox& box)
{
    if (const auto* shape = dynamic_cast<const Shape*>(&control))
        scene.push_back(Frame_Of(*shape, box));
    else if (const auto* image = dynamic_cast<const PictureBox*>(&control))
        scene.push_back(Picture_Of(*image, box));
    else if (const auto* label = dynamic_cast<const Label*>(&control))
        scene.push_back(Caption_Of(*label, box));
}

bool IsSeenOn(const QColor& ground, const QColor& line)
{
    return std::abs(qGray(ground.rgb()) - qGray(line.rgb())) >= leastContrast;
}

bool IsAboutAsLarge(const QSize& one, const QSize& other)
{
    return std::abs(one.width() - other.width()) <= 1
           && std::abs(one.height() - other.height()) <= 1;
}

} // namespace

QRectF Place_InBox(const Control& control, const PictureBox& box)
{
    const double unit = box.UnitTwips() / twipsPerPixel;
    return {control.Left * unit, control.Top * unit, control.Width * unit, control.Height * unit};
}

Scene Scene_Of(const PictureBox& box, const Binder& binder)
{
    Scene scene;
    for (const Control* control : box.Owner().Controls())
        if (control->Container == &box && control->Visible && !binder.WidgetOf(control))
            Add(scene, *control, box);
    std::stable_sort(scene.begin(), scene.end(), [](const SceneItem& one, const SceneItem& other) {
        return one.What < other.What;
    });
    return scene;
}

ScenePainter::ScenePainter(QPainter& painter, const QPalette& palette, const QFont& font,
                           CaptionCuts& captions)
    : painter_(painter), palette_(palette), font_(font), captions_(captions),
      scale_(painter.device()->devicePixelRatioF())
{
}

void ScenePainter::Paint(const SceneItem& item)
{
    switch (item.What) {
    case Kind::Frame: return Frame(item);
    case Kind::Picture: return Picture(item);
    case Kind::Caption: return Caption(item);
    }
}

void ScenePainter::Frame(const SceneItem& item)
{
    const QRect outer = item.Place.toRect();
    const int border = std::max(0, item.Style);
    const QRect inner = outer.adjusted(border, border, -border, -border);
    if (border > 0)
        painter_.fillRect(outer, Color_Of(item.Fore, palette_));
    ground_ = Color_Of(item.Back, palette_);
    if (inner.isValid())
        painter_.fillRect(inner, ground_);
}

// Dot for dot: a picture has as many dots as the screen has for its pixels,
// unless it was made for another screen.
void ScenePainter::Picture(const SceneItem& item)
{
    const QRect dots = QRectF(item.Place.topLeft() * scale_, item.Place.size() * scale_).toRect();
    painter_.save();
    painter_.scale(1 / scale_, 1 / scale_);
    if (item.Picture.Shown == PictureRef::Kind::Icon) {
        LayPlate(dots);
        painter_.drawPixmap(dots, Icon(item.Picture.Icon, item.Place.size().toSize()));
    } else if (item.Picture.Shown == PictureRef::Kind::Bitmap) {
        const QImage& image = pictures::Image_Of(*item.Picture.Dots);
        const bool asItIs = IsAboutAsLarge(image.size(), dots.size());
        painter_.setRenderHint(QPainter::SmoothPixmapTransform, !asItIs);
        painter_.drawImage(asItIs ? QRect(dots.topLeft(), image.size()) : dots, image);
    }
    painter_.restore();
}

void ScenePainter::Caption(const SceneItem& item)
{
    const QRect place = item.Place.toRect();
    FitFont(place.height());
    painter_.fillRect(place, Color_Of(item.Back, palette_));
    painter_.setPen(Color_Of(item.Fore, palette_));
    const QRect room = place.adjusted(captionPadding, 0, -captionPadding, 0);
    painter_.drawText(
        room,
        static_cast<int>(Alignment_Of(item.Style) | Qt::AlignAbsolute | Qt::AlignVCenter)
            | Qt::TextSingleLine,
        captions_.Of(item.Text, painter_.font(), room.width()));
}

// Smaller, until a line of it has room.
void ScenePainter::FitFont(int heightPixels)
{
    if (heightPixels == fittedHeight_)
        return;
    fittedHeight_ = heightPixels;
    QFont fitted = font_;
    for (int size = QFontInfo(font_).pixelSize();
         size > smallestFont && QFontMetrics(fitted).height() > heightPixels; --size)
        fitted.setPixelSize(size - 1);
    painter_.setFont(fitted);
}

// Icons have the colours of the desktop, and would be lost on some grounds of a
// scheme's own.
void ScenePainter::LayPlate(const QRect& dots)
{
    const int rim = qRound(plateRim * scale_);
    if (ground_.isValid() && !IsSeenOn(ground_, palette_.color(QPalette::WindowText)))
        painter_.fillRect(dots.adjusted(-rim, -rim, rim, rim), palette_.window());
}

const QPixmap& ScenePainter::Icon(char letter, const QSize& size)
{
    QPixmap& icon = icons_[letter];
    if (icon.isNull())
        icon = Icon_OfClass({&letter, 1}).pixmap(size, scale_);
    return icon;
}

} // namespace tavo
