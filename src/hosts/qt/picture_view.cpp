#include "hosts/qt/picture_view.h"

#include "hosts/pictures/image_bitmap.h"
#include "hosts/pictures/pictures.h"
#include "hosts/qt/binder.h"
#include "hosts/qt/colours.h"
#include "hosts/qt/icons.h"
#include "hosts/qt/key_of_event.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

namespace tavo {

namespace {

// The pointers over a picture by their numbers; any other is an arrow.
struct PointerRow {
    int Number;
    Qt::CursorShape Free, Held;
};

constexpr PointerRow pointers[] = {
    {5, Qt::OpenHandCursor, Qt::ClosedHandCursor},
    {7, Qt::SizeVerCursor, Qt::ClosedHandCursor},
    {9, Qt::SizeHorCursor, Qt::ClosedHandCursor},
};

QSize Dots_Of(const QSizeF& size, double scale)
{
    return {std::max(1, static_cast<int>(std::lround(size.width() * scale))),
            std::max(1, static_cast<int>(std::lround(size.height() * scale)))};
}

// Icons are drawn in the colours of the desktop, which may be lost on a ground
// that somebody has chosen.
void PaintIconOn(QPainter& painter, const QIcon& icon, const QRect& place, const QColor& ground)
{
    constexpr int middleGray = 128;
    QPixmap picture = icon.pixmap(place.size(), painter.device()->devicePixelRatioF());
    QPainter tint(&picture);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(QRect(QPoint(), place.size()),
                  qGray(ground.rgb()) < middleGray ? Qt::white : Qt::black);
    tint.end();
    painter.drawPixmap(place, picture);
}

} // namespace

PictureView::PictureView(PictureBox& ground, ImageBox& picture, Binder& binder, QWidget* parent)
    : QWidget(parent), ground_(ground), picture_(picture)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    binder.Bind(*this, ground, [this](const PropSet& changed) {
        if (changed.Has({Prop::Colours}))
            update();
    });
    binder.Place(*this, ground);
    new Binding(binder.Queue(), *this, picture.Changed, [this](const PropSet& changed) {
        if (changed.Has({Prop::Picture}))
            fitted_ = QImage();
        if (changed.Has({Prop::Picture, Prop::Geometry, Prop::Visible}))
            update();
        if (changed.Has({Prop::Style, Prop::Visible}))
            ShowPointer(mapFromGlobal(QCursor::pos()), pressed_);
    });
}

QRect PictureView::Inside() const
{
    const int border = static_cast<int>(std::lround(ground_.BorderTwips / twipsPerPixel));
    return rect().adjusted(border, border, -border, -border);
}

QRectF PictureView::Place() const
{
    const QPointF corner = Inside().topLeft();
    return {corner.x() + picture_.Left, corner.y() + picture_.Top, picture_.Width, picture_.Height};
}

void PictureView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Color_Of(ground_.BackColor, palette()));
    if (ground_.BorderTwips > 0) {
        QStyleOptionFrame frame;
        frame.initFrom(this);
        frame.lineWidth = frame.midLineWidth = 1;
        frame.state |= QStyle::State_Sunken;
        style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);
    }
    if (!picture_.Visible)
        return;
    painter.setClipRect(Inside());
    PaintPicture(painter);
}

// Counted in the dots of the screen, so that none is drawn between two.
void PictureView::PaintPicture(QPainter& painter)
{
    const PictureRef& shown = picture_.Picture;
    const QRectF place = Place();
    if (shown.Shown == PictureRef::Kind::Icon)
        return PaintIcon(painter, Icon_OfClass({&shown.Icon, 1}), place.toAlignedRect());
    if (shown.Shown != PictureRef::Kind::Bitmap)
        return;
    const double scale = devicePixelRatioF();
    const QRect dots(QPoint(static_cast<int>(std::lround(place.x() * scale)),
                            static_cast<int>(std::lround(place.y() * scale))),
                     Dots_Of(place.size(), scale));
    painter.scale(1 / scale, 1 / scale);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(dots, Fitted(dots.size()));
}

