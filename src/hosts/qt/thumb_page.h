#pragma once

#include "hosts/qt/thumb_canvas.h"

namespace tavo {

class FrmMain;

// The page of the thumbnails: the side box with its button, the grid between
// the strips that scroll it during a drag, and the scroll bar.
class ThumbPage : public ThumbCanvas {
    Q_OBJECT

public:
    ThumbPage(FrmMain& form, Binder& binder, QWidget* parent);
};

} // namespace tavo
