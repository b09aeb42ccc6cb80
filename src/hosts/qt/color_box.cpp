#include "hosts/qt/color_box.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/colours.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace tavo {

ColorBox::ColorBox(PictureBox& control, Binder& binder, QSize size, QWidget* parent)
    : QWidget(parent), control_(control)
{
    setFixedSize(size);
    setAttribute(Qt::WA_Hover);
    binder.Bind(*this, control, [this](const PropSet& changed) {
        if (changed.Has({Prop::Colours}))
            update();
    });
}

// In the palette of the desktop: its own has the box's colours in it.
void ColorBox::paintEvent(QPaintEvent*)
{
    const QPalette palette = QApplication::palette();
    QColor rim = palette.color(QPalette::WindowText);
    rim.setAlphaF(underMouse() ? 1 : 0.4F);
    QPainter painter(this);
    painter.fillRect(rect(), Color_Of(control_.BackColor, palette));
    painter.setPen(rim);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ColorBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        control_.PersonClick();
}

} // namespace tavo
