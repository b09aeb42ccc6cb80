#include "hosts/qt/resize_dialog.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/form_window.h"
#include "hosts/qt/person_input.h"
#include "thumbnails/frm_thumb_resize.h"

#include <QBoxLayout>
#include <QLabel>
#include <QProgressBar>

namespace tavo {

namespace {

constexpr int margin = 18, gap = 10, barChars = 48;

} // namespace

ResizeDialog::ResizeDialog(FrmThumbResize& form, QWidget* owner) : QDialog(owner)
{
    auto* binder = new Binder(form, *this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(gap);
    column->setSizeConstraint(QLayout::SetFixedSize);
    auto* text = new QLabel(this);
    binder->Bind(*text, form.lblResize);
    auto* bar = new QProgressBar(this);
    bar->setMinimumWidth(barChars * fontMetrics().averageCharWidth());
    binder->Bind(*bar, form.prbResize);
    column->addWidget(text);
    column->addWidget(bar);
    const QSize needed = sizeHint();
    form.Move(form.Left(), form.Top(), needed.width() * twipsPerPixel,
              needed.height() * twipsPerPixel);
    new FormWindow(form, *this, binder->Queue());
    new PersonInput(*binder);
}

} // namespace tavo
