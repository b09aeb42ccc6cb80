#pragma once

#include "hosts/qt/thumb_captions.h"
#include "hosts/qt/thumb_scene.h"

#include <QWidget>

namespace tavo {

class Binder;
class Binding;

// A picture box whose frames, pictures and captions are painted by one widget,
// since they are many and come and go. It paints at most once a frame, and only
// what is no longer as it was.
class ThumbCanvas : public QWidget {
    Q_OBJECT

public:
    // Fills its ground with the box's colour, or leaves that of the window.
    enum class Ground { OfBox, OfWindow };
    ThumbCanvas(PictureBox& box, Ground ground, Binder& binder, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Follow();

    PictureBox& box_;
    Ground ground_;
    Binder& binder_;
    Scene scene_;
    CaptionCuts captions_;
    Connection insideChanged_;
};

} // namespace tavo
