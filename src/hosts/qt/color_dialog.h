#pragma once

#include <QDialog>

namespace tavo {

class Binder;
class FrmColor;

// Picks a colour: a palette of boxes, and beside it, once it is widened,
// sliders and fields.
class ColorDialog : public QDialog {
    Q_OBJECT

public:
    ColorDialog(FrmColor& form, QWidget* owner);

    // Tells the form what its dialog takes with the fonts in force; a caller
    // that places the form goes by it.
    static void TellExtent(FrmColor& form);

private:
    QWidget* Boxes(FrmColor& form, Binder& binder);
    QWidget* Custom(FrmColor& form, Binder& binder);
    void Measure(FrmColor& form, QWidget& custom);
};

} // namespace tavo