void PictureView::PaintIcon(QPainter& painter, const QIcon& icon, const QRect& place) const
{
    if (Color_IsOfSystem(ground_.BackColor))
        icon.paint(&painter, place);
    else
        PaintIconOn(painter, icon, place, Color_Of(ground_.BackColor, palette()));
}

// What is enlarged is drawn from its own dots, of which no more are touched
// than are seen.
const QImage& PictureView::Fitted(QSize dots)
{
    const QImage& image = pictures::Image_Of(*picture_.Picture.Get().Dots);
    const bool shrinks = dots.width() < image.width() || dots.height() < image.height();
    if (!shrinks)
        return image;
    if (fitted_.size() != dots)
        fitted_ = pictures::Scale_Smooth(image, dots);
    return fitted_.isNull() ? image : fitted_;
}

// Moves with no button held are told with the number 0.
Control::Mouse PictureView::At(const QMouseEvent& event) const
{
    const Qt::MouseButtons buttons =
        event.type() == QEvent::MouseMove ? event.buttons() : Qt::MouseButtons(event.button());
    const QPointF place = event.position() - Place().topLeft();
    const int number = buttons & Qt::LeftButton ? 1 : buttons & Qt::RightButton ? 2 : 0;
    return {number, Shift_Of(event.modifiers()), place.x() * twipsPerPixel,
            place.y() * twipsPerPixel};
}

void PictureView::mousePressEvent(QMouseEvent* event)
{
    if (!picture_.Visible || !Place().contains(event->position()))
        return;
    pressed_ = true;
    ShowPointer(event->pos(), true);
    picture_.MouseDown(At(*event));
}

void PictureView::mouseMoveEvent(QMouseEvent* event)
{
    ShowPointer(event->pos(), pressed_);
    if (pressed_ || (picture_.Visible && Place().contains(event->position())))
        picture_.MouseMove(At(*event));
}

void PictureView::mouseReleaseEvent(QMouseEvent* event)
{
    if (!pressed_)
        return;
    pressed_ = event->buttons() != Qt::NoButton;
    ShowPointer(event->pos(), pressed_);
    picture_.MouseUp(At(*event));
}

void PictureView::wheelEvent(QWheelEvent* event)
{
    if (OnWheel)
        OnWheel(*event);
}

void PictureView::ShowPointer(const QPoint& at, bool held)
{
    const bool over = held || (picture_.Visible && Place().contains(at));
    for (const PointerRow& row : pointers)
        if (over && row.Number == picture_.MousePointer)
            return setCursor(held ? row.Held : row.Free);
    unsetCursor();
}

FaceButton::FaceButton(PictureButton& control, Binder& binder, QWidget* parent)
    : QAbstractButton(parent), control_(control)
{
    setFocusPolicy(Qt::NoFocus);
    binder.Bind(*this, control, [this](const PropSet& changed) {
        if (changed.Has({Prop::Picture}))
            update();
    });
    binder.Place(*this, control);
    connect(this, &QAbstractButton::clicked, this, [this] { control_.PersonClick(); });
}

void FaceButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOptionButton option;
    option.initFrom(this);
    option.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, this);
    constexpr int rim = 2;
    Picture_PaintFitted(painter, control_.Picture, rect().adjusted(rim, rim, -rim, -rim));
}

void Picture_PaintFitted(QPainter& painter, const PictureRef& picture, const QRect& place)
{
    if (picture.Shown == PictureRef::Kind::None)
        return;
    QSize size(picture.WidthPixels, picture.HeightPixels);
    if (size.width() > place.width() || size.height() > place.height())
        size = pictures::Size_Fit(size, place.size());
    QRect target(QPoint(), size);
    target.moveCenter(place.center());
    if (picture.Shown == PictureRef::Kind::Icon)
        return Icon_OfClass({&picture.Icon, 1}).paint(&painter, target);
    const double scale = painter.device()->devicePixelRatioF();
    painter.drawImage(target, pictures::Scale_Smooth(pictures::Image_Of(*picture.Dots),
                                                     Dots_Of(target.size(), scale)));
}

} // namespace tavo
