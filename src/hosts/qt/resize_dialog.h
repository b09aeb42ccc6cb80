#pragma once

#include <QDialog>

namespace tavo {

class FrmThumbResize;

// How far the thumbnails have come to their new size.
class ResizeDialog : public QDialog {
    Q_OBJECT

public:
    ResizeDialog(FrmThumbResize& form, QWidget* owner);
};

} // namespace tavo
