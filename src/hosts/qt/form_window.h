#pragma once

#include "hosts/qt/binding.h"
#include "toolkit/form.h"

#include <QObject>
#include <QRect>

class QWidget;

namespace tavo {

class FrameQueue;

// Ties a window to its form: title, place, size, state, coming and going. The
// form's outer size is that of the widget; what the window manager draws round
// it does not count.
class FormWindow : public QObject {
    Q_OBJECT

public:
    FormWindow(Form& form, QWidget& window, FrameQueue& queue);

    // The part of the window that the form's controls share out has this size
    // in pixels. Tells the form what the rest takes.
    void TellInside(int width, int height);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Show(const PropSet& changed);
    void ShowPlace();
    void TellPlace();
    void TellState();
    void TellActive(bool active);
    bool StaysOpen();

    Form& form_;
    QWidget& window_;
    QRect shown_; // the form's place as the window last took it
    bool taking_ = false;
    Connection unloaded_;
};

} // namespace tavo
