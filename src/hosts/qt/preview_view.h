#pragma once

#include "hosts/qt/thumb_canvas.h"

namespace tavo {

class FrmThumbEditor;

// What the look that is being edited makes of a picture. The program lays it
// out in the room that there is; a click goes to what it hits.
class PreviewView : public ThumbCanvas {
    Q_OBJECT

public:
    PreviewView(FrmThumbEditor& form, Binder& binder, QWidget* parent);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    Control& ControlAt(const QPointF& place) const;
    void TellPlace();
    void DrawSample();

    FrmThumbEditor& form_;
};

} // namespace tavo
