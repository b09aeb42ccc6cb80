#pragma once

#include "toolkit/panels.h"

#include <QWidget>

namespace tavo {

class Binder;

// A piece of colour; a click on it is the control's.
class ColorBox : public QWidget {
    Q_OBJECT

public:
    ColorBox(PictureBox& control, Binder& binder, QSize size, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    PictureBox& control_;
};

} // namespace tavo
