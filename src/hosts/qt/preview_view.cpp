#include "hosts/qt/preview_view.h"

#include "hosts/pictures/image_bitmap.h"
#include "hosts/qt/binder.h"
#include "hosts/qt/dialog_parts.h"
#include "hosts/qt/qt_text.h"
#include "thumbnails/frm_thumb_editor.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSvgRenderer>
#include <QToolTip>

#include <algorithm>

namespace tavo {

namespace {

constexpr int largestSample = 512; // pixels; more has no room in any window
constexpr char sampleFile[] = ":/sample.svg";

// The sample picture, as sharp as the screen is.
BitmapPtr Sample_OfSize(QSize size, qreal scale)
{
    QImage dots((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
    QPainter painter(&dots);
    painter.setRenderHint(QPainter::Antialiasing);
    QSvgRenderer(QString(sampleFile)).render(&painter, dots.rect());
    painter.end();
    return std::make_shared<pictures::ImageBitmap>(dots, size);
}

} // namespace

PreviewView::PreviewView(FrmThumbEditor& form, Binder& binder, QWidget* parent)
    : ThumbCanvas(form.picPreview, Ground::OfBox, binder, parent), form_(form)
{
    new Binding(binder.Queue(), *this, form.imgPreview.Changed, [this](const PropSet& changed) {
        if (changed.Has({Prop::Geometry}))
            DrawSample();
    });
}

void PreviewView::DrawSample()
{
    const QSize wanted = Place_InBox(form_.imgPreview, form_.picPreview).size().toSize();
    const QSize size = wanted.boundedTo({largestSample, largestSample}).expandedTo({1, 1});
    form_.imgPreview.Picture = PictureRef::OfBitmap(Sample_OfSize(size, devicePixelRatioF()));
}

void PreviewView::TellPlace()
{
    Place_Tell(*this, form_.picPreview);
    Thumb_Editor_Preview(form_);
}

void PreviewView::resizeEvent(QResizeEvent*)
{
    TellPlace();
}

void PreviewView::moveEvent(QMoveEvent*)
{
    TellPlace();
}

Control& PreviewView::ControlAt(const QPointF& place) const
{
    double x = place.x() * twipsPerPixel / form_.picPreview.UnitTwips();
    double y = place.y() * twipsPerPixel / form_.picPreview.UnitTwips();
    return form_.ControlAt(form_.picPreview, x, y);
}

void PreviewView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        ControlAt(event->position()).PersonClick();
}

bool PreviewView::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return ThumbCanvas::event(event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    const Control& control = ControlAt(help.pos());
    QToolTip::showText(help.globalPos(), ToQt(control.ToolTipText), this,
                       Place_InBox(control, form_.picPreview).toAlignedRect());
    return true;
}

} // namespace tavo
