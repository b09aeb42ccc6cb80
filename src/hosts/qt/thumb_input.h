#pragma once

#include "toolkit/panels.h"

#include <QObject>
#include <QPointF>

class QHelpEvent;
class QMouseEvent;
class QWidget;

namespace tavo {

// The mouse over the page of the thumbnails. Presses, moves and releases go to
// the control under the pointer; until the button goes up, to the one that was
// pressed. Once that has begun a drag, the drag has the mouse.
class ThumbInput : public QObject {
    Q_OBJECT

public:
    // `page` is the widget of `box` and gets the mouse for all that it paints;
    // the wheel turns `wheel`.
    ThumbInput(QWidget& page, PictureBox& box, QWidget& wheel);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    // A control with a place in its own scale.
    struct Spot {
        Control* On = nullptr;
        double X = 0, Y = 0;
    };
    Spot SpotAt(const QPointF& pixels) const;
    Spot SpotOn(Control& control, const QPointF& pixels) const;
    Control* Held() const;

    void Press(const QMouseEvent& event);
    void Move(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    void LetGo(const QMouseEvent& event);
    void ShowTip(const QHelpEvent& event);

    void DragFollow(const QMouseEvent& event);
    void DragCame();
    void ShowPointer();

    QWidget& page_;
    PictureBox& box_;
    Form& form_;
    QWidget& wheel_;
    // What was pressed, by its name: cells come and go. Button 0 is none.
    std::string heldName_;
    int heldIndex_ = -1, heldButton_ = 0;
    bool dragging_ = false;
    Connection dragChanged_, deactivated_, iconChanged_;
};

} // namespace tavo
