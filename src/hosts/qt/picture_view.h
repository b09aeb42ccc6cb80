#pragma once

#include "toolkit/panels.h"

#include <QAbstractButton>
#include <QImage>
#include <QWidget>

#include <functional>

namespace tavo {

class Binder;

// A surface with a picture on it, on the surface's own ground. Where it is to
// be smaller than its dots, the picture is averaged down once for each size;
// what is scrolled then is only copied. It tells the picture's control where
// the mouse is, in twips from the picture's corner as it is at that moment,
// which may be ahead of what is painted. The pointer is a hand where the
// picture can be moved.
class PictureView : public QWidget {
    Q_OBJECT

public:
    PictureView(PictureBox& ground, ImageBox& picture, Binder& binder, QWidget* parent);

    // Gets the turns of the wheel.
    std::function<void(QWheelEvent& event)> OnWheel;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QRect Inside() const;
    QRectF Place() const; // of the picture, from the corner of the widget
    void PaintPicture(QPainter& painter);
    void PaintIcon(QPainter& painter, const QIcon& icon, const QRect& place) const;
    const QImage& Fitted(QSize dots);
    Control::Mouse At(const QMouseEvent& event) const;
    void ShowPointer(const QPoint& at, bool held);

    PictureBox& ground_;
    ImageBox& picture_;
    QImage fitted_; // the picture at the size that it was shown with last
    bool pressed_ = false;
};

// A button with nothing but a picture on its face.
class FaceButton : public QAbstractButton {
    Q_OBJECT

public:
    FaceButton(PictureButton& control, Binder& binder, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PictureButton& control_;
};

// Paints what a picture control shows, at its own size in the middle of a
// place, smaller where it does not fit in.
void Picture_PaintFitted(QPainter& painter, const PictureRef& picture, const QRect& place);

} // namespace tavo
